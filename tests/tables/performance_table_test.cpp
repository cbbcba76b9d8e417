#include "tables/performance_table.h"

#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "model/text.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/faults.h"
#include "support/table_file.h"
#include "tables/own_levels.h"
#include "tables/table_distances.h"

namespace
{
    constexpr std::size_t lastColumn = 8;

    /// One table of a state, as the forms have it built.
    struct Built
    {
        TableSpecification asked;
        ModelState state;
        CalculationInput input;
        PerformanceTable table;
        Messages said;
        std::string fault;

        void build()
        {
            state.flags.oplev = asked.kind == TableKind::agesAtLevel ? 1 : 0;
            state.flags.ageCompareForced = asked.kind == TableKind::runnerByAge ? 1 : 0;
            fault = faultOf([&] { printPerformanceTable(state, asked, input, table, said); });
        }
    };

    void expectColumn(const Built& built, const TableRow& row)
    {
        ASSERT_EQ(built.fault, "");
        const auto c = static_cast<std::size_t>(row.number("column"));
        for (int r = 1; r <= tableDistances; ++r)
        {
            const double expected = row.number("row" + std::to_string(r));
            EXPECT_TRUE(closeTo(built.table.times[c][r], expected)) << tableLabels[r].label;
            const int line = 2 + r - 1 + (r - 1) / 6;
            const std::string& text = built.table.page.lines.at(static_cast<std::size_t>(line));
            EXPECT_EQ(text.substr(0, std::string(tableLabels[r].label).size()), tableLabels[r].label);
            const std::string time = formatTime(expected + 0);
            EXPECT_NE(text.find(time, 11 + 10 * c), std::string::npos)
                << text;   // behind 10 hours all stand further right
        }
    }

    class Tables : public testing::TestWithParam<TableRow>
    {};

    // By a program of its own in another language; a row is one column of a table.
    TEST_P(Tables, AreThoseOfTheCurve)
    {
        const TableRow& row = GetParam();
        Built built;
        built.asked = {row.text("kind") == "ages" ? TableKind::agesAtLevel : TableKind::levels, row.text("minimum"),
                       row.text("interval"), row.text("lev")};
        built.state.runner.sex = row.letter("sex");
        built.state.flags.agecomp = static_cast<int>(row.number("compare"));
        built.state.results.levelIndex = row.number("levelIndex");
        built.input.age = row.text("age");
        built.build();
        expectColumn(built, row);
        EXPECT_EQ(built.state.results.levelIndex, row.number("levelIndex"));
    }

    INSTANTIATE_TEST_SUITE_P(InFile, Tables, testing::ValuesIn(readTable("tables/data/tables.csv")), byName);

    void setRunner(Built& built, const TableRow& row)
    {
        built.state.runner.sex = row.letter("sex");
        built.input.sex = row.letter("sex") == 'f' ? SexChoice::female : SexChoice::male;
        built.input.weeklyMiles = static_cast<int>(row.number("miles"));
        built.input.age = row.text("age");
        built.state.results.time800 = row.number("time800");
        built.state.results.time5000 = row.number("time5000");
        built.state.results.levelIndex = row.number("levelIndex");
        built.state.curve.anaerobicExp = row.number("anaerobicExp");
    }

    class OwnTables : public testing::TestWithParam<TableRow>
    {};

    TEST_P(OwnTables, AreThoseOfTheRunnerAtEachAge)
    {
        const TableRow& row = GetParam();
        Built built;
        setRunner(built, row);
        built.asked = {TableKind::runnerByAge, row.text("minimum"), row.text("interval"), "100"};
        built.build();
        expectColumn(built, row);
        EXPECT_EQ(built.table.title, "Predicted Performances at Various Ages");
        EXPECT_EQ(built.state.flags.tableMode, 0);
        EXPECT_EQ(built.state.table.tableRow, 8);
        EXPECT_EQ(built.state.runner.age, 0) << "put back";
    }

    INSTANTIATE_TEST_SUITE_P(InFile, OwnTables, testing::ValuesIn(readTable("tables/data/own_tables.csv")), byName);

    TEST(TableDistances, AreInTheirOrder)
    {
        EXPECT_EQ(tableLabels[1].metres, 100);
        EXPECT_STREQ(tableLabels[1].label, "   100 m ");
        EXPECT_EQ(tableLabels[13].metres, 3218.69);
        EXPECT_STREQ(tableLabels[13].label, "  2 miles");
        EXPECT_EQ(tableLabels[24].metres, 42195);
        EXPECT_STREQ(tableLabels[24].label, " marathon");
        TableRun table;
        setTableDistances(table);
        for (int row = 2; row <= tableDistances; ++row)
            EXPECT_LT(table.tableDist[row - 1], table.tableDist[row]);
    }

