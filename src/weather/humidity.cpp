#include "weather/humidity.h"

#include <cmath>

#include "model/arithmetic.h"
#include "model/text.h"

namespace
{
    constexpr double pressureAtFreezing = 6.1078;   // millibars
    constexpr double lowestLogarithm = -5.786;      // log10 of the floor of 0.00001 over it

    /// First estimate of the wet bulb temperature, degrees F.
    double wetBulbSeed(double f, double rh)
    {
        if (f >= 20)
            return f - 5 * power((f * (100 - rh)) / 1616, 1.0526);
        return f - 5 * ((power(f + 80, 3) * (100 - rh)) / (8.08 * 1e7));
    }

    /// A temperature as the form shows it, to a tenth, read back.
    double asShown(double celsius)
    {
        return val(formatNumber(celsius, 5, 1));
    }
}

double fahrenheitOf(double kelvin)
{
    return (kelvin - freezingPointK) * 1.8 + 32;
}

double celsiusOf(double kelvin)
{
    return kelvin - freezingPointK;
}

double saturationPressure(double T)
{
    if (T <= 160)
        return 0.00001;
    const double c = T - freezingPointK;
    return pressureAtFreezing * power(10, (c * 7.5) / (c + 237.3));
}

double saturationTemp(double e)
{
    const double L = e > 0 ? decimalLog(e / pressureAtFreezing) : lowestLogarithm;
    return quotient(237.3 * L, 7.5 - L) + freezingPointK;
}

double dewPoint(double T, double rh)
{
    const double e = checked((rh * saturationPressure(T)) / 100);
    const double d = saturationTemp(e);
    return d > T ? T : d;
}

double wetBulb(double T, double rh)
{
    if (rh > 100)
        return T;
    const double d = dewPoint(T, rh);
    const double f = (T - freezingPointK) * 9 / 5 + 32;
    double w = (wetBulbSeed(f, rh) - 32) * 5 / 9 + freezingPointK;
    double limit = 99;
    for (int i = 1; i <= 99; ++i)
    {
        const double old = w;
        // The bracket stands on the difference of the temperatures, not on w: on purpose.
        w = saturationTemp(saturationPressure(d) + 0.668745 * (T - w) * (1 + 0.00115 * (T - w)));
        w = (w + old) / 2;
        const double delta = std::abs(w - old);
        if (delta < 0.1 || delta > limit)
            break;
        if (i == 1)
            limit = delta;
    }
    return checked(w);
}

double approximateWbgt(double sun, double airC, double wetBulbC)
{
    return checked(sun * 0.46 + airC * 0.3 + wetBulbC * 0.7);
}

double shownWbgt(double sun, double airTempK, double rh)
{
    return approximateWbgt(sun, asShown(celsiusOf(airTempK)), asShown(celsiusOf(wetBulb(airTempK, rh))));
}

double heatIndex(double airTempK, double h)
{
    const double f = fahrenheitOf(airTempK);
    double r = (90.7 - power(100 - h, 0.9) * 0.29) +
               (0.0118 * f * (f - 80)) * ((h + 20) / 110 + 0.84 + power(h / 50, 5) * 0.025);
    if (f > 90)
        r = r + square((f - 90) / 5);
    if (f > 85)
        r = r + (h - 50) * 0.09 * power(h / 50 + 0.11, 0.7) * power((f - 85) / 5, 1.7);
    if (f < 75)
        r = ((75 - f) * f + (f - 55) * r) / 20;   // weights that add up to 20
    if (f < 57)
        r = f;
    return checked(r);
}

double humidexOf(double airTempK, double h)
{
    const double d = dewPoint(airTempK, h);
    const double x = exponential(5417.753 * (1 / freezingPointK - quotient(1, d)));
    return checked(airTempK + (x * 6.11 - 10) * 0.5555 - freezingPointK);
}
