#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "analysis/anaform_form.h"
#include "analysis/graphform_form.h"
#include "prediction/calculate.h"
#include "scenarios.h"

/// One form that is shown, timed, and whose calls of elementary functions are counted.
struct ShownForm
{
    std::string name;
    double targetMilliseconds = 0;
    std::function<void()> show;
};

/// A man of 40 after a Re-Calculate with two races, and the forms that tell of him.
struct AnalysedRunner
{
    AnalysedRunner()
    {
        CalculationInput input = recalculations()[2].input;
        CalculationResults results;
        Messages messages;
        recalculate(state, input, results, messages);
        state.runner.maxHr = 185;
        state.runner.restHr = 50;
    }

    ModelState state;
    Outside outside;
    ScrollBar comparisonLevel;   // tenths of a percent; below the record it is searched for at every distance
    AnaformForm anaform{state, outside};
    GraphformForm graphform{state, outside, comparisonLevel};
};

/// The whole analysis with its graph, and the pace graph on its shortest and longest scale.
[[nodiscard]] inline std::vector<ShownForm> analyses()
{
    const auto graph = [](const char* name, int graphScale, int comparisonLevel) {
        const auto runner = std::make_shared<AnalysedRunner>();
        runner->state.flags.graphScale = graphScale;
        runner->comparisonLevel.value = comparisonLevel;
        return ShownForm{name, 5, [runner] { paceGraph(runner->graphform); }};
    };
    const auto runner = std::make_shared<AnalysedRunner>();
    return {{"Training analysis with its graph", 10, [runner] { showAnalysis(runner->anaform); }},
            graph("Pace graph, 100 m to 800 m", 1, fullComparisonLevel),
            graph("Pace graph, 100 m to 100 km", 4, fullComparisonLevel),
            graph("Pace graph, 100 m to 100 km, level 80 %", 4, 800)};
}