    TEST(IndexForLevel, TakesItsLastStepItsOwnWay)
    {
        EXPECT_TRUE(closeTo(indexForLevel(0.05, 'm'), 99.95310881341751));
        EXPECT_TRUE(closeTo(indexForLevel(0.5, 'm'), 79.11917625959381));
        EXPECT_TRUE(closeTo(indexForLevel(0.7, 'm'), 7.514304683059846));
        EXPECT_TRUE(closeTo(indexForLevel(0.6, 'f'), 76.19028660232853));
        EXPECT_TRUE(closeTo(indexForLevel(0.9, 'f'), 0.03919330691944767));
        for (const double L : {1.0, 1.05, 3.0})
            EXPECT_EQ(indexForLevel(L, 'm'), 0) << "only for men there is a test";
        EXPECT_TRUE(closeTo(indexForLevel(1.05, 'f'), -0.0008346105461058459));
        for (const char sex : {'m', 'f'})
        {
            EXPECT_EQ(faultOf([&] { (void)indexForLevel(0, sex); }), "the logarithm of zero or of a negative number");
            EXPECT_EQ(faultOf([&] { (void)indexForLevel(-0.5, sex); }), "a power without a real value");
        }
    }

    struct Title
    {
        std::string name;
        TableKind kind;
        char sex;
        int ageCompareOn;
        const char *age, *lev;
        const char* title;
    };

    class Titles : public testing::TestWithParam<Title>
    {};

    TEST_P(Titles, TellTheKind)
    {
        const Title& row = GetParam();
        Built built;
        built.asked.kind = row.kind;
        built.asked.minimum = "25";
        built.asked.lev = row.lev;
        built.state.runner.sex = row.sex;
        built.state.flags.ageCompareOn = row.ageCompareOn;
        built.input.age = row.age;
        built.build();
        EXPECT_EQ(built.table.title, row.title);
        EXPECT_EQ(built.state.flags.ageCompareOn, row.ageCompareOn) << "put back";
    }

    INSTANTIATE_TEST_SUITE_P(
        OfEachKind, Titles,
        testing::Values(
            Title{"open_men", TableKind::levels, 'm', 0, "40", "100", "Performance Levels (Open Male)"},
            Title{"open_women", TableKind::levels, 'f', 0, "40", "100", "Performance Levels (Open Female)"},
            Title{"men_of_an_age", TableKind::levels, 'm', 1, "40", "100", "Performance Levels (Male Age 40)"},
            Title{"women_of_an_age", TableKind::levels, 'f', 1, "44.5", "100", "Performance Levels (Female Age 44.5)"},
            Title{"no_age", TableKind::levels, 'm', 1, "", "100", "Performance Levels (Male Age 0)"},
            Title{"men_by_age", TableKind::agesAtLevel, 'm', 1, "40", "80", "Performances by Age (Male Level 80)"},
            Title{"women_by_age", TableKind::agesAtLevel, 'f', 0, "40", "80 %",
                  "Performances by Age (Female Level 80 %)"}),
        byName);

    TEST(Table, HasItsHeadAndItsBlankLines)
    {
        Built built;
        built.build();
        const std::vector<std::string>& lines = built.table.page.lines;
        ASSERT_EQ(lines.size(), 2U + 24 + 4);
        EXPECT_EQ(lines[0], " Level (%):     60        65        70        75        80        85        90        95 "
                            "       100 ");
        for (const std::size_t blank : {1U, 8U, 15U, 22U, 29U})
            EXPECT_EQ(lines[blank], "");
        built.asked = {TableKind::agesAtLevel, "25", "-5", "100"};
        built.build();
        EXPECT_EQ(built.table.page.lines[0].substr(0, 50), " Age (yr):      25        20        15        10  ");
        EXPECT_EQ(built.table.page.lines[0].substr(66), "0         -5        -10       -15 ")
            << "the minus has its place before it";
    }

    TEST(Table, ShowsAgesInFifteenDigits)
    {
        Built built;
        built.asked = {TableKind::agesAtLevel, "25", "1.1", "100"};
        built.build();
        EXPECT_NE(100 * ((25 + 1.1 * 2) / 100), 27.2) << "a hair off";
        EXPECT_EQ(built.table.page.lines[0].substr(35, 6), " 27.2 ");
    }

    TEST(Table, CountsTextsByTheirLeadingNumbers)
    {
        Built built;
        built.asked = {TableKind::levels, "60 percent", "5x", "100"};
        built.build();
        EXPECT_EQ(built.fault, "");
        EXPECT_EQ(built.table.fractions[lastColumn], 1);
        built.asked = {TableKind::agesAtLevel, "", "ten", "100"};
        built.build();
        EXPECT_EQ(built.fault, "") << "ages of 0";
        EXPECT_EQ(built.table.fractions[lastColumn], 0);
    }

    TEST(Table, StopsAtALevelOfNothing)
    {
        Built built;
        built.asked.minimum = "0";
        built.build();
        EXPECT_EQ(built.fault, "division by zero");
        EXPECT_EQ(built.state.activity, "working out the time of 0 % over 100 m");
        EXPECT_EQ(built.table.page.lines.size(), 3U) << "head, blank line, and what has been begun";
        built.asked.minimum = "-10";
        built.build();
        EXPECT_EQ(built.fault, "a power without a real value");
        built.asked = {TableKind::agesAtLevel, "25", "5", ""};
        built.build();
        EXPECT_EQ(built.fault, "the logarithm of zero or of a negative number");
    }

