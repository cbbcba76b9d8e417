#include <algorithm>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "forms/colours.h"
#include "support/close_to.h"
#include "support/person.h"
#include "support/tool_form.h"
#include "tables/age_curves.h"

namespace
{
    using Names = std::vector<std::string>;

    /// A program after a calculation for a man of 40 who ran 10 km in 40:00 on 30 miles a week; its tool form is the
    /// specification of performance tables.
    struct Tables : ToolForm
    {
        Tables() : ToolForm("pertabspec")
        {
            person.type("txtage", "40");
            person.slide("HScroll1", 30);
            person.click("Option9");
            person.click("Option8");
        }

        void race()
        {
            person.enterRace(0, {"", "40", "", "10", 3});
            person.click("Command1");
        }

        /// From here on the controls of that form are meant.
        Tables& on(const std::string& name)
        {
            formName = name;
            return *this;
        }
        [[nodiscard]] bool isVisible(const std::string& button) { return get<Button>(button).visible; }
        [[nodiscard]] bool canChoose(const std::string& option) { return get<OptionButton>(option).enabled; }
        [[nodiscard]] std::string range() { return text("Text1") + " " + text("Text2") + " " + text("Text3"); }
        [[nodiscard]] Picture& graph() { return on("perfgraph").get<Picture>("graph"); }
        void move(double x)
        {
            const auto moved = graph().moved;
            enter(program, "perfgraph.graph", false, [&] { moved({x, 3000}); });
        }

        Person person{program};
    };

    TEST(Pertabspec, OpensForLevels)
    {
        Tables tables;
        tables.open();
        EXPECT_EQ(tables.form()->title, "Performance table specifications");
        EXPECT_TRUE(tables.isOn("opper"));
        EXPECT_FALSE(tables.isOn("oplev"));
        EXPECT_EQ(tables.range(), "60 5 100");
        EXPECT_EQ(tables.text("lev"), "100");
        EXPECT_TRUE(tables.isOn("Option1"));
        EXPECT_TRUE(tables.canChoose("Option2"));
        EXPECT_EQ(tables.label("Label1"), "(requires earlier calculation on main form)");
        tables.on("pertabspec").click("Command3");
        tables.person.click("optfemale");
        tables.on("pertabspec").open();
        EXPECT_TRUE(tables.isOn("Option2"));
        EXPECT_EQ(tables.state().runner.sex, 'f');
    }

    TEST(Pertabspec, KeepsTheMaximum)
    {
        Tables tables;
        tables.open();
        tables.type("Text1", "65.5");
        EXPECT_EQ(tables.text("Text3"), "105.5");
        tables.type("Text2", "-2 percent");
        EXPECT_EQ(tables.text("Text3"), "49.5");
        tables.type("Text1", "");
        EXPECT_EQ(tables.text("Text3"), "-16");
        tables.type("Text3", "mine");
        EXPECT_EQ(tables.text("Text1"), "");
        tables.type("Text2", "1e308");
        EXPECT_EQ(tables.outside.events.size(), 1U);
    }

    TEST(Pertabspec, FollowsTheMainForm)
    {
        Tables tables;
        tables.open();
        tables.choose("Option2");
        EXPECT_EQ(tables.state().runner.sex, 'f');
        tables.choose("opage");
        EXPECT_EQ(tables.state().runner.sex, 'm');
        EXPECT_TRUE(tables.isOn("Option1"));
        EXPECT_FALSE(tables.canChoose("Option2"));
        EXPECT_TRUE(tables.canChoose("Option1"));
        EXPECT_EQ(tables.range(), "25 5 65");
        tables.choose("oplev");
        EXPECT_FALSE(tables.canChoose("Option2")) << "nothing but the range";
        EXPECT_EQ(tables.range(), "25 5 65");
        EXPECT_EQ(tables.state().flags.oplev, 1);
        tables.choose("opper");
        EXPECT_TRUE(tables.canChoose("Option2"));
        EXPECT_EQ(tables.range(), "60 5 100");
        EXPECT_EQ(tables.state().flags.oplev, 0);
        tables.person.click("optfemale");
        tables.choose("opage");
        EXPECT_TRUE(tables.isOn("Option2"));
        EXPECT_FALSE(tables.canChoose("Option1"));
        EXPECT_EQ(tables.state().runner.sex, 'f');
    }

