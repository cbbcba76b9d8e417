// Prints for each timed action how often it calls each elementary function: the counts in the order of ElementaryCall,
// then the name.

#include <iostream>

#include "analyses.h"
#include "course_scenarios.h"
#include "model/arithmetic.h"
#include "planning_scenarios.h"
#include "prediction/calculate.h"
#include "scenarios.h"
#include "table_scenarios.h"
#include "tool_scenarios.h"

namespace
{
    template <class Action>
    void printCounts(const std::string& name, Action run)
    {
        run();
        callCounts.fill(0);
        run();
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
        printCounts(scenario.name, [&] { recalculate(state, scenario.input, results, messages); });
    }
    for (const ToolScenario& scenario : toolActions())
    {
        ModelState state = runnerOf40Minutes();
        printCounts(scenario.name, [&] { scenario.act(state); });
    }
    for (const ShownForm& shown : analyses())
        printCounts(shown.name, shown.show);
    ModelState runner = analysedRunner();
    Messages messages;
    WorkoutEntries workout = fiveRows();
    printCounts(planRow, [&] { (void)planWorkout(runner, workout, {}, {}, messages); });
    printCounts(splitsRow, [&] { (void)analyseSplits(runner, fullGrid(), 1, SplitMethod::mix, messages); });
    for (const bool smooth : {true, false})
    {
        ModelState hills = runnerBeforeHills(smooth);
        printCounts(smooth ? smoothCourseRow : straightCourseRow, [&] { solveAndSplit(hills, {}); });
    }
    for (const TableScenario& scenario : tableActions())
        printCounts(scenario.name, scenario.act);
}
