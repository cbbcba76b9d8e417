// What the topics say in words: how long, how many, what is refused, kept or left behind.

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "analysis/full_report.h"
#include "course/course_solver.h"
#include "example_runner.h"
#include "help/help_topics.h"
#include "model/race_time.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    using enum HelpTopicName;

    /// A topic has these words, so that the test beside it is about what somebody reads there.
    void expectSaid(HelpTopicName name, const std::string& words)
    {
        std::string text;
        for (const std::string& word : wordsOf([&] {
                 std::string broken(helpTopic(name).text);
                 std::replace(broken.begin(), broken.end(), '\n', ' ');
                 return broken;
             }()))
            text += ' ' + word;
        EXPECT_NE(text.find(words), std::string::npos) << helpTopic(name).title << " does not say: " << words;
    }

    /// How many minutes a race takes whose mean speed this is, between 1 km and the marathon.
    double minutesAt(const ModelState& state, double speed)
    {
        double low = 1000;
        double high = marathonMetres;
        for (int i = 0; i < 60; ++i)
        {
            const double middle = (low + high) / 2;
            (middle / raceTimeAt(state, middle) > speed ? low : high) = middle;
        }
        return raceTimeAt(state, low) / 60;
    }

    TEST(Claims, OnTheDurationsOfTrainingPaces)
    {
        expectSaid(trainingAnalysis,
                   "about that of a race of forty minutes, for the fastest nearer to that of an hour");
        expectSaid(trainingAnalysis, "about that of a race of eight minutes");
        ExampleRunner runner;
        runner.click("vantstart.Command3");
        const ModelState& state = runner.program.state;
        EXPECT_NEAR(minutesAt(state, state.training.thresholdSpeed), 40, 2);
        EXPECT_NEAR(minutesAt(state, state.training.vo2maxSpeed), 8, 0.5);
        runner.type("vantstart.txtage", "27");
        runner.slide("vantstart.HScroll1", 100);
        runner.race(0, "", "13", "", "5", "Option3");
        runner.click("vantstart.Command1");
        runner.click("vantstart.Command3");
        EXPECT_NEAR(minutesAt(state, state.training.thresholdSpeed), 51, 1);
    }

    TEST(Claims, OnTheAnalysisOfUnusualRunners)
    {
        expectSaid(trainingAnalysis, "A runner for whom 5 km take longer than about an hour and a quarter");
        const auto fault = [](const char* box, const char* text, bool byAge) {
            ExampleRunner runner;
            runner.type(std::string("vantstart.") + box, text);
            runner.tick("vantstart.agecomp", byAge);
            if (box == std::string("Text2(0)"))
                runner.type("vantstart.Text4(0)", "5");
            runner.click("vantstart.Command1");
            runner.click("vantstart.Command3");
            const bool isThere = findForm(runner.program, "anaform") && !runner.lines("anaform.Surface").empty();
            return std::to_string(runner.outside.faults.size()) + (isThere ? " with text" : "");
        };
        EXPECT_EQ(fault("Text2(0)", "70", false), "0 with text");
        EXPECT_EQ(fault("Text2(0)", "78", false), "1 with text") << "without the graph";
        EXPECT_EQ(fault("actmhrtx", "60", false), "1") << "without anything";
        EXPECT_EQ(fault("txtage", "10", true), "1");
        EXPECT_EQ(fault("txtage", "10", false), "0 with text");
        EXPECT_EQ(fault("txtage", "95", true), "1");
        EXPECT_EQ(fault("txtage", "40", true), "0 with text");
    }

    TEST(Claims, OnCounts)
    {
        expectSaid(programOverview, "your predicted times over thirty distances");
        EXPECT_EQ(reportDistances.size(), 30U);

        ExampleRunner runner;
        const auto has = [&](const char* form, const char* control) {
            return findControl(*findForm(runner.program, form), control) != nullptr;
        };
        expectSaid(predictedTable, "nine distances");
        for (const char* output : {"Option9", "Option10"})
        {
            runner.click("vantstart." + std::string(output));
            runner.click("vantstart.Command1");
            EXPECT_EQ(runner.lines("vantstart.Picture1").size(), 2U + 9) << output;
        }

        expectSaid(performanceTables, "over twenty-four distances, from 100 m to the marathon");
        expectSaid(performanceTables, "nine columns follow");
        runner.open("pertabspec");
        runner.click("pertabspec.opage");
        runner.click("pertabspec.Command1");
        int rows = 0;
        for (const std::string& line : runner.lines("perflevform.table"))
            if (const std::vector<std::string> words = wordsOf(line);
                words.size() > 9 && words.back().find_first_of(".:") != std::string::npos)
                ++rows;
        EXPECT_EQ(rows, 24);
        EXPECT_EQ(runner.line("perflevform.table", "10 km").size(), 9U);
        expectSaid(performanceTables, "six gray curves for the levels from 100 down to 50");
        runner.click("perflevform.Command3");
        EXPECT_TRUE(has("perfgraph", "pvelage(5)"));
        EXPECT_FALSE(has("perfgraph", "pvelage(6)"));

        expectSaid(splitsAnalysis, "up to twenty-seven of them");
        runner.open("splitform");
        EXPECT_TRUE(has("splitform", "splitdis(26)"));
        EXPECT_FALSE(has("splitform", "splitdis(27)"));

        expectSaid(workoutPlanner, "Each of the five rows");
        runner.click("vantstart.Command3");
        runner.click("anaform.Command1");
        EXPECT_TRUE(has("workouts", "num(4)"));
        EXPECT_FALSE(has("workouts", "num(5)"));
    }

    TEST(Claims, OnThePointsOfACourse)
    {
        expectSaid(courseProfile, "up to a hundred points fit");
        expectSaid(courseProfile, "solves the course in a hundred steps");
        EXPECT_EQ(courseSteps, 100);
        ExampleRunner runner;
        runner.open("profile");
        runner.tick("profile.update", false);
        runner.type("profile.eletx", "300");
        for (int i = 1; i <= 99; ++i)
        {
            EXPECT_EQ(runner.outside.messages.size(), 0U) << i;
            runner.type("profile.distx", std::to_string(i * 0.04));
            runner.click("profile.Command4");
        }
        EXPECT_EQ(runner.outside.messages.size(), 1U) << "98 between start and finish";
    }

    TEST(Claims, OnACourseThatIsOpenedAgain)
    {
        expectSaid(courseProfile, "the multiplier, \"Connect dots\" and \"Update\" are back at their beginnings");
        ExampleRunner runner;
        runner.open("profile");
        runner.type("profile.distx", "2.5");
        runner.type("profile.eletx", "400");
        runner.click("profile.Command4");
        runner.slide("profile.perfmult", 1010);
        runner.click("profile.scur");
        runner.tick("profile.update", false);
        runner.slide("profile.origel", 500);
        runner.click("profile.Command1");
        runner.open("profile");
        EXPECT_EQ(runner.program.state.course.pointCount, 3);
        EXPECT_EQ(runner.box("profile.origelm"), "500");
        EXPECT_EQ(runner.box("profile.perfmulttx"), "100.0");
        EXPECT_TRUE(runner.get<OptionButton>("profile.cdots").chosen);
        EXPECT_TRUE(runner.get<CheckBox>("profile.update").ticked);
    }

    TEST(Claims, OnGrades)
    {
        expectSaid(courseProfile, "Grades of more than one in one from the point before are refused, except for the "
                                  "first point.");
        ExampleRunner runner;
        runner.open("profile");
        const auto point = [&](const char* kilometers, const char* meters) {
            runner.outside.forget();
            runner.type("profile.distx", kilometers);
            runner.type("profile.eletx", meters);
            runner.click("profile.Command4");
        };
        point("0.1", "400");   // 150 m above the start
        EXPECT_TRUE(runner.outside.messages.empty());
        EXPECT_EQ(runner.outside.faults.size(), 1U) << "too steep to be run";
        point("0.2", "550");
        ASSERT_EQ(runner.outside.messages.size(), 1U);
        EXPECT_TRUE(runner.outside.messages[0].text.starts_with("Grades steeper than 1:1"));
        point("3", "300");
        EXPECT_EQ(runner.outside.faults.size(), 1U);
        runner.outside.forget();
        runner.click("profile.Command3");
        EXPECT_TRUE(runner.outside.faults.empty());
    }

    TEST(Claims, OnTheIntensityOfHalfAnHour)
    {
        expectSaid(workoutPlanner,
                   "half an hour leaves the intensity as it is, more raises it a little, less lowers it");
        ExampleRunner runner;
        runner.click("vantstart.Command3");
        runner.click("anaform.Command1");
        runner.click("workouts.scrun");
        runner.slide("workouts.pctmax", 180);
        runner.type("workouts.num(4)", "1");
        const auto intensityOf = [&](int meters) {
            runner.type("workouts.dist(4)", std::to_string(meters));
            return std::stod(runner.label("workouts.effectiveIntensity"));
        };
        EXPECT_LT(intensityOf(3000), 89.5);
        EXPECT_NEAR(intensityOf(6980), 90, 0.05);
        EXPECT_TRUE(runner.label("workouts.fasttime").starts_with("30:0")) << runner.label("workouts.fasttime");
        EXPECT_GT(intensityOf(14000), 90.2);
    }

    TEST(Claims, OnAPointOfAWorkout)
    {
        expectSaid(workoutPlanner, "A single point is about a minute at VO2max pace.");
        ExampleRunner runner;
        runner.click("vantstart.Command3");
        runner.click("anaform.Command1");
        runner.click("workouts.scrun");
        runner.type("workouts.num(4)", "8");
        const double metres = 8 * 1609.3;
        const std::string time = runner.label("workouts.fasttime");
        const double seconds = time.size() > 5 ? std::stod(time) * 3600 + std::stod(time.substr(2)) * 60 +
                                                     std::stod(time.substr(time.size() - 2))
                                               : std::stod(time) * 60 + std::stod(time.substr(time.size() - 2));
        const double speedShare = metres / seconds / runner.program.state.training.vo2maxSpeed;
        EXPECT_NEAR(seconds * std::pow(speedShare, 4) / std::stod(runner.label("workouts.totload")), 60, 3);
    }

    TEST(Claims, OnAPlanThatIsOpenedAgain)
    {
        expectSaid(workoutPlanner, "the splits and rests shown are those of 800 m in every row");
        ExampleRunner runner;
        runner.click("vantstart.Command3");
        runner.click("anaform.Command1");
        runner.type("workouts.num(0)", "4");
        const double points = std::stod(runner.label("workouts.totload"));
        EXPECT_NE(runner.label("workouts.split(0)"), runner.label("workouts.split(2)"));
        runner.click("workouts.Command1");
        runner.click("anaform.Command1");
        EXPECT_EQ(runner.box("workouts.num(0)"), "4");
        EXPECT_EQ(runner.label("workouts.split(0)"), runner.label("workouts.split(2)"));
        EXPECT_GT(std::stod(runner.label("workouts.totload")), 5 * points);
    }

    TEST(Claims, OnARowWithoutADistance)
    {
        expectSaid(workoutPlanner, "With the automatic ratio a row with a distance of 0 keeps stopping");
        ExampleRunner runner;
        runner.click("vantstart.Command3");
        runner.click("anaform.Command1");
        runner.tick("workouts.acwr", true);
        runner.type("workouts.num(0)", "4");
        runner.type("workouts.dist(0)", "0");
        runner.type("workouts.dist(0)", "400");
        EXPECT_EQ(runner.outside.faults.size(), 2U);
        runner.type("workouts.wrp(0)", "83");
        EXPECT_EQ(runner.outside.faults.size(), 2U);
    }

    TEST(Claims, OnTheBestPlanOutAndBack)
    {
        expectSaid(specialInformation, "usually it is a few seconds away from even effort");
        expectSaid(specialInformation, "in steps of two seconds per mile");
        ExampleRunner runner;
        runner.click("vantstart.Command4");
        runner.click("specinfo.Option1");
        runner.click("specinfo.Command1");
        EXPECT_EQ(runner.line("specinfo.table", "9:22")[0], "6:02");
        EXPECT_EQ(runner.line("specinfo.table", "9:19")[0], "6:00");
        runner.click("specinfo.optkm");
        runner.type("specinfo.Text1", "10");
        runner.type("specinfo.Text3", "0.02");
        runner.click("specinfo.Option3");
        runner.click("specinfo.Command1");
        EXPECT_EQ(runner.line("specinfo.table", "21:31")[0], "6:56") << "even effort";
        EXPECT_EQ(runner.line("specinfo.table", "21:17")[0], "6:51") << "the best plan";
    }

    TEST(Claims, OnTheWindThatIsLeftOver)
    {
        expectSaid(specialInformation,
                   "To be rid of it calculate for uneven splits or \"constant\"; \"Level time only\" "
                   "does not do it.");
        ExampleRunner runner;
        const auto windAfter = [&](const char* kind) {
            for (const char* option : {"Option3", kind})
            {
                runner.click("vantstart.Command4");
                runner.click("specinfo." + std::string(option));
                runner.slide("specinfo.wsscr", 50);
                runner.click("specinfo.Command1");
            }
            return std::abs(runner.program.state.incline.windSpeed);
        };
        EXPECT_EQ(windAfter("Option5"), 5);
        EXPECT_EQ(windAfter("Option1"), 0);
        EXPECT_EQ(windAfter("Option2"), 0);
    }

    TEST(Claims, OnHeat)
    {
        expectSaid(heatAndHumidity, "With neither ticked the form asks for one.");
        expectSaid(heatAndHumidity, "women about a fifth less than men");
        ExampleRunner runner;
        runner.open("heathum");
        runner.slide("heathum.sunscrl", 0);
        EXPECT_EQ(runner.box("heathum.sundesc"), "night");
        runner.slide("heathum.sunscrl", 10);
        EXPECT_EQ(runner.box("heathum.sundesc"), "clear, sun nearly overhead");
        runner.click("heathum.Command2");
        const double man = std::stod(runner.label("heathum.pdec(7)"));
        const std::string marathon = runner.label("heathum.idealt(9)");
        runner.click("heathum.fop");
        runner.click("heathum.Command2");
        EXPECT_NEAR(std::stod(runner.label("heathum.pdec(7)")) / man, 0.82, 0.03);
        EXPECT_EQ(runner.label("heathum.idealt(9)"), marathon);
        runner.slide("heathum.weekmi", 31);
        runner.slide("heathum.weekmi", 30);
        runner.click("heathum.Command2");
        EXPECT_NE(runner.label("heathum.idealt(9)"), marathon);

        EXPECT_TRUE(runner.outside.messages.empty());
        runner.tick("heathum.r1use", false);
        runner.type("heathum.rmeters1", "399");
        runner.click("heathum.Command2");
        EXPECT_EQ(runner.outside.messages.size(), 1U) << "in a row that is not used";
        runner.type("heathum.rmeters1", "1500");
        runner.tick("heathum.r2use", false);
        runner.outside.forget();
        runner.click("heathum.Command2");
        EXPECT_EQ(runner.outside.messages.size(), 1U);
    }

    TEST(Claims, OnWhatIsKept)
    {
        expectSaid(mainEntryForm, "except the name and the choices in \"Graph options\"");
        expectSaid(workoutPlanner, "The plan is kept, also when you close the program; the automatic ratio only until "
                                   "then.");
        ExampleRunner runner;
        runner.type("vantstart.txtname", "Ann");
        runner.click("vantstart.Option10");
        runner.click("vantstart.lin1");
        runner.click("vantstart.Command3");
        runner.click("anaform.Command1");
        runner.tick("workouts.acwr", true);
        runner.type("workouts.num(0)", "4");
        enter(runner.program, "vantstart", false, [&] { closeForm(runner.program, "vantstart"); });
        Program next(runner.outside.dialogs(), runner.outside.printer(), runner.folder.path);
        start(next);
        EXPECT_EQ(next.vantstart->txtname.text, "Joe Runner");
        EXPECT_EQ(next.vantstart->txtage.text, "40");
        EXPECT_TRUE(next.vantstart->Option10.chosen);
        EXPECT_FALSE(next.vantstart->lin1.ticked);
    }

    TEST(Claims, OnNumbersThatAreReadAsFarAsTheyAreNumbers)
    {
        EXPECT_EQ(val("40:00"), 40);
        EXPECT_EQ(val("4o"), 4);
    }

    TEST(Claims, OnTheBoundsOfTheWorkoutPlanner)
    {
        ExampleRunner runner;
        runner.click("vantstart.Command3");
        runner.click("anaform.Command1");
        const auto bar = [&]() -> ScrollBar& { return runner.get<ScrollBar>("workouts.repvoscrl"); };
        runner.slide("workouts.pctmax", 188);
        EXPECT_TRUE(bar().enabled);
        runner.slide("workouts.pctmax", 187);   // 93.5
        EXPECT_FALSE(bar().enabled);
        EXPECT_EQ(bar().value, 100);
        runner.slide("workouts.pctmax", 190);
        EXPECT_EQ(runner.label("workouts.effectiveIntensity"), "95");
        runner.slide("workouts.pctmax", 189);
        EXPECT_NE(runner.label("workouts.effectiveIntensity"), "94.5");
    }

    TEST(Claims, OnTheSurprisesOfACourse)
    {
        ExampleRunner runner;
        runner.open("profile");
        const auto saidAfter = [&](const std::string& box, const std::string& text) {
            runner.outside.forget();
            runner.type("profile." + box, text);
            return runner.outside.messages.size();
        };
        EXPECT_EQ(saidAfter("maxel", "1000"), 1U);   // beside an end elevation of 350
        EXPECT_EQ(saidAfter("maxel", "6"), 0U);
        EXPECT_EQ(saidAfter("maxel", "600"), 0U);
        EXPECT_EQ(saidAfter("Text1", "0.049"), 1U);
        EXPECT_EQ(saidAfter("Text1", "0.05"), 0U);
        EXPECT_EQ(saidAfter("Text1", "500"), 0U);
        EXPECT_EQ(saidAfter("Text1", "500.1"), 1U);
    }

    TEST(Claims, OnZeros)
    {
        expectSaid(mainEntryForm, "At 0 there is nothing to show, and the calculation stops.");
        ExampleRunner runner;
        runner.slide("vantstart.HScroll2", 0);
        runner.click("vantstart.Command1");
        EXPECT_EQ(runner.outside.faults.size(), 1U);
        expectSaid(performanceTables, "A level of 0 has no time, so that a table from 0 stops.");
        runner.open("pertabspec");
        runner.type("pertabspec.Text1", "0");
        runner.click("pertabspec.Command1");
        EXPECT_EQ(runner.outside.faults.size(), 2U);
    }
}