    TEST(Pertabspec, KeepsTheSexWhereTheMainFormHasNone)
    {
        Tables tables;
        setChosen(tables.program.vantstart->optmale, false);
        tables.open();
        EXPECT_FALSE(tables.isOn("Option1"));
        EXPECT_FALSE(tables.isOn("Option2"));
        tables.choose("Option2");
        tables.choose("opage");
        EXPECT_EQ(tables.state().runner.sex, 'f');
        EXPECT_TRUE(tables.isOn("Option2"));
        EXPECT_TRUE(tables.canChoose("Option1"));
        EXPECT_TRUE(tables.canChoose("Option2"));
    }

    TEST(Pertabspec, NeedsACalculationForARunner)
    {
        Tables tables;
        tables.open();
        tables.choose("opage");
        tables.click("Command1");
        EXPECT_EQ(tables.outside.events, Names{"message: Must calculate current performances first"});
        EXPECT_EQ(tables.on("perflevform").form(), nullptr);
        EXPECT_EQ(tables.state().flags.ageCompareForced, 0);
    }

    TEST(Pertabspec, TellsToEnterARaceWhereNoneStands)
    {
        Tables tables;
        tables.person.click("Command1");   // no rows checked, and calculated all the same
        tables.open();
        tables.choose("opage");
        tables.outside.forget();
        tables.click("Command1");
        EXPECT_EQ(tables.outside.events, Names{"fault: The calculation stopped: division by zero while rating the "
                                               "runner's times at 800 m and 5000 m; enter a race on the main form and "
                                               "press Re-Calculate first."});
        EXPECT_EQ(tables.state().flags.ageCompareForced, 1) << "until the next table";
        EXPECT_TRUE(tables.on("perflevform").lines().empty());
        EXPECT_EQ(tables.form()->title, "Predicted Performances at Various Ages");
    }

    TEST(Pertabspec, GivesTheMainFormItsResultsBack)
    {
        Tables tables;
        tables.race();
        const TextPage before = tables.program.vantstart->Picture1.page;
        const double power = tables.state().curve.aerobicPower;
        tables.open();
        tables.choose("opage");
        tables.click("Command1");
        EXPECT_NE(tables.state().curve.aerobicPower, power);
        EXPECT_EQ(tables.state().races.raceCount, 2);
        tables.state().flags.calculatedOnce = 0;
        tables.on("pertabspec").click("Command3");
        EXPECT_TRUE(closeTo(tables.state().curve.aerobicPower, power));
        EXPECT_EQ(tables.program.vantstart->Picture1.page, before);
        EXPECT_EQ(tables.state().flags.calculatedOnce, 1);
        EXPECT_TRUE(tables.outside.events.empty());
    }

    TEST(Pertabspec, StandsUntilTheLastCalculation)
    {
        Tables tables;
        tables.race();
        tables.open();
        tables.choose("oplev");
        tables.person.click("Command1");   // the open option counts on the main form, too
        const TextPage byAge = tables.program.vantstart->Picture1.page;
        tables.click("Command3");
        EXPECT_EQ(tables.program.vantstart->Picture1.page.lines[8], byAge.lines[8]);
        EXPECT_EQ(tables.state().flags.oplev, 0);
        tables.person.click("Command1");
        EXPECT_NE(tables.program.vantstart->Picture1.page.lines[8], byAge.lines[8]);
    }

    TEST(Pertabspec, CalculatesNothingWhenTheProgramEnds)
    {
        Tables tables;
        tables.open();
        tables.person.click("exit");
        EXPECT_TRUE(tables.outside.events.empty()) << "not that no rows are checked";
        EXPECT_EQ(tables.state().flags.calculatedOnce, 0);
    }

