#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "main_form.h"
#include "support/case_name.h"

namespace
{
    constexpr const char* noRows = "No rows checked!";
    constexpr const char* noMaxHr = "Please enter a maximum heart rate.  If you don't know the actual value, you can "
                                    "use the estimate in the box above.";
    constexpr const char* noRestHr = "Please enter a resting heart rate.  If you don't know the actual value, you can "
                                     "enter something in the range of 40 to 70.";
    const std::string heading =
        "   Distance       Time      Per mile     Per km      Per 400     Record     % Spd    P.Level   Top_%";

    /// What the first calculation enables.
    std::vector<const Control*> tools(const VantstartForm& form)
    {
        return {&form.Command2, &form.Command3, &form.Command4, &form.unevpa, &form.cpa, &form.hhe};
    }
    std::vector<const Control*> reports(const VantstartForm& form)
    {
        return {&form.pfull, &form.tfile};
    }

    void expectEnabled(const std::vector<const Control*>& controls, bool enabled)
    {
        for (const Control* control : controls)
            EXPECT_EQ(control->enabled, enabled) << control->name;
    }

    const std::vector<std::string>& lines(MainForm& main)
    {
        return main.form().Picture1.page.lines;
    }

    struct Runs
    {
        std::string name;
        const char* output;   // the option that is on, if one is
        std::size_t runs;
    };

    std::ostream& operator<<(std::ostream& out, const Runs& row)
    {
        return out << row.name;
    }

    class MessagesOfRuns : public testing::TestWithParam<Runs>
    {};

    /// A failed check ends a run and not Re-Calculate, so that its message tells how often it ran.
    TEST_P(MessagesOfRuns, ComeOnceARun)
    {
        MainForm main;
        if (*GetParam().output)
            main.person.click(GetParam().output);
        main.recalculate();
        EXPECT_EQ(main.outside.countOf(noRows), GetParam().runs);
        EXPECT_EQ(main.outside.messages.size(), GetParam().runs);
        EXPECT_EQ(main.outside.messages[0].title, "Vantelos");
        EXPECT_TRUE(main.outside.faults.empty());
        EXPECT_EQ(main.form().Option9.chosen, GetParam().output == std::string("Option9"));
        EXPECT_EQ(main.form().Option10.chosen, GetParam().output == std::string("Option10"));
        EXPECT_TRUE(lines(main).empty());
        EXPECT_EQ(main.state().flags.calculatedOnce, 1);
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, MessagesOfRuns,
                             testing::Values(Runs{"no_output_chosen", "", 2}, Runs{"metric", "Option9", 2},
                                             Runs{"english", "Option10", 4}),
                             byName);

    TEST(Table, HasItsHeadingABlankLineAndNineRows)
    {
        MainForm main;
        main.enterOneRace();
        main.recalculate();
        EXPECT_TRUE(main.outside.events.empty());
        ASSERT_EQ(lines(main).size(), 11U);
        EXPECT_EQ(lines(main)[0], heading);
        EXPECT_EQ(lines(main)[1], "");
        EXPECT_EQ(lines(main)[2].rfind("     400 m ", 0), 0U);
        EXPECT_EQ(lines(main)[10].rfind("   10000 m       40:00  ", 0), 0U) << lines(main)[10];
    }

    TEST(Table, ComesWithoutAnAgeToo)
    {
        MainForm main;
        main.enterOneRace();
        main.person.type("txtage", "");
        main.recalculate();
        EXPECT_EQ(main.outside.messages, (Messages(2, Message{"Non-numeric age entry", "Vantelos"})));
        EXPECT_EQ(lines(main).size(), 11U);
        EXPECT_EQ(main.state().runner.age, 0);
    }

    TEST(Table, IsEnglishFrom440YardsToTheMarathon)
    {
        MainForm main;
        main.enterOneRace();
        main.person.click("Option10");
        main.recalculate();
        ASSERT_EQ(lines(main).size(), 11U);
        EXPECT_EQ(lines(main)[2].rfind("     440 yd ", 0), 0U);
        EXPECT_EQ(lines(main)[10].rfind("  marathon  ", 0), 0U);
        EXPECT_TRUE(main.form().Option10.chosen);
        EXPECT_GT(main.state().results.time5000, 0) << "of the metric table that ran first";
    }

    TEST(Table, StandsUntilTheNextCalculation)
    {
        MainForm main;
        main.enterTwoRaces();
        main.recalculate();
        const std::vector<std::string> before = lines(main);
        main.person.type("Text2(0)", "50");
        main.person.type("txtage", "70");
        main.person.slide("HScroll1", 100);
        main.person.slide("HScroll2", 500);
        main.person.slide("wtscrl", 100);
        main.person.click("agecomp");
        main.person.click("optfemale");
        main.person.click("Option10");
        main.person.click("Option7");
        main.person.click("Check1(0)");
        EXPECT_EQ(lines(main), before);
        main.recalculate();
        EXPECT_NE(lines(main), before);
    }

