// The rows of the predicted table, their texts, and the indices at the end of a run.

#include "prediction/predicted_table.h"

#include <cmath>
#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/race_time.h"
#include "model/record_curve.h"
#include "prediction/calculate.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/faults.h"
#include "support/runners.h"

namespace
{
    struct TopCase
    {
        std::string name;
        double percent;
        std::string text;

        friend std::ostream& operator<<(std::ostream& out, const TopCase& row) { return out << row.percent; }
    };

    class TopPercentText : public testing::TestWithParam<TopCase>
    {};

    TEST_P(TopPercentText, HasMoreDecimalsTheSmallerItIs)
    {
        EXPECT_EQ(topPercentText(GetParam().percent), GetParam().text);
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, TopPercentText,
        testing::Values(TopCase{"hundred", 100, "    100"}, TopCase{"rounded_up_to_hundred", 99.5, "    100"},
                        TopCase{"twelve", 12.345, "     12"}, TopCase{"tie_to_even", 12.5, "     12"},
                        TopCase{"ten", 10, "     10"}, TopCase{"just_below_ten", 9.999, "   10.0"},
                        TopCase{"one", 1, "    1.0"}, TopCase{"just_below_one", 0.9951, "   1.00"},
                        TopCase{"tenth", 0.1, "   0.10"}, TopCase{"just_below_a_tenth", 0.0999, "  0.100"},
                        TopCase{"three_decimals", 0.0345, "  0.035"}, TopCase{"hundredth", 0.01, "  0.010"},
                        TopCase{"just_below_a_hundredth", 0.00999, " 0.0100"}, TopCase{"thousandth", 0.001, " 0.0010"},
                        TopCase{"below_a_thousandth", 0.00099, "0.00099"}, TopCase{"five_decimals", 0.00012, "0.00012"},
                        TopCase{"nothing", 0, "0.00000"}, TopCase{"negative", -0.00005, "-0.00005"},
                        TopCase{"negative_nothing", -1e-7, "0.00000"}),
        byName);

    TEST(Heading, IsExact)
    {
        EXPECT_STREQ(predictedHeading,
                     "   Distance       Time      Per mile     Per km      Per 400     Record     % Spd    P.Level"
                     "   Top_%");
    }

    struct DistanceCase
    {
        std::string label;
        double metres;

        friend bool operator==(const DistanceCase&, const DistanceCase&) = default;
        friend std::ostream& operator<<(std::ostream& out, const DistanceCase& row)
        {
            return out << '"' << row.label << "\" " << row.metres;
        }
    };

    std::vector<DistanceCase> distancesOf(OutputMode output)
    {
        CalculationInput input = entries({"5 km 20:00"});
        input.output = output;
        const Prediction prediction = recalculated(input);
        std::vector<DistanceCase> distances;
        for (const PredictedRow& row : prediction.results.rows)
            distances.push_back({row.label, row.distance});
        return distances;
    }

    TEST(Distances, OfTheMetricTable)
    {
        EXPECT_EQ(distancesOf(OutputMode::metric), (std::vector<DistanceCase>{{"     400 m ", 400},
                                                                              {"     800 m ", 800},
                                                                              {"    1500 m ", 1500},
                                                                              {"    1600 m ", 1600},
                                                                              {"    3000 m ", 3000},
                                                                              {"    3200 m ", 3200},
                                                                              {"    5000 m ", 5000},
                                                                              {"    8000 m ", 8000},
                                                                              {"   10000 m ", 10000}}));
    }

    TEST(Distances, OfTheEnglishTable)
    {
        EXPECT_EQ(distancesOf(OutputMode::english), (std::vector<DistanceCase>{{"     440 yd ", 402.34},
                                                                               {"     880 yd ", 804.67},
                                                                               {"       1 mi ", 1609.34},
                                                                               {"       2 mi ", 3218.69},
                                                                               {"       3 mi ", 4828.03},
                                                                               {"       5 mi ", 8046.72},
                                                                               {"      10 mi ", 16093.44},
                                                                               {" half mara. ", 21097.5},
                                                                               {"  marathon  ", 42195}}));
    }

