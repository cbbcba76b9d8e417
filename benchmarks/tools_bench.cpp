#include <benchmark/benchmark.h>

#include "timings.h"
#include "tool_scenarios.h"

void registerTools()
{
    for (const ToolScenario& scenario : toolActions())
    {
        setTarget(scenario.name, scenario.targetMilliseconds);
        benchmark::RegisterBenchmark(scenario.name.c_str(), [scenario](benchmark::State& timing) {
            ModelState state = runnerOf40Minutes();
            for (auto _ : timing)
                scenario.act(state);
            benchmark::DoNotOptimize(state.incline.slopeDirection);
        });
    }
}
