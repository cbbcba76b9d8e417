#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "planning_scenarios.h"
#include "splits/splitform_form.h"
#include "timings.h"
#include "workouts/workouts_form.h"

namespace
{
    constexpr double planTarget = 0.1;   // ms
    constexpr double analysisTarget = 1;
    constexpr double keystrokeTarget = 5;

    void timePlan(benchmark::State& timing)
    {
        ModelState state = analysedRunner();
        WorkoutEntries entries = fiveRows();
        Messages messages;
        double seconds = 0;
        for (auto _ : timing)
            seconds += planWorkout(state, entries, {}, {}, messages)->fastTime;
        benchmark::DoNotOptimize(seconds);
    }

    void timeAnalysis(benchmark::State& timing)
    {
        ModelState state = analysedRunner();
        const SplitEntries entries = fullGrid();
        Messages messages;
        double seconds = 0;
        for (auto _ : timing)
            seconds += analyseSplits(state, entries, 1, SplitMethod::mix, messages)->potentialTime;
        benchmark::DoNotOptimize(seconds);
    }

    void timeSplitKeystroke(benchmark::State& timing)
    {
        ModelState state = analysedRunner();
        Outside outside;
        StoredSplits stored;
        SplitForm form(state, outside, stored);
        std::vector<SplitTexts> rows;
        for (const SplitEntry& entry : fullGrid())
            rows.push_back({entry.distance, entry.minutes, entry.seconds});
        fillRows(form, 0, rows);
        bool odd = false;
        for (auto _ : timing)
        {
            setText(form.rows[13].splitsec, odd ? "20" : "20.5");
            odd = !odd;
        }
        benchmark::DoNotOptimize(form.calctott.caption.data());
    }

    void timePlanKeystroke(benchmark::State& timing)
    {
        ModelState state = analysedRunner();
        Outside outside;
        StoredPlanner stored;
        WorkoutsForm form(state, outside, stored);
        bool odd = false;
        for (auto _ : timing)
        {
            setText(form.rows[2].num, odd ? "4" : "5");
            odd = !odd;
        }
        benchmark::DoNotOptimize(form.totload.caption.data());
    }

    void add(const std::string& row, double target, void (*time)(benchmark::State&))
    {
        setTarget(row, target);
        benchmark::RegisterBenchmark(row.c_str(), time);
    }
}

void registerPlanning()
{
    add(planRow, planTarget, timePlan);
    add("Workout planner, one keystroke", keystrokeTarget, timePlanKeystroke);
    add(splitsRow, analysisTarget, timeAnalysis);
    add("Splits grid of 27 rows, one keystroke", keystrokeTarget, timeSplitKeystroke);
}
