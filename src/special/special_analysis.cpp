#include "special/special_analysis.h"

#include <cmath>
#include <optional>

#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/record_curve.h"
#include "model/text.h"
#include "model/units.h"
#include "power/incline.h"

namespace
{
    constexpr const char* tooFar = "Distance over 500 km (311 miles)!  Check your units as well as the entered number.";

    double finishTimeOf(const ModelState& state, double distance, double speed)
    {
        return finishTime(state, distance, speed, state.curve.fatigueCoef, state.curve.startDelay);
    }

    /// Finds a number that comes back in a sequence in which each number depends on the one before it alone: each is
    /// held against one of an earlier round, which is renewed after 1, 2, 4, 8, ... rounds.
    class Recurrence
    {
    public:
        [[nodiscard]] bool comesBackWith(double number)
        {
            if (number == held)
                return true;
            if (++rounds == renewAt)
            {
                held = number;
                renewAt *= 2;
            }
            return false;
        }

    private:
        std::optional<double> held;
        long long rounds = 0;
        long long renewAt = 1;
    };

    /// Level line and hill line begin alike: time, and paces per mile, km and 400 m.
    std::string timeAndPaces(double time, double distance)
    {
        const double v = quotient(distance, time);
        return "  " + formatTime(double(time)) + " " + formatTime(quotient(metresPerMile, v)) + "   " +
               formatTime(quotient(metresPerKilometre, v)) + "     " + formatTime(quotient(metresPerTrackLap, v)) +
               "     ";
    }

    std::string wholePercent(double fraction)
    {
        return plainText(roundHalfEven(100 * fraction));
    }

    /// Writes `level`. Returns the comparison time, s.
    double writeLevelLine(ModelState& state, double D0, int comparisonLevel, SpecialResults& results)
    {
        const char sex = state.runner.sex;
        const double t = raceTimeAt(state, D0);
        const double c = recordTime(state, sex, RecordMode::timeOfLevel, D0, comparisonLevel / 1000.0);
        const double percentSpeed = quotient(c, t);
        const double r = recordTime(state, sex, RecordMode::record, D0, 1);
        state.results.level = performanceLevel(quotient(r, t), D0, sex);
        results.levelLine = timeAndPaces(t, D0) + formatTime(double(c)) + "        " + wholePercent(percentSpeed) +
                            "           " + wholePercent(state.results.level);
        return c;
    }

    void printWinds(const WindEstimates& winds, TextPage& page)
    {
        printLine(page, "   Best times for level races with wind for different wind directions:");
        printLine(page, "   No wind   Head/tail wind  Cross wind     Circle   Track cross wind  Track parallel");
        print(page, "  ");   // shares the first zone
        print(page, formatTime(double(winds.noWind)));
        for (const double time :
             {winds.headTailWind, winds.crossWind, winds.circle, winds.trackCrossWind, winds.trackParallel})
        {
            goToZone(page);
            print(page, formatTime(double(time)));
        }
        newLine(page);
    }
}

double specialDistance(const SpecialEntries& entries)
{
    switch (entries.unit)
    {
    case SpecialUnit::marathon: return marathonMetres;
    case SpecialUnit::halfMarathon: return halfMarathonMetres;
    case SpecialUnit::miles: return checked(val(entries.number) * metresPerMile);
    case SpecialUnit::yards: return val(entries.number) * metresPerYard;
    case SpecialUnit::kilometers: return checked(val(entries.number) * metresPerKilometre);
    case SpecialUnit::meters: return val(entries.number);
    case SpecialUnit::none: break;
    }
    return 0;
}

double rawSpeedAt(const ModelState& state, double distance)
{
    const Curve& curve = state.curve;
    return rawSpeed(state, curve.anaerobicEnergy, curve.aerobicPower, curve.refDistance, distance);
}

double constantSlopeTime(ModelState& state, double distance, double slope)
{
    double& curDistance = state.results.curDistance;
    const double D0 = distance;
    curDistance = D0;
    double L = rawSpeedAt(state, curDistance);
    double tLevel = finishTimeOf(state, curDistance, L);
    double S = slopeSpeedForLevel(state, slope, L);
    double tHill = finishTimeOf(state, curDistance, S);
    double E = curDistance;
    LongLoop rounds(state.goOn);
    Recurrence distances;
    for (;;)
    {
        rounds.nextRound();
        curDistance = E * (0.5 + quotient(0.5 * tHill, tLevel));
        L = rawSpeedAt(state, curDistance);
        tLevel = finishTimeOf(state, curDistance, L);
        E = curDistance;
        curDistance = D0;
        S = slopeSpeedForLevel(state, slope, L);
        tHill = finishTimeOf(state, D0, S);
        if (std::abs(quotient(tHill, tLevel) - 1) < 0.001)
            return tHill;
        if (distances.comesBackWith(E))
            stopWith("a search without an end (no level race lasts as long as this course)");
    }
}

WindEstimates windEstimates(const ModelState& state, const PacingTimes& times)
{
    const double B = times.best;
    const double F = times.flat;
    const double D = state.results.curDistance;
    const auto g = [&](double x, double y) {
        const double T = x * B + y * F;
        const double ratio = quotient(std::abs(state.incline.windSpeed), quotient(2 * D, T));
        // pi of this formula has seven digits
        return 0.75 - 0.06363 * sine(((3.141592 / 2) * power(0.36, ratio / 1.272)) / 0.36);
    };
    const auto blended = [&](double m) { return checked(m * B + (1 - m) * F); };
    WindEstimates winds;
    winds.noWind = F;
    winds.headTailWind = B;
    winds.crossWind = blended(0.6 * g(0.42, 0.58));
    winds.trackCrossWind = blended(0.8 * g(0.56, 0.42));   // sums to 0.98, on purpose
    winds.trackParallel = blended(1.21 * g(0.847, 0.153));
    winds.circle = blended(g(0.7, 0.3));
    return winds;
}

void specialAnalysis(ModelState& state, const SpecialEntries& entries, int comparisonLevel, bool kilometers,
                     SpecialResults& results, Messages& said)
{
    Special& special = state.special;
    results = {};
    special.analysisMode = entries.mode;
    special.paceDivisor = kilometers ? kilometresPerMile : 1;
    const bool constant = special.analysisMode == "c";
    const bool outAndBack = special.analysisMode == "r";
    state.activity = "reading the entries";
    if (constant)
        state.incline.windSpeed = windAtRunner(state, special.windBase);
    special.slope = val(entries.slope);
    if (!constant && !outAndBack)
        special.slope = 0;
    state.results.curDistance = specialDistance(entries);
    const double D0 = state.results.curDistance;
    if (D0 > longestSpecialMetres)
    {
        said.push_back({tooFar});
        return;
    }

    state.activity = "working out the level time over " + plainText(D0) + " m";
    const double comparison = writeLevelLine(state, D0, comparisonLevel, results);
    special.stored = true;
    special.entries = entries;

    if (special.analysisMode == "n" || outAndBack)
    {
        const PacingTimes times = printPacingTable(state, D0, special.analysisMode, special.slope, results.table);
        if (!outAndBack)
            return;
        state.activity = "estimating the effect of the wind's direction";
        printWinds(windEstimates(state, times), results.winds);
    }
    else if (constant)
    {
        state.activity = "working out the time on the slope over " + plainText(D0) + " m";
        const double T = constantSlopeTime(state, D0, special.slope);
        results.hillLine = timeAndPaces(T, D0) + formatTime(double(comparison));
        state.incline.windSpeed = 0;
    }
}