    TEST(Perflevform, HidesTheGraphOfLevelsWhenItComes)
    {
        Tables tables;
        tables.race();
        tables.open();
        tables.click("Command1");
        EXPECT_FALSE(tables.on("perflevform").isVisible("Command3"));
        tables.on("pertabspec").choose("oplev");
        tables.click("Command1");
        EXPECT_FALSE(tables.on("perflevform").isVisible("Command3")) << "only then";
        tables.click("Command1");
        EXPECT_EQ(tables.form(), nullptr);
        tables.on("pertabspec").click("Command1");
        EXPECT_TRUE(tables.on("perflevform").isVisible("Command3"));
    }

    TEST(Perflevform, TitlesByTheLatestComparison)
    {
        Tables tables;
        tables.open();
        tables.click("Command1");
        EXPECT_EQ(tables.on("perflevform").form()->title, "Performance Levels (Open Male)");
        tables.race();   // its closing compares by age
        tables.on("pertabspec").click("Command1");
        EXPECT_EQ(tables.on("perflevform").form()->title, "Performance Levels (Male Age 40)");
        EXPECT_EQ(tables.state().flags.ageCompareOn, 1);
    }

    void expectPrinted(Tables& tables)
    {
        tables.on("perflevform");
        const Names before = tables.lines();
        const std::string title = tables.form()->title;
        tables.printed.clear();
        tables.click("Command2");
        ASSERT_EQ(tables.printed.size(), 1U);
        EXPECT_EQ(tables.printed[0].form, "perflevform");
        EXPECT_EQ(tables.printed[0].background, classic::white);
        EXPECT_EQ(tables.printed[0].hidden, (Names{"Command1", "Command2"}));
        EXPECT_TRUE(tables.isVisible("Command1"));
        EXPECT_TRUE(tables.isVisible("Command2"));
        EXPECT_EQ(tables.lines(), before);
        EXPECT_EQ(tables.form()->title, title);
        EXPECT_EQ(tables.state().flags.ageCompareForced, 0);
    }

    // At 101 years the curve is so steep that its column lowers the exponent of the anaerobic store.
    TEST(Perflevform, LeavesTheAnaerobicExponentUntilReCalculate)
    {
        Tables tables;
        tables.person.enterRace(0, {"", "2", "10", "800", 4});
        tables.person.enterRace(1, {"", "20", "", "5000", 4});
        tables.person.click("Command1");
        const double& anaerobicExp = tables.state().curve.anaerobicExp;
        EXPECT_EQ(anaerobicExp, 0.65);
        tables.open();
        tables.choose("opage");
        tables.type("Text1", "20");
        tables.click("Command1");
        EXPECT_EQ(anaerobicExp, 0.65);
        tables.type("Text1", "61");
        tables.click("Command1");
        EXPECT_LT(anaerobicExp, 0.6);
        EXPECT_GE(anaerobicExp, 0.49);
        const double left = anaerobicExp;
        tables.click("Command3");
        EXPECT_EQ(anaerobicExp, left);
        tables.person.click("Command1");
        EXPECT_EQ(anaerobicExp, 0.65);
    }

    TEST(Perflevform, PrintsTheTableThatStands)
    {
        Tables tables;
        tables.race();
        tables.open();
        for (const char* kind : {"opper", "oplev", "opage"})
        {
            tables.on("pertabspec").choose(kind);
            tables.type("lev", "80");
            tables.click("Command1");
            expectPrinted(tables);
        }
        tables.on("pertabspec").choose("oplev");
        tables.click("Command1");
        tables.on("pertabspec").click("Command3");
        expectPrinted(tables);   // also when the form that asked for it has gone
        EXPECT_EQ(tables.state().flags.oplev, 0);
    }

    TEST(Perflevform, PrintsAsTheSpecificationStandsNow)
    {
        Tables tables;
        tables.open();
        tables.click("Command1");
        tables.type("Text1", "70");
        tables.on("perflevform").click("Command2");
        EXPECT_EQ(tables.lines()[0].substr(0, 30), " Level (%):     70        75  ");
    }

