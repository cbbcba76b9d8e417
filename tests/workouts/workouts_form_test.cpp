#include "workouts/workouts_form.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/planning.h"

namespace
{
    using testing::Each;
    using testing::ElementsAre;

    constexpr const char* noGoodRow =
        "At least one row of boxes must have a non-zero distance, a non-zero number, and a work/recovery percentage "
        "of at least 5.";

    std::string at(const char* name, int row)
    {
        return arrayName(name, row);
    }

    using Shown = std::vector<std::pair<const char*, const char*>>;

    struct OpenPlanner : PlanningProgram
    {
        OpenPlanner() : PlanningProgram("workouts") { open(); }

        void expectLabels(const Shown& labels)
        {
            for (const auto& [name, caption] : labels)
                EXPECT_EQ(label(name), caption) << name;
        }
        [[nodiscard]] std::vector<std::string> said()
        {
            std::vector<std::string> texts;
            for (const Message& message : outside.messages)
                texts.push_back(message.text);
            outside.forget();
            return texts;
        }
    };

    // 4 times 800 m for 30 miles a week, worked out apart from the program
    const Shown fourTimes800{{"Label3(2)", " 11.7"},
                             {"rptslbl(2)", "  0.6"},
                             {"split(2)", "    3:00  "},
                             {"sec400(2)", " 90.1"},
                             {"sec100(2)", " 22.5"},
                             {"minmi(2)", "    6:02  "},
                             {"restd(2)", "351"},
                             {"rest(2)", "    2:38  "},
                             {"rsec100(2)", " 45.0"},
                             {"rminmi(2)", "   12:05  "},
                             {"fastm", "3200"},
                             {"fastmi", " 1.99"},
                             {"recm", "1053"},
                             {"recmi", " 0.65"},
                             {"totm", "4253"},
                             {"totmi", " 2.64"},
                             {"fasttime", "   12:00  "},
                             {"rectime", "    7:54  "},
                             {"tottime", "   19:54  "},
                             {"effectiveIntensity", "97"},
                             {"totload", " 12.3"},
                             {"totldst", "16"},
                             {"stload", "76"},
                             {"approxhr", "177"},
                             {"newmeanhr", "156"},
                             {"apminhr", "124"},
                             {"hrpctmax", "95"},
                             {"hrrlbl", "94"},
                             {"zonelbl", "VO2 max pace, but somewhat easy due to short workout"}};

    TEST(Opened, HoldsItsDesignEntries)
    {
        OpenPlanner planner;
        const std::vector<std::vector<std::string>> rows{{"400", "0", "83"},
                                                         {"600", "0", "100"},
                                                         {"800", "4", "114"},   // 5 * 0.76 for 30 miles
                                                         {"1200", "0", "137"},
                                                         {"1609.3", "0", "155"}};
        for (int i = 0; i < 5; ++i)
        {
            const auto& row = rows[static_cast<std::size_t>(i)];
            EXPECT_EQ(planner.text(at("dist", i)), row[0]);
            EXPECT_EQ(planner.text(at("num", i)), row[1]);
            EXPECT_EQ(planner.text(at("wrp", i)), row[2]);
        }
        EXPECT_TRUE(planner.isOn("ints"));
        EXPECT_FALSE(planner.get<CheckBox>("acwr").ticked);
        EXPECT_EQ(planner.label("scrdesclbl"), "");
        EXPECT_EQ(planner.text("pctmaxtxt"), "97");
        EXPECT_EQ(planner.text("vrtext"), "85");
        EXPECT_EQ(planner.text("recovpacetxt"), "50");
        EXPECT_EQ(planner.text("perfadjtxt"), "100");
        EXPECT_EQ(planner.get<ScrollBar>("perfadj").value, 200);
        EXPECT_EQ(findForm(planner.program, "workouts")->title, "Workout Planner");
        EXPECT_TRUE(planner.outside.events.empty());
    }

