// Where a calculation cannot go on it stops where it stands, and what was written before stays.

#include <cstddef>
#include <ostream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "prediction/calculate.h"
#include "support/case_name.h"
#include "support/runners.h"

namespace
{
    CalculationInput withAge(CalculationInput input, const std::string& age, SexChoice sex = SexChoice::male)
    {
        input.age = age;
        input.sex = sex;
        return input;
    }

    CalculationInput withLevel(CalculationInput input, int level)
    {
        input.comparisonLevel = level;
        return input;
    }

    CalculationInput bestTwo(CalculationInput input)
    {
        input.fit = FitMode::bestTwo;
        return input;
    }

    CalculationInput walked(int miles)
    {
        CalculationInput input = entries({"5 km 1:20:00"});
        input.weeklyMiles = miles;
        return input;
    }

    struct FaultCase
    {
        std::string name;
        CalculationInput input;
        std::string fault;       // how its words begin
        std::string activity;    // what was under way
        std::size_t lines = 0;   // printed before it
        int ageCompareLocal = 0;

        friend std::ostream& operator<<(std::ostream& out, const FaultCase& row) { return out << row.name; }
    };

    class Fault : public testing::TestWithParam<FaultCase>
    {};

    TEST_P(Fault, StopsWhereItStands)
    {
        const Prediction prediction = recalculated(GetParam().input);
        EXPECT_THAT(prediction.fault, testing::StartsWith(GetParam().fault));
        EXPECT_EQ(prediction.state.activity, GetParam().activity);
        EXPECT_EQ(prediction.results.picture.lines.size(), GetParam().lines);
        EXPECT_EQ(prediction.state.flags.ageCompareLocal, GetParam().ageCompareLocal);
        EXPECT_EQ(prediction.state.flags.calculatedOnce, 0);
        EXPECT_EQ(prediction.results.toolsEnabled, GetParam().lines == 11);
    }

    TEST_P(Fault, IsForgottenByTheNextGoodRun)
    {
        Prediction prediction = recalculated(GetParam().input);
        prediction.state.results.levelIndex = 0;
        prediction.start(recalculate, entries({"5 km 20:00"}));
        EXPECT_EQ(prediction.fault, "");
        const Prediction fresh = recalculated(entries({"5 km 20:00"}));
        EXPECT_EQ(prediction.results.picture, fresh.results.picture);
        EXPECT_EQ(prediction.state.flags.ageCompareLocal, 0);
    }

    const std::string closing = "working out the level at 5000 m for the runner's age";

    INSTANTIATE_TEST_SUITE_P(
        ByHand, Fault,
        testing::Values(
            FaultCase{"too_large_an_entry", entries({"5 km 1e999"}), "an overflow", "reading race row 1"},
            FaultCase{"too_large_a_distance", entries({"5 km 20:00", "1e308 km 3:00"}), "an overflow",
                      "reading race row 2"},
            FaultCase{"too_large_an_age", withAge(entries({"5 km 20:00"}), "1e999"), "an overflow",
                      "reading the runner's age"},
            FaultCase{"negative_time_and_distance", entries({"-5000 m -1200"}),
                      "the logarithm of zero or of a negative number",
                      "taking the start and finish corrections off race 1"},
            FaultCase{"comparison_level_0", withLevel(entries({"5 km 20:00"}), 0), "division by zero",
                      "rating the time over 400 m", 2},
            FaultCase{"man_of_104", withAge(walked(5), "104"), "a power without a real value", closing, 11, 1},
            FaultCase{"woman_of_102", withAge(walked(5), "102", SexChoice::female), "a power without a real value",
                      closing, 11, 1},
            FaultCase{"age_below_minus_3", withAge(entries({"5 km 20:00"}), "-4"), "a power without a real value",
                      closing, 11, 1},
            FaultCase{"sixth_pair",
                      bestTwo(withAge(entries({"600 m 172.95649", "900 m 311.97074", "2000 m 3635.03195",
                                               "4000 m 7538.1412", "5000 m 9660.79131"}),
                                      "35")),
                      "an index out of range", "fitting the pair of races over 900 m and 4000 m"},
            FaultCase{"no_pair_with_all_data", withAge(entries({"20 m 2.3", "1609.344 m 194.9", "2000 m 435.2"}), "35"),
                      "division by zero", "putting the curve together from the races"},
            FaultCase{"inside_the_pace_search",
                      [] {
                          CalculationInput input = withAge(entries({"300 km 30000"}), "50", SexChoice::female);
                          input.weeklyMiles = 0;
                          return input;
                      }(),
                      "division by zero", "fitting the race over 300000 m"}),
        byName);

