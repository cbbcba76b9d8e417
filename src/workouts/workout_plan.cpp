#include "workouts/workout_plan.h"

#include <cmath>

#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/text.h"

namespace
{
    constexpr int passes = 6;
    constexpr double pointSeconds = 58.3;   // one stress point is that time at vo2maxSpeed

    struct RowNumbers
    {
        double dist = 0, num = 0, wrp = 0;
    };
    using Rows = std::array<RowNumbers, static_cast<std::size_t>(workoutRowCount)>;

    const char* refusalOf(const WorkoutEntry& entry)
    {
        if (!isNumeric(entry.dist))
            return "Distance must be numeric.";
        if (!isNumeric(entry.num))
            return "Number of repeats must be numeric.";
        if (!isNumeric(entry.wrp))
            return "Work/recovery ratio must be numeric.";
        return nullptr;
    }

    bool isGood(const RowNumbers& row)
    {
        return row.dist > 0 && row.num > 0 && row.wrp >= 5;
    }

    /// The rows as numbers; nothing when they are refused.
    std::optional<Rows> numbersOf(const WorkoutEntries& entries, Messages& messages)
    {
        Rows rows;
        bool anyGood = false;
        for (std::size_t i = 0; i < entries.size(); ++i)
        {
            if (const char* refusal = refusalOf(entries[i]))
            {
                messages.push_back({refusal});
                return std::nullopt;
            }
            rows[i] = {val(entries[i].dist), val(entries[i].num), val(entries[i].wrp)};
            anyGood = anyGood || isGood(rows[i]);
        }
        if (!anyGood)
        {
            messages.push_back({"At least one row of boxes must have a non-zero distance, a non-zero number, and a "
                                "work/recovery percentage of at least 5."});
            return std::nullopt;
        }
        return rows;
    }

    std::string rowWithRatio(int row, double wrp)
    {
        return "row " + std::to_string(row + 1) + ", whose work/recovery ratio is " + plainText(wrp);
    }

    int lastRowOf(const Rows& rows)
    {
        int last = 0;
        for (int i = 0; i < workoutRowCount; ++i)
            if (rows[static_cast<std::size_t>(i)].num > 0)
                last = i;
        return last;
    }

    void addDistances(ModelState& state, const Rows& rows, int last, double R, WorkoutPlan& plan)
    {
        for (int i = 0; i < workoutRowCount; ++i)
        {
            const auto& [dist, num, wrp] = rows[static_cast<std::size_t>(i)];
            if (dist == 0 && num == 0)
                continue;
            state.activity = "adding up the distances of " + rowWithRatio(i, wrp);
            plan.fastDist = checked(plan.fastDist + num * dist);
            plan.totalDist = checked(plan.totalDist + num * dist * (quotient(R, wrp) + 1));
        }
        const RowNumbers& row = rows[static_cast<std::size_t>(last)];
        plan.totalDist = plan.totalDist - quotient(R * row.dist, row.wrp);   // nobody recovers from the last effort
    }

    /// One pass over the rows.
    class Pass
    {
    public:
        Pass(ModelState& modelState, WorkoutEntries& workoutEntries, const WorkoutSettings& workoutSettings,
             const PlanListener& planListener, double J)
            : state(modelState), entries(workoutEntries), settings(workoutSettings), listener(planListener)
        {
            plan.effectiveIntensity = J;
        }

        /// Returns whether the entries were accepted.
        bool run(Messages& messages)
        {
            state.activity = "planning the workout";
            plan.standardPoints = standardLoad(state.runner.weeklyMiles);
            if (listener.standard)
                listener.standard(plan.standardPoints);
            const std::optional<Rows> numbers = numbersOf(entries, messages);
            if (!numbers)
                return false;
            rows = *numbers;
            last = lastRowOf(rows);
            addDistances(state, rows, last, settings.recovPct, plan);
            findBlend();
            for (int i = 0; i < workoutRowCount; ++i)
                if (rows[static_cast<std::size_t>(i)].num > 0)
                    planRow(i);
            return true;
        }

        WorkoutPlan plan;

    private:
        /// Effective length, from slow recoveries that count for nothing to recoveries as fast as the efforts.
        void findBlend()
        {
            state.activity = "working out the effective length of the workout";
            const double R = settings.recovPct;
            double E = plan.fastDist;
            if (R > 40)
            {
                w = square((R - 40) / 60) * 100;
                E = (plan.totalDist * w + plan.fastDist * (100 - w)) / 100;
            }
            vE = quotient(E, raceTimeAt(state, E));
        }

        void chooseRatio(int i)
        {
            RowNumbers& row = rows[static_cast<std::size_t>(i)];
            if (settings.autoRatio && !settings.continuousRun)
            {
                row.wrp = automaticRatio(row.dist);
                std::string& entry = entries[static_cast<std::size_t>(i)].wrp;
                const std::string text = plainText(row.wrp);
                const bool changes = entry != text;
                entry = text;
                if (changes && listener.ratioWritten)
                {
                    listener.ratioWritten(i);
                    state.activity = "planning " + rowWithRatio(i, row.wrp);
                }
            }
            if (settings.continuousRun)
                rows[static_cast<std::size_t>(lastWorkoutRow)].wrp = continuousRatio;
        }