    TEST(Perflevform, RefusesAtEachBuildingAndKeepsItsTable)
    {
        Tables tables;
        tables.open();
        tables.click("Command1");
        const Names before = tables.on("perflevform").lines();
        const std::string title = tables.form()->title;
        tables.on("pertabspec").choose("opage");
        tables.on("perflevform").click("Command2");
        const std::string refusal = "message: Must calculate current performances first";
        EXPECT_EQ(tables.outside.events, (Names{refusal, refusal})) << "it is built for paper and for the screen";
        EXPECT_EQ(tables.lines(), before);
        EXPECT_EQ(tables.form()->title, title);
        EXPECT_EQ(tables.state().flags.ageCompareForced, 0);
    }

    TEST(Perflevform, BuildsTwiceToPrint)
    {
        Tables tables;
        tables.open();
        tables.click("Command1");
        std::vector<std::size_t> printedBefore;
        tables.on("perflevform").get<TextSurface>("table").shown = [&] {
            printedBefore.push_back(tables.printed.size());
        };
        tables.click("Command2");
        EXPECT_EQ(printedBefore, (std::vector<std::size_t>{0, 1})) << "before the paper and after it";
    }

    TEST(Perflevform, PrintsNothingThatCanNotBeBuilt)
    {
        Tables tables;
        tables.open();
        tables.click("Command1");
        tables.type("Text1", "0");
        tables.on("perflevform").click("Command2");
        EXPECT_TRUE(tables.printed.empty());
        EXPECT_EQ(tables.outside.faults.size(), 1U);
        EXPECT_TRUE(tables.isVisible("Command1"));
    }

    /// The graph of that runner, opened from the table by age.
    struct OpenGraph : Tables
    {
        OpenGraph()
        {
            race();
            open();
            choose("opage");
            click("Command1");
            on("perflevform").click("Command3");
            on("perfgraph");
        }

        [[nodiscard]] std::vector<Primitive> lines(Colour colour)
        {
            std::vector<Primitive> found;
            for (const Primitive& drawn : graph().primitives)
                if (std::holds_alternative<LinePrimitive>(drawn.shape) && drawn.colour == colour)
                    found.push_back(drawn);
            return found;
        }
        [[nodiscard]] std::vector<Primitive> texts(Colour colour)
        {
            std::vector<Primitive> found;
            for (const Primitive& drawn : graph().primitives)
                if (std::holds_alternative<TextPrimitive>(drawn.shape) && drawn.colour == colour)
                    found.push_back(drawn);
            return found;
        }
    };

    const LinePrimitive& line(const Primitive& drawn)
    {
        return std::get<LinePrimitive>(drawn.shape);
    }
    const TextPrimitive& text(const Primitive& drawn)
    {
        return std::get<TextPrimitive>(drawn.shape);
    }

    TEST(Perfgraph, OpensWithFiveKilometers)
    {
        OpenGraph open;
        EXPECT_EQ(open.form()->title, "Performance by Age (male, entered age = 40)");
        EXPECT_EQ(open.state().ageGraph.chosenRow, 15);
        EXPECT_EQ(open.state().ageGraph.axisTop, 3600);
        EXPECT_EQ(open.state().runner.age, 40);
        EXPECT_EQ(open.state().flags.ageCompareLocal, 0);
        EXPECT_EQ(open.state().flags.ageCompareOn, 1);
        EXPECT_TRUE(open.outside.events.empty());
    }

    TEST(Perfgraph, DrawsItsGrid)
    {
        OpenGraph open;
        const std::vector<Primitive> grid = open.lines(classic::grey);
        ASSERT_EQ(grid.size(), 19U + 13);
        EXPECT_EQ(line(grid[0]).from, (Point{600, 200}));
        EXPECT_EQ(line(grid[0]).to, (Point{600, 6200}));
        EXPECT_EQ(line(grid[18]).to, (Point{9600, 6200}));
        EXPECT_EQ(line(grid[19]).from, (Point{600, 200}));
        EXPECT_EQ(line(grid[19]).to, (Point{9600, 200}));
        EXPECT_EQ(line(grid[31]).from, (Point{600, 6200}));
        const std::vector<Primitive> labels = open.texts(classic::black);
        ASSERT_EQ(labels.size(), 9U + 13);
        EXPECT_EQ(text(labels[0]).text, " 10");
        EXPECT_EQ(text(labels[0]).at, (Point{950, 6260}));
        EXPECT_EQ(text(labels[8]).text, " 90");
        EXPECT_EQ(text(labels[9]).text, " 1:00:00  ");
        EXPECT_EQ(text(labels[9]).at, (Point{0, 110}));
        EXPECT_EQ(text(labels[21]).text, "       0.0");
        EXPECT_EQ(text(labels[21]).at, (Point{0, 6110}));
    }

