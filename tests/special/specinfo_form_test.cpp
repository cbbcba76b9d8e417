#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "analysed_runner.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/tool_form.h"

namespace
{
    using Names = std::vector<std::string>;

    struct Specinfo : ToolForm
    {
        Specinfo() : ToolForm("specinfo")
        {
            state().curve = runnerOf40Minutes().curve;
            open();
        }

        /// Closes the form and opens it anew.
        void reopen()
        {
            click("Command3");
            open();
        }
    };

    TEST(Specinfo, OpensWithItsDesign)
    {
        Specinfo form;
        EXPECT_EQ(form.form()->title, "Special Information");
        EXPECT_EQ(form.text("Text1"), "5");
        EXPECT_EQ(form.text("Text3"), "0.00");
        EXPECT_EQ(form.text("Text2"), "0.00");
        for (const char* box : {"wsmps", "wskph", "wsmph", "wsknt"})
            EXPECT_EQ(form.text(box), "0") << box;
        for (const char* box : {"Text4", "Text5"})
            EXPECT_EQ(form.text(box), "") << box;
        for (const char* option :
             {"optmi", "optyd", "optm", "optmara", "opthmara", "Option1", "Option2", "Option3", "Option5", "tailw"})
            EXPECT_FALSE(form.isOn(option)) << option;
        EXPECT_TRUE(form.isOn("optkm"));
        EXPECT_TRUE(form.isOn("headw"));
        const ScrollBar& bar = form.get<ScrollBar>("wsscr");
        EXPECT_EQ((std::vector{bar.value, bar.min, bar.max, bar.smallStep, bar.largeStep}),
                  (std::vector{0, 0, 200, 1, 10}));
        EXPECT_FALSE(form.get<Button>("Command4").enabled);
        EXPECT_FALSE(form.get<Label>("Label8").visible);
        EXPECT_TRUE(form.lines().empty());
        EXPECT_TRUE(form.lines("winds").empty());
        EXPECT_TRUE(form.outside.events.empty());
    }

    struct Text
    {
        std::string name;
        const char* caption;
    };

    TEST(Specinfo, HasItsFixedTexts)
    {
        Specinfo form;
        for (const Text& row : {
                 Text{"Label1", "Choose a distance to analyze.  You can get a predicted time for this distance on a "
                                "level surface (with the optional effect of uneven pacing) or on hills (up, down, or "
                                "half-of-each slopes), with or without wind."},
                 Text{"distanceLabel", "Your distance:"},
                 Text{"distanceHeading", "Number:                   Units:"},
                 Text{"optmara", "mara"},
                 Text{"opthmara", "half mara"},
                 Text{"Option1", "Uneven splits effect (no wind or hills)"},
                 Text{"Option2", "Hills and wind - constant"},
                 Text{"Option3", "Hills and wind - out and back (plus track and cross wind estimates; make slope zero "
                                 "for accurate track data)"},
                 Text{"Option5", "Level time only (no wind)"},
                 Text{"Text3", "Slope (rise/distance along surface).  Use negative for downhill. "},
                 Text{"Text2", "Same incline defined as vertical/horizontal"},
                 Text{"windHeading", "Wind speed    m/s    km/h   mi/h    knots"},
                 Text{"windwarn", "Wind speed  measured at 1 meter above the ground (about waist level for a 6 foot "
                                  "tall runner).  This is about half the official 10 meter speed given in weather "
                                  "reports, or about 80% that measured at 2 meters."},
                 Text{"Label4", "Predicted level time:"},
                 Text{"Label5", "Time   Per Mi   Per km   Per 400   Record   %Spd   P.Level"},
                 Text{"Label8", "Paces in minutes per mile"},
                 Text{"Label10", "Values for constant hills or wind::"},
                 Text{"Label11",
                      "Additional, related tools are available on other forms, accessible via the buttons below:"},
                 Text{"Command1", "Calculate"},
                 Text{"Command2", "Help"},
                 Text{"Command3", "Close"},
                 Text{"Command4", "Switch to minutes/kilometer"},
                 Text{"Command5", "Print"},
                 Text{"Command6", "Uneven Splits Analysis"},
                 Text{"Command7", "Course Elevation Profile Analysis"},
                 Text{"Command8", "Temperature and Humidity Effects"},
             })
        {
            const ControlRef* control = findControl(*form.form(), row.name);
            ASSERT_NE(control, nullptr) << row.name;
            EXPECT_EQ(common(*control).caption, row.caption) << row.name;
        }
    }

    struct Wind
    {
        std::string name;
        int value;
        const char *mps, *kph, *mph, *knots;

        friend std::ostream& operator<<(std::ostream& out, const Wind& row) { return out << row.name; }
    };

    class WindShown : public testing::TestWithParam<Wind>
    {};

