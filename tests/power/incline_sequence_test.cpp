// The conversions step by step, every effort of every step worked out anew, against those of the program: the same
// bits.

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
    double levelSpeedStepByStep(ModelState& state, double g, double v)
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

    double slopeSpeedStepByStep(ModelState& state, double g, double L)
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
            double e = levelSpeedStepByStep(state, g, s);
            s = s - (e - L) / 4 - direction * 0.001;
            e = levelSpeedStepByStep(state, g, s);
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
            state.runner.bodyDrag = drag();
            state.incline.indoorMode = whole(0, 2);
            state.incline.windSpeed = whole(0, 1) == 0 ? 0 : between(-8, 8);
            state.incline.slopeDirection = whole(-1, 1);
        }

        /// A runner's as a rule; else a negative one, one in very thick air or one in hardly any.
        double drag()
        {
            switch (whole(0, 9))
            {
            case 0: return -between(45, 75);
            case 1: return between(0.01, 1);
            case 2: return std::pow(10, between(3, 200));
            default: return between(45, 75);
            }
        }

        /// The level as often as a cliff, otherwise a hill.
        double grade()
        {
            switch (whole(0, 15))
            {
            case 0: return 0;
            case 1: return between(-1, 1);
            default: return between(-0.3, 0.06);
            }
        }

    private:
        std::mt19937 random;
    };

    void expectTheSame(const ModelState& a, const ModelState& b)
    {
        ASSERT_EQ(a.incline.slopeDirection, b.incline.slopeDirection);
        ASSERT_EQ(a.incline.zeroPowerFlag, b.incline.zeroPowerFlag);
    }

    /// A treadmill's speed that is as hard as running in very thick air is so far off that each search takes hours.
    void thinTheAir(ModelState& state)
    {
        if (state.incline.indoorMode == 1 && std::abs(state.runner.bodyDrag) < 1)
            state.runner.bodyDrag = 60;
    }

    TEST(LevelSpeed, HasTheBitsOfItsSteps)
    {
        Drawn drawn(1);
        ModelState state;
        for (int i = 0; i < 1000000; ++i)
        {
            if (i % 16 == 0)
                drawn.renew(state);
            const double g = drawn.grade();
            const double v = drawn.between(0.6, 8);
            ModelState stepped = state;
            const double got = levelSpeedForSlope(state, g, v);
            ASSERT_EQ(got, levelSpeedStepByStep(stepped, g, v)) << "round " << i << ": " << g << ", " << v;
            expectTheSame(state, stepped);
        }
    }

    TEST(SlopeSpeed, HasTheBitsOfItsSteps)
    {
        Drawn drawn(2);
        ModelState state;
        for (int i = 0; i < 20000; ++i)
        {
            drawn.renew(state);
            thinTheAir(state);
            const double g = i % 16 == 0 ? 0 : drawn.between(-0.5, 0.4);
            const double L = drawn.between(0.02, 9);
            ModelState stepped = state;
            const double got = slopeSpeedForLevel(state, g, L);
            ASSERT_EQ(got, slopeSpeedStepByStep(stepped, g, L)) << "round " << i << ": " << g << ", " << L;
            expectTheSame(state, stepped);
        }
    }

    TEST(SlopeSpeed, HasTheBitsOfItsStepsFarFromRunning)
    {
        Drawn drawn(3);
        ModelState state;
        for (int i = 0; i < 1000; ++i)
        {
            drawn.renew(state);
            state.incline.windSpeed = drawn.between(-40, 40);
            thinTheAir(state);
            const double g = drawn.between(-1, 1);
            const double L = drawn.between(-0.04, 30);
            ModelState stepped = state;
            double got = 0;
            double expected = 0;
            const std::string fault = faultOf([&] { got = slopeSpeedForLevel(state, g, L); });
            ASSERT_EQ(fault, faultOf([&] { expected = slopeSpeedStepByStep(stepped, g, L); })) << g << ", " << L;
            ASSERT_EQ(got, expected) << g << ", " << L;
            expectTheSame(state, stepped);
        }
    }
}
