#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "forms/page_text.h"
#include "support/close_to.h"
#include "support/golden.h"
#include "support/tool_form.h"

namespace
{
    using Names = std::vector<std::string>;

    struct OpenForm : ToolForm
    {
        explicit OpenForm(const char* name) : ToolForm(name)
        {
            state().runner.weightKg = 72.7;
            open();
        }

        /// The table, which a golden file holds.
        void expectTable(const std::string& golden)
        {
            EXPECT_EQ(textOf(get<TextSurface>("table").page), GoldenFile("power/golden", golden).expected) << golden;
        }
    };

    struct Bar
    {
        const char* name;
        int value, min, max, largeStep;
    };

    TEST(Quickcalcs, HasThreeBarsWithTheirRanges)
    {
        OpenForm quick("quickcalcs");
        EXPECT_EQ(quick.form()->title, "Quick Calculations Involving Power, Energy, and Slope");
        for (const Bar& design : {Bar{"speedscrl", 750, 400, 2500, 50}, Bar{"slopescrl", 0, -200, 300, 10},
                                  Bar{"weightscrl", 160, 50, 300, 10}})
        {
            const ScrollBar& bar = quick.get<ScrollBar>(design.name);
            EXPECT_EQ(bar.value, design.value) << design.name;
            EXPECT_EQ(bar.min, design.min);
            EXPECT_EQ(bar.max, design.max);
            EXPECT_EQ(bar.smallStep, 1);
            EXPECT_EQ(bar.largeStep, design.largeStep);
        }
    }

    TEST(Quickcalcs, IsFilledWhenItOpens)
    {
        OpenForm quick("quickcalcs");
        EXPECT_TRUE(quick.outside.events.empty());
        for (const ControlRef& control : quick.form()->controls)
            if (TextBox* const* box = std::get_if<TextBox*>(&control))
            {
                EXPECT_NE((**box).text, "") << (**box).name;
            }
        EXPECT_EQ(quick.text("wtlb"), "160");
        EXPECT_EQ(quick.text("wtkg"), " 72.6");
        EXPECT_EQ(quick.text("levoutmph"), " 7.50");
        EXPECT_EQ(quick.text("levoutkph"), "12.07");   // 7.5 * 1.609344
        EXPECT_EQ(quick.text("levoutmpm"), " 8:00  ");
        EXPECT_EQ(quick.text("levoutmpk"), " 4:58  ");   // 298.26 s
        EXPECT_EQ(quick.text("tantheta"), "  0.0");
        EXPECT_EQ(quick.text("theta"), "  0.0");
        EXPECT_TRUE(closeTo(quick.state().slopeTools.curSpeed, 3.3528));
        EXPECT_EQ(quick.state().slopeTools.slopeValue, 0);
        EXPECT_EQ(quick.state().incline.indoorMode, 0);
    }

    TEST(Quickcalcs, OnTheLevelShowsTheSelectedSpeedOutdoorsAndAFasterOneIndoors)
    {
        OpenForm quick("quickcalcs");
        EXPECT_EQ(quick.text("slopeoutmph"), " 7.50");
        EXPECT_EQ(quick.text("slopeoutmpm"), quick.text("levoutmpm"));
        EXPECT_EQ(quick.text("levinmph"), " 7.63");   // without air one runs faster at the same effort
        EXPECT_EQ(quick.text("slopeinmph"), quick.text("levinmph"));
    }

    TEST(Quickcalcs, TellsTheTwoSlopesApart)
    {
        OpenForm quick("quickcalcs");
        for (const bool dragged : {false, true})
        {
            quick.slide("slopescrl", 0);
            dragged ? quick.pull("slopescrl", 300) : quick.slide("slopescrl", 300);
            EXPECT_EQ(quick.text("tantheta"), " 30.0");
            EXPECT_EQ(quick.text("sintheta"), " 28.7");
            EXPECT_EQ(quick.text("theta"), " 16.7");
            EXPECT_EQ(quick.state().slopeTools.slopeValue, 0.3);
        }
        quick.slide("slopescrl", -20);
        EXPECT_EQ(quick.text("tantheta"), " -2.0");
        EXPECT_EQ(quick.text("sintheta"), " -2.0");
        EXPECT_EQ(quick.text("theta"), " -1.1");
    }