    TEST(Perfgraph, DrawsItsCurves)
    {
        OpenGraph open;
        AgeGraph& graph = open.state().ageGraph;
        const std::vector<Primitive> levels = open.lines(classic::darkGrey);
        ASSERT_EQ(levels.size(), 6U * 90);
        EXPECT_EQ(line(levels[0]).from, (Point{700, 6200 - levelTimeAt(graph, 6, 0) * 6000 / 3600}));
        EXPECT_EQ(line(levels[0]).to, (Point{600, 6200 - levelTimeAt(graph, 5, 0) * 6000 / 3600}));
        EXPECT_EQ(line(levels[539]).from, (Point{9600, 6200 - levelTimeAt(graph, 95, 5) * 6000 / 3600}));
        const std::vector<Primitive> numbers = open.texts(classic::darkGrey);
        ASSERT_EQ(numbers.size(), 6U);
        EXPECT_EQ(text(numbers[0]).text, " 100");
        EXPECT_EQ(text(numbers[0]).at, (Point{8000, 6080 - levelTimeAt(graph, 79, 0) * 6000 / 3600}));
        EXPECT_EQ(text(numbers[5]).text, " 50");
        EXPECT_EQ(text(numbers[5]).at, (Point{6500, 6080 - levelTimeAt(graph, 64, 5) * 6000 / 3600}));
        const std::vector<Primitive> own = open.lines(classic::lightRed);
        ASSERT_EQ(own.size(), 90U);
        EXPECT_EQ(own[0].width, 2);
        EXPECT_EQ(levels[0].width, 1);
        EXPECT_EQ(line(own[89]).from, (Point{9600, 6200 - individualTimeAt(graph, 95) * 6000 / 3600}));
    }

    TEST(Perfgraph, PlotsAboveItsTop)
    {
        OpenGraph open;   // the level of 50 percent at 5 years takes longer than the axis has room for
        EXPECT_LT(line(open.lines(classic::darkGrey)[450]).to.y, 200);
    }

    TEST(Perfgraph, MeetsTheRunnersOwnTime)
    {
        OpenGraph open;
        EXPECT_TRUE(closeTo(individualTimeAt(open.state().ageGraph, 40), open.state().results.time5000, 1e-4));
    }

    TEST(Perfgraph, ReadsTheCurvesOff)
    {
        OpenGraph open;
        EXPECT_EQ(open.label("Label1"), "");
        open.move(4100);
        EXPECT_EQ(open.label("Label1"), "Age: 40");
        EXPECT_EQ(open.label("Label2"), "    5 km    18:50  ");
        EXPECT_EQ(open.label("pvelage(0)"), "100     13:13  ");
        EXPECT_EQ(open.label("pvelage(5)"), "50     36:12  ");
        struct At
        {
            double x;
            const char* age;
        };
        for (const auto& [x, age] : {At{650, "Age: 6"}, At{750, "Age: 6"}, At{649, "Age: 5"}, At{-1e9, "Age: 5"},
                                     At{9549, "Age: 94"}, At{9551, "Age: 95"}, At{1e300, "Age: 95"}})
        {
            open.move(x);
            EXPECT_EQ(open.label("Label1"), age) << x;
        }
        EXPECT_EQ(open.label("trackerTitle"), "Mouse Tracker:");
        EXPECT_EQ(open.label("trackerHint"), "(move mouse on graph)");
        EXPECT_EQ(open.label("levelsTitle"), "Performance Levels:");
        EXPECT_EQ(open.label("individualTitle"), "Individual:");
    }

