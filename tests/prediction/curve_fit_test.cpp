// The two fit modes, by what is known of the curves that they find.

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "model/race_time.h"
#include "model/text.h"
#include "prediction/calculate.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/runners.h"

namespace
{
    CalculationInput runner(std::initializer_list<std::string_view> races, const std::string& age, int miles,
                            FitMode fit = FitMode::allData)
    {
        CalculationInput input = entries(races);
        input.age = age;
        input.weeklyMiles = miles;
        input.fit = fit;
        return input;
    }

    CalculationInput bestTwo(std::initializer_list<std::string_view> races)
    {
        return runner(races, "40", 30, FitMode::bestTwo);
    }

    std::string timeText(const Prediction& prediction, double distance)
    {
        return formatTime(raceTimeAt(prediction.state, distance));
    }

    TEST(OneRaceFit, OfTwentyMinutesOverFiveKilometres)
    {
        const Prediction prediction = recalculated(runner({"5000 m 20:00"}, "40", 30));
        EXPECT_NEAR(prediction.state.curve.aerobicPower, 759, 0.5);
        EXPECT_TRUE(closeTo(raceTimeAt(prediction.state, 5000), 1200));
        EXPECT_EQ(timeText(prediction, 10000), "   42:20  ");
        EXPECT_EQ(timeText(prediction, 21097.5), " 1:38:11  ");
        EXPECT_EQ(timeText(prediction, 42195), " 3:48:37  ");
        EXPECT_EQ(prediction.state.curve.refDistance, 5000);
        EXPECT_TRUE(closeTo(prediction.state.runner.ageDistanceTerm, std::pow(22, 1.5) / 24));
    }

    TEST(OneRaceFit, OfFortyMinutesOverTenKilometres)
    {
        const Prediction prediction = recalculated(runner({"10 km 40:00"}, "30", 50));
        EXPECT_NEAR(prediction.state.curve.aerobicPower, 910.6, 0.05);
        EXPECT_EQ(timeText(prediction, 42195), " 3:20:21  ");
    }

    TEST(OneRaceFit, GoesThroughItsRace)
    {
        for (const char* race : {"60 m 7.9", "250 m 36", "800 m 2:05.4", "1 mi 5:10", "half 1:35:20", "50 km 4:12:00"})
        {
            const Prediction prediction = recalculated(entries({race}));
            const Races& races = prediction.state.races;
            EXPECT_TRUE(closeTo(raceTimeAt(prediction.state, races.entryDist[1]), races.entryTime[1])) << race;
        }
    }

    TEST(OneRaceFit, LeavesTheSpecialDistanceLongerBySqrTwo)
    {
        // Stripping has no inverse of the special case, so the curve is hung on the time as it stands.
        const Prediction prediction = recalculated(entries({"9410.5 m 40:00"}));
        const double time = raceTimeAt(prediction.state, 9410.5);
        EXPECT_TRUE(closeTo(time - 3, (2400 - 3) * std::sqrt(2)));
    }

    TEST(OneRaceFit, DependsOnMilesAndAge)
    {
        const double power = recalculated(runner({"5 km 20:00"}, "40", 30)).state.curve.aerobicPower;
        EXPECT_GT(recalculated(runner({"5 km 20:00"}, "40", 60)).state.curve.aerobicPower, power);
        EXPECT_GT(recalculated(runner({"5 km 20:00"}, "60", 30)).state.curve.aerobicPower, power);
        EXPECT_EQ(recalculated(runner({"5 km 20:00"}, "40", 30)).state.curve.aerobicPower, power);
    }

    TEST(OneRaceFit, LeavesAgeAndSpeedRatioAsTheyWere)
    {
        const Prediction prediction = recalculated(runner({"5 km 20:00"}, "44.5", 30));
        EXPECT_EQ(prediction.state.runner.age, 44.5);
        EXPECT_TRUE(closeTo(prediction.state.results.speedRatio,
                            0.16 * prediction.state.results.time5000 / prediction.state.results.time800));
    }

    struct PairCase
    {
        std::string name;
        CalculationInput input;
        double shorter, longer;   // m, the pair that the curve is to go through
        double late;              // s, by which the longer race may be met late

        friend std::ostream& operator<<(std::ostream& out, const PairCase& row) { return out << row.name; }
    };

    class PairFit : public testing::TestWithParam<PairCase>
    {};

    TEST_P(PairFit, GoesThroughTheShorterRaceAndMeetsTheLongerFromBelow)
    {
        const Prediction prediction = recalculated(GetParam().input);
        const Races& races = prediction.state.races;
        EXPECT_EQ(prediction.state.curve.refDistance, GetParam().shorter);
        for (int i = 1; i <= races.raceCount; ++i)
        {
            const double late = raceTimeAt(prediction.state, races.entryDist[i]) - races.entryTime[i];
            if (races.entryDist[i] == GetParam().shorter)
                EXPECT_TRUE(closeTo(late, 0) || std::abs(late) < 1e-6) << races.entryDist[i];
            else if (races.entryDist[i] == GetParam().longer)
            {
                EXPECT_GE(late, 0);
                EXPECT_LT(late, GetParam().late);
            }
            else
                EXPECT_LT(late, 0) << "a race beats the curve at " << races.entryDist[i];
        }
    }

