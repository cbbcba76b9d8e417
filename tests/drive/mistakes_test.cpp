#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "running.h"
#include "support/case_name.h"

namespace
{
    struct Mistake
    {
        std::string name;
        std::string script;
        std::string error;   // behind "line 1: "

        friend std::ostream& operator<<(std::ostream& out, const Mistake& row) { return out << row.name; }
    };

    class ScriptMistakes : public testing::TestWithParam<Mistake>
    {};

    TEST_P(ScriptMistakes, EndTheScript)
    {
        const ScriptRun run = runScript(GetParam().script + "\nget vantstart.txtname\n");
        EXPECT_EQ(run.output, "{\"error\":\"line 1: " + GetParam().error + "\"}\n");
        EXPECT_EQ(run.status, 2);
    }

    INSTANTIATE_TEST_SUITE_P(
        Words, ScriptMistakes,
        testing::Values(Mistake{"unknown_word", "press_it vantstart.Command1", "there is no word \\\"press_it\\\""},
                        Mistake{"word_in_capitals", "GET vantstart.txtage", "there is no word \\\"GET\\\""},
                        Mistake{"nothing_to_get", "get", "the line lacks a name after \\\"get\\\""},
                        Mistake{"nothing_to_set", "set  ", "the line lacks a control after \\\"set\\\""},
                        Mistake{"nothing_to_click", "click", "the line lacks a control after \\\"click\\\""},
                        Mistake{"nothing_to_call", "call", "the line lacks a function after \\\"call\\\""},
                        Mistake{"nothing_to_let", "let", "the line lacks a state name after \\\"let\\\""},
                        Mistake{"nothing_to_open", "open", "the line lacks a form after \\\"open\\\""},
                        Mistake{"nothing_to_close", "close", "the line lacks a form after \\\"close\\\""},
                        Mistake{"nothing_to_dump", "dump", "the line lacks a form after \\\"dump\\\""},
                        Mistake{"no_answer", "answer", "the line lacks yes or no after \\\"answer\\\""},
                        Mistake{"other_answer", "answer maybe", "an answer is yes or no"},
                        Mistake{"no_value", "drag vantstart.HScroll1",
                                "the line lacks a value after \\\"drag vantstart.HScroll1\\\""},
                        Mistake{"one_place_only", "press vantstart.Picture1 1",
                                "the line lacks a place down after \\\"press vantstart.Picture1 1\\\""},
                        Mistake{"open_quotation_mark", "call formatTime \"59", "a quotation mark is not closed"},
                        Mistake{"more_than_a_name", "get vantstart.txtage now", "\\\"now\\\" is too much"},
                        Mistake{"more_than_a_button", "click vantstart.Command1 twice", "\\\"twice\\\" is too much"},
                        Mistake{"more_than_a_value", "drag vantstart.HScroll1 1 2", "\\\"2\\\" is too much"},
                        Mistake{"more_than_a_stop", "stop now", "\\\"now\\\" is too much"}),
        byName);

    INSTANTIATE_TEST_SUITE_P(
        Names, ScriptMistakes,
        testing::Values(
            Mistake{"no_dot", "click Command1", "\\\"Command1\\\" names no control; a control is FORM.CONTROL"},
            Mistake{"unknown_form", "click vantend.Command1", "there is no form \\\"vantend\\\""},
            Mistake{"unknown_control", "click vantstart.Command9", "vantstart has no control \\\"Command9\\\""},
            Mistake{"control_in_other_letters", "click vantstart.command1",
                    "vantstart has no control \\\"command1\\\""},
            Mistake{"row_beyond_the_last", "set vantstart.Text1(5) 1", "vantstart has no control \\\"Text1(5)\\\""},
            Mistake{"array_without_a_row", "set vantstart.Text1 1", "vantstart has no control \\\"Text1\\\""},
            Mistake{"unknown_property", "get vantstart.txtage.font", "vantstart.txtage has no property \\\"font\\\""},
            Mistake{"range_of_a_text", "get vantstart.txtage.min", "vantstart.txtage has no property \\\"min\\\""},
            Mistake{"property_set", "set vantstart.txtage.caption x",
                    "\\\"vantstart.txtage.caption\\\" is a property, not a control"},
            Mistake{"unknown_state", "get state.speed", "there is no \\\"state.speed\\\""},
            Mistake{"unknown_state_let", "let state.speed 1", "there is no \\\"state.speed\\\""},
            Mistake{"control_let", "let vantstart.txtage 1", "only state.NAME can be let"},
            Mistake{"array_let", "let state.entryDist 5", "state.entryDist can only be read"},
            Mistake{"unknown_function", "call raceTime 5000", "there is no function \\\"raceTime\\\""},
            Mistake{"unknown_form_opened", "open helpform2", "there is no form \\\"helpform2\\\""},
            Mistake{"unknown_form_closed", "close helpform2", "there is no form \\\"helpform2\\\""},
            Mistake{"unknown_form_dumped", "dump other", "there is no form \\\"other\\\""}),
        byName);

