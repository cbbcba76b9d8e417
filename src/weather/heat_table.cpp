#include "weather/heat_table.h"

#include <cmath>

#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/text.h"

namespace
{
    constexpr double shortestDistance = 400;   // m
    constexpr double longFrom = 9000;          // m
    constexpr const char* tooShort =
        "This form does not use or predict races shorter than 400 meters, which are hardly affected by temperature or "
        "humidity anyway.";
    constexpr const char* noRaceUsed = "Please check at least one of the two races to be used.";

    /// How weather tells on one sex. The marathon is that of the runner who suffers as the stress says.
    struct Sensitivity
    {
        double marathonMinutes, scale, growth, shortening;
    };
    constexpr Sensitivity men{176.4553, 1, 1.1, 1.67};
    constexpr Sensitivity women{194.1471, 0.82, 0.95, 1.5};

    bool isMiddle(double d)
    {
        return shortestDistance < d && d < longFrom;
    }

    double ontoCurve(const ModelState& state, double t, double d)
    {
        if (isMiddle(d))
            t = quotient(t, middleDistanceFactor(d));
        if (d >= longFrom)
            t = t * longDistanceFactor(state, d);
        return checked(t);
    }

    double offCurve(const ModelState& state, double t, double d)
    {
        if (isMiddle(d))
            t = t * middleDistanceFactor(d);
        if (d >= longFrom)
            t = quotient(t, longDistanceFactor(state, d));
        return checked(t);
    }

    double onCurve(const Heat& heat, double d, double reference)
    {
        return d * (heat.paceBase + heat.paceSlope * naturalLog(quotient(d, reference)));
    }

    /// paceSlope from training, for a runner who has raced over D metres only.
    void slopeFromTraining(Heat& heat, const HeatEntries& entries, double D)
    {
        double m = entries.weekmi;
        if (entries.fop)
            m = m / 0.89 + 1.2;
        m = m + ageDistanceTermOf(val(entries.agetx));
        double u = 295;   // s over 1500 m, where the search begins
        for (int round = 1; round <= 5; ++round)
        {
            const double a =
                (1.707 / 1.41) * (0.23 * power(1 + std::abs(55.85 - m) / 988.7, 40)) * power(u / 205, -0.4);
            const double b = -0.31 - 0.021 * power(std::abs((m + 5) / 10), 1.2);
            heat.paceSlope = checked(0.02828 * power((m + 1.89) / 11.89, b) * power(u / 205, a));
            u = 1500 * (heat.paceBase + heat.paceSlope * naturalLog(1500 / D)) * middleDistanceFactor(1500);
        }
    }

    void fitPace(ModelState& state, const HeatEntries& entries)
    {
        Heat& heat = state.heat;
        state.activity = "fitting the pace to the races in near-ideal weather";
        const HeatRace& race1 = entries.race1;
        const HeatRace& race2 = entries.race2;
        const double d1 = race1.metres;
        const double d2 = race2.metres;
        const double t1 = ontoCurve(state, race1.seconds, d1);
        const double t2 = ontoCurve(state, race2.seconds, d2);
        if (race1.use && race2.use)
        {
            heat.paceSlope = quotient(t2 / d2 - t1 / d1, naturalLog(d2 / d1));
            heat.paceBase = t1 / d1;
            return;
        }
        heat.paceBase = race1.use ? t1 / d1 : t2 / d2;
        slopeFromTraining(heat, entries, race1.use ? d1 : d2);
    }

    void fillRow(const ModelState& state, const HeatEntries& entries, double d, double tm, HeatRow& row)
    {
        double t = offCurve(state, onCurve(state.heat, d, entries.race1.metres), d);
        row.idealt = formatTime(t);   // which may replace its argument
        row.ideal = t;
        const double i = idealWbgt(t, val(entries.wtkg), val(entries.htcm));
        const double p = heatDecrement(t, tm, state.heat.wbgtC - i, entries.fop);
        row.decrement = p;
        row.pdec = formatNumber(p, 6, 2);
        row.given = checked(t * (1 + p / 100));
        row.givent = formatTime(row.given);
    }
}

double heatFatigueCoefOf(double w, bool fop)
{
    const double coefficient = power(w + 20, -1.73) * 62.97 + (0.08 - power(w + 1, 0.5) / 420) - 0.03;
    return fop ? coefficient - 0.022 : coefficient;
}

double middleDistanceFactor(double d)
{
    return 1 - sine(decimalLog(d / 400) * 4.8293) * 0.00615;
}

double longDistanceFactor(const ModelState& state, double d)
{
    return checked(enduranceFactor(state, d, state.heat.heatFatigueCoef, 1) *
                   (1 + power(d - longFrom, 0.7515) / 56516));
}

double idealWbgt(double t, double wtkg, double htcm)
{
    const double i = 4.45 + quotient(31, power(t / 60 + 1, 0.65));
    const double surface = power(wtkg, 0.425) * power(htcm / 100, 0.725) * 0.20247;   // m^2
    const double ratio = quotient(wtkg, surface);
    return checked(i + (36.85 - ratio) * 0.45);
}

double heatDecrement(double t, double tm, double stray, bool fop)
{
    const double minutes = t / 60;
    const Sensitivity& sex = fop ? women : men;
    const double p =
        0.02215 * power(minutes / 30, 0.536 * power(quotient(30, minutes), 0.02)) * power(std::abs(stray), 1.72);
    return checked(p * sex.scale *
                   power((tm / 60) / sex.marathonMinutes, sex.growth - sex.shortening * (1 - quotient(t, tm))));
}

void calculateHeatTable(ModelState& state, const HeatEntries& entries, HeatTable& table, Messages& said)
{
    if (entries.race1.metres < shortestDistance || entries.race2.metres < shortestDistance ||
        entries.dispred < shortestDistance)
    {
        said.push_back({tooShort});
        return;
    }
    if (!entries.race1.use && !entries.race2.use)
    {
        said.push_back({noRaceUsed});
        return;
    }
    fitPace(state, entries);
    state.activity = "predicting the marathon in ideal weather";
    const double tm =
        quotient(onCurve(state.heat, marathonMetres, entries.race1.metres), longDistanceFactor(state, marathonMetres));
    for (std::size_t row = 0; row < heatRows; ++row)
    {
        const double d = row == 0 ? entries.dispred : heatDistances[row];
        state.activity = "working out the effect of the weather over " + plainText(d) + " m";
        fillRow(state, entries, d, tm, table[row]);
    }
}
