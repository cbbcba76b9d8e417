#pragma once

#include <functional>
#include <string>
#include <vector>

#include "power/incline.h"
#include "power/slope_tables.h"
#include "special/special_analysis.h"

/// One action of a tool that is timed, and whose calls of elementary functions are counted.
struct ToolScenario
{
    std::string name;
    std::function<void(ModelState&)> act;
    double targetMilliseconds = 0;
};

/// A conversion, the tables that are built on it, and the analysis of hills, wind and pacing in each mode, for a runner
/// of 40:00 over 10 km.
[[nodiscard]] inline std::vector<ToolScenario> toolActions()
{
    const auto table = [](auto print) {
        return [print](ModelState& state) {
            TextPage page;
            print(state, page);
        };
    };
    const auto treadmill = [table](int mode) {
        return table([mode](ModelState& state, TextPage& page) {
            state.slopeTools.tmillMode = mode;
            printTreadmillTable(state, false, false, page);
        });
    };
    const auto analysis = [](const char* mode) {
        return [mode](ModelState& state) {
            const SpecialEntries entries{.number = "10", .mode = mode, .slope = mode[0] == 'c' ? "0.05" : "0.01"};
            SpecialResults results;
            Messages said;
            state.special.windBase = 2;
            specialAnalysis(state, entries, 1000, false, results, said);
        };
    };
    const auto hill = table([](ModelState& state, TextPage& page) {
        state.slopeTools.hillScale = 4;
        printHillTable(state, false, page);
    });
    return {{"One slopeSpeedForLevel", [](ModelState& state) { (void)slopeSpeedForLevel(state, 0.06, 3.8); }, 0.1},
            {"Treadmill table, flat paces", treadmill(1), 20},
            {"Treadmill table, paces on the incline", treadmill(2), 20},
            {"Hill table, widest range", hill, 20},
            {"Special analysis, level time", analysis(""), 20},
            {"Special analysis, uneven splits", analysis("n"), 20},
            {"Special analysis, constant slope", analysis("c"), 20},
            {"Special analysis, out and back", analysis("r"), 20}};
}

[[nodiscard]] inline ModelState runnerOf40Minutes()
{
    ModelState state;
    state.curve.aerobicPower = 718.9014246120277;
    state.curve.anaerobicEnergy = 1128612.647840636;
    state.curve.refDistance = 10000;
    state.curve.fatigueCoef = 0.14564314245873303;
    return state;
}