    TEST(Opened, PreviewsUntilTheNextChange)
    {
        OpenPlanner planner;
        // 4 * 20 * (800 / 800) ^ 0.7 = 80 points; 80 / 0.7617 = 105.03; 800 / 4.41 * 0.98 = 177.8; / 1.1382 = 156.2
        planner.expectLabels({{"Label3(2)", "80"},
                              {"Label3(0)", "0"},
                              {"totload", "80"},
                              {"totldst", "105"},
                              {"stload", "76"},
                              {"split(2)", "    2:58  "},
                              {"rest(2)", "    2:36  "},
                              {"sec400(2)", " 90.1"}});
        planner.click("Command3");
        planner.expectLabels(fourTimes800);
        EXPECT_EQ(planner.label("Label3(0)"), "");
        EXPECT_EQ(planner.label("split(0)"), "");
        EXPECT_EQ(planner.get<Label>("zonelbl").colour, (Colour{0, 70, 130}));
    }

    TEST(Opened, ShowsRaceTimes)
    {
        OpenPlanner planner;
        planner.expectLabels({{"p400", " 72.4"},
                              {"p800", "    2:37  "},
                              {"p1500", "    5:18  "},
                              {"p1600", "    5:42  "},
                              {"pmile", "    5:44  "},
                              {"p3000", "   11:26  "},
                              {"p3200", "   12:17  "},
                              {"p5000", "   20:00  "},
                              {"p10000", "   42:20  "}});
    }

    TEST(Opened, SaysTheFixedTexts)
    {
        OpenPlanner planner;
        planner.expectLabels(
            {{"rowHeading", "  Distance (m)   Number   Points   Points   Work/Rec (%)   Split   sec/400   sec/100  "
                            "min/mi    Distance   Time    sec/100   min/mi"},
             {"raceHeading", "400      800      1500    1600      mile      3000      3200        5000      10000"},
             {"summaryHeading", "Workout Summary:"},
             {"fastHeading", "Total Fast "},
             {"recoveryHeading", "Recovery (stopping after last fast)"},
             {"totalHeading", "Total Workout"},
             {"stressHeading", "Stress evaluation (similar to JackDaniels' point system)"},
             {"heartHeading", "Heart Rate:"},
             {"effortHeading", "Effort"},
             {"meanHeading", "Mean"},
             {"recovHeading", "Recov"}});
        for (const auto& [name, heading] : Shown{{"fastm", "meters = "},
                                                 {"recm", "meters = "},
                                                 {"totm", "meters = "},
                                                 {"fastmi", "miles in"},
                                                 {"recmi", "miles in"},
                                                 {"totmi", "miles in"},
                                                 {"effectiveIntensity", "time adj int"},
                                                 {"totload", "Total Workout Points"},
                                                 {"totldst", "Percent of Standard"},
                                                 {"stload", "Standard Points for Weekly Mileage"},
                                                 {"approxhr", "Effort HR = "},
                                                 {"hrpctmax", "% of max ="},
                                                 {"hrrlbl", "% Heart Rate Reserve"}})
            EXPECT_EQ(planner.get<Label>(name).heading, heading) << name;
        for (const auto& [name, caption] : Shown{{"Command1", "Close"}, {"Command2", "Help"}, {"Command3", ""}})
            EXPECT_EQ(planner.get<Button>(name).caption, caption);
        EXPECT_EQ(planner.get<OptionButton>("ints").caption, "Intervals");
        EXPECT_EQ(planner.get<OptionButton>("scrun").caption, "Single Continuous Run (use last row)");
        EXPECT_EQ(planner.get<CheckBox>("acwr").caption, "Automatically  choose work:recovery ratio");
        struct Bar
        {
            const char *name, *caption;
            int min, max, largeStep;
        };
        for (const auto& [name, caption, min, max, largeStep] :
             {Bar{"pctmax", "Intensity as % of max", 120, 200, 2},
              Bar{"repvoscrl", "Purpose of Workout (applies only to intensity >= 94%)", 0, 100, 10},
              Bar{"recovpace", "Recovery pace as % effort pace", 10, 100, 10},
              Bar{"perfadj", "Performance Adjustment", 160, 240, 10}})
        {
            const ScrollBar& bar = planner.get<ScrollBar>(name);
            EXPECT_EQ(bar.caption, caption);
            EXPECT_EQ(bar.min, min);
            EXPECT_EQ(bar.max, max);
            EXPECT_EQ(bar.smallStep, 1);
            EXPECT_EQ(bar.largeStep, largeStep);
        }
    }

