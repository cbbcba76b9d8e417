#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "support/case_name.h"
#include "support/close_to.h"
#include "support/tool_form.h"

namespace
{
    using Names = std::vector<std::string>;

    /// The form of a man of 40 who runs 10 km in 40:00 on 20 miles a week.
    struct Heathum : ToolForm
    {
        Heathum() : ToolForm("heathum")
        {
            Curve& curve = state().curve;
            curve.aerobicPower = 718.9014246120277;
            curve.anaerobicEnergy = 1128612.647840636;
            curve.refDistance = 10000;
            curve.fatigueCoef = 0.14564314245873303;
            state().runner.age = 40;
        }

        [[nodiscard]] Names row(int i)
        {
            const std::string n = "(" + std::to_string(i) + ")";
            return {label("idealt" + n), label("givent" + n), label("pdec" + n)};
        }
        [[nodiscard]] Names table()
        {
            Names all;
            for (int i = 0; i < 10; ++i)
                for (const std::string& text : row(i))
                    all.push_back(text);
            return all;
        }
        [[nodiscard]] Names texts(const Names& boxes)
        {
            Names all;
            for (const std::string& box : boxes)
                all.push_back(text(box));
            return all;
        }
        void tick(const std::string& box, bool ticked)
        {
            CheckBox& record = usable<CheckBox>(box);
            enter(program, formName + "." + box, false, [&] { setTicked(record, ticked); });
        }
        void calculate() { click("Command2"); }
    };

    const Names shownWeather{"tfar", "tcel", "rhtx",  "suntx", "sundesc", "dpf",    "dpc",
                             "wbf",  "wbc",  "wbgtf", "wbgtc", "hind",    "humidex"};

    struct Bar
    {
        const char* name;
        int value, min, max, largeStep;
    };

    TEST(HeathumForm, HasItsBars)
    {
        Heathum form;
        form.open();
        for (const Bar& design :
             {Bar{"tscrl", 85, -20, 130, 10}, Bar{"rhscrl", 65, 0, 100, 10}, Bar{"sunscrl", 5, 0, 10, 1},
              Bar{"htscrl2", 70, 36, 90, 1}, Bar{"wtscrl2", 160, 30, 330, 1}, Bar{"weekmi", 20, 0, 150, 10}})
        {
            const ScrollBar& bar = form.get<ScrollBar>(design.name);
            EXPECT_EQ((std::vector{bar.value, bar.min, bar.max, bar.smallStep, bar.largeStep}),
                      (std::vector{design.value, design.min, design.max, 1, design.largeStep}))
                << design.name;
        }
    }

    // By a program of its own in another language.
    TEST(HeathumForm, OpensWithTheRunnersOwnTimes)
    {
        Heathum form;
        form.open();
        EXPECT_TRUE(form.outside.events.empty());
        EXPECT_EQ(form.form()->title, "Temperature and Humidity Effects");
        EXPECT_EQ(form.texts(shownWeather), (Names{"   85", " 29.4", "   65", "5", "partly to mostly cloudy", " 71.9",
                                                   " 22.2", " 75.6", " 24.2", "   83", " 28.1", "   92", " 39.0"}));
        EXPECT_EQ(form.texts({"htin", "htcm", "wtlb", "wtkg", "agetx", "wmi", "wkm"}),
                  (Names{"70", "  178", "160", " 72.6", "40", "20", "32"}));
        EXPECT_EQ(form.texts({"rhr1", "rmin1", "rsec1", "rmeters1", "rmi1"}),
                  (Names{"0", "4", "39", "1500", "  0.932"}));
        EXPECT_EQ(form.texts({"rhr2", "rmin2", "rsec2", "rmeters2", "rmi2"}),
                  (Names{"1", "36", "2", "21097.5", " 13.109"}));
        EXPECT_EQ(form.texts({"dispred", "dispredmi"}), (Names{"10000", "  6.214"}));
        EXPECT_EQ(form.label("dtopred"), "10000 m");
        EXPECT_EQ(form.row(0), (Names{"   39:59  ", "   41:50  ", "  4.63"}));
        EXPECT_EQ(form.row(1), (Names{"      59.7", "      59.7", "  0.03"}));
        EXPECT_EQ(form.row(2), (Names{"    2:14  ", "    2:14  ", "  0.22"}));
        EXPECT_EQ(form.row(3), (Names{"    4:39  ", "    4:41  ", "  0.64"}));
        EXPECT_EQ(form.row(4), (Names{"    5:03  ", "    5:05  ", "  0.71"}));
        EXPECT_EQ(form.row(5), (Names{"   10:21  ", "   10:31  ", "  1.52"}));
        EXPECT_EQ(form.row(6), (Names{"   18:27  ", "   18:55  ", "  2.53"}));
        EXPECT_EQ(form.row(7), (Names{"   39:59  ", "   41:50  ", "  4.63"}));
        EXPECT_EQ(form.row(8), (Names{" 1:36:02  ", " 1:44:40  ", "  8.99"}));
        EXPECT_EQ(form.row(9), (Names{" 3:56:35  ", " 4:43:45  ", " 19.94"}));
        EXPECT_TRUE(form.isOn("mop"));
        EXPECT_TRUE(form.get<CheckBox>("r1use").ticked);
        EXPECT_TRUE(form.get<CheckBox>("r2use").ticked);
    }

