#pragma once

#include <string>

#include "special/special_analysis.h"
#include "support/faults.h"

/// A runner of 40:00 over 10 km on 20 miles a week.
[[nodiscard]] inline ModelState runnerOf40Minutes()
{
    ModelState state;
    state.curve.aerobicPower = 718.9014246120277;
    state.curve.anaerobicEnergy = 1128612.647840636;
    state.curve.refDistance = 10000;
    state.curve.fatigueCoef = 0.14564314245873303;
    return state;
}

/// A steep curve: 41:30 over 10 km and 1:30:00 over half a marathon, on 40 miles a week.
[[nodiscard]] inline ModelState runnerOfTwoRaces()
{
    ModelState state;
    state.curve.aerobicPower = 1085.7440567936096;
    state.curve.anaerobicEnergy = 259487.86413205694;
    state.curve.refDistance = 21097.5;
    state.curve.fatigueCoef = 0.0875907214201515;
    return state;
}

/// One analysis and what it leaves.
struct Analysis
{
    ModelState state = runnerOf40Minutes();
    SpecialEntries entries{.number = "10", .unit = SpecialUnit::kilometers, .mode = "", .slope = "0.00"};
    SpecialResults results;
    Messages said;
    std::string fault;

    void run(const std::string& mode, const std::string& slope = "0.00")
    {
        entries.mode = mode;
        entries.slope = slope;
        said.clear();
        fault = faultOf([this] { specialAnalysis(state, entries, 1000, false, results, said); });
    }
};