    TEST(LowMileage, PlansNoRepetition)
    {
        PlanningProgram program("workouts");
        program.state().runner.weeklyMiles = 1;   // 5 * 0.078
        program.open();
        EXPECT_EQ(program.text("num(2)"), "0");
        EXPECT_EQ(program.outside.countOf(noGoodRow), 1U);
        EXPECT_EQ(program.label("totldst"), "0");
    }

    TEST(NoMileage, StopsTheOpeningAtThePercentOfStandard)
    {
        PlanningProgram program("workouts");
        program.program.stored.planner.workoutMode = 1;
        program.program.stored.planner.rows[0].dist = "444";
        program.state().runner.weeklyMiles = 0;
        program.open();
        EXPECT_TRUE(program.isOpen());
        ASSERT_EQ(program.outside.faults.size(), 1U);
        EXPECT_EQ(program.text("perfadjtxt"), "99.5") << "the passing value's plan has no standard to compare with";
        EXPECT_EQ(program.text("dist(0)"), "400");
        program.close();
        EXPECT_EQ(program.program.stored.planner.rows[0].dist, "444") << "what was not put back is not lost";
        program.open();
        program.state().runner.weeklyMiles = 30;
        program.type("dist(0)", "500");
        program.close();
        EXPECT_EQ(program.program.stored.planner.rows[0].dist, "500");
    }

    TEST(NoMileage, StopsAtThePercentOfStandard)
    {
        OpenPlanner planner;
        planner.click("Command3");
        planner.state().runner.weeklyMiles = 0;
        planner.type("num(2)", "8");
        ASSERT_EQ(planner.outside.faults.size(), 1U);
        EXPECT_EQ(planner.outside.faults.front().text,
                  "The calculation stopped: division by zero while showing the plan of the workout.");
        planner.expectLabels({{"stload", "0"}, {"fastm", "6400"}, {"totldst", "16"}, {"fasttime", "   12:00  "}});
        EXPECT_NE(planner.label("totload"), " 12.3");
    }

    TEST(Opened, WithoutTrainingSpeedsFaultsAndIsThereAllTheSame)
    {
        PlanningProgram program("workouts");
        program.state().training = {};
        program.open();
        EXPECT_TRUE(program.isOpen());
        ASSERT_EQ(program.outside.faults.size(), 1U);
        EXPECT_EQ(program.label("p5000"), "   20:06  ") << "race times come first, of the passing 99.5 %";
    }

    TEST(Entry, PlansAtOnce)
    {
        OpenPlanner planner;
        planner.type("num(0)", "2");
        planner.expectLabels({{"fastm", "4000"}});
        EXPECT_NE(planner.label("split(0)"), "");
        planner.type("num(0)", "0");
        planner.expectLabels(fourTimes800);
        EXPECT_EQ(planner.label("split(0)"), "");
        planner.type("dist(2)", "1000");
        planner.expectLabels({{"fastm", "4000"}});
        planner.type("wrp(2)", "100");
        EXPECT_EQ(planner.label("restd(2)"), "500");
        EXPECT_TRUE(planner.outside.events.empty());
    }

    TEST(Entry, IsRefusedInTheOrderOfTheBoxes)
    {
        OpenPlanner planner;
        planner.click("Command3");
        planner.type("wrp(1)", "x");
        EXPECT_THAT(planner.said(), ElementsAre("Work/recovery ratio must be numeric."));
        planner.type("num(1)", "");
        EXPECT_THAT(planner.said(), ElementsAre("Number of repeats must be numeric."));
        planner.type("dist(1)", "6oo");
        EXPECT_THAT(planner.said(), ElementsAre("Distance must be numeric."));
        planner.type("wrp(0)", "1:1");
        EXPECT_THAT(planner.said(), ElementsAre("Work/recovery ratio must be numeric."));
        planner.expectLabels(fourTimes800);
    }