    INSTANTIATE_TEST_SUITE_P(
        Kinds, ScriptMistakes,
        testing::Values(
            Mistake{"option_set", "set vantstart.optmale 1", "vantstart.optmale takes no entry; click it"},
            Mistake{"button_set", "set vantstart.Command1 1", "vantstart.Command1 takes no entry; click it"},
            Mistake{"surface_set", "set vantstart.Picture1 x", "vantstart.Picture1 takes no entry; click it"},
            Mistake{"bar_set_to_a_word", "set vantstart.HScroll1 many", "\\\"many\\\" is not a number"},
            Mistake{"bar_set_to_nothing", "set vantstart.HScroll1", "\\\"\\\" is not a number"},
            Mistake{"bar_set_to_a_fraction", "set vantstart.HScroll1 1.5", "\\\"1.5\\\" is not a whole number"},
            Mistake{"bar_set_beyond_a_double", "set vantstart.HScroll1 1e999", "\\\"1e999\\\" is too large"},
            Mistake{"bar_set_beyond_a_whole", "drag vantstart.HScroll1 1e30", "\\\"1e30\\\" is not a whole number"},
            Mistake{"box_set_to_2", "set vantstart.agecomp 2", "a check box takes 0 or 1"},
            Mistake{"box_set_to_a_word", "set vantstart.agecomp on", "a check box takes 0 or 1"},
            Mistake{"text_dragged", "drag vantstart.txtage 4", "vantstart.txtage is no scroll bar"},
            Mistake{"text_clicked", "click vantstart.txtage", "vantstart.txtage can't be clicked"},
            Mistake{"bar_clicked", "click vantstart.HScroll1", "vantstart.HScroll1 can't be clicked"},
            Mistake{"menu_clicked", "click vantstart.file", "vantstart.file is a menu; click one of its items"},
            Mistake{"button_pressed_like_a_picture", "press vantstart.Command1 1 2",
                    "vantstart.Command1 is no picture"},
            Mistake{"place_that_is_a_word", "move vantstart.Picture1 here 2", "\\\"here\\\" is not a number"},
            Mistake{"state_let_to_a_word", "let state.age old", "state.age can't be \\\"old\\\""},
            Mistake{"state_let_beyond_a_double", "let state.age 1e999", "state.age can't be \\\"1e999\\\""},
            Mistake{"sex_let_to_a_number", "let state.sex 1", "state.sex can't be \\\"1\\\""},
            Mistake{"flag_let_to_a_fraction", "let state.graphScale 1.5", "state.graphScale can't be \\\"1.5\\\""},
            Mistake{"call_with_too_few", "call formatNumber 1 2", "formatNumber takes value width decimals"},
            Mistake{"call_with_too_many", "call formatTime 1 2", "formatTime takes seconds"},
            Mistake{"call_with_a_word", "call formatTime abc", "\\\"abc\\\" is not a number"},
            Mistake{"call_with_another_sex", "call recordTime x 1 5000 1", "\\\"x\\\" is neither m nor f"},
            Mistake{"call_with_two_forms", "call raceTimeAt 1 2",
                    "raceTimeAt takes distance, or anaerobicEnergy aerobicPower refDistance distance fatigueCoef "
                    "startDelay"}),
        byName);

