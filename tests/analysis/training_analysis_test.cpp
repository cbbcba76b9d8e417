#include "analysis/training_analysis.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "analysed_runner.h"
#include "analysis/distance_search.h"
#include "analysis/heart_rates.h"
#include "analysis/peak_distance.h"
#include "analysis/training_paces.h"
#include "model/race_time.h"
#include "model/record_curve.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/faults.h"

namespace
{
    class AnalysedRunner : public testing::TestWithParam<nlohmann::json>
    {};

    TEST_P(AnalysedRunner, HasTheNumbersOfASecondComputation)
    {
        ModelState state = stateOf(GetParam());
        const Specialty specialty = trainingAnalysis(state);
        for (const auto& [name, expected] : GetParam().at("expected").items())
            EXPECT_TRUE(closeTo(numberOf(state, name), expected.get<double>())) << name;
        EXPECT_TRUE(closeTo(specialty.peak, GetParam().at("peak").get<double>()));
        EXPECT_TRUE(closeTo(specialty.typicalMiles, GetParam().at("typicalMiles").get<double>()));
        EXPECT_EQ(specialty.band, GetParam().at("band").get<std::string>());
        EXPECT_EQ(specialty.verdict, GetParam().at("verdict").get<std::string>());
    }

    TEST_P(AnalysedRunner, GetsTheSameAgain)
    {
        ModelState state = stateOf(GetParam());
        const double peak = trainingAnalysis(state).peak;
        const Training first = state.training;
        EXPECT_EQ(trainingAnalysis(state).peak, peak);
        EXPECT_EQ(state.training.thresholdSpeedLow, first.thresholdSpeedLow);
        EXPECT_EQ(state.training.aerobicSpeedHigh, first.aerobicSpeedHigh);
    }

    INSTANTIATE_TEST_SUITE_P(InFile, AnalysedRunner, testing::ValuesIn(analysedRunners()),
                             [](const auto& row) { return row.param.at("name").template get<std::string>(); });

    TEST(Corrections, AreTakenOrNotByEachRunnersSpeeds)
    {
        std::vector<std::string> taken;
        for (const nlohmann::json& runner : analysedRunners())
            for (const auto& step : runner.at("steps"))
                taken.push_back(step);
        for (const char* step : {"step26", "step36", "step37", "step39", "step10", "step12"})
        {
            EXPECT_NE(std::count(taken.begin(), taken.end(), step), 0) << step;
            EXPECT_NE(std::count(taken.begin(), taken.end(), step), static_cast<long>(analysedRunners().size()))
                << step;
        }
    }

    double speedsWith(ModelState state, double time5000, double Training::*speed)
    {
        state.results.time5000 = time5000;
        findTrainingPaces(state);
        return state.training.*speed;
    }

    TEST(TrainingPaces, AerobicSpeedGoesByTheTimeOver5000Metres)
    {
        const ModelState state = stateOfRunner("sprinter");
        const double neutral = speedsWith(state, 705, &Training::aerobicTrainSpeed);   // 11.75 minutes
        const double factor = 1 + (20 - 11.75) * 0.0042;                               // 20 minutes
        EXPECT_TRUE(closeTo(speedsWith(state, 1200, &Training::aerobicTrainSpeed), neutral * factor));
    }

    TEST(TrainingPaces, ThresholdGoesByTheTimeOver5000Metres)
    {
        const ModelState state = stateOfRunner("sprinter");   // whose threshold nothing else moves
        const double at16 = speedsWith(state, 960, &Training::thresholdSpeed);
        EXPECT_TRUE(closeTo(speedsWith(state, 1200, &Training::thresholdSpeed), at16 / 1.02 * (1.02 - 4 * 0.002)));
    }

