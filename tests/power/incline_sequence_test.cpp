// The conversions as they are told, every effort of every step worked out anew, against the ones that the program
// has: the same bits.

#include <cmath>
#include <cstdint>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "power/incline.h"
#include "power/running_power.h"
#include "support/faults.h"

namespace
{
    double told_levelSpeedForSlope(ModelState& state, double g, double v)
    {
        double trial = v;
        double levelAir = 1;
        double target = netPower(state, v, 72.7, g, 1, state.incline.windSpeed);
        if (state.incline.indoorMode > 0)
        {
            target = netPower(state, v, 72.7, g, 0, 0);
            trial = v - 0.5;
            if (state.incline.indoorMode == 2)
                levelAir = 0;
        }
        double p0 = 0;
        double p1 = 0;
        if (state.incline.slopeDirection >= 0)
        {
            do
            {
                p0 = netPower(state, trial, 72.7, 0, levelAir, 0);
                trial = trial + 0.05;
                p1 = netPower(state, trial, 72.7, 0, levelAir, 0);
            } while (!(p1 > target));
            return (trial - 0.05) + quotient(0.05 * (target - p0), p1 - p0);
        }
        do
        {
            p0 = netPower(state, trial, 72.7, 0, levelAir, 0);
            trial = trial - 0.05;
            p1 = netPower(state, trial, 72.7, 0, levelAir, 0);
        } while (!(p1 < target || target <= 0));
        return p1 != p0 ? (trial + 0.05) - (0.05 * (target - p0)) / (p1 - p0) : trial;
    }

    double told_slopeSpeedForLevel(ModelState& state, double g, double L)
    {
        int& direction = state.incline.slopeDirection;
        direction = 0;
        double slopeCost = netPower(state, L, 72.7, g, 1, state.incline.windSpeed);
        if (state.incline.indoorMode > 0)
            slopeCost = netPower(state, L, 72.7, g, 0, 0);
        const double levelCost = netPower(state, L, 72.7, 0, 1, 0);
        direction = 1;
        if (levelCost > slopeCost)
            direction = -1;
        double s = L + 0.003;
        for (;;)
        {
            double e = told_levelSpeedForSlope(state, g, s);
            s = s - (e - L) / 4 - direction * 0.001;
            e = told_levelSpeedForSlope(state, g, s);
            if ((direction > 0 && e < L) || (direction < 0 && e > L))
                return s;
        }
    }

    class Drawn
    {
    public:
        explicit Drawn(std::uint32_t seed) : random(seed) {}

        double between(double low, double high) { return std::uniform_real_distribution<double>(low, high)(random); }
        int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }

        /// A runner, a comparison and a wind, the latter as often as not still.
        void renew(ModelState& state)
        {
            state.runner.bodyDrag = between(45, 75);
            state.incline.indoorMode = whole(0, 2);
            state.incline.windSpeed = whole(0, 1) == 0 ? 0 : between(-8, 8);
            state.incline.slopeDirection = whole(-1, 1);
        }

    private:
        std::mt19937 random;
    };

    void expectTheSame(const ModelState& a, const ModelState& b)
    {
        ASSERT_EQ(a.incline.slopeDirection, b.incline.slopeDirection);
        ASSERT_EQ(a.incline.zeroPowerFlag, b.incline.zeroPowerFlag);
    }

    TEST(LevelSpeed, HasTheBitsOfTheStepsAsTold)
    {
        Drawn drawn(1);
        ModelState state;
        for (int i = 0; i < 1000000; ++i)
        {
            if (i % 16 == 0)
                drawn.renew(state);
            const double g = drawn.between(-0.3, 0.06);
            const double v = drawn.between(0.6, 8);
            ModelState told = state;
            const double got = levelSpeedForSlope(state, g, v);
            ASSERT_EQ(got, told_levelSpeedForSlope(told, g, v)) << "round " << i << ": " << g << ", " << v;
            expectTheSame(state, told);
        }
    }

    TEST(SlopeSpeed, HasTheBitsOfTheStepsAsTold)
    {
        Drawn drawn(2);
        ModelState state;
        for (int i = 0; i < 20000; ++i)
        {
            drawn.renew(state);
            const double g = drawn.between(-0.5, 0.4);
            const double L = drawn.between(0.02, 9);
            ModelState told = state;
            const double got = slopeSpeedForLevel(state, g, L);
            ASSERT_EQ(got, told_slopeSpeedForLevel(told, g, L)) << "round " << i << ": " << g << ", " << L;
            expectTheSame(state, told);
        }
    }

    TEST(SlopeSpeed, HasTheBitsOfTheStepsAsToldFarFromRunning)
    {
        Drawn drawn(3);
        ModelState state;
        for (int i = 0; i < 1000; ++i)
        {
            drawn.renew(state);
            state.incline.windSpeed = drawn.between(-40, 40);
            const double g = drawn.between(-1, 1);
            const double L = drawn.between(-0.04, 30);
            ModelState told = state;
            double got = 0;
            double expected = 0;
            const std::string fault = faultOf([&] { got = slopeSpeedForLevel(state, g, L); });
            ASSERT_EQ(fault, faultOf([&] { expected = told_slopeSpeedForLevel(told, g, L); })) << g << ", " << L;
            ASSERT_EQ(got, expected) << g << ", " << L;
            expectTheSame(state, told);
        }
    }
}
