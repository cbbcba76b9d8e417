#pragma once

#include <array>
#include <string>

#include "analysis/training_analysis.h"
#include "model/model_state.h"
#include "model/text_page.h"
#include "model/units.h"
#include "prediction/calculation.h"
#include "prediction/predicted_table.h"

// The full report: who, the races, the predicted table over 30 distances, and the training analysis.

inline constexpr const char* fullReportHeading =
    "   Distance       Time    Per mile   Per km    Per 400   Record   % Spd  P.Level";

/// The rows of the report's table; like those of the English table they are rounded to the centimetre on purpose.
inline constexpr std::array<TableDistance, 30> reportDistances{{
    {"     100 yd ", 91.44},   {"      100 m ", 100},
    {"      200 m ", 200},     {"     220 yd ", 201.17},
    {"      400 m ", 400},     {"     440 yd ", 402.34},
    {"      600 m ", 600},     {"      800 m ", 800},
    {"     880 yd ", 804.67},  {"     1000 m ", 1000},
    {"     1200 m ", 1200},    {"     1500 m ", 1500},
    {"     1600 m ", 1600},    {"       1 mi ", 1609.34},
    {"     3000 m ", 3000},    {"     3200 m ", 3200},
    {"       2 mi ", 3218.69}, {"       3 mi ", 4828.03},
    {"     5000 m ", 5000},    {"       4 mi ", 6437.38},
    {"     8000 m ", 8000},    {"       5 mi ", 8046.72},
    {"       6 mi ", 9656.06}, {"      10 km ", 10000},
    {"      15 km ", 15000},   {"      10 mi ", 16093.44},
    {"      20 km ", 20000},   {" half mara. ", halfMarathonMetres},
    {"      30 km ", 30000},   {"   marathon ", marathonMetres},
}};

/// The main form's entries that the report shows, as they stand when it is asked for.
struct ReportEntries
{
    std::string name;
    std::string age;
    std::string miles, kilometers;   // a week
    std::string comparisonLevel;     // percent
    CalculationInput input;          // sex, fit, races and comparison level
};

/// Prints the whole report on a page. Returns what kind of runner the analysis at its end has found.
/// Reads the curve of a finished calculation and ageCompareOn as the latest `recordTime` has left it. Writes
/// speedRatio, level, curDistance and ageCompareOn, and what the training analysis writes.
/// Faults: as the table's rows and `trainingAnalysis`; what was printed before stays on the page.
Specialty printFullReport(ModelState& state, const ReportEntries& entries, TextPage& page);