    TEST(TrainingPaces, AerobicSpeedIsTheBlendOfTheSpeedsAtTheNeutralTimes)
    {
        ModelState state = stateOfRunner("tenK");
        state.results.time5000 = 705;
        findTrainingPaces(state);
        ASSERT_TRUE(closeTo(state.training.time10k, 2400, 1e-12));
        EXPECT_TRUE(closeTo(state.training.aerobicTrainSpeed, 3.2534150342635426));   // a second computation's blend
    }

    TEST(TrainingPaces, ThresholdIsTheBlendOfTheSpeedsTimesTwoFactorsAtTheNeutralTimes)
    {
        ModelState state = stateOfRunner("sprinter");
        state.curve.aerobicPower = 734.1555594094779;
        state.results.time5000 = 960;
        findTrainingPaces(state);
        ASSERT_TRUE(closeTo(state.training.time10k, 2160, 1e-12));
        EXPECT_TRUE(closeTo(state.training.thresholdSpeed, 1.005 * 4.431275742503198 * 1.02));
    }

    TEST(TrainingPaces, TellWhatIsUnderWay)
    {
        ModelState state = stateOfRunner("tenK");
        findTrainingPaces(state);
        EXPECT_EQ(state.activity, "working out the training paces");
        state.curve.aerobicPower = 0;
        state.curve.anaerobicEnergy = 2.5e6;   // enough to 24 km; an hour's search begins at 25
        EXPECT_EQ(faultOf([&] { findTrainingPaces(state); }), "the square root of a negative number");
        EXPECT_EQ(state.activity, "searching the distance run in 3600 s");
    }

    TEST(TrainingPaces, SlowRepetitionsAreNotSlowerThanVo2maxSpeed)
    {
        ModelState state = stateOfRunner("ultra");
        findTrainingPaces(state);
        EXPECT_EQ(state.training.repSlowSpeed, 1.005 * state.training.vo2maxSpeed);
        EXPECT_EQ(state.training.repSlowTime, 400 / state.training.repSlowSpeed);
        EXPECT_LT(state.training.repSlowTime, raceTimeAt(state, 1500) * 400 / 1500);
        EXPECT_EQ(state.training.repFastTime, raceTimeAt(state, 900) * 400 / 900) << "without such a floor";
        EXPECT_GT(state.training.repFastTime, state.training.repSlowTime);
    }

    TEST(TrainingPaces, NeedACurve)
    {
        ModelState state;
        EXPECT_EQ(faultOf([&] { findTrainingPaces(state); }), "division by zero");
        EXPECT_EQ(state.training.thresholdSpeed, 0);
    }

    TEST(TrainingPaces, NeedSustainedPowerAboveStandstill)
    {
        ModelState state = stateOfRunner("tenK");
        state.curve.aerobicPower = 139;
        state.curve.anaerobicEnergy = 4e6;
        EXPECT_EQ(faultOf([&] { findTrainingPaces(state); }), "the square root of a negative number");
        EXPECT_GT(state.training.thresholdSpeed, 0) << "what was written before stays";
        EXPECT_EQ(state.training.aerobicTrainSpeed, 0);
        EXPECT_EQ(state.activity, "working out the training paces");
    }

    TEST(DistanceFor, PairsTheDistanceWithTheTimeBeforeIt)
    {
        ModelState state = stateOfRunner("tenK");
        const double time = raceTimeAt(state, 10000);
        const FoundDistance found = distanceFor(state, time + 0.5, 10000);   // within a second: one round
        EXPECT_EQ(found.time, time);
        EXPECT_EQ(found.distance, 10000 * (1 + (time + 0.5) / time) / 2);
        EXPECT_EQ(found.speed, found.distance / time);
        EXPECT_EQ(state.results.curDistance, found.distance);
    }

    TEST(DistanceFor, GoesOnAtAWholeSecond)
    {
        ModelState state = stateOfRunner("tenK");
        const double time = raceTimeAt(state, 10000);
        const double target = std::floor(time);
        const FoundDistance found = distanceFor(state, target - 1, 10000);
        EXPECT_NE(found.time, time);
        EXPECT_LT(std::abs(found.time - (target - 1)), 1);
    }

