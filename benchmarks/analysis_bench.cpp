#include <benchmark/benchmark.h>

#include "analyses.h"
#include "timings.h"

void registerAnalyses()
{
    for (const ShownForm& shown : analyses())
    {
        setTarget(shown.name, shown.targetMilliseconds);
        benchmark::RegisterBenchmark(shown.name.c_str(), [shown](benchmark::State& timing) {
            for (auto _ : timing)
                shown.show();
        });
    }
}