    TEST_P(WindShown, InFourUnits)
    {
        Specinfo form;
        const Wind& wind = GetParam();
        for (const bool dragged : {false, true})
        {
            form.slide("wsscr", 77);
            dragged ? form.pull("wsscr", wind.value) : form.slide("wsscr", wind.value);
            EXPECT_EQ(form.text("wsmps"), wind.mps);
            EXPECT_EQ(form.text("wskph"), wind.kph);
            EXPECT_EQ(form.text("wsmph"), wind.mph);
            EXPECT_EQ(form.text("wsknt"), wind.knots);
            EXPECT_TRUE(closeTo(form.state().special.windBase, wind.value / 10.0));
        }
    }

    // tenths: times 36 for km/h, 36 / 1.609344 = 22.36936 for mi/h, that / 1.153 = 19.40101 for knots, halves to even
    INSTANTIATE_TEST_SUITE_P(ByHand, WindShown,
                             testing::Values(Wind{"none", 0, "0", "0", "0", "0"},
                                             Wind{"tenth", 1, "0.1", "0.4", "0.2", "0.2"},     // 3.6, 2.24, 1.94
                                             Wind{"half", 5, "0.5", "1.8", "1.1", "1"},        // 18, 11.18, 9.70
                                             Wind{"one", 10, "1", "3.6", "2.2", "1.9"},        // 36, 22.37, 19.40
                                             Wind{"fair", 64, "6.4", "23", "14.3", "12.4"},    // 230.4, 143.2, 124.2
                                             Wind{"most", 200, "20", "72", "44.7", "38.8"}),   // 720, 447.4, 388.0
                             byName);

    TEST(WindBase, TakesTheSignOfItsDirection)
    {
        Specinfo form;
        form.slide("wsscr", 35);
        EXPECT_EQ(form.state().special.windBase, 3.5);
        form.choose("tailw");
        EXPECT_EQ(form.state().special.windBase, -3.5);
        form.slide("wsscr", 20);
        EXPECT_EQ(form.state().special.windBase, -2);
        form.choose("headw");
        EXPECT_EQ(form.state().special.windBase, 2);
        EXPECT_EQ(form.state().incline.windSpeed, 0) << "taken by an analysis";
    }

    struct Slope
    {
        const char* typed;
        const char* horizontal;
    };

    TEST(Slope, IsShownOverHorizontalDistance)
    {
        Specinfo form;
        for (const Slope& row : {Slope{"0.03", "0.0300"}, Slope{"0.6", "0.7500"}, Slope{"-0.8", "-1.3333"},
                                 Slope{".1 or so", "0.1005"}, Slope{"", "0.0000"}, Slope{"flat", "0.0000"}})
        {
            form.type("Text3", row.typed);
            EXPECT_EQ(form.text("Text2"), row.horizontal) << row.typed;
        }
        EXPECT_TRUE(form.outside.events.empty());
    }

    TEST(Slope, OfOneOrMoreFaultsWithoutABoxAndKeepsWhatWasShown)
    {
        Specinfo form;
        form.type("Text3", "0.6");
        form.type("Text3", "1");
        form.type("Text3", "-1");
        form.type("Text3", "5");
        form.type("Text3", "1e999");
        EXPECT_EQ(form.text("Text2"), "0.7500");
        EXPECT_EQ(form.text("Text3"), "1e999");
        EXPECT_EQ(form.outside.events,
                  (Names{"fault: The calculation stopped: division by zero while converting the slope.",
                         "fault: The calculation stopped: division by zero while converting the slope.",
                         "fault: The calculation stopped: a power without a real value while converting the slope.",
                         "fault: The calculation stopped: an overflow (a number is too large) while converting the "
                         "slope."}));
        for (const FaultReport& fault : form.outside.faults)
            EXPECT_TRUE(fault.keystroke);
    }

    TEST(Command4, IsForTablesAlone)
    {
        Specinfo form;
        const auto isFor = [&](const char* option) {
            form.choose(option);
            form.click("Command1");
            EXPECT_EQ(form.get<Button>("Command4").enabled, form.get<Label>("Label8").visible);
            return form.get<Button>("Command4").enabled;
        };
        form.click("Command1");
        EXPECT_FALSE(form.get<Button>("Command4").enabled);
        EXPECT_TRUE(isFor("Option1"));
        EXPECT_FALSE(isFor("Option2"));
        EXPECT_TRUE(isFor("Option3"));
        form.choose("Option5");
        EXPECT_TRUE(form.get<Button>("Command4").enabled) << "only a run decides";
        EXPECT_FALSE(isFor("Option5"));
        EXPECT_TRUE(isFor("Option1"));
        form.type("Text1", "0");
        EXPECT_TRUE(isFor("Option3")) << "a run that faults decides, too";
    }

