#include "prediction/predicted_table.h"

#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/record_curve.h"
#include "model/text.h"

namespace
{
    void keepRatioTimes(Results& results, double distance, double time)
    {
        if (distance == 800)
            results.time800 = time;
        if (distance == 5000)
        {
            results.speedRatio = quotient(0.16 * time, results.time800);
            results.time5000 = time;
        }
    }
}

PredictedRow predictRow(ModelState& state, const TableDistance& at, int comparisonLevel)
{
    Results& results = state.results;
    const char sex = state.runner.sex;
    const double d = at.distance;
    state.activity = "predicting the time over " + plainText(d) + " m";
    results.curDistance = d;
    const TimeStep step = timeStep(state);
    keepRatioTimes(results, d, step.time);

    PredictedRow row;
    row.label = at.label;
    row.distance = d;
    row.time = step.time;
    row.perMile = step.perMile;
    row.perKilometre = step.perKilometre;
    row.per400 = step.per400;
    row.timeText = formatTime(row.time);   // which may replace its argument, and the levels go by what stands then
    row.perMileText = formatTime(row.perMile);
    row.perKilometreText = formatTime(row.perKilometre);
    row.per400Text = formatTime(row.per400);
    state.activity = "rating the time over " + plainText(d) + " m";
    const double L = comparisonLevel / 1000.0;
    row.record = recordTime(state, sex, RecordMode::timeOfLevel, d, L);
    row.recordText = formatTime(row.record);
    row.percentSpeed = roundHalfEven(quotient(100 * row.record, row.time));
    results.level = levelOf(state, d, row.time);
    row.level = results.level;
    row.percentLevel = roundHalfEven(100 * results.level);
    row.topPercent = topPercent(results.level, sex);
    return row;
}

std::string topPercentText(double percent)
{
    int decimals = 0;
    for (const double bound : {10.0, 1.0, 0.1, 0.01, 0.001})
        if (percent < bound)
            decimals = decimals + 1;
    return formatNumber(percent, 7, decimals);
}

std::string predictedLine(const PredictedRow& row)
{
    TextPage page;
    print(page, row.label);
    goToColumn(page, 15);
    print(page, row.timeText);
    goToColumn(page, 27);
    print(page, row.perMileText);
    goToColumn(page, 39);
    print(page, row.perKilometreText);
    goToColumn(page, 51);
    print(page, row.per400Text);
    goToColumn(page, 63);
    print(page, row.recordText);
    goToColumn(page, 78);
    print(page, row.percentSpeed);
    goToColumn(page, 88);
    print(page, row.percentLevel);
    goToColumn(page, 94);
    print(page, topPercentText(row.topPercent));
    return page.lines.front();
}

void printPredictedTable(ModelState& state, const CalculationInput& input, CalculationResults& results)
{
    printLine(results.picture, predictedHeading);
    newLine(results.picture);
    results.tableLevelIndex = state.results.levelIndex;
    const auto& distances = input.output == OutputMode::english ? englishDistances : metricDistances;
    for (const TableDistance& at : distances)
    {
        results.rows.push_back(predictRow(state, at, input.comparisonLevel));
        printLine(results.picture, predictedLine(results.rows.back()));
    }
}

void closeCalculation(ModelState& state)
{
    Results& results = state.results;
    const char sex = state.runner.sex;
    state.activity = "working out the level at 5000 m for the runner's age";
    state.flags.ageCompareLocal = 1;
    results.level5000 = levelOf(state, 5000, results.time5000);
    const double R = quotient(recordTime(state, sex, RecordMode::record, 5000, 1), raceTimeAt(state, 5000));
    results.levelIndex = indexFromRatio(R, sex);
    results.levelIndexFromLevel = indexFromLevel(results.level5000, sex);
    state.flags.ageCompareLocal = 0;
}
