// Runs the benchmarks and prints one table: what each action takes, what it may take, the floor that the elementary
// functions it calls set, and how far above the floor it is.

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "model/arithmetic.h"
#include "timings.h"

namespace
{
    std::map<std::string, double>& targets()
    {
        static std::map<std::string, double> milliseconds;
        return milliseconds;
    }

    struct Row
    {
        std::string name;
        double milliseconds = 0;     // one round
        double itemsPerSecond = 0;   // 0 where the action has no items
        std::string note;
    };

    class Collector : public benchmark::BenchmarkReporter
    {
    public:
        bool ReportContext(const Context& /*context*/) override { return true; }

        void ReportRuns(const std::vector<Run>& runs) override
        {
            for (const Run& run : runs)
            {
                Row row{run.run_name.function_name, 1000 * run.real_accumulated_time / double(run.iterations), 0,
                        run.report_label};
                const auto rate = run.counters.find("items_per_second");
                if (rate != run.counters.end())
                    row.itemsPerSecond = rate->second;
                if (run.error_occurred)
                    row.note = run.error_message;
                rows.push_back(row);
                std::fprintf(stderr, ".");
            }
        }

        std::vector<Row> rows;
    };

    constexpr const char* elementaryPrefix = "elementary/";
    constexpr const char* elementaryNames[] = {"power",  "naturalLog", "exponential", "squareRoot",
                                               "cosine", "sine",       "arctangent"};
    static_assert(std::size(elementaryNames) == elementaryCallKinds);

    /// Milliseconds that the counted calls take by themselves, by the name of the action.
    std::map<std::string, double> floors(const std::map<std::string, double>& nanoseconds)
    {
        std::map<std::string, double> milliseconds;
        const char* path = std::getenv("VANTELOS_CALL_COUNTS");
        std::ifstream counts(path ? path : "");
        long long count = 0;
        while (counts >> count)
        {
            double sum = 0;
            for (std::size_t kind = 0; kind < elementaryCallKinds; ++kind)
            {
                if (kind > 0)
                    counts >> count;
                const auto cost = nanoseconds.find(elementaryNames[kind]);
                sum += double(count) * (cost == nanoseconds.end() ? 0 : cost->second);
            }
            std::string name;
            std::getline(counts >> std::ws, name);
            milliseconds[name] = sum / 1e6;
        }
        return milliseconds;
    }

    std::string numberText(double value, int decimals)
    {
        char text[40];
        std::snprintf(text, sizeof text, "%.*f", decimals, value);
        return text;
    }

    void printTable(const std::vector<Row>& rows)
    {
        std::map<std::string, double> nanoseconds;
        std::printf("%-44s %12s %12s %12s %8s\n", "Action", "ms", "target ms", "floor ms", "ratio");
        for (const Row& row : rows)
            if (row.name.rfind(elementaryPrefix, 0) == 0)
                nanoseconds[row.name.substr(std::string(elementaryPrefix).size())] = 1e9 / row.itemsPerSecond;
        const std::map<std::string, double> floor = floors(nanoseconds);
        for (const Row& row : rows)
        {
            if (row.name.rfind(elementaryPrefix, 0) == 0)
                continue;
            const auto target = targets().find(row.name);
            const auto least = floor.find(row.name);
            std::printf("%-44s %12.4f %12s %12s %8s", row.name.c_str(), row.milliseconds,
                        target == targets().end() ? "" : numberText(target->second, 1).c_str(),
                        least == floor.end() ? "" : numberText(least->second, 4).c_str(),
                        least == floor.end() ? "" : numberText(row.milliseconds / least->second, 2).c_str());
            std::printf("%s%s\n", row.note.empty() ? "" : "  ", row.note.c_str());
        }
        std::printf("\nOne call, ns:");
        for (const auto& [name, cost] : nanoseconds)
            std::printf("  %s %.1f", name.c_str(), cost);
        std::printf("\n");
    }
}

void setTarget(const std::string& row, double milliseconds)
{
    targets()[row] = milliseconds;
}

int main(int argumentCount, char** arguments)
{
    registerElementaryFunctions();
    registerRecalculations();
    registerAnalyses();
    registerPlanning();
    registerCourses();
    registerRoster();
    registerStarts();
    registerTools();
    registerTables();
    benchmark::Initialize(&argumentCount, arguments);
    if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments))
        return 2;
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    std::fprintf(stderr, "\n");
    printTable(collector.rows);
    return 0;
}
