#include "model/record_curve.h"

#include <cmath>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "model/text.h"
#include "outcome.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/faults.h"
#include "support/table_file.h"

namespace
{
    class RecordTime : public testing::TestWithParam<TableRow>
    {};

    TEST_P(RecordTime, GivesItsTime)
    {
        const TableRow& row = GetParam();
        ModelState state;
        state.runner.sex = row.letter("stateSex");
        state.runner.age = row.number("age");
        state.results.levelIndex = row.number("levelIndex");
        const std::string on = row.text("switch");
        state.flags.agecomp = on == "agecomp" ? 1 : 0;
        state.flags.ageCompareForced = on == "ageCompareForced" ? 1 : 0;
        state.flags.ageCompareLocal = on == "ageCompareLocal" ? 1 : 0;
        state.flags.oplev = on == "oplev" ? 1 : 0;
        const RecordMode mode = row.number("mode") == 0 ? RecordMode::timeOfLevel : RecordMode::record;
        expectOutcome(row, "seconds", [&] {
            return recordTime(state, row.letter("sex"), mode, row.number("distance"), row.number("targetLevel"));
        });
        EXPECT_EQ(state.flags.ageCompareOn, on == "none" ? 0 : 1);
    }

    INSTANTIATE_TEST_SUITE_P(InFile, RecordTime, testing::ValuesIn(readTable("model/data/record_time.csv")), byName);

    struct RecordCase
    {
        std::string name;
        char sex;
        double distance;
        double seconds;
        double within;   // half a unit of the last digit known

        friend std::ostream& operator<<(std::ostream& out, const RecordCase& row) { return out << row.name; }
    };

    class KnownRecord : public testing::TestWithParam<RecordCase>
    {};

    TEST_P(KnownRecord, IsMet)
    {
        ModelState state;
        state.runner.sex = GetParam().sex;
        EXPECT_NEAR(recordTime(state, GetParam().sex, RecordMode::record, GetParam().distance, 1), GetParam().seconds,
                    GetParam().within);
    }

    INSTANTIATE_TEST_SUITE_P(
        Known, KnownRecord,
        testing::Values(
            RecordCase{"man_100_m", 'm', 100, 9.78, 0.005}, RecordCase{"man_400_m", 'm', 400, 43.18, 0.005},
            RecordCase{"man_800_m", 'm', 800, 100.58, 0.005}, RecordCase{"man_1500_m", 'm', 1500, 205.79, 0.005},
            RecordCase{"man_5000_m", 'm', 5000, 759.7, 0.05}, RecordCase{"man_10000_m", 'm', 10000, 1580.9, 0.05},
            RecordCase{"man_marathon", 'm', 42195, 7546, 0.5}, RecordCase{"woman_100_m", 'f', 100, 10.56, 0.005},
            RecordCase{"woman_800_m", 'f', 800, 112.25, 0.005}, RecordCase{"woman_1500_m", 'f', 1500, 230.16, 0.005},
            RecordCase{"woman_5000_m", 'f', 5000, 851.9, 0.05}, RecordCase{"woman_marathon", 'f', 42195, 8303, 0.5}),
        byName);

    TEST(RecordTime, ScalesWithTheAgeFactor)
    {
        ModelState state;
        const double plain = recordTime(state, 'm', RecordMode::record, 5000, 1);
        state.runner.age = 60;
        EXPECT_EQ(recordTime(state, 'm', RecordMode::record, 5000, 1), plain);
        state.flags.agecomp = 1;
        EXPECT_TRUE(
            closeTo(recordTime(state, 'm', RecordMode::record, 5000, 1), plain * ageFactor(state, 60, 5000, 1, 'm')));
        EXPECT_EQ(state.flags.ageCompareOn, 1);
        state.flags.agecomp = 0;
        (void)recordTime(state, 'm', RecordMode::record, 5000, 1);
        EXPECT_EQ(state.flags.ageCompareOn, 0);
    }

    TEST(RecordTime, SearchesALevelToWithinItsOneSidedTest)
    {
        ModelState state;
        for (const double target : {0.3, 0.6, 0.85, 0.999})
        {
            const double time = recordTime(state, 'm', RecordMode::timeOfLevel, 5000, target);
            const double level = levelOf(state, 5000, time);
            EXPECT_LT(level, target + 0.00002) << target;
            EXPECT_GT(level, target - 0.00002) << target;
        }
    }