    TEST(Perfgraph, HasAButtonForEveryDistance)
    {
        const std::vector<std::pair<const char*, const char*>> buttons{
            {"Command2", "100 m"},          {"Command3", "200 m"},    {"Command4", "400 m"},
            {"Command22", "440 yd"},        {"Command5", "800 m"},    {"Command12", "880 yd"},
            {"Command23", "1000 m"},        {"Command6", "1500 m"},   {"Command7", "1600 m"},
            {"Command8", "1 mile"},         {"Command9", "3 K"},      {"Command10", "3200 m"},
            {"Command11", "2 mile"},        {"Command24", "3 mile"},  {"Com5k", "5 K"},
            {"Command13", "8 K"},           {"Command14", "5 mile"},  {"Command15", "10 K"},
            {"Command16", "15 K"},          {"Command18", "10 mile"}, {"Command17", "20 K"},
            {"Command19", "half marathon"}, {"Command21", "30 K"},    {"Command20", "marathon"}};
        OpenGraph open;
        for (std::size_t i = 0; i < buttons.size(); ++i)
        {
            const auto& [name, caption] = buttons[i];
            EXPECT_EQ(open.caption(name), caption);
            open.click(name);
            EXPECT_EQ(open.state().ageGraph.chosenRow, static_cast<int>(i) + 1) << name;
            EXPECT_EQ(open.lines(classic::lightRed).size(), 90U);
        }
        EXPECT_TRUE(open.outside.events.empty());
    }

    TEST(Perfgraph, PrintsWithoutItsButtons)
    {
        OpenGraph open;
        open.click("Command25");
        ASSERT_EQ(open.printed.size(), 1U);
        EXPECT_EQ(open.printed[0].form, "perfgraph");
        EXPECT_EQ(open.printed[0].hidden.size(), 26U);
        for (const ControlRef& control : open.form()->controls)
            if (Button* const* button = std::get_if<Button*>(&control))
            {
                EXPECT_EQ(std::count(open.printed[0].hidden.begin(), open.printed[0].hidden.end(), (**button).name), 1);
                EXPECT_TRUE((**button).visible);
            }
        open.click("Command1");
        EXPECT_EQ(open.form(), nullptr);
        EXPECT_EQ(open.state().runner.age, 40);
    }

    TEST(Perfgraph, StaysAsItIsWithoutAPrinter)
    {
        OpenGraph open;
        const std::size_t drawn = open.graph().primitives.size();
        open.program.outside.printer = {};
        open.click("Command25");
        EXPECT_TRUE(open.outside.events.empty());
        EXPECT_TRUE(open.isVisible("Command25"));
        EXPECT_EQ(open.graph().primitives.size(), drawn);
    }

    TEST(Perfgraph, KeepsItsGridBeforeARace)
    {
        Tables tables;
        tables.on("perfgraph").open();
        EXPECT_EQ(tables.outside.faults.size(), 1U);
        EXPECT_EQ(tables.state().flags.ageCompareLocal, 1) << "until a calculation has ended";
        EXPECT_GT(tables.graph().primitives.size(), 500U);
        tables.move(4100);
        EXPECT_EQ(tables.label("Label1"), "Age: 40");
        EXPECT_EQ(tables.label("Label2"), "    5 km        0.0");
        tables.race();
        EXPECT_EQ(tables.state().flags.ageCompareLocal, 0);
    }

    TEST(Perfgraph, TakesTheSexBackFromATableOfTheOther)
    {
        Tables tables;
        tables.race();
        tables.open();
        tables.choose("oplev");
        tables.choose("Option2");
        tables.click("Command1");
        tables.on("perflevform").click("Command3");
        EXPECT_EQ(tables.on("perfgraph").form()->title, "Performance by Age (female, entered age = 40)");
        EXPECT_EQ(tables.state().runner.sex, 'm');
    }

    TEST(TableForms, GiveEveryEntryATip)
    {
        OpenGraph open;
        for (const char* name : {"pertabspec", "perflevform", "perfgraph"})
            for (const ControlRef& control : open.on(name).form()->controls)
                if (!std::holds_alternative<Label*>(control))
                {
                    EXPECT_NE(common(control).tip, "") << name << '.' << common(control).name;
                }
    }
}