    TEST(HeathumForm, SaysItsTexts)
    {
        Heathum form;
        form.open();
        EXPECT_EQ(form.label("Label54"), "Press 'Calculate' to see results of changes");
        EXPECT_EQ(
            form.label("Label53"),
            "This tool lets you estimate the effect of temperature, humidity, and sunshine on race performances of "
            "various distances.  The default data are from the main form, but you can experiment with those values "
            "independently here.");
        EXPECT_EQ(form.label("Label52"), "Weather Conditions:");
        EXPECT_EQ(form.label("Label51"), "Runner's Physical and Training Data:");
        EXPECT_EQ(form.label("Label50"), "Enter one or two race performances in near-ideal weather conditions:");
        EXPECT_EQ(form.label("Label49"), "(marathon = 42195 meters, half = 21097.5 meters)");
        EXPECT_EQ(form.label("idealHeading"), "In Ideal Conditions ");
        EXPECT_EQ(form.label("givenHeading"), "With Given Conditrions");
        EXPECT_EQ(form.label("decrementHeading"), "Percent Decrement");
        EXPECT_EQ(form.label("raceHeading"), "Use     Hours     Min       Sec          Meters             Miles");
        const Names rows{"400 m", "800 m", "1500 m", "1 mile", "3000 m", "5000 m", "10000 m", "half mara", "marathon"};
        for (int i = 1; i <= 9; ++i)
            EXPECT_EQ(form.label("rowName(" + std::to_string(i) + ")"), rows[static_cast<std::size_t>(i - 1)]);
    }

    struct Weather
    {
        std::string name;
        int tscrl, rhscrl, sunscrl;
        Names shown;
    };

    class HeathumWeather : public testing::TestWithParam<Weather>
    {};

    TEST_P(HeathumWeather, IsShownByChangeAndDragAlike)
    {
        const Weather& row = GetParam();
        Heathum changed;
        Heathum dragged;
        changed.open();
        dragged.open();
        const Names before = changed.table();
        changed.slide("tscrl", row.tscrl);
        changed.slide("rhscrl", row.rhscrl);
        changed.slide("sunscrl", row.sunscrl);
        dragged.pull("sunscrl", row.sunscrl);
        dragged.pull("rhscrl", row.rhscrl);
        dragged.pull("tscrl", row.tscrl);
        EXPECT_EQ(changed.texts(shownWeather), row.shown);
        EXPECT_EQ(dragged.texts(shownWeather), row.shown);
        EXPECT_EQ(changed.table(), before) << "only Calculate changes the table";
    }