    struct Shown
    {
        const char* field;
        const char* text;
    };

    // By a program of its own in another language: 9 mph, 5 percent, 180 lb.
    TEST(Quickcalcs, ShowsPowerEnergyAndSpeeds)
    {
        OpenForm quick("quickcalcs");
        quick.slide("speedscrl", 900);
        quick.slide("slopescrl", 50);
        quick.slide("weightscrl", 180);
        for (const Shown& shown : {Shown{"wtlb", "180"},
                                   Shown{"wtkg", " 81.6"},
                                   Shown{"levoutmph", " 9.00"},
                                   Shown{"levoutkph", "14.48"},
                                   Shown{"levoutmpm", " 6:40  "},
                                   Shown{"levoutmpk", " 4:09  "},
                                   Shown{"tantheta", "  5.0"},
                                   Shown{"sintheta", "  5.0"},
                                   Shown{"theta", "  2.9"},
                                   Shown{"netpowout", "  293"},
                                   Shown{"grosspowwatts", " 1474"},
                                   Shown{"netpowwatts", " 1378"},
                                   Shown{"grosspowkchr", " 1268"},
                                   Shown{"netpowkchr", " 1186"},
                                   Shown{"mets", " 15.5"},
                                   Shown{"vo2", " 54.4"},
                                   Shown{"grosscostkcmi", " 141"},
                                   Shown{"grosscostkjkm", " 366"},
                                   Shown{"netcostkcmi", " 132"},
                                   Shown{"netcostkjkm", " 342"},
                                   Shown{"levinmph", " 9.24"},
                                   Shown{"levinkph", "14.87"},
                                   Shown{"levinmpm", " 6:30  "},
                                   Shown{"levinmpk", " 4:02  "},
                                   Shown{"slopeinmph", " 7.49"},
                                   Shown{"slopeinkph", "12.05"},
                                   Shown{"slopeinmpm", " 8:01  "},
                                   Shown{"slopeinmpk", " 4:59  "},
                                   Shown{"slopeoutmph", " 7.36"},
                                   Shown{"slopeoutkph", "11.84"},
                                   Shown{"slopeoutmpm", " 8:09  "},
                                   Shown{"slopeoutmpk", " 5:04  "}})
            EXPECT_EQ(quick.text(shown.field), shown.text) << shown.field;
    }

    TEST(Quickcalcs, HoldsTheRunnersWeightWithinItsBar)
    {
        for (const auto& [kilograms, pounds] : {std::pair{13.6, "50"}, std::pair{180.0, "300"}})
        {
            ToolForm quick("quickcalcs");
            quick.state().runner.weightKg = kilograms;
            quick.open();
            EXPECT_EQ(quick.text("wtlb"), pounds);
        }
    }

    TEST(Quickcalcs, GoesByTheTextOfTheWeight)
    {
        OpenForm quick("quickcalcs");
        const std::string before = quick.text("grosspowwatts");
        quick.type("wtkg", "145.2");   // twice the runner's
        EXPECT_EQ(quick.text("grosspowwatts"), before) << "a typed weight counts with the next move of a bar";
        quick.slide("slopescrl", 1);
        EXPECT_NEAR(std::stod(quick.text("grosspowwatts")), 2 * std::stod(before), 1.1);
        quick.type("wtkg", "heavy");
        quick.slide("slopescrl", 2);
        EXPECT_EQ(quick.outside.events,
                  Names{"fault: The calculation stopped: division by zero while working out power and energy."});
    }

    TEST(Quickcalcs, KeepsSpeedAndSlopeBeyondItsEnd)
    {
        OpenForm quick("quickcalcs");
        quick.slide("speedscrl", 900);
        quick.slide("slopescrl", 40);
        quick.close();
        EXPECT_EQ(quick.form(), nullptr);
        EXPECT_TRUE(closeTo(quick.state().slopeTools.curSpeed, 4.02336));
        EXPECT_EQ(quick.state().slopeTools.slopeValue, 0.04);
        quick.open();
        EXPECT_EQ(quick.get<ScrollBar>("speedscrl").value, 750);
        EXPECT_EQ(quick.state().slopeTools.slopeValue, 0);
    }