    TEST(RecordTime, TakesOneRoundForALevelOfOneOrMore)
    {
        ModelState state;
        const double record = recordTime(state, 'm', RecordMode::record, 5000, 1);
        EXPECT_EQ(recordTime(state, 'm', RecordMode::timeOfLevel, 5000, 1), record);
        EXPECT_TRUE(closeTo(recordTime(state, 'm', RecordMode::timeOfLevel, 5000, 1.21), record / 1.1));
    }

    class PerformanceLevel : public testing::TestWithParam<TableRow>
    {};

    TEST_P(PerformanceLevel, GivesItsLevel)
    {
        const TableRow& row = GetParam();
        expectOutcome(row, "level",
                      [&] { return performanceLevel(row.number("ratio"), row.number("distance"), row.letter("sex")); });
    }

    INSTANTIATE_TEST_SUITE_P(InFile, PerformanceLevel, testing::ValuesIn(readTable("model/data/performance_level.csv")),
                             byName);

    TEST(PerformanceLevel, OfAManOver1600MetresIsTheRatioToThe09)
    {
        for (const double ratio : {0.5, 0.8, 0.95})
            EXPECT_EQ(performanceLevel(ratio, 1600, 'm'), std::pow(ratio, 0.9));
    }

    TEST(PerformanceLevel, IsOneAtTheRecord)
    {
        for (const double distance : {50.0, 800.0, 1600.0, 42195.0, 200000.0})
            for (const char sex : {'m', 'f'})
                EXPECT_EQ(performanceLevel(1, distance, sex), 1) << distance << sex;
    }

    TEST(PerformanceLevel, IsAtMostTheRootOfTheRatio)
    {
        // The exponent of a man over 42195 m is 0.9 * (1 - 1.25 * ln(26.37) / 19.065), about 0.707: above one half.
        EXPECT_LT(performanceLevel(0.8, 42195, 'm'), std::sqrt(0.8));
        EXPECT_EQ(performanceLevel(1.1, 1600, 'm'), std::sqrt(1.1));
    }

    TEST(LevelOf, RatesATimeAgainstTheRecordOfTheRunner)
    {
        ModelState state;
        state.runner.sex = 'f';
        const double record = recordTime(state, 'f', RecordMode::record, 5000, 1);
        EXPECT_EQ(levelOf(state, 5000, record), 1);
        EXPECT_EQ(levelOf(state, 5000, 1200), performanceLevel(record / 1200, 5000, 'f'));
        EXPECT_EQ(faultOf([&] { (void)levelOf(state, 5000, 0); }), "division by zero");
    }

    class Index : public testing::TestWithParam<TableRow>
    {};

    TEST_P(Index, GivesItsPercent)
    {
        const TableRow& row = GetParam();
        const std::string function = row.text("function");
        expectOutcome(row, "percent", [&] {
            const double argument = row.number("argument");
            const char sex = row.letter("sex");
            if (function == "topPercent")
                return topPercent(argument, sex);
            return function == "indexFromRatio" ? indexFromRatio(argument, sex) : indexFromLevel(argument, sex);
        });
    }

    INSTANTIATE_TEST_SUITE_P(InFile, Index, testing::ValuesIn(readTable("model/data/index.csv")), byName);

    TEST(Index, IsZeroAtTheRecord)
    {
        for (const char sex : {'m', 'f'})
        {
            EXPECT_EQ(topPercent(1, sex), 0);
            EXPECT_EQ(indexFromRatio(1, sex), 0);
            EXPECT_EQ(indexFromLevel(1, sex), 0);
        }
    }

    TEST(Index, AboveTheRecordIsZeroForMenAndASmallNegativeFigureForWomen)
    {
        EXPECT_EQ(topPercent(1.05, 'm'), 0);
        EXPECT_EQ(indexFromRatio(1.05, 'm'), 0);
        EXPECT_LT(topPercent(1.05, 'f'), 0);
        EXPECT_GT(topPercent(1.05, 'f'), -0.01);
        EXPECT_TRUE(closeTo(indexFromRatio(1.05, 'f'), -std::pow(std::log(1.05) / 0.3625, 5)));
    }

    TEST(Index, CreepsUpToAHundredBeyondFifty)
    {
        // The ratio whose plain figure is 80: 50 + 50 * 30 / 80.
        const double ratio = std::exp(-0.3106 * std::pow(80, 0.24));
        EXPECT_TRUE(closeTo(indexFromRatio(ratio, 'm'), 68.75));
        const double womansRatio = std::exp(-0.3625 * std::pow(80, 0.2));
        EXPECT_TRUE(closeTo(indexFromRatio(womansRatio, 'f'), 68.75));
        EXPECT_TRUE(closeTo(indexFromRatio(std::exp(-0.3106 * std::pow(49, 0.24)), 'm'), 49));
    }
}