    TEST(Entry, WithoutAGoodRowIsRefused)
    {
        OpenPlanner planner;
        planner.click("Command3");
        planner.type("wrp(2)", "4.99");
        planner.type("wrp(2)", "5");
        planner.type("num(2)", "-4");
        EXPECT_THAT(planner.said(), ElementsAre(noGoodRow, noGoodRow));
    }

    TEST(Entry, OfARatioOfZeroFaultsInAnyRow)
    {
        OpenPlanner planner;
        planner.click("Command3");
        planner.type("wrp(0)", "0");
        ASSERT_EQ(planner.outside.faults.size(), 1U);
        EXPECT_EQ(planner.outside.faults.front().text,
                  "The calculation stopped: division by zero while adding up the distances of row 1, whose "
                  "work/recovery ratio is 0.");
        EXPECT_TRUE(planner.outside.faults.front().keystroke);
        planner.expectLabels(fourTimes800);
        planner.outside.forget();
        planner.type("dist(0)", "0");
        EXPECT_TRUE(planner.outside.events.empty()) << "an empty row is passed over";
    }

    TEST(Entry, OfEveryTextInEveryBox)
    {
        OpenPlanner planner;
        for (const char* box : {"dist(0)", "num(0)", "wrp(0)", "dist(4)", "num(4)", "wrp(4)"})
            for (const std::string& text :
                 {std::string("abc"), std::string("1e999"), std::string("-1e999"), std::string("-5"),
                  std::string("1e-320"), std::string("1e308"), std::string("0"), std::string(5000, '9'),
                  std::string("\0x", 2), std::string(" 75 ")})
            {
                planner.type(box, text);
                for (const FaultReport& fault : planner.outside.faults)
                    EXPECT_TRUE(fault.text.starts_with("The calculation stopped: ")) << fault.text;
                planner.outside.forget();
                for (const ControlRef& control : findForm(planner.program, "workouts")->controls)
                    for (const char* bad : {"nan", "inf"})
                    {
                        const bool isShown = std::holds_alternative<Label*>(control);
                        EXPECT_TRUE(!isShown || common(control).caption.find(bad) == std::string::npos) << text;
                    }
            }
    }

    TEST(AutomaticRatio, IsWrittenIntoTheRowsThatCount)
    {
        OpenPlanner planner;
        planner.type("num(0)", "4");
        planner.type("wrp(0)", "10");
        planner.type("wrp(2)", "50");
        planner.tick("acwr", true);
        EXPECT_EQ(planner.text("wrp(0)"), "83");
        EXPECT_EQ(planner.text("wrp(2)"), "114");
        EXPECT_EQ(planner.text("wrp(4)"), "155") << "a row that does not count";
        // worked out apart from the program
        planner.expectLabels({{"split(0)", "    1:28  "},
                              {"split(2)", "    3:04  "},
                              {"totm", "6816"},
                              {"fasttime", "   18:07  "},
                              {"rectime", "   15:08  "},
                              {"totload", " 18.3"},
                              {"totldst", "24"},
                              {"approxhr", "181"},
                              {"newmeanhr", "154"},
                              {"apminhr", "122"}});
        planner.type("num(4)", "1");
        EXPECT_EQ(planner.text("wrp(4)"), "156");
        planner.type("wrp(0)", "70");
        EXPECT_EQ(planner.text("wrp(0)"), "83") << "typing another is in vain";
        EXPECT_TRUE(planner.outside.events.empty());
    }