    INSTANTIATE_TEST_SUITE_P(
        BySecondWay, HeathumWeather,
        testing::Values(Weather{"coldest",
                                -20,
                                65,
                                5,
                                {"  -20", "-28.9", "   65", "5", "partly to mostly cloudy", "-28.0", "-33.4", "-20.6",
                                 "-29.2", "  -16", "-26.8", "  -20", "-34.2"}},
                        Weather{"at_20",
                                20,
                                65,
                                5,
                                {"   20", " -6.7", "   65", "5", "partly to mostly cloudy", " 10.2", "-12.1", " 17.6",
                                 " -8.0", "   22", " -5.3", "   20", "-10.9"}},
                        Weather{"hottest",
                                130,
                                100,
                                10,
                                {"  130", " 54.4", "  100", "10", "clear, sun nearly overhead", "130.0", " 54.4",
                                 "130.0", " 54.4", "  138", " 59.0", "  682", "140.9"}},
                        Weather{"dry_night",
                                32,
                                0,
                                0,
                                {"   32", "  0.0", "    0", "0", "night", "-154.0", "-103.3", " 21.5", " -5.8", "   25",
                                 " -4.1", "   32", " -5.6"}}),
        byName);

    TEST(HeathumForm, DescribesTheSunshine)
    {
        Heathum form;
        form.open();
        const Names described{"night",
                              "dark overcast",
                              "overcast",
                              "cloudy or very low sun",
                              "mostly cloudy or low sun",
                              "partly to mostly cloudy",
                              "partly cloudy, sun not too high",
                              "partly cloudy",
                              "mostly sunny",
                              "mostly sunny, sun nearly overhead",
                              "clear, sun nearly overhead"};
        for (int sun = 0; sun <= 10; ++sun)
        {
            form.slide("sunscrl", sun);
            EXPECT_EQ(form.text("sundesc"), described[static_cast<std::size_t>(sun)]);
            EXPECT_EQ(form.text("suntx"), std::to_string(sun));
        }
    }

    TEST(HeathumForm, GivesTheSameTableAgain)
    {
        Heathum form;
        form.open();
        const Names before = form.table();
        form.calculate();
        EXPECT_EQ(form.table(), before);
    }

    TEST(HeathumForm, TakesTheSexIntoTheFadeWithTheMileage)
    {
        Heathum form;
        form.open();
        EXPECT_TRUE(closeTo(form.state().heat.heatFatigueCoef, 0.14564314245873303));
        form.choose("fop");
        EXPECT_TRUE(closeTo(form.state().heat.heatFatigueCoef, 0.14564314245873303));
        form.slide("weekmi", 21);
        form.slide("weekmi", 20);
        EXPECT_TRUE(closeTo(form.state().heat.heatFatigueCoef, 0.12364314245873304));
    }

    TEST(HeathumForm, OpensForAWoman)
    {
        Heathum form;
        form.state().runner.sex = 'f';
        form.state().runner.weeklyMiles = 10;
        form.state().runner.heightCm = 37 * 2.54;   // the bars' passing values
        form.state().runner.weightKg = 38 * 0.45359237;
        form.open();
        EXPECT_TRUE(form.isOn("fop"));
        EXPECT_FALSE(form.isOn("mop"));
        EXPECT_EQ(form.texts({"htin", "wtlb", "wmi", "wkm"}), (Names{"37", "38", "10", "16"}));
        EXPECT_TRUE(closeTo(form.state().heat.heatFatigueCoef, 0.19537583136277376));
    }

    TEST(HeathumForm, HoldsTheRunnersBodyWithinItsBars)
    {
        Heathum form;
        form.state().runner.weightKg = 1e300;
        form.state().runner.heightCm = -1e300;
        form.open();
        EXPECT_EQ(form.texts({"htin", "wtlb"}), (Names{"36", "330"}));
    }

    TEST(HeathumForm, StopsBeforeAnyRace)
    {
        ToolForm form("heathum");
        form.open();
        EXPECT_EQ(form.outside.events,
                  Names{"fault: The calculation stopped: division by zero while predicting the runner's time over 1500 "
                        "m."});
        EXPECT_EQ(form.text("rmeters1"), "1500");
        EXPECT_EQ(form.text("rmin1"), "");
        EXPECT_EQ(form.text("rmeters2"), "");
    }

