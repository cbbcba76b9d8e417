#include "analysis/distance_search.h"

#include <cmath>

#include "analysis/curve_time.h"
#include "model/arithmetic.h"
#include "model/text.h"

namespace
{
    /// Tells when a sequence of numbers, each of which follows from the one before alone, has come round: one value is
    /// kept to compare with, and renewed after 1, 2, 4, 8, ... more.
    class Recurrence
    {
    public:
        explicit Recurrence(double first) : kept(first) {}

        [[nodiscard]] bool closesWith(double value)
        {
            if (value == kept)
                return true;
            if (++compared == renewal)
            {
                kept = value;
                compared = 0;
                renewal = 2 * renewal;
            }
            return false;
        }

    private:
        double kept;
        long long compared = 0;
        long long renewal = 1;
    };
}

FoundDistance distanceFor(ModelState& state, double target, double seed)
{
    state.activity = "searching the distance run in " + plainText(target) + " s";
    double& curDistance = state.results.curDistance;
    curDistance = seed;
    LongLoop loop(state.goOn);
    Recurrence distances(seed);
    double t = 0;
    bool done = false;
    do
    {
        loop.nextRound();
        t = timeOver(state, curDistance);
        curDistance = checked(curDistance * (1 + quotient(target, t)) / 2);
        done = std::abs(t - target) < 1;
        if (!done && distances.closesWith(curDistance))
            stopWith("a search that cannot end, because its distances come round again");
    } while (!done);
    return {curDistance, t, quotient(curDistance, t)};
}