    TEST(Quickcalcs, LeavesNoTreadmillComparisonBehindAFault)
    {
        OpenForm quick("quickcalcs");
        quick.state().runner.bodyDrag = 0;
        quick.slide("slopescrl", 40);
        EXPECT_EQ(quick.outside.faults.size(), 1U);
        EXPECT_EQ(quick.state().incline.indoorMode, 0);
    }

    TEST(Powen, OpensInMilesAndSwitches)
    {
        OpenForm powen("powen");
        EXPECT_EQ(powen.form()->title, "Power and Energy Usage and Output");
        EXPECT_EQ(powen.label("Label1"),
                  "Pace  Speed   Power Ouput -------------Power Used--------------  Energy Used per Distance");
        EXPECT_EQ(powen.label("Label3"), "Gross   Net     Gross   Net                 Gross     Net");
        EXPECT_EQ(powen.label("Label4"), "'Gross' means including base metabolic rate.");
        const std::string miles =
            "min/mi  mi/hr   Watts     Watts  Watts   kcal/hr kcal/hr   METs      kcal/mi  kcal/mi ";
        EXPECT_EQ(powen.label("Label2"), miles);
        EXPECT_EQ(powen.caption("Command2"), "Switch to minutes/kilometer");
        powen.expectTable("powen_miles");
        powen.click("Command2");
        EXPECT_EQ(powen.label("Label2"),
                  "min/km  km/hr   Watts     Watts  Watts    kJ/hr   kJ/hr    METs       kJ/km    kJ/km ");
        EXPECT_EQ(powen.caption("Command2"), "Switch to minutes/mile");
        powen.expectTable("powen_km");
        powen.click("Command2");
        EXPECT_EQ(powen.label("Label2"), miles);
        powen.expectTable("powen_miles");
        powen.click("Command2");
        powen.close();
        powen.state().flags.unitsMode = 'e';
        powen.open();
        powen.expectTable("powen_miles");
    }

    void expectPrinted(OpenForm& open, const Names& buttons)
    {
        open.click("Command3");
        ASSERT_EQ(open.printed.size(), 1U);
        EXPECT_EQ(open.printed[0].form, open.formName);
        EXPECT_EQ(open.printed[0].background, (Colour{255, 255, 255}));
        EXPECT_EQ(open.printed[0].hidden, buttons);
        for (const std::string& button : buttons)
            EXPECT_TRUE(open.get<Button>(button).visible) << button;
        open.state().runner.bodyDrag = 0;
        open.click("Command3");
        EXPECT_EQ(open.printed.size(), 1U) << "what can't be drawn is not printed";
        EXPECT_EQ(open.outside.faults.size(), 1U);
        for (const std::string& button : buttons)
            EXPECT_TRUE(open.get<Button>(button).visible) << button;
    }

    TEST(Powen, PrintsWithoutItsButtons)
    {
        OpenForm powen("powen");
        expectPrinted(powen, {"Command1", "Command2", "Command3"});
    }

    TEST(Tmill, PrintsWithoutItsButtons)
    {
        OpenForm tmill("tmill");
        expectPrinted(tmill, {"Command1", "Command2", "Command3", "Command4", "Command5", "Command6"});
    }

    TEST(Eqpace, PrintsWithoutItsButtons)
    {
        OpenForm eqpace("eqpace");
        expectPrinted(eqpace, {"Command1", "Command2", "Command3", "Command4", "sclminus", "sclplus"});
    }