    TEST(HeathumForm, ShowsSixtySecondsWithoutACarry)
    {
        Heathum form;
        form.state().curve.refDistance = 10000;
        form.state().curve.anaerobicEnergy = 0;
        // at constant power over 1500 m: speed sqrt((P - 140) / 60), 3 s at the start
        form.state().curve.aerobicPower = 140 + 60 * square(1500.0 / (299.7 - 3));
        form.open();
        EXPECT_EQ(form.texts({"rhr1", "rmin1", "rsec1"}), (Names{"0", "4", "60"}));
    }

    TEST(HeathumForm, RefusesAndKeepsItsTable)
    {
        Heathum form;
        form.open();
        const Names before = form.table();
        form.tick("r1use", false);
        form.tick("r2use", false);
        form.type("dispred", "15000");
        form.calculate();
        EXPECT_EQ(form.outside.events, Names{"message: Please check at least one of the two races to be used."});
        EXPECT_EQ(form.label("dtopred"), "15000 m") << "it has changed by then";
        EXPECT_EQ(form.table(), before);
        for (const char* box : {"dispred", "rmeters1", "rmeters2"})
        {
            form.outside.forget();
            const std::string kept = form.text(box);
            form.type(box, "far");
            form.calculate();
            EXPECT_EQ(
                form.outside.events,
                Names{"message: This form does not use or predict races shorter than 400 meters, which are hardly "
                      "affected by temperature or humidity anyway."})
                << box;
            form.type(box, kept);
        }
        EXPECT_EQ(form.table(), before);
    }

    TEST(HeathumForm, NamesTheDistanceBeforeItReadsTheRaces)
    {
        Heathum form;
        form.open();
        form.type("dispred", "15000");
        form.type("rhr1", "1e999");
        form.calculate();
        EXPECT_EQ(form.outside.faults.size(), 1U);
        EXPECT_EQ(form.label("dtopred"), "15000 m");
    }

    TEST(HeathumForm, KeepsToItsOwnCopies)
    {
        Heathum form;
        form.open();
        const Runner before = form.state().runner;
        form.slide("wtscrl2", 300);
        form.slide("htscrl2", 80);
        form.slide("weekmi", 99);
        form.type("agetx", "77");
        form.choose("fop");
        form.calculate();
        const Runner& after = form.state().runner;
        EXPECT_EQ((std::vector{after.age, after.weightKg, after.heightCm, after.weeklyMiles}),
                  (std::vector{before.age, before.weightKg, before.heightCm, before.weeklyMiles}));
        EXPECT_EQ(after.sex, 'm');
        form.click("Command1");
        EXPECT_EQ(form.form(), nullptr);
    }

    TEST(HeathumForm, GivesEveryEntryATip)
    {
        Heathum form;
        form.open();
        for (const ControlRef& control : form.form()->controls)
            if (!std::holds_alternative<Label*>(control))
            {
                EXPECT_NE(common(control).tip, "") << common(control).name;
            }
    }

    RC_GTEST_PROP(HeathumForm, AnswersEveryTextWithATableOrAFault, ())
    {
        static const Names boxes{"tcel",  "rhtx",  "suntx", "wbc",   "htcm",  "wtkg",     "agetx",    "rhr1",
                                 "rmin1", "rsec1", "rhr2",  "rmin2", "rsec2", "rmeters1", "rmeters2", "dispred"};
        static const Names texts{"", "0", "-1", "1", "59.5", "400", "9000", "42195", "1e308", "1e999", "abc", "-1e300"};
        Heathum form;
        form.open();
        for (int i = 0; i < 6; ++i)
        {
            form.type(*rc::gen::elementOf(boxes), *rc::gen::elementOf(texts));
            form.tick("r2use", *rc::gen::arbitrary<bool>());
            form.slide("tscrl", *rc::gen::inRange(-20, 131));
            form.calculate();
        }
        for (const FaultReport& fault : form.outside.faults)
            RC_ASSERT(fault.text.starts_with("The calculation stopped: "));
        const Heat& heat = form.state().heat;
        for (const double number : {heat.airTempK, heat.wbgtC, heat.heatFatigueCoef, heat.paceBase, heat.paceSlope})
            RC_ASSERT(std::isfinite(number));
        for (const std::string& text : form.table())
            RC_ASSERT(text.find("nan") == std::string::npos && text.find("inf") == std::string::npos);
    }
}
