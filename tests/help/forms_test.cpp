// The help forms: what opens which topic, how the topic is printed, the index, the about box and the references.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "example_runner.h"
#include "help/help_topics.h"
#include "help/references.h"
#include "program/help_forms.h"

namespace
{
    using enum HelpTopicName;

    /// A control that opens a topic, and the form that has to be open for it.
    struct Opener
    {
        const char* form;
        const char* control;
        HelpTopicName topic;
    };

    class Opens : public testing::TestWithParam<Opener>
    {};

    TEST_P(Opens, ItsTopic)
    {
        ExampleRunner runner;
        if (GetParam().form == std::string("workouts"))
            runner.click("vantstart.Command3");
        runner.open(GetParam().form);
        const std::string name = std::string(GetParam().form) + "." + GetParam().control;
        runner.outside.forget();
        runner.click(name);
        EXPECT_TRUE(runner.outside.events.empty());
        const Form* const help = findForm(runner.program, "helpform");
        ASSERT_TRUE(help);
        EXPECT_EQ(help->title, helpTopic(GetParam().topic).title);
        EXPECT_EQ(runner.lines("helpform.topic"), linesOf(helpTopic(GetParam().topic)));
    }

    INSTANTIATE_TEST_SUITE_P(
        ByItsButton, Opens,
        testing::Values(Opener{"anaform", "Command2", trainingAnalysis},
                        Opener{"vantstart", "Command8", performanceLevels}, Opener{"fileacc", "Command6", savedFiles},
                        Opener{"vantstart", "Command5", mainEntryForm},
                        Opener{"specinfo", "Command2", specialInformation},
                        Opener{"vantstart", "ppinfo", programOverview},
                        Opener{"pertabspec", "Command2", performanceTables},
                        Opener{"workouts", "Command2", workoutPlanner}, Opener{"splitform", "Command4", splitsAnalysis},
                        Opener{"profile", "Command7", courseProfile}, Opener{"heathum", "Command3", heatAndHumidity}),
        [](const auto& row) { return std::string(row.param.form) + row.param.control; });

    TEST(Index, HasAPictureForEachTopic)
    {
        ExampleRunner runner;
        runner.click("vantstart.proghelp");
        ASSERT_TRUE(findForm(runner.program, "vanthelp"));
        EXPECT_EQ(findForm(runner.program, "vanthelp")->title, "Vantelos Help");
        for (std::size_t i = 0; i < helpTopics().size(); ++i)
        {
            const std::string name = "vanthelp.Picture" + std::to_string(i + 1);
            const Picture& picture = runner.get<Picture>(name);
            EXPECT_EQ(picture.caption, helpTopics()[i].title);
            EXPECT_TRUE(picture.isButton);
            EXPECT_GE(picture.primitives.size(), 5U) << name;
            runner.press(name);
            EXPECT_EQ(findForm(runner.program, "helpform")->title, helpTopics()[i].title);
            EXPECT_EQ(runner.lines("helpform.topic"), linesOf(helpTopics()[i]));
        }
        runner.click("vanthelp.Command1");
        EXPECT_FALSE(findForm(runner.program, "vanthelp"));
        EXPECT_TRUE(findForm(runner.program, "helpform"));
    }

    TEST(Index, DrawsEachPictureWithinItsBounds)
    {
        ExampleRunner runner;
        runner.click("vantstart.proghelp");
        for (int i = 1; i <= helpTopicCount; ++i)
        {
            const Picture& picture = runner.get<Picture>("vanthelp.Picture" + std::to_string(i));
            const auto isInside = [&](Point at) {
                return at.x >= 0 && at.y >= 0 && at.x <= picture.size.x && at.y <= picture.size.y;
            };
            for (const Primitive& primitive : picture.primitives)
                if (const auto* line = std::get_if<LinePrimitive>(&primitive.shape))
                {
                    EXPECT_TRUE(isInside(line->from) && isInside(line->to)) << picture.caption;
                }
                else if (const auto* circle = std::get_if<CirclePrimitive>(&primitive.shape))
                {
                    const Point c = circle->centre;
                    const double r = circle->radius;
                    EXPECT_TRUE(isInside({c.x - r, c.y - r}) && isInside({c.x + r, c.y + r})) << picture.caption;
                }
        }
    }

    TEST(HelpForm, TakesTheSizeOfItsTopic)
    {
        ExampleRunner runner;
        runner.click("vantstart.Command5");
        Form* const help = findForm(runner.program, "helpform");
        ASSERT_TRUE(help);
        EXPECT_EQ(help->size, (Point{9750, 8050}));
        int sizes = 0;
        help->sizeShown = [&] { ++sizes; };
        runner.click("vantstart.Command8");
        EXPECT_EQ(findForm(runner.program, "helpform"), help) << "the same one, at the front";
        EXPECT_EQ(help->size, (Point{9350, 7780}));
        runner.click("vantstart.Command8");
        EXPECT_EQ(sizes, 1) << "asked for the same topic again it stays as large as somebody has made it";
    }