    TEST(Command4, FlipsTheUnitAndAnalysesAgain)
    {
        Specinfo form;
        form.choose("Option1");
        form.click("Command1");
        const Names miles = form.lines();
        form.click("Command4");
        EXPECT_EQ(form.caption("Command4"), "Switch to minutes/mile");
        EXPECT_EQ(form.label("Label8"), "Paces in minutes per kilometer");
        const Names kilometers = form.lines();
        EXPECT_NE(miles, kilometers);
        EXPECT_EQ(form.state().special.paceDivisor, 1.609344);
        form.click("Command4");
        EXPECT_EQ(form.label("Label8"), "Paces in minutes per mile");
        EXPECT_EQ(form.lines(), miles);
    }

    TEST(Calculate, ClearsWhatTheOtherModeLeft)
    {
        Specinfo form;
        form.choose("Option3");
        form.click("Command1");
        EXPECT_FALSE(form.lines().empty());
        EXPECT_EQ(form.lines("winds").size(), 3U);
        form.choose("Option2");
        form.click("Command1");
        EXPECT_TRUE(form.lines().empty());
        EXPECT_TRUE(form.lines("winds").empty());
        EXPECT_NE(form.text("Text5"), "");
        form.type("Text1", "600");
        form.click("Command1");
        EXPECT_EQ(form.text("Text4"), "");
        EXPECT_EQ(form.text("Text5"), "");
        EXPECT_EQ(form.outside.events,
                  Names{"message: Distance over 500 km (311 miles)!  Check your units as well as the entered number."});
    }

    TEST(Calculate, GoesByTheUnitThatIsChosen)
    {
        Specinfo form;
        for (const auto& [option, metres] :
             {std::pair{"optmi", 5 * 1609.344}, std::pair{"optyd", 5 * (1609.344 / 1760)}, std::pair{"optkm", 5000.0},
              std::pair{"optm", 5.0}, std::pair{"optmara", 42195.0}, std::pair{"opthmara", 21097.5}})
        {
            form.choose(option);
            form.click("Command1");
            EXPECT_EQ(form.state().results.curDistance, metres) << option;
        }
    }

    TEST(Calculate, ReadsTheMainFormsComparisonLevel)
    {
        Specinfo form;
        form.choose("Option5");
        form.click("Command1");
        const std::string full = form.text("Text4");
        enter(form.program, "vantstart.HScroll2", false, [&] { setValue(form.program.vantstart->HScroll2, 900); });
        form.click("Command1");
        EXPECT_NE(form.text("Text4"), full);
        enter(form.program, "vantstart.HScroll2", false, [&] { setValue(form.program.vantstart->HScroll2, 0); });
        form.click("Command1");
        EXPECT_EQ(form.outside.faults.size(), 1U) << "no time has a level of 0";
    }

    TEST(Print, AnalysesTwiceAndHidesFiveButtons)
    {
        Specinfo form;
        form.choose("Option1");
        form.click("Command5");
        ASSERT_EQ(form.printed.size(), 1U);
        EXPECT_EQ(form.printed[0].form, "specinfo");
        EXPECT_EQ(form.printed[0].hidden, (Names{"Command1", "Command2", "Command3", "Command4", "Command5"}));
        for (const char* button : {"Command1", "Command2", "Command3", "Command4", "Command5"})
            EXPECT_TRUE(form.get<Button>(button).visible) << button;
        EXPECT_FALSE(form.lines().empty());
        form.type("Text1", "600");
        form.click("Command5");
        EXPECT_EQ(form.outside.messages.size(), 2U);
        EXPECT_EQ(form.printed.size(), 2U);
        form.type("Text1", "0");
        form.click("Command5");
        EXPECT_EQ(form.printed.size(), 2U);
        EXPECT_TRUE(form.get<Button>("Command3").visible);
    }

    TEST(Reopening, ShowsTheLatestRunsEntriesWithoutItsOutput)
    {
        Specinfo form;
        form.type("Text1", "12.5");
        form.choose("optmi");
        form.choose("Option3");
        form.type("Text3", "0.02");
        form.slide("wsscr", 30);
        form.choose("tailw");
        form.click("Command1");
        form.type("Text1", "99");   // after the run: forgotten
        form.slide("wsscr", 150);
        form.reopen();
        EXPECT_EQ(form.text("Text1"), "12.5");
        EXPECT_TRUE(form.isOn("optmi"));
        EXPECT_FALSE(form.isOn("optkm"));
        EXPECT_TRUE(form.isOn("Option3"));
        EXPECT_EQ(form.text("Text3"), "0.02");
        EXPECT_EQ(form.text("Text2"), "0.0200");
        EXPECT_EQ(form.get<ScrollBar>("wsscr").value, 30);
        EXPECT_EQ(form.text("wsmps"), "3");
        EXPECT_TRUE(form.isOn("tailw"));
        EXPECT_FALSE(form.isOn("headw"));
        EXPECT_EQ(form.state().special.windBase, -3);
        EXPECT_EQ(form.text("Text4"), "");
        EXPECT_TRUE(form.lines().empty());
        EXPECT_FALSE(form.get<Button>("Command4").enabled);
        EXPECT_EQ(form.caption("Command4"), "Switch to minutes/kilometer");
    }