    /// A row whose times are all the same, with the whole numbers and the figure behind them.
    PredictedRow rowOf(const std::string& label, const std::string& time, double percentSpeed, double percentLevel,
                       double top)
    {
        PredictedRow row;
        row.label = label;
        row.timeText = row.perMileText = row.perKilometreText = row.per400Text = row.recordText = time;
        row.percentSpeed = percentSpeed;
        row.percentLevel = percentLevel;
        row.topPercent = top;
        return row;
    }

    TEST(PredictedLine, PutsEachItemInItsColumn)
    {
        PredictedRow row = rowOf("  marathon  ", " 3:05:10  ", 68, 76, 4.234);
        row.perMileText = "    7:04  ";
        row.perKilometreText = "    4:23  ";
        row.per400Text = "    1:45  ";
        row.recordText = " 2:05:46  ";
        EXPECT_EQ(
            predictedLine(row),
            "  marathon     3:05:10        7:04        4:23        1:45     2:05:46        68        76       4.2");
    }

    TEST(PredictedLine, GoesOnAtOnceBehindAColumnThatIsPassed)
    {
        EXPECT_EQ(predictedLine(rowOf("half and half a", "1234567890123", 1000000000, 100, 0)),
                  "half and half a1234567890123123456789012312345678901231234567890123"
                  "1234567890123 1000000000  100 0.00000");
    }

    TEST(PredictRow, HoldsTogether)
    {
        Prediction prediction = recalculated(entries({"5 km 20:00"}));
        const PredictedRow row = predictRow(prediction.state, {" 15 km ", 15000}, 1000);
        EXPECT_EQ(row.label, " 15 km ");
        EXPECT_EQ(row.time, raceTimeAt(prediction.state, 15000));
        EXPECT_EQ(row.record, recordTime(prediction.state, 'm', RecordMode::record, 15000, 1));
        EXPECT_EQ(row.level, performanceLevel(row.record / row.time, 15000, 'm'));
        EXPECT_EQ(row.topPercent, topPercent(row.level, 'm'));
        EXPECT_NEAR(row.percentSpeed, 100 * row.record / row.time, 0.5);
        EXPECT_NEAR(row.percentLevel, 100 * row.level, 0.5);
        EXPECT_EQ(prediction.state.results.level, row.level);
        EXPECT_EQ(prediction.state.results.curDistance, 15000);
    }

    TEST(PredictRow, TakesTheRecordColumnFromTheComparisonLevel)
    {
        Prediction prediction = recalculated(entries({"5 km 20:00"}));
        const PredictedRow full = predictRow(prediction.state, {"", 5000}, 1000);
        const PredictedRow part = predictRow(prediction.state, {"", 5000}, 850);
        EXPECT_EQ(part.record, recordTime(prediction.state, 'm', RecordMode::timeOfLevel, 5000, 0.85));
        EXPECT_GT(part.record, full.record);
        EXPECT_EQ(part.level, full.level);
        EXPECT_EQ(faultOf([&] { (void)predictRow(prediction.state, {"", 5000}, 0); }), "division by zero");
    }

    /// A curve beyond all running, on which 120 m take some hundredths of a second.
    ModelState onCurveOf(double metresPerSecond)
    {
        ModelState state;
        state.curve.aerobicPower = 900;
        state.curve.refDistance = 120;
        state.curve.anaerobicEnergy = 60 * 120 * metresPerSecond;
        state.curve.startDelay = 0;
        return state;
    }

    TEST(PredictRow, RatesTimesOfHundredthsAsTheyAreShown)
    {
        ModelState state = onCurveOf(8450);
        const double exact = raceTimeAt(state, 120);
        ASSERT_GT(exact, 0.011);
        ASSERT_LT(exact, 0.015);
        const PredictedRow row = predictRow(state, {"", 120}, 1000);
        EXPECT_EQ(row.time, 0.01);
        EXPECT_EQ(row.timeText, "       0.0");
        EXPECT_EQ(row.per400, 0.05);
        EXPECT_EQ(row.percentSpeed, std::nearbyint(100 * row.record / 0.01));
        EXPECT_EQ(row.level, performanceLevel(row.record / 0.01, 120, 'm'));
    }

    TEST(PredictRow, RoundsATieToTheEvenPercent)
    {
        // A million times the record's level is the record over a thousand, here 0.01 s; 0.01 s in 0.08 s are 12.5 %.
        ModelState state = onCurveOf(1580);
        const PredictedRow row = predictRow(state, {"", 120}, 1000000000);
        EXPECT_EQ(row.record, 0.01);
        EXPECT_EQ(row.time, 0.08);
        EXPECT_EQ(row.percentSpeed, 12);
    }