    TEST(Table, KeepsTheRowsBeforeAFault)
    {
        Built built;
        built.asked = {TableKind::agesAtLevel, "70", "5", "100"};
        built.state.flags.ageCompareOn = 0;
        built.state.runner.age = 12;
        built.input.age = "40";
        built.build();
        EXPECT_EQ(built.fault, "a power without a real value") << "men have no factor from 104 years on";
        EXPECT_EQ(built.state.activity, "working out the time of 105 years over 100 m");
        EXPECT_EQ(built.state.runner.age, 105) << "of the column";
        EXPECT_EQ(built.state.flags.ageCompareOn, 1) << "not put back";
        built.asked.lev = "90";
        built.build();
        EXPECT_EQ(built.state.results.levelIndex, indexForLevel(0.9, 'm')) << "of the cell";
        EXPECT_GT(built.table.times[6][1], 0);
        EXPECT_EQ(built.table.times[7][1], 0);
    }

    // The age factor runs out over the longest distance first.
    TEST(Table, KeepsAllButTheLastCellBeforeALateFault)
    {
        Built built;
        built.asked = {TableKind::agesAtLevel, "100", "0.2", "90"};
        built.input.age = "40";
        built.build();
        EXPECT_EQ(built.fault, "a power without a real value");
        EXPECT_EQ(built.state.activity, "working out the time of 101.6 years over 42195 m");
        EXPECT_EQ(built.table.page.lines.size(), 2U + 24 + 3);
        EXPECT_GT(built.table.times[lastColumn][23], 0);
        EXPECT_GT(built.table.times[lastColumn - 1][24], 0);
        EXPECT_EQ(built.table.times[lastColumn][24], 0);
        EXPECT_EQ(built.state.results.curDistance, 42195);
        EXPECT_EQ(built.state.results.levelIndex, indexForLevel(0.9, 'm')) << "of the cell";
        EXPECT_TRUE(closeTo(built.state.runner.age, 101.6));
    }

    TEST(Table, OfARunnerNeedsACalculation)
    {
        Messages said;
        ModelState state;
        EXPECT_FALSE(isTableRefused(state, TableKind::levels, said));
        EXPECT_FALSE(isTableRefused(state, TableKind::agesAtLevel, said));
        EXPECT_TRUE(said.empty());
        EXPECT_TRUE(isTableRefused(state, TableKind::runnerByAge, said));
        EXPECT_EQ(said, (Messages{{"Must calculate current performances first"}}));
        state.flags.calculatedOnce = 1;
        EXPECT_FALSE(isTableRefused(state, TableKind::runnerByAge, said));
        Built built;
        built.asked.kind = TableKind::runnerByAge;
        built.input.age = "40";
        built.build();
        EXPECT_EQ(built.fault, "division by zero");
        EXPECT_EQ(built.state.activity, "rating the runner's times at 800 m and 5000 m; enter a race on the main form "
                                        "and press Re-Calculate first");
        EXPECT_TRUE(built.table.page.lines.empty());
    }

    TEST(Table, OfARunnerLeavesNoTableModeBehindAFault)
    {
        Built built;
        built.asked = {TableKind::runnerByAge, "25", "5", "100"};
        built.state.results.time800 = 163.9;
        built.state.results.time5000 = 1144;
        built.state.curve.humpCentre = 0;   // no curve has a time then
        built.input.age = "40";
        built.build();
        EXPECT_NE(built.fault, "");
        EXPECT_EQ(built.state.flags.tableMode, 0);
    }

    TEST(Table, OfARunnerSaysWhatItsCalculationsSay)
    {
        Built built;
        built.asked = {TableKind::runnerByAge, "0", "10", "100"};
        built.state.results.time800 = 163.9;
        built.state.results.time5000 = 1144;
        built.input.age = "40";
        built.build();
        EXPECT_EQ(built.said, (Messages{{"Non-numeric age entry"}})) << "an age of 0";
    }

    RC_GTEST_PROP(Table, IsSlowerTheLowerTheLevel, ())
    {
        Built built;
        built.state.runner.sex = *rc::gen::element('m', 'f');
        built.state.flags.agecomp = *rc::gen::element(0, 1);
        built.input.age = std::to_string(*rc::gen::inRange(10, 90));
        built.asked.minimum = std::to_string(*rc::gen::inRange(30, 60));
        built.asked.interval = std::to_string(*rc::gen::inRange(1, 6));
        built.build();
        RC_ASSERT(built.fault.empty());
        for (int row = 1; row <= tableDistances; ++row)
            for (std::size_t c = 1; c <= lastColumn; ++c)
                RC_ASSERT(built.table.times[c][row] < built.table.times[c - 1][row]);
        for (std::size_t c = 0; c <= lastColumn; ++c)
            for (int row = 2; row <= tableDistances; ++row)
                RC_ASSERT(built.table.times[c][row] > built.table.times[c][row - 1]);
    }
}