    TEST(AutomaticRatio, OfNoDistanceWritesZeroAndGoesOnFaulting)
    {
        OpenPlanner planner;
        planner.tick("acwr", true);
        planner.type("num(0)", "1");
        planner.outside.forget();
        planner.type("dist(0)", "0");
        EXPECT_EQ(planner.text("wrp(0)"), "0");
        ASSERT_EQ(planner.outside.faults.size(), 1U);
        EXPECT_THAT(planner.outside.faults.front().text, testing::HasSubstr("row 1, whose work/recovery ratio is 0"));
        planner.type("dist(0)", "400");
        EXPECT_EQ(planner.outside.faults.size(), 2U) << "the ratio is still 0";
        planner.type("wrp(0)", "5");
        EXPECT_EQ(planner.outside.faults.size(), 2U);
        EXPECT_EQ(planner.text("wrp(0)"), "83");
    }

    TEST(AutomaticRatio, OfATinyDistanceIsRefusedByTheRunsThatFollow)
    {
        OpenPlanner planner;
        planner.tick("acwr", true);
        planner.type("dist(2)", "0.5");   // a ratio of 4
        EXPECT_THAT(planner.said(), ElementsAre(noGoodRow, noGoodRow)) << "the inner run and the outer's next pass";
        EXPECT_EQ(planner.text("wrp(2)"), "4");
    }

    TEST(AutomaticRatio, ThatTheNextPassRefusesLeavesThePointsOfThePassBefore)
    {
        OpenPlanner planner;
        planner.tick("acwr", true);
        planner.expectLabels(fourTimes800);
        planner.type("dist(2)", "0.5");
        EXPECT_EQ(planner.said().size(), 2U);
        planner.expectLabels({{"Label3(2)", "  0.0"},       // 4 efforts of 0.1 s: 0.4 / 58.3 of a point
                              {"rptslbl(2)", "  0.0"},      // 10 s at half of the speed: 10 / 16 / 58.3
                              {"split(2)", "    3:00  "},   // all else is of the plan before
                              {"restd(2)", "351"},
                              {"fastm", "3200"},
                              {"totload", " 12.3"},
                              {"totldst", "16"},
                              {"stload", "76"},
                              {"approxhr", "177"},
                              {"zonelbl", "VO2 max pace, but somewhat easy due to short workout"}});
    }

    TEST(ContinuousRun, IsPlannedInTheLastRow)
    {
        OpenPlanner planner;
        planner.choose("scrun");
        EXPECT_EQ(planner.text("wrp(4)"), "999999");
        EXPECT_EQ(planner.text("num(4)"), "3.5");
        EXPECT_FALSE(planner.get<CheckBox>("acwr").enabled);
        for (int i = 0; i < 4; ++i)
            for (const char* box : {"dist", "num", "wrp"})
                EXPECT_FALSE(planner.get<TextBox>(at(box, i)).enabled);
        EXPECT_TRUE(planner.get<TextBox>("num(4)").enabled);
        EXPECT_EQ(planner.text("num(2)"), "0");
        EXPECT_EQ(planner.label("scrdesclbl"),
                  "By default, 1609.3 meters (1 mile) is entered, and 3.5 (miles) is entered as an example");
        // worked out apart from the program; the tiny recovery is used as it is shown: 0.04 s over 0.0805 m
        planner.expectLabels({{"split(4)", "    6:39  "},
                              {"rest(4)", "       0.0"},
                              {"rsec100(4)", " 49.7"},
                              {"rminmi(4)", "   13:20  "},
                              {"fastm", "5633"},
                              {"recm", "0"},
                              {"fasttime", "   23:17  "},
                              {"rectime", "       0.1"},
                              {"totload", " 15.4"},
                              {"totldst", "20"},
                              {"approxhr", "168"},
                              {"newmeanhr", "168"},
                              {"apminhr", "168"},
                              {"zonelbl", "High-end lactate threshold pace"}});
        EXPECT_TRUE(planner.outside.events.empty());
    }