        /// Race time over one repetition: by itself with long recoveries, at the pace of the whole with short ones.
        double blendedTime(const RowNumbers& row) const
        {
            double t1 = raceTimeAt(state, row.dist);
            const double tE = quotient(row.dist, vE);
            if (settings.recovPct > 40)
                t1 = (tE * w + t1 * (100 - w)) / 100;
            return t1 + (tE - t1) / (exponential((-2.57 / 2.303) * (naturalLog(row.wrp / 100) + 0.15)) + 1);
        }

        [[nodiscard]] double effortTimeOf(const RowNumbers& row) const
        {
            const auto& [R, I, P, A, autoRatio, continuousRun] = settings;
            const double b = blendedTime(row);
            const double raceTime = quotient(quotient(b, plan.effectiveIntensity / 100), A / 200);
            const double vo2Time = quotient(quotient(quotient(row.dist, state.training.vo2maxSpeed), I / 100), A / 200);
            const double f = 1 + ((naturalLog(row.num) / 5) * (100 - R)) / (square(100 - R) + 180);
            return checked(f * (P * raceTime + (100 - P) * vo2Time) / 100);
        }

        /// Stress of some seconds over some metres: the fourth power of the speed relative to vo2maxSpeed.
        [[nodiscard]] double stressOf(double num, double seconds, double metres) const
        {
            const double relative =
                quotient(quotient(metres, seconds), state.training.vo2maxSpeed) * (settings.perfAdjust / 200);
            return checked((num * seconds * power(relative, 4)) / pointSeconds);
        }

        /// What is taken off for the recovery that is never run. Speed and level enter inversely here, with constants
        /// of their own, on purpose.
        [[nodiscard]] double stressOfLastRecovery(double r, double y) const
        {
            const double relative = quotient(y, quotient(r, state.training.vo2maxSpeed) * (settings.perfAdjust / 200));
            return checked(((r * power(relative, 4)) / 1394635) / 13.3);
        }

        void planRow(int i)
        {
            RowNumbers& row = rows[static_cast<std::size_t>(i)];
            state.activity = "planning " + rowWithRatio(i, row.wrp);
            plan.repeatCount = plan.repeatCount + row.num;
            chooseRatio(i);
            const double t = effortTimeOf(row);
            const double r = quotient(t, row.wrp / 100);
            const double y = checked(settings.recovPct * quotient(row.dist, row.wrp / 100) / 100);
            const double fastPoints = stressOf(row.num, t, row.dist);
            double recoveryPoints = stressOf(row.num, r, y);
            if (i == last)
                recoveryPoints = recoveryPoints - stressOfLastRecovery(r, y);

            PlannedRow& planned = plan.rows[static_cast<std::size_t>(i)];
            planned = {true, row.dist, t, r, y, formatNumber(fastPoints, 5, 1), formatNumber(recoveryPoints, 5, 1)};
            if (listener.points)
                listener.points(i, planned.fastPoints, planned.recoveryPoints);
            plan.totalPoints = plan.totalPoints + val(planned.fastPoints) + val(planned.recoveryPoints);

            plan.fastTime = plan.fastTime + t * row.num;
            const double recoveries = i == last ? row.num - 1 : row.num;
            plan.recoveryTotalTime = checked(plan.recoveryTotalTime + quotient(t * recoveries, row.wrp / 100));
        }

        ModelState& state;
        WorkoutEntries& entries;
        const WorkoutSettings& settings;
        const PlanListener& listener;
        Rows rows;
        int last = 0;    // the highest row that counts
        double w = 0;    // percent: how much the recoveries count as running
        double vE = 0;   // m/s, race speed over the effective length
    };

    /// Intensity for the time of fast running: 30 minutes give the entered one. From 95 up it stays as entered, at 80
    /// and below it is adjusted in full.
    double adjustedIntensity(double I, double fastTime)
    {
        const double adjusted = (I * (1 - quotient(60, fastTime + 131))) / (1 - 60.0 / (1800 + 131));
        double u = 1;
        if (I < 95)
            u = 1 - (95 - I) / 15;
        if (u < 0)
            u = 0;
        return u * I + (1 - u) * adjusted;
    }
}

double standardLoad(double weeklyMiles)
{
    return 0.078 * power(weeklyMiles, 0.67);
}

double automaticRatio(double dist)
{
    return std::floor(power(dist / 600, 0.45) * 100 + 0.5);
}

std::optional<WorkoutPlan> planWorkout(ModelState& state, WorkoutEntries& entries, const WorkoutSettings& settings,
                                       const PlanListener& listener, Messages& messages)
{
    double J = settings.intensityPct;
    for (int n = 0;; ++n)
    {
        Pass pass(state, entries, settings, listener, J);
        if (!pass.run(messages))
            return std::nullopt;
        if (n == passes - 1)
            return pass.plan;
        J = adjustedIntensity(settings.intensityPct, pass.plan.fastTime);
    }
}
