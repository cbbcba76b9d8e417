#include <benchmark/benchmark.h>

#include "course/profile_form.h"
#include "course_scenarios.h"
#include "timings.h"

namespace
{
    constexpr double solveTarget = 16;   // ms: a drag that follows the mouse
    constexpr double importTarget = 1000;

    template <bool smooth>
    void timeSolve(benchmark::State& timing)
    {
        ModelState state = runnerBeforeHills(smooth);
        for (auto _ : timing)
            solveAndSplit(state, {});
        benchmark::DoNotOptimize(state.course.timeAt.back());
    }

    void timeDrag(benchmark::State& timing)
    {
        ModelState state = runnerBeforeHills(true);
        Outside outside;
        const std::filesystem::path folder;
        ProfileForm form(state, outside, folder);
        state.course.distanceValid = 1;
        form.scur.chosen = true;
        int value = 300;
        for (auto _ : timing)
        {
            value = 701 - value;   // 401 and 300 in turn
            drag(form.origel, value);
        }
        benchmark::DoNotOptimize(form.Text6.text.data());
    }

    void timeReading(benchmark::State& timing)
    {
        ModelState state = runnerBeforeHills(true);
        Outside outside;
        const std::filesystem::path folder;
        ProfileForm form(state, outside, folder);
        state.course.distanceValid = 1;
        state.course.xScale = state.course.courseDist / graphWidth;
        redraw(form);
        double x = 150;
        for (auto _ : timing)
        {
            x = x < 12000 ? x + 37 : 150;
            readGraph(form, {x, 3000});
        }
        benchmark::DoNotOptimize(form.Text7.text.data());
    }

    void timeImport(benchmark::State& timing)
    {
        ModelState state = analysedRunner();
        Outside outside;
        const std::filesystem::path folder;
        ProfileForm form(state, outside, folder);
        const std::string bytes = gpxOf(100000);
        for (auto _ : timing)
            importTrack(form, bytes);
        if (state.course.pointCount < 3)
            timing.SkipWithError("the track was refused");
    }

    void add(const std::string& row, double target, void (*time)(benchmark::State&))
    {
        setTarget(row, target);
        benchmark::RegisterBenchmark(row.c_str(), time);
    }
}

void registerCourses()
{
    add(smoothCourseRow, solveTarget, timeSolve<true>);
    add(straightCourseRow, solveTarget, timeSolve<false>);
    add("Course form, one step of a drag", solveTarget, timeDrag);
    add("Course form, one move of the mouse", solveTarget, timeReading);
    add("Course of a GPX file of 100,000 points", importTarget, timeImport);
}
