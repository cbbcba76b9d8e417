// Prints for each Re-Calculate how often it calls each elementary function: the counts in the order of
// ElementaryCall, then the name.

#include <iostream>

#include "model/arithmetic.h"
#include "prediction/calculate.h"
#include "scenarios.h"

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
        for (const long long count : callCounts)
            std::cout << count << ' ';
        std::cout << scenario.name << '\n';
    }
}
