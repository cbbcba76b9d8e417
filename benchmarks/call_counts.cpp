// Prints for each Re-Calculate and each action of the tools how often it calls each elementary function: the counts in the order of
// ElementaryCall, then the name.

#include <iostream>

#include "model/arithmetic.h"
#include "prediction/calculate.h"
#include "scenarios.h"
#include "tool_scenarios.h"

namespace
{
    void printCounts(const std::string& name)
    {
        for (const long long count : callCounts)
            std::cout << count << ' ';
        std::cout << name << '\n';
    }
}

int main()
{
    for (Scenario& scenario : recalculations())
    {
        ModelState state;
        CalculationResults results;
        Messages messages;
        recalculate(state, scenario.input, results, messages);
        callCounts.fill(0);
        recalculate(state, scenario.input, results, messages);
        printCounts(scenario.name);
    }
    for (const ToolScenario& scenario : toolActions())
    {
        ModelState state = runnerOf40Minutes();
        scenario.act(state);
        callCounts.fill(0);
        scenario.act(state);
        printCounts(scenario.name);
    }
}