    TEST(HelpForm, HasThePictureOfPerformanceLevelsOnTheTablesTopicAlone)
    {
        ExampleRunner runner;
        runner.click("vantstart.proghelp");
        for (int i = 1; i <= helpTopicCount; ++i)
        {
            runner.press("vanthelp.Picture" + std::to_string(i));
            const bool tables = helpTopics()[static_cast<std::size_t>(i - 1)].name == performanceTables;
            EXPECT_EQ(runner.get<Picture>("helpform.Picture1").visible, tables) << i;
            EXPECT_EQ(runner.get<Label>("helpform.Label1").visible, tables) << i;
        }
        runner.press("vanthelp.Picture8");
        runner.press("helpform.Picture1");
        EXPECT_EQ(findForm(runner.program, "helpform")->title, "Performance levels");
        EXPECT_FALSE(runner.get<Picture>("helpform.Picture1").visible);
        runner.click("helpform.Command1");
        EXPECT_FALSE(findForm(runner.program, "helpform"));
    }

    TEST(HelpForm, KeepsItsTopicWhileOtherControlsAreUsed)
    {
        ExampleRunner runner;
        runner.click("vantstart.Command8");
        runner.click("vantstart.Command1");
        runner.open("helpform");
        EXPECT_EQ(findForm(runner.program, "helpform")->title, "Performance levels");
    }

    TEST(HelpForm, OpenedBeforeAnythingWasAskedForIsTheOverview)
    {
        ExampleRunner runner;
        runner.open("helpform");
        EXPECT_EQ(findForm(runner.program, "helpform")->title, "Program overview");
    }

    /// A form, and what F1 opens there; nothing for the index.
    struct Front
    {
        const char* form;
        const char* title;
    };

    TEST(HelpOn, AFormIsItsTopicOrThatOfTheFormItGoesWith)
    {
        ExampleRunner runner;
        for (const Front& front :
             {Front{"vantstart", "Main entry form"}, Front{"graphform", "Predicted table"},
              Front{"anaform", "Training analysis"}, Front{"workouts", "Workout planner"},
              Front{"splitform", "Splits analysis"}, Front{"specinfo", "Special information"},
              Front{"pstrat", "Special information"}, Front{"quickcalcs", "Special information"},
              Front{"powen", "Special information"}, Front{"tmill", "Special information"},
              Front{"eqpace", "Special information"}, Front{"profile", "Course profile"},
              Front{"working", "Course profile"}, Front{"heathum", "Heat and humidity"},
              Front{"pertabspec", "Performance tables"}, Front{"perflevform", "Performance tables"},
              Front{"perfgraph", "Performance tables"}, Front{"fileacc", "Saved files"}})
        {
            enter(runner.program, front.form, false, [&] { openHelpOn(runner.program, front.form); });
            EXPECT_EQ(findForm(runner.program, "helpform")->title, front.title) << front.form;
        }
        EXPECT_FALSE(findForm(runner.program, "vanthelp"));
        for (const char* form : {"helpform", "vanthelp", "frmabout", "refform"})
        {
            enter(runner.program, form, false, [&] { openHelpOn(runner.program, form); });
            ASSERT_TRUE(findForm(runner.program, "vanthelp")) << form;
            runner.click("vanthelp.Command1");
        }
        EXPECT_EQ(findForm(runner.program, "helpform")->title, std::string("Saved files"));
    }

    TEST(HelpOn, EveryFormIsThoughtOf)
    {
        const Program program({}, {}, "/nonexistent");
        std::vector<std::string> names;
        for (const FormPlace& place : program.forms)
            names.emplace_back(place.name);
        EXPECT_THAT((std::vector<std::string>{
                        "graphform",   "anaform",   "workouts", "splitform", "specinfo", "pstrat",   "quickcalcs",
                        "powen",       "tmill",     "eqpace",   "profile",   "working",  "heathum",  "pertabspec",
                        "perflevform", "perfgraph", "fileacc",  "helpform",  "vanthelp", "frmabout", "refform"}),
                    testing::IsSupersetOf(names));
    }

    TEST(HelpButton, WithoutAnEventOfItsOwnOpensTheHelp)
    {
        ExampleRunner runner;
        Button bare{{.name = "Command6"}, {}, "helpform"};
        Button other{{.name = "Command7"}, {}, "specinfo"};
        Form form{"fileacc", "", {&bare, &other}};
        connectHelp(runner.program, form);
        EXPECT_FALSE(other.clicked);
        ASSERT_TRUE(bare.clicked);
        enter(runner.program, "fileacc.Command6", false, bare.clicked);
        EXPECT_EQ(findForm(runner.program, "helpform")->title, "Saved files");
    }

    TEST(About, ShowsNameAndVersion)
    {
        ExampleRunner runner;
        runner.click("vantstart.about");
        bool shown = false;
        for (const Primitive& primitive : runner.get<Picture>("frmabout.Picture1").primitives)
            if (const auto* text = std::get_if<TextPrimitive>(&primitive.shape))
                shown = shown || text->text == "Vantelos 9.3";
        EXPECT_TRUE(shown);
        runner.click("frmabout.Command1");
        EXPECT_FALSE(findForm(runner.program, "frmabout"));
    }

    TEST(References, ArePrintedLineByLine)
    {
        ExampleRunner runner;
        runner.click("vantstart.refs");
        EXPECT_EQ(runner.lines("refform.references"), referenceLines());
        runner.click("refform.Command1");
        EXPECT_FALSE(findForm(runner.program, "refform"));
    }
}