    TEST(DistanceFor, FaultsWhereItsDistancesComeRoundAgain)
    {
        ModelState state = stateOfRunner("ultra");
        state.runner.sex = 'f';
        state.curve.anaerobicEnergy = 0;
        state.curve.fatigueCoef = 0.06;
        state.curve.aerobicPower = 4678571466.757762;   // two distances about 1000 km by turns
        EXPECT_EQ(faultOf([&] { (void)distanceFor(state, 3600, 25000); }),
                  "a search that cannot end, because its distances come round again");
    }

    TEST(DistanceFor, CanBeStopped)
    {
        ModelState state = stateOfRunner("ultra");
        state.runner.sex = 'f';
        state.curve.anaerobicEnergy = 0;
        state.curve.fatigueCoef = 0.06;
        state.curve.aerobicPower = 4678571466.757762;
        int asked = 0;
        state.goOn = [&] { return ++asked < 1; };
        EXPECT_NE(faultOf([&] { (void)distanceFor(state, 3600, 25000); }), "");
    }

    struct Band
    {
        double peak;
        const char* words;
    };

    TEST(DistanceBand, BeginsBeyondItsBound)
    {
        const Band bands[] = {
            {0, "under 400 m"},     {0.4, "under 400 m"}, {0.41, "300 - 600 m"},  {0.5, "300 - 600 m"},
            {0.51, "400 - 800 m"},  {0.7, "400 - 800 m"}, {0.71, "600 - 1500 m"}, {1.22, "600 - 1500 m"},
            {1.23, "1 - 3 k"},      {2.12, "1 - 3 k"},    {2.13, "1.5 - 5 k"},    {3.87, "1.5 - 5 k"},
            {3.88, "3 - 8k"},       {6.32, "3 - 8k"},     {6.33, "5 - 10 k"},     {10, "5 - 10 k"},
            {10.01, "10 k and up"}, {300, "10 k and up"},
        };
        for (const Band& band : bands)
            EXPECT_STREQ(distanceBand(band.peak), band.words) << band.peak;
    }

    struct VerdictCase
    {
        double typicalMiles, weeklyMiles;
        const char* verdict;
    };

    TEST(SpecialtyVerdict, BeginsBeyondItsBound)
    {
        const VerdictCase cases[] = {
            {18, 40, " is probably shorter than"},
            {18.1, 40, " may be somewhat shorter than"},
            {29, 40, " may be somewhat shorter than"},
            {29.1, 40, " is probably near"},
            {53, 40, " is probably near"},
            {53.1, 40, " may be somewhat longer than"},
            {72.8, 40, " may be somewhat longer than"},
            {72.9, 40, " is probably longer than"},
            {-6, 0, " is probably shorter than"},
            {-4, 0, " may be somewhat shorter than"},
            {0, 0, " is probably near"},
            {5, 0, " may be somewhat longer than"},
            {7, 0, " is probably longer than"},
        };
        for (const VerdictCase& row : cases)
            EXPECT_STREQ(specialtyVerdict(row.typicalMiles, row.weeklyMiles), row.verdict)
                << row.typicalMiles << " of " << row.weeklyMiles;
    }

    TEST(PeakDistance, LeavesTheLevelOfItsFirstEstimate)
    {
        ModelState state = stateOfRunner("miler");
        const double ratio = state.results.speedRatio;
        (void)peakDistance(state, ratio);
        const double d0 =
            1000 * std::exp(14.6 - 10.83 * ratio) + (ratio < 1.15 ? 1000 * std::pow(120 * (1.15 - ratio), 2) : 0);
        EXPECT_TRUE(closeTo(state.results.level, levelOf(state, d0, raceTimeAt(state, d0))));
        EXPECT_TRUE(closeTo(state.results.speedRatioAdj, std::pow(ratio, state.results.level / 0.9)));
    }