    TEST(Table, IsEmptiedByARunThatFailsItsChecks)
    {
        MainForm main;
        main.enterOneRace();
        main.recalculate();
        const double power = main.state().curve.aerobicPower;
        main.outside.forget();
        main.person.type("Text2(0)", "");
        main.recalculate();
        EXPECT_TRUE(lines(main).empty());
        EXPECT_EQ(main.outside.countOf("Bad time entry in row # 1"), 2U);
        EXPECT_EQ(main.state().curve.aerobicPower, power);
    }

    TEST(Table, FollowsThePersonsChoices)
    {
        MainForm main;
        main.enterOneRace();
        main.person.type("txtage", "60");
        main.recalculate();
        const std::vector<std::string> plain = lines(main);
        const auto differsAfter = [&](const char* control) {
            main.person.click(control);
            main.recalculate();
            return lines(main) != plain;
        };
        EXPECT_TRUE(differsAfter("agecomp"));
        EXPECT_FALSE(differsAfter("agecomp"));
        EXPECT_TRUE(differsAfter("optfemale"));
        EXPECT_FALSE(differsAfter("optmale"));
        main.person.slide("HScroll1", 21);
        main.recalculate();
        EXPECT_NE(lines(main), plain);
        EXPECT_EQ(main.state().runner.weeklyMiles, 21);
    }

    TEST(Table, OfOneRaceInEachUnitIsTheSameRace)
    {
        struct Entry
        {
            const char* number;
            int option;
            double metres;
        };
        for (const Entry& entry : {Entry{"2", 1, 3218.688}, Entry{"1760", 2, 1609.344}, Entry{"3", 3, 3000},
                                   Entry{"1500", 4, 1500}, Entry{"x", 5, 42195}, Entry{"", 6, 21097.5}})
        {
            MainForm main;
            main.person.enterRace(3, {"0", "0", "5000", entry.number, entry.option});
            main.recalculate();
            EXPECT_EQ(main.state().races.rowDist[1], entry.metres) << entry.option;
            EXPECT_EQ(main.state().races.rowTime[1], 5000);
        }
    }

    TEST(Enabling, ComesWithTheFirstTableAndStays)
    {
        MainForm main;
        main.recalculate();   // "No rows checked!"
        expectEnabled(tools(main.form()), false);
        expectEnabled(reports(main.form()), false);
        main.enterOneRace();
        expectEnabled(tools(main.form()), false);
        main.recalculate();
        expectEnabled(tools(main.form()), true);
        expectEnabled(reports(main.form()), true);
        main.person.type("Text2(0)", "");
        main.recalculate();   // "Bad time entry"
        main.person.click("Command7");
        main.recalculate();   // "No rows checked!"
        main.person.slide("HScroll2", 0);
        main.enterOneRace();
        main.recalculate();   // a fault
        ASSERT_EQ(main.outside.faults.size(), 1U);
        expectEnabled(tools(main.form()), true);
        expectEnabled(reports(main.form()), true);
    }

    TEST(Enabling, ReportsComeBeforeTheFitAndToolsBehindTheTable)
    {
        MainForm main;
        main.enterOneRace();
        main.person.slide("HScroll2", 0);
        main.recalculate();   // faults in the table's first row
        expectEnabled(reports(main.form()), true);
        expectEnabled(tools(main.form()), false);
    }

    TEST(Enabling, ARunThatFaultsInItsClosingHasEnabledAll)
    {
        MainForm main;
        main.enterOneRace();
        main.person.type("txtage", "200");
        main.recalculate();
        ASSERT_EQ(main.outside.faults.size(), 1U);
        expectEnabled(reports(main.form()), true);
        expectEnabled(tools(main.form()), true);
    }

    TEST(FitMode, OneRaceSelectsAllDataAndTakesTheChoiceAway)
    {
        MainForm main;
        main.person.click("Option7");
        main.enterOneRace();
        main.recalculate();
        EXPECT_FALSE(main.form().Option7.enabled);
        EXPECT_FALSE(main.form().Option7.chosen);
        EXPECT_TRUE(main.form().Option8.chosen);
        main.person.enterRace(1, {"", "19", "", "5", 3});
        EXPECT_FALSE(main.form().Option7.enabled);
        main.recalculate();
        EXPECT_TRUE(main.form().Option7.enabled);
        EXPECT_FALSE(main.form().Option7.chosen) << "enabled, but not selected";
        EXPECT_TRUE(main.form().Option8.chosen);
    }