    TEST(Intervals, AfterAContinuousRunComeBackWithTheAutomaticRatio)
    {
        OpenPlanner planner;
        planner.choose("scrun");
        planner.choose("ints");
        EXPECT_THAT(planner.said(), ElementsAre(noGoodRow)) << "before a row has repetitions again";
        EXPECT_EQ(planner.text("num(4)"), "0");
        EXPECT_EQ(planner.text("num(2)"), "4");
        EXPECT_TRUE(planner.get<CheckBox>("acwr").enabled);
        EXPECT_TRUE(planner.get<CheckBox>("acwr").ticked);
        for (int i = 0; i < 4; ++i)
            EXPECT_TRUE(planner.get<TextBox>(at("dist", i)).enabled);
        EXPECT_EQ(planner.label("scrdesclbl"),
                  "Enter up to 5 distances, the number of repetitions for each, and the work to recovery (time) ratio "
                  "(you can optionally let Vantelos suggest these by chacking the box in the upper right part of the "
                  "form)");
        planner.expectLabels(fourTimes800);
        planner.choose("ints");
        EXPECT_TRUE(planner.outside.events.empty());
    }

    TEST(Intensity, BelowNinetyFourFixesThePurpose)
    {
        OpenPlanner planner;
        planner.slide("pctmax", 188);
        EXPECT_EQ(planner.text("pctmaxtxt"), "94");
        EXPECT_EQ(planner.get<ScrollBar>("repvoscrl").value, 85);
        EXPECT_TRUE(planner.get<ScrollBar>("repvoscrl").enabled);
        planner.slide("pctmax", 187);
        EXPECT_EQ(planner.text("pctmaxtxt"), "93.5");
        EXPECT_EQ(planner.get<ScrollBar>("repvoscrl").value, 100);
        EXPECT_EQ(planner.text("vrtext"), "100");
        EXPECT_FALSE(planner.get<ScrollBar>("repvoscrl").enabled);
        planner.slide("pctmax", 180);
        // 4 times 800 m at 90 %, worked out apart from the program
        planner.expectLabels({{"split(2)", "    3:16  "},
                              {"fasttime", "   13:03  "},
                              {"effectiveIntensity", "88.9"},
                              {"totload", "  9.5"},
                              {"totldst", "12"},
                              {"approxhr", "160"},
                              {"newmeanhr", "142"},
                              {"apminhr", "114"}});
        planner.slide("pctmax", 190);
        EXPECT_TRUE(planner.get<ScrollBar>("repvoscrl").enabled);
        EXPECT_EQ(planner.get<ScrollBar>("repvoscrl").value, 100) << "it stays where it went";
    }

    TEST(Intensity, WhileItIsDraggedLeavesThePurposeEnabled)
    {
        OpenPlanner planner;
        planner.pull("pctmax", 180);
        EXPECT_EQ(planner.text("pctmaxtxt"), "90");
        EXPECT_EQ(planner.get<ScrollBar>("repvoscrl").value, 100);
        EXPECT_TRUE(planner.get<ScrollBar>("repvoscrl").enabled);
        planner.expectLabels({{"effectiveIntensity", "88.9"}});
        planner.letGo("pctmax");
        EXPECT_FALSE(planner.get<ScrollBar>("repvoscrl").enabled);
        planner.pull("pctmax", 200);
        EXPECT_FALSE(planner.get<ScrollBar>("repvoscrl").enabled) << "until it is let go";
        planner.letGo("pctmax");
        EXPECT_TRUE(planner.get<ScrollBar>("repvoscrl").enabled);
    }

    TEST(Bars, ShowTheirValuesAndPlan)
    {
        OpenPlanner planner;
        planner.click("Command3");
        planner.slide("repvoscrl", 0);
        EXPECT_EQ(planner.text("vrtext"), "0");
        EXPECT_NE(planner.label("fasttime"), "   12:00  ");
        planner.pull("repvoscrl", 85);
        planner.expectLabels(fourTimes800);
        planner.pull("recovpace", 100);
        EXPECT_EQ(planner.text("recovpacetxt"), "100");
        EXPECT_EQ(planner.label("restd(2)"), "702");
        planner.slide("recovpace", 50);
        planner.expectLabels(fourTimes800);
    }

