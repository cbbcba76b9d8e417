#include <benchmark/benchmark.h>

#include "table_scenarios.h"
#include "timings.h"

void registerTables()
{
    for (const TableScenario& scenario : tableActions())
    {
        setTarget(scenario.name, scenario.targetMilliseconds);
        benchmark::RegisterBenchmark(scenario.name.c_str(), [scenario](benchmark::State& timing) {
            for (auto _ : timing)
                scenario.act();
        });
    }
}
