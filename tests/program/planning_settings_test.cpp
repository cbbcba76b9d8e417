#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "forms/files.h"
#include "settings_lines.h"
#include "support/planning.h"

// The entries of the workout planner and of the split form from one run of the program to the next.

namespace
{
    /// Field n of the saved file, the first being 1.
    std::string field(const std::vector<std::string>& lines, std::size_t n)
    {
        return lines.at(n - 1);
    }

    std::vector<std::string> fields(const std::vector<std::string>& lines, std::size_t from, std::size_t to)
    {
        return {lines.begin() + static_cast<std::ptrdiff_t>(from) - 1, lines.begin() + static_cast<std::ptrdiff_t>(to)};
    }

    /// What a program leaves in its file when it ends.
    std::vector<std::string> saved(PlanningProgram& program)
    {
        stop(program.program);
        return linesOf(readBytes(program.folder.path / settingsFileName));
    }

    /// A program that starts with a file.
    void startWith(PlanningProgram& program, const std::vector<std::string>& lines)
    {
        writeBytes(program.folder.path / settingsFileName, joined(lines));
        start(program.program);
        setUsualCurve(program.state());
        setUsualTraining(program.state());
        program.outside.forget();
    }

    TEST(PlanningSettings, OfFormsNeverOpenedAreEmpty)
    {
        PlanningProgram program("workouts");
        const std::vector<std::string> lines = saved(program);
        EXPECT_EQ(fields(lines, 70, 75), std::vector<std::string>(6, ""));
        EXPECT_EQ(fields(lines, 76, 90), std::vector<std::string>(15, "\"\""));
        EXPECT_EQ(fields(lines, 91, 92), std::vector<std::string>(2, ""));
        EXPECT_EQ(fields(lines, 93, 173), std::vector<std::string>(81, "\"\""));
    }

    TEST(PlanningSettings, OfAPlannerOpenedAndClosedAreItsOwnDefaults)
    {
        PlanningProgram program("workouts");
        program.open();
        program.close();
        const std::vector<std::string> lines = saved(program);
        EXPECT_EQ(fields(lines, 70, 75), (std::vector<std::string>{"1", "", "85", "50", "194", "200"}));
        EXPECT_EQ(
            fields(lines, 76, 90),
            (std::vector<std::string>{"\"400\"", "\"0\"", "\"83\"", "\"600\"", "\"0\"", "\"100\"", "\"800\"", "\"4\"",
                                      "\"114\"", "\"1200\"", "\"0\"", "\"137\"", "\"1609.3\"", "\"0\"", "\"155\""}));
        EXPECT_EQ(field(lines, 91), "");
    }

    TEST(PlanningSettings, OfASplitFormOpenAtTheEndAreSaved)
    {
        PlanningProgram program("splitform");
        program.open();
        program.choose("opsplitkm");
        program.type("splitdis(26)", "abc");
        const std::vector<std::string> lines = saved(program);
        EXPECT_EQ(fields(lines, 91, 95), (std::vector<std::string>{"2", "3", "\"400\"", "\"1\"", "\"15\""}));
        EXPECT_EQ(fields(lines, 171, 173), (std::vector<std::string>{"\"abc\"", "\"\"", "\"\""}));
        EXPECT_EQ(field(lines, 70), "");
        EXPECT_FALSE(program.isOpen());
    }

    TEST(PlanningSettings, ComeBackInTheNextRun)
    {
        PlanningProgram first("workouts");
        first.open();
        first.choose("scrun");
        first.type("dist(4)", "1000");
        first.type("num(4)", "12");
        first.slide("pctmax", 170);
        first.slide("recovpace", 77);
        first.slide("perfadj", 190);
        first.formName = "splitform";
        first.open();
        first.choose("opwork");
        first.type("splitsec(0)", "11.5");
        const std::vector<std::string> lines = saved(first);

        PlanningProgram second("workouts");
        startWith(second, lines);
        second.open();
        EXPECT_TRUE(second.isOn("scrun"));
        EXPECT_EQ(second.text("dist(4)"), "1000");
        EXPECT_EQ(second.text("num(4)"), "12");
        EXPECT_EQ(second.text("wrp(4)"), "999999");
        EXPECT_EQ(second.get<ScrollBar>("pctmax").value, 170);
        EXPECT_EQ(second.get<ScrollBar>("repvoscrl").value, 100);
        EXPECT_FALSE(second.get<ScrollBar>("repvoscrl").enabled);
        EXPECT_EQ(second.get<ScrollBar>("recovpace").value, 77);
        EXPECT_EQ(second.get<ScrollBar>("perfadj").value, 190);
        second.formName = "splitform";
        second.open();
        EXPECT_TRUE(second.isOn("opwork"));
        EXPECT_EQ(second.text("splitsec(0)"), "11.5");
        EXPECT_EQ(saved(second), lines) << "opened and left as they were";
    }

    TEST(PlanningSettings, OfFormsThatAreNotOpenedAgainStay)
    {
        PlanningProgram program("workouts");
        std::vector<std::string> lines = oddSettings();
        startWith(program, lines);
        const std::vector<std::string> again = saved(program);
        EXPECT_EQ(fields(again, 70, 173), fields(lines, 70, 173));
    }

    TEST(PlanningSettings, TheAutomaticRatioIsInNoFile)
    {
        PlanningProgram first("workouts");
        first.open();
        first.tick("acwr", true);
        PlanningProgram second("workouts");
        startWith(second, saved(first));
        second.open();
        EXPECT_FALSE(second.get<CheckBox>("acwr").ticked);
    }

    TEST(PlanningSettings, BeyondABarAreHeldToIt)
    {
        std::vector<std::string> lines = oddSettings();   // 72 to 75: 3, -120, 0.5, 95
        lines[69] = "1";
        lines[74] = "1e300";
        lines[75] = "\"500\"";
        PlanningProgram program("workouts");
        startWith(program, lines);
        program.open();
        EXPECT_EQ(program.get<ScrollBar>("recovpace").value, 10);
        EXPECT_EQ(program.get<ScrollBar>("pctmax").value, 120);
        EXPECT_EQ(program.get<ScrollBar>("perfadj").value, 240);
        EXPECT_EQ(program.text("dist(0)"), "500");
        EXPECT_EQ(program.text("num(0)"), "num0") << "refused with a message, and there all the same";
        EXPECT_GT(program.outside.countOf("Number of repeats must be numeric."), 0U);
    }

    TEST(PlanningSettings, ThatAreNoNumbersLeaveTheBars)
    {
        std::vector<std::string> lines = oddSettings();
        lines[69] = "1";
        for (std::size_t n : {72U, 73U, 74U, 75U})
            lines[n - 1] = "";
        PlanningProgram program("workouts");
        startWith(program, lines);
        program.open();
        EXPECT_EQ(program.get<ScrollBar>("recovpace").value, 50);
        EXPECT_EQ(program.get<ScrollBar>("pctmax").value, 194);
    }
}