    TEST(FitMode, AnOmittedRaceSelectsAllDataOnly)
    {
        MainForm main;
        main.enterOneRace();
        main.person.enterRace(1, {"", "25", "", "5", 3});   // slower than the 10 km
        main.person.click("Option7");
        main.recalculate();
        EXPECT_TRUE(main.form().Option8.chosen);
        EXPECT_FALSE(main.form().Option7.chosen);
        EXPECT_TRUE(main.form().Option7.enabled);
        EXPECT_EQ(main.outside.countOf("Omitting   25:00   5 km because it is slower paced than a longer race."), 2U);
    }

    TEST(FitMode, StaysAsItWasInARunThatFailsItsChecks)
    {
        MainForm main;
        main.enterOneRace();
        main.recalculate();
        main.person.type("Text2(0)", "");
        main.person.enterRace(1, {"", "19", "", "5", 3});
        main.recalculate();
        EXPECT_FALSE(main.form().Option7.enabled);
    }

    TEST(Command3, NeedsAMaximumHeartRate)
    {
        for (const char* rate : {"", "abc", "0", "0.0", "-0", "bpm 180"})
        {
            MainForm main;
            main.enterOneRace();
            main.recalculate();
            main.outside.forget();
            main.person.type("actmhrtx", rate);
            main.person.click("Command3");
            EXPECT_EQ(main.outside.messages, (Messages{{noMaxHr, "Vantelos"}})) << rate;
        }
    }

    TEST(Command3, NeedsARestingHeartRate)
    {
        for (const char* rate : {"", "abc", "0"})
        {
            MainForm main;
            main.enterOneRace();
            main.recalculate();
            main.outside.forget();
            main.person.type("resthrtx", "50");
            main.person.type("resthrtx", rate);
            main.person.click("Command3");
            EXPECT_EQ(main.outside.messages, (Messages{{noRestHr, "Vantelos"}})) << rate;
        }
    }

    /// A main form whose analysis can be opened: it has a table and both heart rates, and no row is checked any more.
    struct ReadyForAnalysis : MainForm
    {
        ReadyForAnalysis()
        {
            person.type("resthrtx", "50");
            enterOneRace();
            MainForm::recalculate();
            outside.forget();
            program.outside.openForm = [this](const std::string& name) { opened.push_back(name); };
        }

        std::vector<std::string> opened;
    };

    TEST(Command3, OpensTheAnalysisAtOnceWithMetricOutput)
    {
        ReadyForAnalysis main;
        main.person.click("Check1(0)");
        main.person.click("Command3");
        EXPECT_TRUE(main.outside.events.empty());
        EXPECT_EQ(main.opened, std::vector<std::string>{"anaform"});
    }

    TEST(Command3, CalculatesTwoAndFourTimesWithEnglishOutput)
    {
        ReadyForAnalysis main;
        main.person.click("Check1(0)");
        main.person.click("Option10");
        main.person.click("Command3");
        EXPECT_EQ(main.outside.countOf(noRows), 6U);
        EXPECT_EQ(main.outside.messages.size(), 6U);
        EXPECT_EQ(main.opened, std::vector<std::string>{"anaform"}) << "a failed row does not stop it";
        EXPECT_TRUE(main.form().Option10.chosen);
        EXPECT_FALSE(main.form().Option9.chosen);
    }

    TEST(Command3, WithEnglishOutputLeavesTheEnglishTable)
    {
        ReadyForAnalysis main;
        main.person.click("Option10");
        main.person.click("Command3");
        ASSERT_EQ(lines(main).size(), 11U);
        EXPECT_EQ(lines(main)[10].rfind("  marathon  ", 0), 0U);
    }

    TEST(Command3, AFaultStopsItAndLeavesMetric)
    {
        ReadyForAnalysis main;
        main.person.slide("HScroll2", 0);
        main.person.click("Option10");
        main.person.click("Command3");
        ASSERT_EQ(main.outside.faults.size(), 1U);
        EXPECT_EQ(main.outside.faults[0].where, "vantstart.Command3");
        EXPECT_TRUE(main.opened.empty());
        EXPECT_TRUE(main.form().Option9.chosen);
        EXPECT_FALSE(main.form().Option10.chosen);
    }

    TEST(Recalculate, AFaultWithEnglishOutputLeavesMetric)
    {
        MainForm main;
        main.enterOneRace();
        main.person.slide("HScroll2", 0);
        main.person.click("Option10");
        main.recalculate();
        EXPECT_EQ(main.outside.faults.size(), 1U);
        EXPECT_TRUE(main.form().Option9.chosen);
        EXPECT_FALSE(main.form().Option10.chosen);
        EXPECT_EQ(main.state().flags.calculatedOnce, 0) << "set at the end, which was not reached";
    }