    TEST(Closing, LeavesTheWindAndTheDirectionOfTheLastHalf)
    {
        Specinfo form;
        form.choose("Option3");
        form.type("Text3", "0.02");
        form.slide("wsscr", 30);
        form.click("Command1");
        EXPECT_TRUE(form.outside.faults.empty());
        form.click("Command3");
        EXPECT_EQ(form.form(), nullptr);
        EXPECT_EQ(form.state().incline.windSpeed, -3) << "the head wind of the first half blows from behind";
        EXPECT_EQ(form.state().incline.slopeDirection, -1) << "the second half goes down";
        form.open();
        EXPECT_EQ(form.state().incline.windSpeed, -3);
        EXPECT_EQ(form.state().incline.slopeDirection, -1);
    }

    TEST(Reopening, ComputesTheWindFromARestoredBarOfZero)
    {
        Specinfo form;
        form.click("Command1");
        form.slide("wsscr", 50);
        form.reopen();
        EXPECT_EQ(form.state().special.windBase, 0);
    }

    TEST(Reopening, WithoutARunKeepsTheWindOfBefore)
    {
        Specinfo form;
        form.slide("wsscr", 50);
        form.reopen();
        EXPECT_EQ(form.get<ScrollBar>("wsscr").value, 0);
        EXPECT_EQ(form.state().special.windBase, 5);
    }

    TEST(Reopening, OfAnOpenFormClearsItAndRestores)
    {
        Specinfo form;
        form.choose("Option1");
        form.click("Command1");
        form.type("Text1", "8");
        form.choose("Option5");
        form.open();
        EXPECT_EQ(form.text("Text1"), "5");
        EXPECT_TRUE(form.isOn("Option1"));
        EXPECT_TRUE(form.lines().empty());
        EXPECT_EQ(form.text("Text4"), "");
    }

    TEST(Reopening, RestoresAllButTheShowOfAnImpossibleSlope)
    {
        Specinfo form;
        form.type("Text3", "2");
        form.slide("wsscr", 40);
        form.choose("Option5");
        form.click("Command1");
        form.outside.forget();
        form.reopen();
        EXPECT_EQ(form.text("Text3"), "2");
        EXPECT_EQ(form.text("Text2"), "0.00");
        EXPECT_EQ(form.get<ScrollBar>("wsscr").value, 40);
        EXPECT_TRUE(form.isOn("Option5"));
        EXPECT_EQ(form.outside.faults.size(), 1U);
    }

    TEST(Buttons, LeadToOtherTools)
    {
        Specinfo form;
        Names opened;
        form.program.outside.openForm = [&](const std::string& name) { opened.push_back(name); };
        for (const char* button : {"Command2", "Command6", "Command7", "Command8"})
            form.click(button);
        EXPECT_EQ(opened, (Names{"helpform", "splitform", "profile", "heathum"}));
    }

    TEST(Specinfo, IsClosedWithTheProgram)
    {
        Specinfo form;
        enter(form.program, "vantstart", false, [&] { closeForm(form.program, "vantstart"); });
        EXPECT_EQ(form.form(), nullptr);
        EXPECT_EQ(form.program.vantstart, nullptr);
    }

    TEST(Pstrat, FlipsItsUnitAndAnalysesAgain)
    {
        ToolForm pstrat("pstrat");
        pstrat.state().curve = runnerOf40Minutes().curve;
        pstrat.open();
        EXPECT_EQ(pstrat.form()->title, "Results of Various Pacing Strategies");
        EXPECT_EQ(pstrat.label("Label1"), "Paces in minutes per mile");
        EXPECT_EQ(pstrat.caption("Command2"), "Switch to minutes/kilometer");
        pstrat.click("Command2");
        EXPECT_EQ(pstrat.label("Label1"), "Paces in minutes per kilometer");
        EXPECT_EQ(pstrat.caption("Command2"), "Switch to minutes/mile");
        Form* const specinfo = findForm(pstrat.program, "specinfo");
        ASSERT_NE(specinfo, nullptr);
        EXPECT_NE(std::get<TextBox*>(*findControl(*specinfo, "Text4"))->text, "");
        pstrat.click("Command2");
        EXPECT_EQ(pstrat.label("Label1"), "Paces in minutes per mile");
        pstrat.close();
        EXPECT_EQ(pstrat.form(), nullptr);
    }
}