    /// The first step of the level, from which the walk takes its direction.
    double firstStep(ModelState& state, double ratio)
    {
        (void)faultOf([&] { (void)peakDistance(state, ratio); });
        const double d = state.training.peakSeed * 1000;
        return levelOf(state, d, raceTimeAt(state, d)) - levelOf(state, d / 1.1, raceTimeAt(state, d / 1.1));
    }

    TEST(PeakDistance, FaultsWhereTheLevelIsFlat)
    {
        ModelState state = stateOfRunner("miler");
        double rising = 1.3;   // short distances
        double falling = 1.05;
        ASSERT_GT(firstStep(state, rising), 0);
        ASSERT_LT(firstStep(state, falling), 0);
        for (int halved = 0; halved < 60; ++halved)
        {
            const double between = (rising + falling) / 2;
            (firstStep(state, between) > 0 ? rising : falling) = between;
        }
        double ratio = falling;
        for (int tried = 0; tried < 2000 && firstStep(state, ratio) != 0; ++tried)
            ratio = std::nextafter(ratio, rising + 1);
        for (int tried = 0; tried < 4000 && firstStep(state, ratio) != 0; ++tried)
            ratio = std::nextafter(ratio, 0);
        ASSERT_EQ(firstStep(state, ratio), 0);
        EXPECT_EQ(faultOf([&] { (void)peakDistance(state, ratio); }),
                  "a search that cannot end, because the level is flat where it begins");
    }

    /// Speed ratios beyond any runner's, whose search begins within metres.
    struct ShortWalk
    {
        std::string name;
        const char* runner;
        double ratio, peakSeed, last, peak;   // km, m, km
    };

    std::ostream& operator<<(std::ostream& out, const ShortWalk& row)
    {
        return out << row.name;
    }

    class ShortWalks : public testing::TestWithParam<ShortWalk>
    {};

    TEST_P(ShortWalks, EndBelow5MetresAndPlaceTheTurnAllTheSame)
    {
        ModelState state = stateOfRunner(GetParam().runner);
        EXPECT_TRUE(closeTo(peakDistance(state, GetParam().ratio), GetParam().peak));
        EXPECT_TRUE(closeTo(state.training.peakSeed, GetParam().peakSeed));
        EXPECT_TRUE(closeTo(state.results.curDistance, GetParam().last));
    }

    INSTANTIATE_TEST_SUITE_P(
        OfASecondComputation, ShortWalks,
        testing::Values(
            ShortWalk{"down_in_9_steps", "tenK", 2.2, 0.01166373259223049, 4.946561213698479, 0.1074828685175494},
            ShortWalk{"down_in_3_steps", "tenK", 2.5, 0.006632181741178257, 4.982856304416421, 0.0976751765060074},
            ShortWalk{"down_in_2_steps", "tenK", 3, 0.005935648821438983, 4.905494893751226, 0.12177072004648243},
            ShortWalk{"ultra", "ultra", 2.5, 0.006651966193443172, 4.997720656230782, 0.03515296599318283},
            ShortWalk{"up_from_below", "woman", 2.5, 0.00022373177396650446, 0.2461049513631549, 0.0008140883954965436},
            ShortWalk{"down_from_below", "woman", 2.2, 0.0010953759908907798, 0.9957963553552543,
                      -0.00011058188000309155},
            ShortWalk{"up_to_a_turn", "sprinter", 2.5, 0.006631349471819976, 59.379108706622624, 0.0508847946034202}),
        byName);

    TEST(PeakDistance, OfABoyWithAgeComparisonFaultsBeyondTheTables)
    {
        ModelState state = stateOfRunner("tenK");
        state.flags.agecomp = 1;
        state.runner.age = 10;
        state.training.aerobicHr = 111;
        EXPECT_EQ(faultOf([&] { (void)trainingAnalysis(state); }), "a power without a real value");
        EXPECT_GT(state.training.thresholdSpeed, 0) << "the speeds are new";
        EXPECT_EQ(state.training.aerobicHr, 111) << "the heart rates are old";
    }
}