    class DisabledAtFirst : public testing::TestWithParam<const char*>
    {};

    TEST_P(DisabledAtFirst, CannotBeClicked)
    {
        const std::string control = std::string("vantstart.") + GetParam();
        const ScriptRun run = runScript("click " + control);
        EXPECT_EQ(run.output, "{\"error\":\"line 1: " + control + " is disabled\"}\n");
        EXPECT_EQ(run.status, 2);
    }

    INSTANTIATE_TEST_SUITE_P(MainForm, DisabledAtFirst,
                             testing::Values("Command2", "Command3", "Command4", "unevpa", "cpa", "hhe", "pfull",
                                             "tfile"),
                             [](const auto& row) { return row.param; });

    TEST(Ended, TheMainFormIsNotOpen)
    {
        for (const char* line : {"get vantstart.txtage", "get vantstart.title", "click vantstart.Command1", "stop",
                                 "open vantstart", "close vantstart", "dump vantstart"})
        {
            const ScriptRun run = runScript(std::string("stop\n") + line);
            EXPECT_EQ(run.output, "{\"error\":\"line 2: vantstart is not open\"}\n") << line;
            EXPECT_EQ(run.status, 2);
        }
    }

    TEST(Ended, TheStateAndFunctionsAreStillThere)
    {
        const ScriptRun run = runScript("stop\nget state.sex\ncall formatTime 60\n");
        EXPECT_EQ(run.output, "{\"get\":\"state.sex\",\"value\":\"m\"}\n"
                              "{\"call\":\"formatTime\",\"value\":\"    1:00  \"}\n");
        EXPECT_EQ(run.status, 0);
    }

    TEST(Started, TheProgramCannotBeStartedOnceMore)
    {
        const ScriptRun run = runScript("start\nstop\nstart\nstart\n");
        EXPECT_TRUE(run.output.ends_with("{\"error\":\"line 4: the program has been started already\"}\n"))
            << run.output;
        EXPECT_EQ(run.status, 2);
    }

    TEST(Lines, MayEndLikeOnAnySystem)
    {
        const ScriptRun plain =
            runScript("# comment\n\n  get vantstart.txtmi  \nset vantstart.txtage 4\nget vantstart.txtage");
        const ScriptRun other =
            runScript("# comment\r\n\r\n  get vantstart.txtmi  \r\nset vantstart.txtage 4\r\nget vantstart.txtage\r\n");
        EXPECT_EQ(plain.output, other.output);
        EXPECT_EQ(plain.status, 0);
        EXPECT_EQ(other.status, 0);
    }

    TEST(Lines, OfAnyLengthAreRead)
    {
        const std::string name(100000, 'x');
        const ScriptRun run = runScript("set vantstart.txtname " + name + "\nget vantstart.txtname\n");
        EXPECT_EQ(run.output, "{\"get\":\"vantstart.txtname\",\"value\":\"" + name + "\"}\n");
        EXPECT_EQ(runScript("get " + std::string(2 << 20, 'x')).status, 2);
    }

    TEST(Lines, MayHoldAnyBytes)
    {
        const ScriptRun run =
            runScript("set vantstart.txtname a" + std::string(1, '\0') + "b\xff\nget vantstart.txtname\n");
        EXPECT_EQ(run.output, "{\"get\":\"vantstart.txtname\",\"value\":\"a\\u0000b\xef\xbf\xbd\"}\n");
        EXPECT_EQ(run.status, 0);
    }

    TEST(EmptyScript, DoesNothing)
    {
        for (const char* script : {"", "\n", "# nothing", " \t \r\n"})
        {
            const ScriptRun run = runScript(script);
            EXPECT_EQ(run.output, "");
            EXPECT_EQ(run.status, 0);
        }
    }
}
