#include <benchmark/benchmark.h>

#include "prediction/calculate.h"
#include "scenarios.h"
#include "timings.h"

void registerRecalculations()
{
    for (const Scenario& scenario : recalculations())
    {
        setTarget(scenario.name, scenario.targetMilliseconds);
        benchmark::RegisterBenchmark(scenario.name.c_str(), [scenario](benchmark::State& timing) {
            ModelState state;
            CalculationInput input = scenario.input;
            CalculationResults results;
            Messages messages;
            for (auto _ : timing)
            {
                messages.clear();
                recalculate(state, input, results, messages);
            }
            benchmark::DoNotOptimize(state.curve.aerobicPower);
        });
    }
}
