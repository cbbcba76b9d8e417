#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>

#include "power/incline.h"
#include "power/running_power.h"
#include "support/draws.h"

namespace
{
    double drawnGrade(int thousandths)
    {
        return *rc::gen::inRange(-thousandths, thousandths + 1) / 1000.0;
    }

    void drawRunner(ModelState& state)
    {
        state.runner.bodyDrag = *rc::gen::inRange(450, 751) / 10.0;
    }

    RC_GTEST_PROP(Conversions, UndoEachOtherWithinTheirBias, ())
    {
        ModelState state;
        drawRunner(state);
        const double g = drawnGrade(300);
        const double L = *drawnInLogSteps(1, 8);
        const double s = slopeSpeedForLevel(state, g, L);
        const double e = levelSpeedForSlope(state, g, s);
        // s has just crossed the answer, by less than its last step of speed
        const bool uphill = state.incline.slopeDirection > 0;
        RC_ASSERT((uphill ? e < L : e > L));
        RC_ASSERT(std::abs(e - L) < 0.01);
    }

    RC_GTEST_PROP(Conversions, AreTheSameOnARerun, ())
    {
        ModelState state;
        drawRunner(state);
        state.incline.windSpeed = *rc::gen::inRange(-80, 81) / 10.0;
        const double g = drawnGrade(300);
        const double L = *drawnInLogSteps(0.5, 8);
        const double first = slopeSpeedForLevel(state, g, L);
        RC_ASSERT(first == slopeSpeedForLevel(state, g, L));
    }

    RC_GTEST_PROP(NetPower, GrowsWithSpeed, ())
    {
        ModelState state;
        drawRunner(state);
        const double g = *rc::gen::inRange(0, 401) / 1000.0;
        const double wind = *rc::gen::inRange(0, 100) / 10.0;
        const double v = *drawnInLogSteps(0.1, 20);
        RC_ASSERT(netPower(state, v * 1.001, 72.7, g, 1, wind) > netPower(state, v, 72.7, g, 1, wind));
    }

    RC_GTEST_PROP(NetPower, GrowsWithSlopeAndWind, ())
    {
        ModelState state;
        drawRunner(state);
        const double v = *drawnInLogSteps(0.5, 10);
        const double g = *rc::gen::inRange(-100, 400) / 1000.0;
        const double wind = *rc::gen::inRange(-100, 100) / 10.0;
        RC_ASSERT(powerOutput(state, v, 72.7, g + 0.001, 1) > powerOutput(state, v, 72.7, g, 1));
        RC_ASSERT(netPower(state, v, 72.7, g, 1, wind + 0.1) > netPower(state, v, 72.7, g, 1, wind));
    }

    RC_GTEST_PROP(NetPower, WithoutWindIsGrossLessTheBaseRate, ())
    {
        ModelState state;
        drawRunner(state);
        const double v = *drawnInLogSteps(0.1, 10);
        const double w = *rc::gen::inRange(300, 1500) / 10.0;
        const double g = drawnGrade(300);
        const double base = 80 * (w / 68.2);
        RC_ASSERT(std::abs(grossPower(state, v, w, g, 1) - netPower(state, v, w, g, 1, 0) - base) < 1e-8);
    }

    RC_GTEST_PROP(SlopeSpeed, FallsWithTheGrade, ())
    {
        ModelState state;
        drawRunner(state);
        const double L = *drawnInLogSteps(1.5, 7);
        const double g = drawnGrade(100);   // below it running downhill gets no cheaper
        RC_ASSERT(slopeSpeedForLevel(state, g + 0.01, L) < slopeSpeedForLevel(state, g, L));
    }

    RC_GTEST_PROP(SlopeSpeed, FallsWithAHeadWind, ())
    {
        ModelState state;
        drawRunner(state);
        const double L = *drawnInLogSteps(1.5, 7);
        const double g = drawnGrade(100);
        const double still = slopeSpeedForLevel(state, g, L);
        state.incline.windSpeed = *rc::gen::inRange(10, 100) / 10.0;
        RC_ASSERT(slopeSpeedForLevel(state, g, L) < still);
    }

    RC_GTEST_PROP(SlopeSpeed, OfWhatFaultsLeavesNoNumberThatIsNone, ())
    {
        ModelState state;
        state.runner.bodyDrag = *rc::gen::element(0.0, -60.0, 1e-200, 60.0, 1e200);
        state.incline.indoorMode = *rc::gen::inRange(0, 3);
        state.incline.windSpeed = *rc::gen::element(0.0, -1e3, 1e3, 1e160);
        int questions = 0;
        state.goOn = [&] { return ++questions < 20; };
        const double g = *rc::gen::element(-1e3, -5.0, -0.1, 0.0, 0.1, 5.0, 1e3, 1e300);
        const double L = *rc::gen::element(-1e9, -0.04, 0.0, 1e-300, 3.0, 1e5, 1e18, 1e300);
        try
        {
            RC_ASSERT(std::isfinite(slopeSpeedForLevel(state, g, L)));
        }
        catch (const ArithmeticFault&)
        {}
    }
}
