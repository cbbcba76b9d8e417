#include "course/profile_form.h"

#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/colours.h"
#include "model/text.h"
#include "open_profile.h"
#include "support/case_name.h"
#include "support/close_to.h"

namespace
{
    using testing::ElementsAre;
    using testing::HasSubstr;
    using testing::IsEmpty;

    TEST(Mouse, ReadsTheCourse)
    {
        OpenProfile profile;
        profile.move(6150, 3100);
        EXPECT_EQ(profile.text("mousexm"), "  2500");
        EXPECT_EQ(profile.text("mousexmi"), "  1.55");
        EXPECT_EQ(profile.text("mouseym"), "   350");
        EXPECT_EQ(profile.text("mouseyft"), "  1148");
        EXPECT_EQ(profile.text("mousegrade"), "0.0200");
        EXPECT_EQ(profile.text("Text12"), " 1.554");
        EXPECT_EQ(profile.text("Text13"), "  2500");   // 2500.5 rounds to 2500, being 2500.49995
        // readings of the second computation at x = 2500: 650.3 s
        EXPECT_EQ(profile.text("Text11"), "   10:50  ");
    }

    TEST(Mouse, AtTheFinishOfPointsKeepsTheLastSlope)
    {
        OpenProfile profile;
        profile.press(6150, 3700);
        profile.move(12150, 3700);
        EXPECT_EQ(profile.text("mousegrade"), "0.0000") << "nothing was read so far";
        EXPECT_EQ(profile.text("Text13"), "  5001");
        profile.move(9150, 3700);
        const std::string grade = profile.text("mousegrade");
        EXPECT_EQ(grade, "0.0200");
        profile.move(12150, 3700);
        EXPECT_EQ(profile.text("mousegrade"), grade);
    }

    TEST(Mouse, BeforeASolveFaultsAndKeepsThePaces)
    {
        PlanningProgram program("profile");
        program.state().curve = {};
        program.open();
        const auto moved = program.get<Picture>("p1").moved;
        enter(program.program, "profile.p1", true, [&] { moved({6150, 3100}); });
        EXPECT_EQ(program.outside.faults.size(), 2U);
        EXPECT_TRUE(program.outside.faults.back().keystroke);
        EXPECT_EQ(program.text("Text7"), "");
    }

    /// What is read of the hills with the multiplier at 950, by a second computation; paces are per mile, then per
    /// kilometer, of even effort and what it feels like, of strategic pacing and what that feels like.
    struct Reading
    {
        const char* name;
        bool smooth;
        double at;   // graph units
        const char* grade;
        const char* time;
        const char* miles;
        const char* metres;
        std::vector<std::string> perMile, perKilometer;

        friend std::ostream& operator<<(std::ostream& out, const Reading& row) { return out << row.name; }
    };

    class HillReading : public testing::TestWithParam<Reading>
    {};

    TEST_P(HillReading, AgreesWithASecondComputation)
    {
        OpenProfile profile;
        profile.enterHills();
        profile.slide("perfmult", 950);
        profile.choose("scur");
        if (!GetParam().smooth)
            profile.choose("cdots");
        const auto paces = [&profile] {
            profile.move(GetParam().at, 3100);
            return std::vector<std::string>{profile.text("Text7"), profile.text("Text9"), profile.text("Text8"),
                                            profile.text("Text10")};
        };
        EXPECT_EQ(paces(), GetParam().perMile);
        EXPECT_EQ(profile.text("mousegrade"), GetParam().grade);
        EXPECT_EQ(profile.text("Text11"), GetParam().time);
        EXPECT_EQ(profile.text("Text12"), GetParam().miles);
        EXPECT_EQ(profile.text("Text13"), GetParam().metres);
        profile.choose("minpkm");
        EXPECT_EQ(paces(), GetParam().perKilometer);
        EXPECT_THAT(profile.outside.events, IsEmpty());
    }

    INSTANTIATE_TEST_SUITE_P(Apart, HillReading,
                             testing::Values(Reading{"uphill",
                                                     false,
                                                     6150,
                                                     "0.0533",
                                                     "   11:20  ",
                                                     " 1.556",
                                                     "  2504",
                                                     {"    8:27  ", "    6:50  ", "    8:14  ", "    6:40  "},
                                                     {"    5:15  ", "    4:15  ", "    5:07  ", "    4:09  "}},
                                             Reading{"downhill",
                                                     false,
                                                     3150,
                                                     "-0.0700",
                                                     "    6:00  ",
                                                     " 0.778",
                                                     "  1252",
                                                     {"    5:39  ", "    6:50  ", "    5:58  ", "    7:14  "},
                                                     {"    3:31  ", "    4:15  ", "    3:42  ", "    4:29  "}},
                                             Reading{"uphill_on_the_curve",
                                                     true,
                                                     6150,
                                                     "0.0384",
                                                     "   11:11  ",
                                                     " 1.556",
                                                     "  2503",
                                                     {"    7:56  ", "    6:50  ", "    7:49  ", "    6:45  "},
                                                     {"    4:56  ", "    4:15  ", "    4:52  ", "    4:11  "}},
                                             Reading{"downhill_on_the_curve",
                                                     true,
                                                     3150,
                                                     "-0.0537",
                                                     "    6:06  ",
                                                     " 0.778",
                                                     "  1252",
                                                     {"    5:52  ", "    6:50  ", "    6:09  ", "    7:10  "},
                                                     {"    3:39  ", "    4:15  ", "    3:49  ", "    4:27  "}}),
                             byName);

