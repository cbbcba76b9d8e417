#include "tables/age_curves.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "support/case_name.h"
#include "support/close_to.h"
#include "support/faults.h"
#include "support/table_file.h"

namespace
{
    class AgeCurves : public testing::TestWithParam<TableRow>
    {};

    // By a program of its own in another language.
    TEST_P(AgeCurves, AreThoseOfLevelsAndOfTheRunner)
    {
        const TableRow& row = GetParam();
        ModelState state;
        CalculationInput input;
        Messages said;
        state.runner.sex = row.letter("sex");
        input.sex = row.letter("sex") == 'f' ? SexChoice::female : SexChoice::male;
        input.weeklyMiles = static_cast<int>(row.number("miles"));
        input.age = row.text("age");
        state.results.time800 = row.number("time800");
        state.results.time5000 = row.number("time5000");
        state.results.levelIndex = row.number("levelIndex");
        state.curve.anaerobicExp = row.number("anaerobicExp");
        state.ageGraph.chosenRow = static_cast<int>(row.number("row"));
        state.flags.ageCompareLocal = 1;
        makeRoom(state.ageGraph);
        fillLevelCurves(state);
        EXPECT_EQ(state.ageGraph.axisTop, row.number("axisTop"));
        EXPECT_EQ(state.results.levelIndex, row.number("levelIndex"));
        fillIndividualCurve(state, input, said);
        for (const int a : {5, 18, 27, 50, 80, 95})
            EXPECT_TRUE(closeTo(individualTimeAt(state.ageGraph, a), row.number("own" + std::to_string(a)))) << a;
        struct At
        {
            int j, age;
        };
        for (const auto& [j, a] : {At{0, 5}, At{2, 30}, At{4, 85}, At{5, 95}})
            EXPECT_TRUE(closeTo(levelTimeAt(state.ageGraph, a, j),
                                row.number("level" + std::to_string(j) + "at" + std::to_string(a))))
                << a;
        EXPECT_TRUE(said.empty());
        EXPECT_EQ(state.flags.ageCompareLocal, 1);
        EXPECT_EQ(state.flags.tableMode, 0);
    }

    INSTANTIATE_TEST_SUITE_P(InFile, AgeCurves, testing::ValuesIn(readTable("tables/data/graphs.csv")), byName);

    TEST(AxisTop, IsTheFirstThatIsNotBelowThePeak)
    {
        EXPECT_EQ(axisTopFor(0), 24);
        const double tops[] = {24, 36, 60, 120, 180, 240, 360, 720, 1440, 2160, 3600, 7200, 10800, 14400, 21600, 36000};
        for (std::size_t i = 0; i < std::size(tops); ++i)
        {
            EXPECT_EQ(axisTopFor(tops[i]), tops[i]);
            EXPECT_EQ(axisTopFor(tops[i] + 0.001), tops[std::min(i + 1, std::size(tops) - 1)]);
        }
        EXPECT_EQ(axisTopFor(1e6), 36000);
    }

    TEST(AgeCurvesOf, NoRowThatThereIs)
    {
        ModelState state;
        makeRoom(state.ageGraph);
        for (const int row : {0, 25})
        {
            state.ageGraph.chosenRow = row;
            EXPECT_EQ(faultOf([&] { fillLevelCurves(state); }), "an index out of range");
        }
    }
}