    TEST(Level, ChangesRaceTimesAndPlan)
    {
        OpenPlanner planner;
        planner.pull("perfadj", 220);
        EXPECT_EQ(planner.text("perfadjtxt"), "110");
        planner.expectLabels({{"p400", " 65.8"}, {"p5000", "   18:11  "}});   // 72.3838 / 1.1, 1200 / 1.1
        planner.slide("perfadj", 201);
        EXPECT_EQ(planner.text("perfadjtxt"), "100.5");
        planner.slide("perfadj", 200);
        planner.expectLabels(fourTimes800);
    }

    TEST(HeartRates, OfEqualMaximumAndRestStayOld)
    {
        OpenPlanner planner;
        planner.click("Command3");
        planner.state().runner.restHr = 185;
        planner.type("num(2)", "5");
        ASSERT_EQ(planner.outside.faults.size(), 1U);
        EXPECT_THAT(planner.outside.faults.front().text, testing::HasSubstr("while working out the heart rates"));
        planner.expectLabels({{"fastm", "4000"}, {"approxhr", "177"}, {"hrrlbl", "94"}});
        EXPECT_EQ(planner.label("zonelbl"), "VO2 max pace, but somewhat easy due to short workout");
    }

    TEST(Closed, KeepsItsEntriesByWhateverClosesIt)
    {
        OpenPlanner planner;
        planner.type("dist(1)", "500");
        planner.type("num(1)", "3");
        planner.tick("acwr", true);
        planner.slide("recovpace", 60);
        planner.slide("pctmax", 190);
        planner.slide("repvoscrl", 40);
        planner.slide("perfadj", 210);
        planner.click("Command1");
        EXPECT_FALSE(planner.isOpen());
        planner.state().runner.weeklyMiles = 60;
        planner.open();
        EXPECT_EQ(planner.text("dist(1)"), "500");
        EXPECT_EQ(planner.text("num(1)"), "3");
        EXPECT_EQ(planner.text("num(2)"), "4");
        EXPECT_EQ(planner.text("wrp(1)"), "92");
        EXPECT_TRUE(planner.get<CheckBox>("acwr").ticked);
        EXPECT_EQ(planner.get<ScrollBar>("recovpace").value, 60);
        EXPECT_EQ(planner.get<ScrollBar>("pctmax").value, 190);
        EXPECT_EQ(planner.get<ScrollBar>("repvoscrl").value, 40);
        EXPECT_EQ(planner.get<ScrollBar>("perfadj").value, 210);
        EXPECT_EQ(planner.text("perfadjtxt"), "105");
        planner.choose("scrun");
        planner.type("num(4)", "6");
        planner.close();
        planner.open();
        EXPECT_TRUE(planner.isOn("scrun"));
        EXPECT_FALSE(planner.get<CheckBox>("acwr").enabled);
        EXPECT_FALSE(planner.get<TextBox>("dist(0)").enabled);
        EXPECT_EQ(planner.text("num(4)"), "6");
    }

    TEST(Table, HoldsThePlan)
    {
        OpenPlanner planner;
        planner.click("Command3");
        const TextTable table = findForm(planner.program, "workouts")->table();
        EXPECT_THAT(csvOf(table),
                    testing::StartsWith("Distance (m),Number,Points,Points,Work/Rec (%),Split,sec/400,sec/100,min/mi,"
                                        "Distance,Time,sec/100,min/mi\n"
                                        "800,4,11.7,0.6,114,3:00,90.1,22.5,6:02,351,2:38,45.0,12:05\n\n"
                                        "Workout Summary:,meters,miles,time\nTotal Fast,3200,1.99,12:00\n"
                                        "Recovery (stopping after last fast),1053,0.65,7:54\n"
                                        "Total Workout,4253,2.64,19:54\n\ntime adj int,97\n"));
        EXPECT_THAT(textOf(table), testing::HasSubstr("VO2 max pace, but somewhat easy due to short workout\n"));
    }
}