    // Half of 10 km, on the slope of 0.01 that the entries make, at the time and the strategic pace of half of the 5 km
    // that were solved.
    TEST(Update, OffReadsTheLatestSolve)
    {
        OpenProfile profile;
        profile.tick("update", false);
        profile.type("Text1", "10");
        profile.move(6150, 3100);
        EXPECT_EQ(profile.text("mousexm"), "  5000");
        EXPECT_EQ(profile.text("mousegrade"), "0.0100");
        EXPECT_EQ(profile.text("Text11"), "   10:50  ");
        EXPECT_EQ(profile.text("Text12"), " 1.554");
        EXPECT_EQ(profile.text("Text13"), "  2500");
        EXPECT_EQ(profile.text("Text7"), "    6:52  ");
        EXPECT_EQ(profile.text("Text8"), "    6:59  ");
        EXPECT_EQ(profile.text("Text9"), "    6:29  ");
        EXPECT_EQ(profile.text("Text10"), "    6:35  ");
        EXPECT_THAT(profile.outside.events, IsEmpty());
    }

    TEST(Update, OffLeavesTheTimesOfTheLatestSolve)
    {
        OpenProfile profile;
        profile.tick("update", false);
        profile.type("Text1", "10");
        EXPECT_EQ(profile.text("Text2"), "10000");
        EXPECT_EQ(profile.text("Text5"), "   21:41  ");
        EXPECT_EQ(profile.text("Text3"), " 5001.0");
        profile.tick("update", true);
        EXPECT_EQ(profile.text("Text3"), "10000.5");
    }

    TEST(ShowSplits, MarksMilesOrKilometersInTurnHigherAndLower)
    {
        OpenProfile profile;
        profile.choose("minpkm");
        profile.click("Command6");
        const std::vector<Primitive> lines = profile.drawn(classic::green);
        const std::vector<Primitive> texts = profile.drawn(classic::black);
        ASSERT_EQ(lines.size(), 5U);
        ASSERT_EQ(texts.size(), 10U);
        const double x = 150 + profile.course().marks.kmX[1] * 12 / 5;
        const auto& first = std::get<LinePrimitive>(lines[0].shape);
        EXPECT_TRUE(closeTo(first.from.x, x));
        EXPECT_EQ(first.from.y, 6100);
        EXPECT_EQ(first.to.y, 1000);
        EXPECT_EQ(std::get<LinePrimitive>(lines[1].shape).to.y, 600);
        const auto& time = std::get<TextPrimitive>(texts[2].shape);
        EXPECT_EQ(time.at.y, 200);
        EXPECT_EQ(time.text, formatTime(profile.course().marks.kmTime[2]));
        const auto& split = std::get<TextPrimitive>(texts[3].shape);
        EXPECT_EQ(split.at.y, 400);
        EXPECT_TRUE(closeTo(split.at.x, 150 + profile.course().marks.kmX[2] * 12 / 5 - 350));
        profile.tick("update", false);
        profile.tick("update", true);
        EXPECT_THAT(profile.drawn(classic::green), IsEmpty()) << "wiped at the next redraw";
        profile.choose("minpmi");
        profile.click("Command6");
        EXPECT_EQ(profile.drawn(classic::green).size(), 3U);
    }

    std::vector<std::string> textsOf(const std::vector<Primitive>& drawn)
    {
        std::vector<std::string> texts;
        for (const Primitive& primitive : drawn)
            texts.push_back(std::get<TextPrimitive>(primitive.shape).text);
        return texts;
    }

    // Marks of the second computation at 260.007, 520.060, 780.141, 1040.250 and 1300.407 s.
    TEST(ShowSplits, TellsTimesWithoutTheMultiplier)
    {
        OpenProfile profile;
        profile.choose("minpkm");
        profile.slide("perfmult", 900);
        profile.click("Command6");
        EXPECT_THAT(textsOf(profile.drawn(classic::black)),
                    ElementsAre("    4:20  ", "    4:20  ", "    8:40  ", "    4:20  ", "   13:00  ", "    4:20  ",
                                "   17:20  ", "    4:20  ", "   21:40  ", "    4:20  "))
            << "the first split is since the start";
    }

    TEST(ShowSplits, EndsAtTheFiftiethMark)
    {
        OpenProfile profile;
        profile.type("Text1", "60");
        profile.choose("minpkm");
        profile.click("Command6");
        EXPECT_EQ(profile.drawn(classic::green).size(), 50U);
        const std::vector<std::string> texts = textsOf(profile.drawn(classic::black));
        ASSERT_EQ(texts.size(), 100U);
        EXPECT_EQ(texts[0], "    6:23  ");
        EXPECT_EQ(texts[98], " 5:19:16  ");   // of the second computation
        EXPECT_THAT(profile.outside.events, IsEmpty());
    }

    TEST(ShowSplits, DrawsNothingBeforeASolve)
    {
        OpenProfile profile;
        profile.click("Command1");
        profile.state().course = {};
        profile.state().curve = {};
        profile.open();
        profile.outside.forget();
        profile.click("Command6");
        EXPECT_THAT(profile.drawn(classic::green), IsEmpty());
        EXPECT_THAT(profile.drawn(classic::black), IsEmpty());
        EXPECT_EQ(profile.drawn(classic::lightRed).size(), 1U) << "but the course is there";
        EXPECT_THAT(profile.outside.events, IsEmpty());
    }
}
