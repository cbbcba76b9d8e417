#pragma once

#include <array>
#include <string>

#include "model/units.h"
#include "prediction/calculation.h"

// The predicted table: a heading and nine rows of times, paces, levels and percentages, on paper as in numbers.

struct TableDistance
{
    const char* label;   // as it is printed
    double distance;     // m
};

inline constexpr std::size_t predictedRows = 9;

inline constexpr std::array<TableDistance, predictedRows> metricDistances{{
    {"     400 m ", 400},
    {"     800 m ", 800},
    {"    1500 m ", 1500},
    {"    1600 m ", 1600},
    {"    3000 m ", 3000},
    {"    3200 m ", 3200},
    {"    5000 m ", 5000},
    {"    8000 m ", 8000},
    {"   10000 m ", 10000},
}};

/// Rounded to the centimetre on purpose: a mile is 1609.34 m here.
inline constexpr std::array<TableDistance, predictedRows> englishDistances{{
    {"     440 yd ", 402.34},
    {"     880 yd ", 804.67},
    {"       1 mi ", 1609.34},
    {"       2 mi ", 3218.69},
    {"       3 mi ", 4828.03},
    {"       5 mi ", 8046.72},
    {"      10 mi ", 16093.44},
    {" half mara. ", halfMarathonMetres},
    {"  marathon  ", marathonMetres},
}};

inline constexpr const char* predictedHeading =
    "   Distance       Time      Per mile     Per km      Per 400     Record     % Spd    P.Level   Top_%";

/// One row: the time of the state's curve at a distance, and what it is worth.
///   comparisonLevel  tenths of a percent: the level of the Record column
/// Writes curDistance, level, ageCompareOn; time800 at 800 m; time5000 and speedRatio at 5000 m.
/// Faults: comparisonLevel 0, a curve without a time at the distance, an age without an age factor.
[[nodiscard]] PredictedRow predictRow(ModelState& state, const TableDistance& at, int comparisonLevel);

/// A row as it is printed.
[[nodiscard]] std::string predictedLine(const PredictedRow& row);

/// A Top_% figure in seven columns, with more decimals the smaller it is.
[[nodiscard]] std::string topPercentText(double percent);

/// Prints heading and rows of the chosen output. Rows printed before a fault stay.
/// Faults: as `predictRow`.
void printPredictedTable(ModelState& state, const CalculationInput& input, CalculationResults& results);

/// Works out level5000, levelIndex and levelIndexFromLevel, with age comparison on.
/// Faults: time5000 of 0, an age without an age factor; ageCompareLocal is then left at 1.
void closeCalculation(ModelState& state);
