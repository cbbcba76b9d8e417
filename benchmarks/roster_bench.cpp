#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include <benchmark/benchmark.h>

#include "console/roster.h"
#include "timings.h"

namespace
{
    constexpr int rosterRunners = 100000;
    constexpr int targetRunnersPerSecond = 2000;   // on one core

    /// Runners of all ages and distances, the same in every run.
    std::string generatedRoster(int runners)
    {
        std::ostringstream csv;
        csv << "name,age,sex,miles,race1\n";
        for (int i = 0; i < runners; ++i)
        {
            const int seconds = 2100 + i % 1500;   // 10 km in 35 to 60 minutes
            csv << "Runner " << i << ',' << 18 + i % 55 << ',' << (i % 2 == 0 ? 'm' : 'f') << ',' << 10 + i % 60
                << ",10 km " << seconds / 60 << ':' << (seconds % 60 < 10 ? "0" : "") << seconds % 60 << '\n';
        }
        return csv.str();
    }

    /// Peak memory of this process so far, MB; -1 where it can't be told.
    double peakMegabytes()
    {
        std::ifstream status("/proc/self/status");
        std::string line;
        while (std::getline(status, line))
            if (line.rfind("VmHWM:", 0) == 0)
                return std::stod(line.substr(line.find_first_of("0123456789"))) / 1024;
        return -1;
    }

    void timeRoster(benchmark::State& timing, unsigned workers, int runners)
    {
        const std::string roster = generatedRoster(runners);
        RosterRun run;
        run.name = "roster.csv";
        run.workers = workers;
        for (auto _ : timing)
        {
            std::istringstream in(roster);
            std::ofstream out("/dev/null");
            std::ostringstream errors;
            if (predictRoster(in, run, out, errors) != 0)
                timing.SkipWithError("the roster was refused");
        }
        timing.SetItemsProcessed(runners * timing.iterations());
        timing.SetLabel("peak memory of the process " + std::to_string(static_cast<int>(peakMegabytes())) + " MB");
    }

    void add(const std::string& row, unsigned workers, int runners)
    {
        const double cores = workers == 0 ? 2 : workers;
        setTarget(row, 1000.0 * runners / (targetRunnersPerSecond * cores));
        benchmark::RegisterBenchmark(row.c_str(),
                                     [=](benchmark::State& timing) { timeRoster(timing, workers, runners); })
            ->Iterations(1)
            ->MeasureProcessCPUTime()
            ->UseRealTime();
    }
}

void registerRoster()
{
    add("Roster of 10000 runners, one thread", 1, 10000);
    add("Roster of 100000 runners, all cores", 0, rosterRunners);
}
