#include "tables/age_curves.h"

#include <array>
#include <cstddef>

#include "model/arithmetic.h"
#include "model/record_curve.h"
#include "model/text.h"
#include "tables/own_levels.h"
#include "tables/table_distances.h"

namespace
{
    constexpr int scaleCurve = 4;   // of 60 percent

    /// Above a peak the axis ends at the next step's top.
    constexpr std::array axisTops{24.0,   36.0,   60.0,   120.0,  180.0,   240.0,   360.0,   720.0,
                                  1440.0, 2160.0, 3600.0, 7200.0, 10800.0, 14400.0, 21600.0, 36000.0};

    /// The index of each curve's level: it doesn't depend on the age.
    std::array<double, levelCurves> indicesOf(char sex)
    {
        std::array<double, levelCurves> indices{};
        for (int j = 0; j < levelCurves; ++j)
            indices[static_cast<std::size_t>(j)] = indexForLevel(percentOf(j) / 100.0, sex);
        return indices;
    }
}

void makeRoom(AgeGraph& graph)
{
    graph.levelTimes.resize(agesOnGraph, std::vector<double>(levelCurves));
    graph.individualTimes.resize(agesOnGraph);
}

double axisTopFor(double peak)
{
    double top = axisTops.front();
    for (std::size_t step = 1; step < axisTops.size(); ++step)
        if (peak > axisTops[step - 1])
            top = axisTops[step];
    return top;
}

void fillLevelCurves(ModelState& state)
{
    AgeGraph& graph = state.ageGraph;
    Results& results = state.results;
    const char sex = state.runner.sex;
    results.curDistance = tableLabels[graph.chosenRow].metres;
    const std::array<double, levelCurves> indices = indicesOf(sex);
    const double kept = results.levelIndex;
    double peak = 0;
    state.activity = "drawing the curves of levels";
    for (int a = firstAge; a <= lastAge; ++a)
    {
        state.runner.age = a;
        for (int j = 0; j < levelCurves; ++j)
        {
            results.levelIndex = indices[static_cast<std::size_t>(j)];
            const double time =
                recordTime(state, sex, RecordMode::timeOfLevel, results.curDistance, percentOf(j) / 100.0);
            levelTimeAt(graph, a, j) = time;
            if ((a == 5 || a == 85) && j == scaleCurve && time > peak)
                peak = time;
        }
    }
    results.levelIndex = kept;
    graph.axisTop = axisTopFor(peak);
}

void fillIndividualCurve(ModelState& state, CalculationInput& input, Messages& said)
{
    state.activity = "reading the runner's age";
    state.runner.age = val(input.age);
    const OwnLevels levels = ownLevels(state);
    for (int a = firstAge; a <= lastAge; ++a)
    {
        state.runner.age = a;
        fillColumnAtAge(state, levels, 1, 0, input, said);
        individualTimeAt(state.ageGraph, a) = state.table.tableTimes[0][state.ageGraph.chosenRow];
    }
}