    // What lies on the curve of the first pair that no other race beats, shortest races first.
    INSTANTIATE_TEST_SUITE_P(
        ByHand, PairFit,
        testing::Values(PairCase{"two", bestTwo({"1500 m 4:20", "10 km 36:30"}), 1500, 10000, 0.5},
                        PairCase{"sprint_and_marathon", bestTwo({"200 m 25.1", "marathon 3:20:00"}), 200, 42195, 1},
                        PairCase{"weak_middle", bestTwo({"1500 m 4:20", "5 km 18:40", "10 km 37:30"}), 1500, 10000, 1},
                        PairCase{"strong_middle", bestTwo({"1500 m 4:40", "5 km 16:50", "10 km 37:30"}), 1500, 5000, 1},
                        PairCase{"weak_first", bestTwo({"800 m 2:40", "5 km 17:30", "10 km 36:20"}), 800, 5000, 1}),
        byName);

    TEST(PairFit, TakesNoNoticeOfAge)
    {
        const double power =
            recalculated(runner({"1500 m 4:20", "10 km 36:30"}, "25", 30, FitMode::bestTwo)).state.curve.aerobicPower;
        EXPECT_EQ(
            recalculated(runner({"1500 m 4:20", "10 km 36:30"}, "70", 30, FitMode::bestTwo)).state.curve.aerobicPower,
            power);
    }

    TEST(AllData, BlendsThePairWithTheBestSingleRace)
    {
        // With two races and a pair below the best single race, w is (2 - 1) / 2, so a third is the pair's.
        const double pair = recalculated(bestTwo({"1500 m 4:20", "10 km 36:30"})).state.curve.aerobicPower;
        const double blend = recalculated(entries({"1500 m 4:20", "10 km 36:30"})).state.curve.aerobicPower;
        const double single = std::max(recalculated(entries({"1500 m 4:20"})).state.curve.aerobicPower,
                                       recalculated(entries({"10 km 36:30"})).state.curve.aerobicPower);
        ASSERT_LT(pair, single);
        EXPECT_TRUE(closeTo(blend, (0.5 * pair + single) / 1.5));
    }

    TEST(AllData, CountsAPairAboveTheBestSingleRaceThrice)
    {
        // Above it w is (2 + 1) / 2, so three fifths are the pair's.
        const double pair = recalculated(bestTwo({"800 m 2:40", "10 km 36:20"})).state.curve.aerobicPower;
        const double blend = recalculated(entries({"800 m 2:40", "10 km 36:20"})).state.curve.aerobicPower;
        const double single = std::max(recalculated(entries({"800 m 2:40"})).state.curve.aerobicPower,
                                       recalculated(entries({"10 km 36:20"})).state.curve.aerobicPower);
        ASSERT_GT(pair, single);
        EXPECT_TRUE(closeTo(blend, (1.5 * pair + single) / 2.5));
    }

    TEST(AllData, HangsTheCurveOnOneOfTheRaces)
    {
        const Prediction prediction = recalculated(entries({"800 m 2:10", "5 km 18:30", "half 1:28:00"}));
        const double distance = prediction.state.curve.refDistance;
        int through = 0;
        for (int i = 1; i <= 3; ++i)
            if (prediction.state.races.entryDist[i] == distance)
            {
                ++through;
                EXPECT_TRUE(closeTo(raceTimeAt(prediction.state, distance), prediction.state.races.entryTime[i]));
            }
        EXPECT_EQ(through, 1);
    }

    TEST(AnaerobicExp, FallsForALongRaceThatIsFarTooSlowAndStaysUntilReCalculate)
    {
        Prediction prediction = recalculated(bestTwo({"800 m 2:05", "10 km 1:10:00"}));
        const double lowered = prediction.state.curve.anaerobicExp;
        EXPECT_LT(lowered, 0.65);
        EXPECT_GE(lowered, 0.5 - 1e-9);
        prediction.start(calculate, bestTwo({"1500 m 4:20", "10 km 36:30"}));
        EXPECT_EQ(prediction.state.curve.anaerobicExp, lowered);
        const double withLowered = prediction.state.curve.aerobicPower;
        prediction.start(recalculate, bestTwo({"1500 m 4:20", "10 km 36:30"}));
        EXPECT_EQ(prediction.state.curve.anaerobicExp, 0.65);
        EXPECT_NE(prediction.state.curve.aerobicPower, withLowered);
    }

    TEST(AnaerobicExp, FallsByHundredthsInDoubles)
    {
        double expected = 0.65;
        while (expected > 0.5)
            expected = expected - 0.01;
        const Prediction prediction = recalculated(bestTwo({"800 m 2:05", "10 km 2:00:00"}));
        EXPECT_EQ(prediction.state.curve.anaerobicExp, expected);
    }

    const std::string unusual = "Very unusual profile.  Could not match performances with realistic aerobic capacity.";

    TEST(UnusualProfile, IsToldOnceARecalculationAndThePairStaysInUse)
    {
        Prediction prediction = recalculated(bestTwo({"800 m 2:05", "10 km 2:00:00"}));
        EXPECT_EQ(prediction.messages, Messages{{unusual}});
        EXPECT_GE(prediction.state.curve.aerobicPower, 140.69);
        EXPECT_LT(prediction.state.curve.aerobicPower, 141);
        EXPECT_EQ(prediction.results.rows.size(), 9U);
        EXPECT_EQ(prediction.state.flags.warnedProfile, 1);
        prediction.start(calculate, bestTwo({"800 m 2:05", "10 km 2:00:00"}));
        EXPECT_EQ(prediction.messages.size(), 1U);
        prediction.start(recalculate, bestTwo({"800 m 2:05", "10 km 2:00:00"}));
        EXPECT_EQ(prediction.messages, (Messages{{unusual}, {unusual}}));
    }

    TEST(UnusualProfile, WithEnglishOutputIsToldOnceAllTheSame)
    {
        CalculationInput input = bestTwo({"800 m 2:05", "10 km 2:00:00"});
        input.output = OutputMode::english;
        EXPECT_EQ(recalculated(input).messages, Messages{{unusual}});
    }
}
