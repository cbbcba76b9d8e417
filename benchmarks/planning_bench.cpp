#include <string>

#include <benchmark/benchmark.h>

#include "analysis/training_analysis.h"
#include "prediction/calculate.h"
#include "scenarios.h"
#include "splits/splitform_form.h"
#include "timings.h"
#include "workouts/workout_plan.h"
#include "workouts/workouts_form.h"

namespace
{
    constexpr double planTarget = 0.1;   // ms
    constexpr double analysisTarget = 1;
    constexpr double keystrokeTarget = 5;

    /// The state of a man of 40 after a Re-Calculate with two races and the training analysis.
    ModelState analysed()
    {
        ModelState state;
        CalculationInput input = recalculations()[2].input;
        CalculationResults results;
        Messages messages;
        recalculate(state, input, results, messages);
        state.runner.maxHr = 185;
        state.runner.restHr = 50;
        (void)trainingAnalysis(state);
        return state;
    }

    SplitEntry lap(int i)
    {
        return {"400", "1", std::to_string(15 + (i * 7) % 11) + ".5"};
    }

    void timePlan(benchmark::State& timing)
    {
        ModelState state = analysed();
        WorkoutEntries entries{{{"400", "4", "83"},
                                {"600", "2", "100"},
                                {"800", "5", "114"},
                                {"1200", "1", "137"},
                                {"1609.3", "1", "156"}}};
        Messages messages;
        double seconds = 0;
        for (auto _ : timing)
            seconds += planWorkout(state, entries, {}, {}, messages)->fastTime;
        benchmark::DoNotOptimize(seconds);
    }

    void timeAnalysis(benchmark::State& timing)
    {
        ModelState state = analysed();
        SplitEntries entries;
        for (int i = 0; i < splitRowCount; ++i)
            entries[static_cast<std::size_t>(i)] = lap(i);
        Messages messages;
        double seconds = 0;
        for (auto _ : timing)
            seconds += analyseSplits(state, entries, 1, SplitMethod::mix, messages)->potentialTime;
        benchmark::DoNotOptimize(seconds);
    }

    void timeSplitKeystroke(benchmark::State& timing)
    {
        ModelState state = analysed();
        Outside outside;
        StoredSplits stored;
        SplitForm form(state, outside, stored);
        std::vector<SplitTexts> rows;
        for (int i = 0; i < splitRowCount; ++i)
            rows.push_back({lap(i).distance, lap(i).minutes, lap(i).seconds});
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
        ModelState state = analysed();
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
    add("Workout plan, 5 rows", planTarget, timePlan);
    add("Workout planner, one keystroke", keystrokeTarget, timePlanKeystroke);
    add("Splits analysis, 27 rows", analysisTarget, timeAnalysis);
    add("Splits grid of 27 rows, one keystroke", keystrokeTarget, timeSplitKeystroke);
}
