#include "analysis/peak_distance.h"

#include "analysis/curve_time.h"
#include "model/arithmetic.h"
#include "model/record_curve.h"
#include "prediction/specialty.h"

namespace
{
    constexpr double longestWalk = 250000;   // m
    constexpr double shortestWalk = 5;

    double levelAt(ModelState& state, double d)
    {
        const double t = timeOver(state, d);
        return levelOf(state, d, t);
    }

    /// The turn of the level in km, walked to from d metres.
    double peakFrom(ModelState& state, double d)
    {
        const double level0 = levelAt(state, d);
        const double levelUp = levelAt(state, d * 1.1);
        const double levelDown = levelAt(state, d / 1.1);
        const double firstStep = level0 - levelDown;
        double step = firstStep;
        if (step < 0)
            step = level0 - levelUp;
        const double direction = signOf(firstStep);

        double x = d;
        double xPrevious = d;
        double current = level0;
        double stepPrevious = step;
        bool done = false;
        do
        {
            const double previous = current;
            xPrevious = x;
            stepPrevious = step;
            x = x * power(1.1, direction);
            current = levelAt(state, x);
            step = current - previous;
            done = x > longestWalk || x < shortestWalk || step < 0;
            if (!done && direction == 0)
                stopWith("a search that cannot end, because the level is flat where it begins");
        } while (!done);
        return (xPrevious + quotient((x - xPrevious) * (stepPrevious + step), stepPrevious - step)) / 1000;
    }
}

double peakDistance(ModelState& state, double speedRatio)
{
    state.activity = "searching the distance at which the level peaks";
    Results& results = state.results;
    const double d0 = 1000 * specialtyAt(speedRatio) + 1000 * enduranceExtra(speedRatio);
    results.level = levelAt(state, d0);
    results.speedRatioAdj = power(speedRatio, results.level / 0.9);
    double& peakSeed = state.training.peakSeed;
    peakSeed = checked(specialtyAt(results.speedRatioAdj) + enduranceExtra(results.speedRatioAdj));

    const double peak = peakFrom(state, peakSeed * 1000);
    if (!(peak > 9))
        return peak;
    return squareRoot(peak * peakFrom(state, 100000));
}

const char* distanceBand(double peakKm)
{
    struct Band
    {
        double above;   // km
        const char* words;
    };
    constexpr Band bands[] = {{0.4, "300 - 600 m"}, {0.5, "400 - 800 m"}, {0.7, "600 - 1500 m"}, {1.22, "1 - 3 k"},
                              {2.12, "1.5 - 5 k"},  {3.87, "3 - 8k"},     {6.32, "5 - 10 k"},    {10, "10 k and up"}};
    const char* words = "under 400 m";
    for (const Band& band : bands)
        if (peakKm > band.above)
            words = band.words;
    return words;
}
