#include "special/pacing_table.h"

#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/text.h"
#include "model/units.h"
#include "power/incline.h"
#include "power/pace_and_weight_text.h"

namespace
{
    constexpr double penaltyFrom = 9000;   // m
    constexpr double rowStep = 2;          // s a mile
    constexpr int rowsAtLeast = 200;       // printed even of a table without an end

    /// A race time at curDistance, and how much of it the long-distance fade takes off.
    struct FadedTime
    {
        double time = 0, penalty = 0;   // s
    };

    FadedTime timeOver(const ModelState& state, double distance)
    {
        FadedTime faded;
        faded.time = raceTimeAt(state, distance);
        if (distance > penaltyFrom)
            faded.penalty =
                -faded.time + quotient(faded.time, enduranceFactor(state, distance, state.curve.fatigueCoef, 1));
        return faded;
    }

    /// One half of a strategy.
    struct Half
    {
        double levelPace = 0;    // s a mile
        double coursePace = 0;   // s a mile, on the slope and in the wind
        double time = 0;         // s
    };

    struct Strategy
    {
        Half first, second;
        double total = 0;   // s
        double off = 0;     // s above even pacing on the level
    };

    /// Runs one half, h metres long, at the effort of a level pace.
    Half runHalf(ModelState& state, double levelPace, double slope, double wind, double h)
    {
        state.incline.windSpeed = wind;
        const double speed = quotient(metresPerMile, levelPace);
        const double m = quotient(speed, slopeSpeedForLevel(state, slope, speed));
        Half half;
        half.levelPace = levelPace;
        half.coursePace = m * levelPace;
        half.time = half.coursePace * h / metresPerMile;
        return half;
    }

    std::string coursePaceText(const ModelState& state, const Half& half)
    {
        return lastOf(formatTime(half.coursePace / state.special.paceDivisor), 8);
    }

    std::string levelPaceText(const Half& half)   // in time per mile whatever the units, on purpose
    {
        return lastOf(formatTime(double(half.levelPace)), 8);
    }

    void printRow(const ModelState& state, const std::string& mode, Strategy row, TextPage& page)
    {
        const std::string course1 = coursePaceText(state, row.first);
        const std::string course2 = coursePaceText(state, row.second);
        const std::string t1 = formatTime(row.first.time);
        const std::string t2 = formatTime(row.second.time);
        const std::string totals = formatTime(row.total) + formatTime(row.off);
        if (mode == "r")
            printLine(page, t1 + course1 + levelPaceText(row.first) + " " + t2 + course2 + levelPaceText(row.second) +
                                " " + totals);
        else
            printLine(page, "    " + t1 + "  " + course1 + "    " + t2 + "  " + course2 + "     " + totals);
    }

    /// Whether no later row can be the last: first halves get slower and stay behind the fast half, and second halves
    /// stay behind the centre, which is itself slower than the fast half.
    bool hasNoEnd(const Special& special, double p, double slope)
    {
        return slope < 0 && p > special.pacingCentre && special.pacingCentre > special.fastHalfPace;
    }
}

double windAtRunner(const ModelState& state, double windBase)
{
    return checked(windBase * power(state.runner.heightCm / standardHeightCm, 0.3));
}

void layPacingCurve(ModelState& state, double distance)
{
    double& curDistance = state.results.curDistance;
    curDistance = distance;
    const auto [T1, penalty1] = timeOver(state, curDistance);
    const double e = quotient(metresPerMile, quotient(distance, T1));
    const double h = distance / 2;
    curDistance = h;
    const auto [T2, penalty2] = timeOver(state, curDistance);
    const double f = quotient(metresPerMile, quotient(h, T2));
    const double k = penalty1 - 2 * penalty2;
    const double va = squareRoot((state.curve.aerobicPower - 140) / 60);   // what aerobicPower alone can hold
    double a = quotient(metresPerMile, quotient(h, quotient(h, va) + 2 * k));
    // the aerobic pace eases with distance, by fitted constants
    a = a * power(h / 7840, 0.063 * power(h / 7840, 0.32));
    a = a * (naturalLog(h / 25000) / 40 + 1);
    const double c = quotient(a * f - square(e), (a + f) - 2 * e);

    Special& special = state.special;
    special.evenPace = e;
    special.fastHalfPace = f;
    special.aerobicHalfPace = a;
    special.pacingCentre = c;
    special.pacingArea = checked(square(e - c));
}

PacingTimes printPacingTable(ModelState& state, double distance, const std::string& mode, double slope, TextPage& page)
{
    state.activity = "laying the curve of pacing strategies";
    layPacingCurve(state, distance);
    printLine(page, mode == "r" ? "  1st half  Pace  = Level  2nd half    Pace  = Level     Time   Off flat by"
                                : "   Fastest half   Pace     Slowest half   Pace       Race time   Off best by");
    newLine(page);

    state.activity = "printing the pacing table";
    const Special& special = state.special;
    const double c = special.pacingCentre;
    const double h = state.results.curDistance;
    LongLoop rounds(state.goOn);
    PacingTimes times;
    double p = special.evenPace;
    for (int rows = 1;; ++rows)
    {
        rounds.nextRound();
        const double q = quotient((c * p - square(c)) + special.pacingArea, p - c);
        const double wind = mode == "n" ? 0 : windAtRunner(state, special.windBase);
        Strategy row;
        row.first = runHalf(state, p, slope, wind, h);
        row.second = runHalf(state, q, -slope, mode == "n" ? 0 : windAtRunner(state, -special.windBase), h);
        row.total = row.first.time + row.second.time;
        if (row.total < times.best)
            times.best = row.total;
        times.flat = 2 * special.evenPace * h / metresPerMile;
        row.off = row.total - times.flat;
        printRow(state, mode, row, page);

        const double step = slope == 0 ? 1 : signOf(slope);
        p = p - rowStep * step;
        if (p < special.fastHalfPace || q < special.fastHalfPace)
            return times;
        if (rows >= rowsAtLeast && hasNoEnd(special, p, slope))
            stopWith("a table without an end (on this slope no strategy comes down to the fastest half)");
    }
}