    TEST(PredictRow, HasTheTextsOfItsTimes)
    {
        Prediction prediction = recalculated(entries({"5 km 20:00"}));
        const PredictedRow row = predictRow(prediction.state, {"", 5000}, 1000);
        EXPECT_EQ(row.timeText, "   20:00  ");
        EXPECT_EQ(row.perMileText, "    6:26  ");
        EXPECT_EQ(row.perKilometreText, "    4:00  ");
        EXPECT_EQ(row.per400Text, "    1:36  ");
        EXPECT_EQ(row.recordText, "   12:40  ");
    }

    TEST(PredictRow, KeepsTheRatioTimesOnlyAt800And5000Metres)
    {
        Prediction prediction = recalculated(entries({"5 km 20:00"}));
        Results& results = prediction.state.results;
        results.time800 = results.time5000 = results.speedRatio = 7;
        (void)predictRow(prediction.state, {"", 804.67}, 1000);
        (void)predictRow(prediction.state, {"", 4828.03}, 1000);
        EXPECT_EQ(results.time800, 7);
        EXPECT_EQ(results.time5000, 7);
        EXPECT_EQ(results.speedRatio, 7);
        const double time800 = predictRow(prediction.state, {"", 800}, 1000).time;
        const double time5000 = predictRow(prediction.state, {"", 5000}, 1000).time;
        EXPECT_EQ(results.time800, time800);
        EXPECT_EQ(results.time5000, time5000);
        EXPECT_EQ(results.speedRatio, 0.16 * time5000 / time800);
    }

    TEST(AgeComparison, ScalesRecordAndRatings)
    {
        CalculationInput input = entries({"10 km 43:12"});
        input.age = "67";
        const Prediction plain = recalculated(input);
        Prediction compared;
        compared.state.flags.agecomp = 1;
        compared.start(recalculate, input);
        for (std::size_t i = 0; i < 9; ++i)
        {
            const PredictedRow& row = compared.results.rows[i];
            const PredictedRow& plainRow = plain.results.rows[i];
            ModelState before = compared.state;
            before.results.levelIndex = compared.results.tableLevelIndex;
            EXPECT_TRUE(closeTo(row.record, plainRow.record * ageFactor(before, 67, row.distance, 1, 'm'), 1e-4));
            EXPECT_GT(row.level, plainRow.level);
            EXPECT_LT(row.topPercent, plainRow.topPercent);
        }
    }

    TEST(Closing, WorksOutTheIndicesForTheRunnersAge)
    {
        Prediction prediction = recalculated(entries({"10 km 43:12"}));
        ModelState& state = prediction.state;
        // What the second run of two started from is what the first one left.
        state.results.levelIndex = prediction.results.tableLevelIndex;
        const double factor = ageFactor(state, 40, 5000, 1, 'm');
        const double record = recordTime(state, 'm', RecordMode::record, 5000, 1);
        closeCalculation(state);
        const double ratio = factor * record / state.results.time5000;
        EXPECT_TRUE(closeTo(state.results.level5000, performanceLevel(ratio, 5000, 'm')));
        EXPECT_TRUE(closeTo(state.results.levelIndex, indexFromRatio(ratio, 'm')));
        EXPECT_TRUE(closeTo(state.results.levelIndexFromLevel, topPercent(state.results.level5000, 'm')));
        EXPECT_EQ(state.flags.ageCompareLocal, 0);
        EXPECT_EQ(state.flags.ageCompareOn, 1);
    }

    TEST(Closing, TakesTheIndexFromTheCurveAndTheLevelFromTheTable)
    {
        Prediction prediction = recalculated(entries({"10 km 43:12"}));
        ModelState& state = prediction.state;
        const double index = state.results.levelIndex;
        const double level = state.results.level5000;
        state.results.levelIndex = prediction.results.tableLevelIndex;
        state.results.time5000 = 2 * state.results.time5000;
        closeCalculation(state);
        EXPECT_EQ(state.results.levelIndex, index);
        EXPECT_LT(state.results.level5000, level);
    }
}
