#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/messages.h"
#include "model/model_state.h"
#include "model/text_page.h"

// What `calculate` reads and what it leaves for whoever shows it.

enum class RaceUnit { none, miles, yards, kilometers, meters, marathon, halfMarathon };

/// One race row as it was entered.
struct RaceRow
{
    bool use = false;
    std::string hours, minutes, seconds;   // anything; the leading number counts
    std::string number;                    // how many of the unit; not read for a marathon or half marathon
    RaceUnit unit = RaceUnit::none;
};

enum class SexChoice { none, male, female };
enum class FitMode { none, bestTwo, allData };     // none acts as allData
enum class OutputMode { none, metric, english };   // none acts as metric

inline constexpr int fullComparisonLevel = 1000;   // tenths of a percent

/// The entries of the main form. A run also sets `fit` and `output` where a person would see the option change.
struct CalculationInput
{
    std::array<RaceRow, maxRaces> rows;
    std::string age;
    int weeklyMiles = 20;   // 0 to 150
    SexChoice sex = SexChoice::male;
    FitMode fit = FitMode::none;
    OutputMode output = OutputMode::none;
    int comparisonLevel = fullComparisonLevel;   // tenths of a percent, 0 to 1100
};

/// One row of the predicted table.
struct PredictedRow
{
    std::string label;         // as it is printed
    double distance = 0;       // m
    double time = 0;           // s
    double perMile = 0;        // s
    double perKilometre = 0;   // s
    double per400 = 0;         // s
    double record = 0;         // s: the record, or the time of the comparison level
    double percentSpeed = 0;   // 100 * record / time, a whole number
    double level = 0;          // performance level, 1 at the record
    double percentLevel = 0;   // 100 * level, a whole number
    double topPercent = 0;
    std::string timeText, perMileText, perKilometreText, per400Text, recordText;   // ten characters as a rule
};

/// What runs leave to be shown. It is written step by step, so that after a fault it holds what was done before it.
struct CalculationResults
{
    TextPage picture;                 // heading and rows as printed
    std::vector<PredictedRow> rows;   // the same rows as numbers
    double tableLevelIndex = 0;       // the levelIndex that the rows were rated with
    bool bestTwoEnabled = true;       // "Fit best two" can be chosen
    bool reportsEnabled = false;      // full report, to printer or file; never disabled again
    bool toolsEnabled = false;        // graph, analysis, special, splits, course, heat; never disabled again
};