    TEST(FaultInThePaceSearch, LeavesItsAgeAndItsSpeedRatio)
    {
        CalculationInput input = withAge(entries({"300 km 30000"}), "50", SexChoice::female);
        input.weeklyMiles = 0;
        const Prediction prediction = recalculated(input);
        EXPECT_NE(prediction.fault, "");
        EXPECT_EQ(prediction.state.runner.age, 27);
        EXPECT_NE(prediction.state.results.speedRatio, 0);
        EXPECT_GT(prediction.state.curve.aerobicPower, 0);
    }

    TEST(FaultOfABestTwoWithoutAPair, ComesWithTheFirstRow)
    {
        CalculationInput input =
            bestTwo(withAge(entries({"1000 m 251.1", "3000 m 749.9", "20000 m 5846.0", "50000 m 28219.3"}), "35"));
        input.weeklyMiles = 0;
        const Prediction prediction = recalculated(input);
        EXPECT_EQ(prediction.fault, "division by zero");
        EXPECT_EQ(prediction.state.activity, "predicting the time over 400 m");
        EXPECT_EQ(prediction.results.picture.lines.size(), 2U);
        EXPECT_EQ(prediction.state.curve.aerobicPower, 0);
        EXPECT_EQ(prediction.state.curve.refDistance, 0);
    }

    TEST(FaultInTheTable, LeavesTheRowsPrintedBefore)
    {
        // With age comparison the factor of a man of no years, at the index of the first run, has no value at 42195 m.
        Prediction prediction;
        prediction.state.flags.agecomp = 1;
        CalculationInput input = withAge(entries({"5 km 20:00"}), "0");
        input.output = OutputMode::english;
        prediction.start(recalculate, input);
        EXPECT_EQ(prediction.fault, "a power without a real value");
        EXPECT_EQ(prediction.results.picture.lines.size(), 10U);
        EXPECT_EQ(prediction.results.rows.size(), 8U);
        EXPECT_EQ(prediction.results.rows.back().label, " half mara. ");
        EXPECT_EQ(prediction.input.output, OutputMode::english);
        EXPECT_FALSE(prediction.fault.empty());
    }

    TEST(FaultInTheClosing, LeavesTheTableAndTheButtons)
    {
        const Prediction prediction = recalculated(withAge(walked(5), "104"));
        EXPECT_TRUE(prediction.results.toolsEnabled);
        EXPECT_TRUE(prediction.results.reportsEnabled);
        EXPECT_EQ(prediction.state.results.levelIndex, 0);
        EXPECT_GT(prediction.state.results.time5000, 0);
    }

    TEST(FaultInTheClosing, LeavesAgeComparisonOnUntilTheNextClosing)
    {
        Prediction prediction = recalculated(withAge(walked(5), "104"));
        EXPECT_EQ(prediction.state.flags.ageCompareLocal, 1);
        prediction.start(calculate, entries({"5 km 20:00"}));
        // This run's table is compared by age, for the flag was still on while it was printed; the next one's is not.
        const double compared = prediction.results.rows.back().record;
        EXPECT_EQ(prediction.state.flags.ageCompareLocal, 0);
        prediction.start(calculate, entries({"5 km 20:00"}));
        EXPECT_GT(compared, prediction.results.rows.back().record);
    }

    TEST(FaultWithoutAMetricTable, HasNoTimeAt5000Metres)
    {
        CalculationInput input = entries({"1500 m 4:20", "10 km 36:30"});
        input.output = OutputMode::english;
        const Prediction prediction = calculatedOnce(input);
        EXPECT_EQ(prediction.fault, "division by zero");
        EXPECT_EQ(prediction.results.picture.lines.size(), 11U);
        EXPECT_EQ(prediction.state.flags.ageCompareLocal, 1);
    }

    TEST(AgesWithAFactor, RunToTheirEnd)
    {
        EXPECT_EQ(recalculated(withAge(walked(5), "103")).fault, "");
        EXPECT_EQ(recalculated(withAge(entries({"5 km 20:00"}), "-3")).fault, "");
        EXPECT_EQ(calculatedOnce(withAge(walked(5), "101", SexChoice::female)).fault, "");
    }
}