    TEST(Tmill, ShowsEveryState)
    {
        for (const bool incline : {false, true})
            for (const bool speeds : {false, true})
                for (const bool kilometers : {false, true})
                    for (const bool indoors : {false, true})
                    {
                        OpenForm tmill("tmill");
                        if (incline)
                            tmill.click("Command5");
                        if (speeds)
                            tmill.click("Command6");
                        if (kilometers)
                            tmill.click("Command2");
                        if (indoors)
                            tmill.click("Command4");
                        tmill.state().incline.slopeDirection = 0;   // as before any search
                        tmill.click("Command2");
                        tmill.state().incline.slopeDirection = 0;
                        tmill.click("Command2");
                        tmill.expectTable(std::string("tmill_") + (incline ? "incline" : "flat") +
                                          (kilometers ? "_km" : "_miles") + (speeds ? "_speed" : "_pace") +
                                          (indoors ? "_indoors" : "_outdoors"));
                        EXPECT_EQ(tmill.label("Label3"),
                                  incline && !indoors
                                      ? "Outdoors     Treadmill incline (vertical rise/horizontal distance)"
                                      : "Treadmill    Incline (vertical rise/horizontal distance)");
                        EXPECT_EQ(tmill.caption("Command4"), indoors ? "Switch to outdoors" : "Switch to indoors");
                        EXPECT_EQ(tmill.caption("Command5"),
                                  incline ? "Switch to equivalent flat pace" : "Switch to pace needed on incline");
                        EXPECT_EQ(tmill.caption("Command6"), speeds ? "Switch to pace" : "Switch to speed");
                    }
    }

    TEST(Tmill, KeepsWhatItShowsAndForgetsUnitsAndPlace)
    {
        OpenForm tmill("tmill");
        for (const char* button : {"Command2", "Command4", "Command5", "Command6"})
            tmill.click(button);
        tmill.close();
        EXPECT_EQ(tmill.state().slopeTools.tmillMode, 2);
        EXPECT_EQ(tmill.state().slopeTools.tmillDisplay, 2);
        tmill.open();
        EXPECT_EQ(tmill.caption("Command2"), "Switch to minutes/kilometer");
        EXPECT_EQ(tmill.caption("Command4"), "Switch to indoors");
        EXPECT_EQ(tmill.caption("Command5"), "Switch to equivalent flat pace");
        EXPECT_EQ(tmill.caption("Command6"), "Switch to pace");
        EXPECT_EQ(tmill.label("Label4"), "Speed needed on treadmill to equal given speed with air resistance");
        tmill.expectTable("tmill_incline_miles_speed_outdoors");
    }

    TEST(Tmill, GoesByTheDirectionThatTheLatestSearchLeft)
    {
        ToolForm tmill("tmill");
        tmill.state().incline.slopeDirection = -1;
        tmill.open();
        EXPECT_EQ(textOf(tmill.get<TextSurface>("table").page),
                  GoldenFile("power/golden", "tmill_after_a_downhill").expected);
    }

    TEST(Tmill, GoesByTheDirectionThatTheQuickCalculatorLeft)
    {
        ToolForm tool("quickcalcs");
        tool.open();
        tool.slide("slopescrl", -20);
        EXPECT_EQ(tool.state().incline.slopeDirection, -1);
        tool.close();
        tool.formName = "tmill";
        tool.open();
        EXPECT_EQ(tool.state().slopeTools.tmillMode, 1);
        EXPECT_EQ(textOf(tool.get<TextSurface>("table").page),
                  GoldenFile("power/golden", "tmill_after_a_downhill").expected);
    }

    TEST(Eqpace, ShowsEveryState)
    {
        for (const int scale : {1, 2, 3, 4})
            for (const bool horizontal : {false, true})
                for (const bool kilometers : {false, true})
                {
                    OpenForm eqpace("eqpace");
                    for (int at = 2; at < scale; ++at)
                        eqpace.click("sclplus");
                    if (scale == 1)
                        eqpace.click("sclminus");
                    if (horizontal)
                        eqpace.click("Command4");
                    if (kilometers)
                        eqpace.click("Command2");
                    eqpace.expectTable("eqpace_scale_" + std::to_string(scale) + (kilometers ? "_km" : "_miles") +
                                       (horizontal ? "_horizontal" : "_surface"));
                    EXPECT_EQ(eqpace.label("Label4"), horizontal ? "  GRADE (vertical rise/horizontal distance)"
                                                                 : "GRADE (vertical rise/distance along surface)");
                    EXPECT_EQ(eqpace.label("Label1"),
                              kilometers ? "Paces in minutes per kilometer" : "Paces in minutes per mile");
                    EXPECT_EQ(eqpace.label("Label2"),
                              kilometers ? "Example: Running 5:00 per kilometer on level surface requires about the "
                                           "same effort as 6:34 per kilometer on an 6% uphill grade or 4:06 per "
                                           "kilometer on a 6% downhill grade."
                                         : "Example: Running 7:00 per mile on level surface requires about the same "
                                           "effort as 9:00 per mile on an 6% uphill grade or 5:52 per mile on a 6% "
                                           "downhill grade.");
                }
    }