    TEST(Fault, IsToldOnceBehindTheMessagesOfItsRun)
    {
        MainForm main;
        main.enterOneRace();
        main.person.type("txtage", "abc");
        main.person.slide("HScroll2", 0);
        main.recalculate();
        EXPECT_EQ(main.outside.events,
                  (std::vector<std::string>{
                      "message: Non-numeric age entry",
                      "fault: The calculation stopped: division by zero while rating the time over 400 m."}));
        EXPECT_EQ(main.outside.faults[0].where, "vantstart.Command1");
        EXPECT_FALSE(main.outside.faults[0].keystroke);
        EXPECT_EQ(lines(main), (std::vector<std::string>{heading, ""}));
        EXPECT_TRUE(main.program.outside.said.empty());
    }

    TEST(Fault, LeavesTheRowsThatWerePrinted)
    {
        MainForm main;
        main.enterOneRace();
        main.person.type("txtage", "200");
        main.recalculate();
        ASSERT_EQ(main.outside.faults.size(), 1U);
        EXPECT_NE(main.outside.faults[0].text.find("a power without a real value"), std::string::npos);
        EXPECT_EQ(lines(main).size(), 11U);
        EXPECT_EQ(main.state().flags.ageCompareLocal, 1) << "until the next closing";
        main.person.type("txtage", "40");
        main.recalculate();
        EXPECT_EQ(main.outside.faults.size(), 1U);
        EXPECT_EQ(main.state().flags.ageCompareLocal, 0);
    }

    TEST(Fault, DoesNotOutliveItsEvent)
    {
        MainForm main;
        main.enterOneRace();
        main.person.slide("HScroll2", 0);
        main.recalculate();
        main.outside.forget();
        main.person.slide("HScroll2", 1);
        main.recalculate();
        EXPECT_TRUE(main.outside.faults.empty());
        EXPECT_EQ(lines(main).size(), 11U);
    }

    struct BadRow
    {
        std::string name;
        int row;
        Person::Race race;
        const char* message;
    };

    std::ostream& operator<<(std::ostream& out, const BadRow& row)
    {
        return out << row.name;
    }

    class RowCheck : public testing::TestWithParam<BadRow>
    {};

    TEST_P(RowCheck, NamesTheRowOnTheForm)
    {
        MainForm main;
        main.person.click("Option9");
        main.person.type("txtage", "40");
        main.person.enterRace(GetParam().row, GetParam().race);
        main.recalculate();
        EXPECT_EQ(main.outside.messages, (Messages(2, Message{GetParam().message, "Vantelos"})));
        EXPECT_TRUE(main.outside.faults.empty());
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, RowCheck,
        testing::Values(BadRow{"no_time", 0, {"", "", "", "10", 3}, "Bad time entry in row # 1"},
                        BadRow{"words_for_a_time", 1, {"a", "b", "c", "10", 3}, "Bad time entry in row # 2"},
                        BadRow{"no_distance", 2, {"", "40", "", "", 4}, "Bad distance entry in row # 3"},
                        BadRow{"too_fast", 3, {"", "", "8", "100", 4}, "Way too fast in row # 4"},
                        BadRow{"too_slow", 4, {"1", "", "", "1", 3}, "Way too slow in row # 5"}),
        byName);

    TEST(RowCheck, ARowWithoutAUnitHasNoDistance)
    {
        MainForm main;
        main.person.click("Check1(0)");
        main.person.type("Text2(0)", "40");
        main.person.type("Text4(0)", "10000");
        main.recalculate();
        EXPECT_EQ(main.outside.countOf("Bad distance entry in row # 1"), 2U);
    }

    TEST(RowCheck, UncheckedRowsAreNotRead)
    {
        MainForm main;
        main.enterOneRace();
        main.person.type("txtage", "40");
        main.person.type("Text1(1)", "1e999");
        main.person.type("Text4(2)", "1e999");
        main.recalculate();
        EXPECT_TRUE(main.outside.events.empty());
        EXPECT_EQ(main.state().races.rowsUsed, 1);
    }

    TEST(TwoPrograms, LiveSideBySide)
    {
        MainForm one;
        MainForm other;
        one.enterOneRace();
        other.enterOneRace();
        other.person.type("Text2(0)", "50");
        one.recalculate();
        const std::vector<std::string> before = lines(one);
        other.recalculate();
        EXPECT_EQ(lines(one), before);
        EXPECT_NE(lines(other), before);
        one.recalculate();
        EXPECT_EQ(lines(one), before) << "the same bits again";
    }
}
