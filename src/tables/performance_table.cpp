#include "tables/performance_table.h"

#include "model/arithmetic.h"
#include "model/record_curve.h"
#include "model/text.h"
#include "tables/own_levels.h"
#include "tables/table_distances.h"

namespace
{
    constexpr int ownCorrections = 5;
    constexpr int rowsInBlock = 6;

    std::string titleOf(const ModelState& state, const TableSpecification& asked)
    {
        const bool female = state.runner.sex == 'f';
        const std::string sex = female ? "Female" : "Male";
        std::string title = "Performance Levels (Open " + sex + ")";
        if (state.flags.ageCompareOn == 1)
            title = "Performance Levels (" + sex + " Age " + plainText(state.runner.age) + ")";
        if (asked.kind == TableKind::agesAtLevel)
            title = "Performances by Age (" + sex + " Level " + asked.lev + ")";
        if (asked.kind == TableKind::runnerByAge)
            title = "Predicted Performances at Various Ages";
        return title;
    }

    void printHeader(ModelState& state, const TableSpecification& asked, PerformanceTable& table)
    {
        state.activity = "reading the range of the table";
        print(table.page, asked.kind == TableKind::levels ? " Level (%):" : " Age (yr):");
        for (int c = 0; c < tableColumns; ++c)
        {
            double& q = table.fractions[static_cast<std::size_t>(c)];
            q = checked((val(asked.minimum) + val(asked.interval) * c) / 100);
            goToColumn(table.page, 10 * (1 + c) + 6);
            print(table.page, 100 * q);
        }
    }

    void fillColumns(ModelState& state, const OwnLevels& levels, const PerformanceTable& table, CalculationInput& input,
                     Messages& said)
    {
        for (int c = 0; c < tableColumns; ++c)
        {
            state.runner.age = 100 * table.fractions[static_cast<std::size_t>(c)];
            fillColumnAtAge(state, levels, ownCorrections, c, input, said);
        }
    }

    double timeOfLevel(ModelState& state, double level)
    {
        return recordTime(state, state.runner.sex, RecordMode::timeOfLevel, state.results.curDistance, level);
    }

    /// The time of one level at an age, whose factor goes by that level's own index.
    double timeAtAge(ModelState& state, double age, double L)
    {
        state.runner.age = age;
        double& levelIndex = state.results.levelIndex;
        const double kept = levelIndex;
        levelIndex = 0;
        levelIndex = indexForLevel(L, state.runner.sex);
        const double time = timeOfLevel(state, L);
        levelIndex = kept;
        return time;
    }

    double cellOf(ModelState& state, const TableSpecification& asked, double q, int c, int row)
    {
        if (asked.kind == TableKind::runnerByAge)
            return state.table.tableTimes[static_cast<std::size_t>(c)][row];
        state.results.curDistance = tableLabels[row].metres;
        if (asked.kind == TableKind::agesAtLevel)
            return timeAtAge(state, 100 * q, val(asked.lev) / 100);
        return timeOfLevel(state, q);
    }

    void printRow(ModelState& state, const TableSpecification& asked, int row, PerformanceTable& table)
    {
        const char* const unit = asked.kind == TableKind::levels ? " %" : " years";
        const std::string where = " over " + plainText(tableLabels[row].metres) + " m";
        print(table.page, tableLabels[row].label);
        for (int c = 0; c < tableColumns; ++c)
        {
            const auto column = static_cast<std::size_t>(c);
            const double q = table.fractions[column];
            state.activity = "working out the time of " + plainText(100 * q) + unit + where;
            double& time = table.times[column][row];
            time = cellOf(state, asked, q, c, row);
            goToColumn(table.page, 10 * (1 + c) + 2);
            print(table.page, formatTime(time));
        }
        newLine(table.page);
        if (row % rowsInBlock == 0)
            newLine(table.page);
    }
}

bool isTableRefused(const ModelState& state, TableKind kind, Messages& said)
{
    if (kind != TableKind::runnerByAge || state.flags.calculatedOnce != 0)
        return false;
    said.push_back({"Must calculate current performances first"});
    return true;
}

void printPerformanceTable(ModelState& state, const TableSpecification& asked, CalculationInput& input,
                           PerformanceTable& table, Messages& said)
{
    table = {};
    const double age = state.runner.age;
    const int ageCompareOn = state.flags.ageCompareOn;
    state.activity = "reading the runner's age";
    state.runner.age = val(input.age);
    table.title = titleOf(state, asked);
    OwnLevels levels;
    if (asked.kind == TableKind::runnerByAge)
        levels = ownLevels(state);
    printHeader(state, asked, table);
    if (asked.kind == TableKind::runnerByAge)
        fillColumns(state, levels, table, input, said);
    newLine(table.page);
    newLine(table.page);
    for (int row = 1; row <= tableDistances; ++row)
        printRow(state, asked, row, table);
    state.runner.age = age;
    state.flags.ageCompareOn = ageCompareOn;
}