    TEST(Eqpace, EnablesItsRangeButtonsWhileThereIsMore)
    {
        OpenForm eqpace("eqpace");
        const auto enabled = [&] {
            return std::pair{eqpace.get<Button>("sclminus").enabled, eqpace.get<Button>("sclplus").enabled};
        };
        EXPECT_EQ(enabled(), (std::pair{true, true}));
        eqpace.click("sclminus");
        EXPECT_EQ(enabled(), (std::pair{false, true}));
        for (int i = 0; i < 3; ++i)
            eqpace.click("sclplus");
        EXPECT_EQ(eqpace.state().slopeTools.hillScale, 4);
        EXPECT_EQ(enabled(), (std::pair{true, false}));
    }

    TEST(Eqpace, OpenedFromTheMenuShowsTheSecondScaleAndLeavesItsButtons)
    {
        OpenForm eqpace("eqpace");
        eqpace.click("sclplus");
        eqpace.click("sclplus");
        enter(eqpace.program, "vantstart.hillpaces", false, Event(eqpace.program.vantstart->hillpaces.clicked));
        eqpace.expectTable("eqpace_scale_2_miles_surface");
        EXPECT_FALSE(eqpace.get<Button>("sclplus").enabled) << "not touched at that moment";
        eqpace.click("sclminus");
        eqpace.expectTable("eqpace_scale_1_miles_surface");
    }

    TEST(Eqpace, KeepsTheDefinitionOfAGrade)
    {
        OpenForm eqpace("eqpace");
        eqpace.click("Command4");
        eqpace.close();
        eqpace.open();
        EXPECT_EQ(eqpace.label("Label4"), "  GRADE (vertical rise/horizontal distance)");
        eqpace.expectTable("eqpace_scale_2_miles_horizontal");
        EXPECT_EQ(eqpace.label("Label5"),
                  "Data specific to runners weight and height on main form, so may not fit this example.");
        EXPECT_EQ(eqpace.caption("Command4"), "Switch grade defnition");
    }

    TEST(Tables, ShowTheRowsBeforeAFault)
    {
        ToolForm eqpace("eqpace");
        eqpace.state().runner.bodyDrag = 0;
        eqpace.open();
        ASSERT_NE(eqpace.form(), nullptr) << "it is open all the same";
        EXPECT_EQ(eqpace.outside.events,
                  Names{"fault: The calculation stopped: division by zero while printing the hill table."});
        EXPECT_EQ(eqpace.lines().size(), 7U);   // head, and a row that was begun
        eqpace.state().runner.bodyDrag = 60;
        eqpace.click("Command2");
        EXPECT_EQ(eqpace.lines().size(), 25U);
    }

    class EveryPowerForm : public testing::TestWithParam<const char*>
    {};

    TEST_P(EveryPowerForm, ListsEachControlOnceAndSaysWhatItIs)
    {
        ToolForm tool(GetParam());
        tool.open();
        std::map<std::string, int> names;
        for (const ControlRef& control : tool.form()->controls)
        {
            EXPECT_EQ(++names[common(control).name], 1) << common(control).name;
            EXPECT_FALSE(common(control).caption.empty() && common(control).tip.empty()) << common(control).name;
        }
        tool.close();
        EXPECT_EQ(tool.form(), nullptr);
    }

    INSTANTIATE_TEST_SUITE_P(ByName, EveryPowerForm, testing::Values("quickcalcs", "powen", "tmill", "eqpace"),
                             [](const auto& name) { return name.param; });
}
