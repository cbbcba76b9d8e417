#include "course/profile_form.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <thread>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "course/profile_files_form.h"
#include "forms/colours.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "solved_course.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/planning.h"

namespace
{
    using testing::ElementsAre;
    using testing::HasSubstr;
    using testing::IsEmpty;

    /// The course form of the man who runs 5000 m in 20:00, open.
    struct OpenProfile : PlanningProgram
    {
        OpenProfile() : PlanningProgram("profile") { open(); }

        [[nodiscard]] Course& course() { return state().course; }
        void press(double x, double y)
        {
            const auto pressed = usable<Picture>("p1").pressed;
            enter(program, "profile.p1", false, [&] { pressed({x, y}); });
        }
        void move(double x, double y)
        {
            const auto moved = usable<Picture>("p1").moved;
            enter(program, "profile.p1", true, [&] { moved({x, y}); });
        }
        void enterPoint(const char* x, const char* y)
        {
            type("distx", x);
            type("eletx", y);
            click("Command4");
        }
        [[nodiscard]] std::vector<std::string> said()
        {
            std::vector<std::string> texts;
            for (const Message& message : outside.messages)
                texts.push_back(message.text);
            outside.forget();
            return texts;
        }
        [[nodiscard]] std::vector<double> xs()
        {
            return {course().pointX.begin(), course().pointX.begin() + course().pointCount};
        }
        [[nodiscard]] std::vector<Primitive> drawn(Colour colour)
        {
            std::vector<Primitive> some;
            for (const Primitive& primitive : get<Picture>("p1").primitives)
                if (primitive.colour == colour)
                    some.push_back(primitive);
            return some;
        }
        void write(const std::string& name, const std::string& bytes) { writeBytes(folder.path / name, bytes); }
    };

    TEST(OpenedProfile, ShowsItsDefaultsSolved)
    {
        OpenProfile profile;
        EXPECT_EQ(findForm(profile.program, "profile")->title, "Course Elevation Profile Analysis");
        EXPECT_EQ(profile.text("Text2"), "5000");
        EXPECT_EQ(profile.text("Text3"), " 5001.0");   // sqrt(5000 ^ 2 + 100 ^ 2)
        EXPECT_EQ(profile.text("risetx"), "100");
        EXPECT_EQ(profile.text("falltx"), "0");
        EXPECT_EQ(profile.text("Text4"), "   20:00  ");   // 1200.26 of the second computation
        EXPECT_EQ(profile.text("Text5"), "   21:41  ");   // 1300.66
        EXPECT_EQ(profile.text("Text6"), "   21:41  ");   // 1300.667
        EXPECT_EQ(profile.text("perfmulttx"), "100.0");
        EXPECT_EQ(profile.text("origelft"), "984");
        EXPECT_EQ(profile.text("origelm"), "300");
        EXPECT_EQ(profile.course().distanceValid, 1);
        EXPECT_EQ(profile.course().courseLoading, 0);
        EXPECT_THAT(profile.outside.events, IsEmpty());
    }

    TEST(OpenedProfile, DrawsGridAndSegments)
    {
        OpenProfile profile;
        const std::vector<Primitive> grid = profile.drawn(classic::grey);
        ASSERT_EQ(grid.size(), 17U);
        EXPECT_EQ(std::get<LinePrimitive>(grid[10].shape).from, (Point{12150, 100}));
        EXPECT_EQ(std::get<LinePrimitive>(grid[10].shape).to, (Point{12150, 6100}));
        EXPECT_EQ(std::get<LinePrimitive>(grid[16].shape).from, (Point{150, 6100}));
        EXPECT_EQ(std::get<LinePrimitive>(grid[16].shape).to, (Point{12150, 6100}));
        const std::vector<Primitive> course = profile.drawn(classic::lightRed);
        ASSERT_EQ(course.size(), 1U);
        // (250 - 100) / 500 * 6000 = 1800 above the bottom, 350 m 3000
        EXPECT_NEAR(std::get<LinePrimitive>(course[0].shape).from.y, 4300, 1e-9);
        EXPECT_NEAR(std::get<LinePrimitive>(course[0].shape).to.y, 3100, 1e-9);
    }

    TEST(OpenedProfile, WithoutACurveFaultsAndIsThereAllTheSame)
    {
        PlanningProgram program("profile");
        program.state().curve = {};
        program.open();
        EXPECT_TRUE(program.isOpen());
        EXPECT_EQ(program.outside.faults.size(), 1U);
        EXPECT_EQ(program.text("Text2"), "5000");
    }

    TEST(Mouse, AddsAPointAtWholeMeters)
    {
        OpenProfile profile;
        profile.press(6151, 3713);   // (6151 - 150) * 5 / 12; 600 - 3613 / 12 = 298.92
        EXPECT_TRUE(closeTo(profile.course().pointX[1], 6001 * 5.0 / 12));
        EXPECT_EQ(profile.course().pointY[1], 299);
        profile.press(2550, 4306);   // 600 - 4206 / 12 = 249.5, a tie: to the even meter
        EXPECT_EQ(profile.course().pointY[1], 250);
        EXPECT_THAT(profile.outside.events, IsEmpty());
        EXPECT_EQ(profile.drawn(classic::lightRed).size(), 3U);
    }

    TEST(Mouse, OutOfRangeSaysSo)
    {
        OpenProfile profile;
        for (const Point at : {Point{149, 200}, Point{12151, 200}, Point{200, 99}, Point{200, 6101}})
            profile.press(at.x, at.y);
        EXPECT_EQ(profile.said(), std::vector<std::string>(4, "Mouse out of range"));
        const std::string before = profile.text("mousexm");
        profile.move(149, 200);
        EXPECT_EQ(profile.text("mousexm"), before);
        profile.type("Text1", "501");
        profile.outside.forget();
        profile.press(0, 0);
        profile.move(5000, 2000);
        EXPECT_THAT(profile.outside.events, IsEmpty()) << "without a distance the mouse does nothing";
        EXPECT_EQ(profile.text("mousexm"), before);
    }

    TEST(Mouse, AtTheEdgesStoresAFirstPointThatFaultsUntilClear)
    {
        OpenProfile profile;
        profile.press(150, 3700);
        ASSERT_EQ(profile.outside.faults.size(), 1U);
        EXPECT_THAT(profile.outside.faults[0].text, HasSubstr("\"Clear\""));
        EXPECT_EQ(profile.text("Text5"), "   21:41  ") << "the old times stand";
        profile.slide("origel", 301);
        EXPECT_EQ(profile.outside.faults.size(), 2U);
        profile.click("Command3");
        EXPECT_EQ(profile.outside.faults.size(), 2U);
        EXPECT_THAT(profile.xs(), ElementsAre(0, 5000));
    }

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

    TEST(TooSteep, StoresThePointAndFaultsUntilClear)
    {
        OpenProfile profile;
        profile.enterPoint("2.5", "99999");
        EXPECT_EQ(profile.outside.faults.size(), 1U);
        EXPECT_EQ(profile.course().pointCount, 3);
        EXPECT_EQ(profile.course().marks.kmX[1], 0);
        profile.choose("scur");
        profile.click("Command3");
        EXPECT_EQ(profile.course().pointCount, 2);
        EXPECT_EQ(profile.text("Text5"), "   21:41  ");
    }

    TEST(Elevations, AreComparedAsTexts)
    {
        OpenProfile profile;
        profile.type("maxel", "1000");
        profile.type("maxel", "6");
        EXPECT_EQ(profile.said(),
                  (std::vector<std::string>{
                      "Max elevation shown on graph must be greater than both start and end elevations."}))
            << "6 is above 350 as a text";
        EXPECT_EQ(profile.course().maxElev, 6);
        profile.type("maxel", "600");
        profile.type("minel", "9");
        profile.type("startel", "7");
        profile.type("endel", "05");
        EXPECT_EQ(profile.said(), (std::vector<std::string>{
                                      "Min elevation shown on graph must be less than both start and end elevations.",
                                      "Start elevation must be between max and min elevations for display on graph.",
                                      "End elevation must be between max and min elevations for display on graph."}));
        EXPECT_EQ(profile.text("minel"), "9") << "a refused value stays in its field";
        EXPECT_EQ(profile.course().minElev, 100);
    }

    TEST(Elevations, OfMaxBelowMinAndMinAboveMax)
    {
        OpenProfile profile;
        profile.type("startel", "100");
        profile.type("endel", "100");
        profile.type("maxel", "100");   // not below
        EXPECT_EQ(profile.outside.faults.size(), 1U) << "top and bottom at one elevation";
        EXPECT_EQ(profile.drawn(classic::grey).size(), 17U) << "grid already drawn";
        EXPECT_THAT(profile.drawn(classic::lightRed), IsEmpty());
    }

    TEST(Units, ReadTheNumbersAnew)
    {
        OpenProfile profile;
        profile.choose("elft");
        EXPECT_EQ(profile.label("Label32"), "Total (feet)");
        EXPECT_EQ(profile.text("risetx"), "100") << "of 100 feet";
        EXPECT_TRUE(closeTo(profile.course().maxElev, 600 / 3.281));
        profile.choose("pmi");
        EXPECT_EQ(profile.text("Text2"), "8046.72");
        profile.choose("pma");
        EXPECT_EQ(profile.text("Text2"), "42195");
        profile.type("Text1", "");
        EXPECT_EQ(profile.text("Text2"), "42195");
        profile.choose("elm");
        EXPECT_EQ(profile.label("Label32"), "Total (meters)");
        EXPECT_THAT(profile.outside.events, IsEmpty());
    }

    TEST(Distance, OutOfBoundsStaysAndTheNextRedrawFaults)
    {
        OpenProfile profile;
        profile.type("Text1", "");
        EXPECT_EQ(profile.said(), (std::vector<std::string>{
                                      "Distance under 50 meters.  Check your units as well as the entered number."}));
        EXPECT_EQ(profile.course().courseDist, 0);
        EXPECT_EQ(profile.text("Text2"), "5000");
        profile.slide("origel", 310);
        EXPECT_EQ(profile.outside.faults.size(), 1U);
        EXPECT_EQ(profile.text("Text5"), "   21:41  ");
    }

    TEST(Multiplier, RescalesTheTimesWithoutASolve)
    {
        OpenProfile profile;
        profile.pull("perfmult", 900);
        EXPECT_TRUE(closeTo(profile.course().perfScale, 1000 / 900.0));
        EXPECT_EQ(profile.text("perfmulttx"), " 90.0");
        EXPECT_EQ(profile.text("Text4"), "   22:14  ");   // 1200.26 / 0.9 = 1333.6
        EXPECT_EQ(profile.text("Text5"), "   24:05  ");   // 1445.2
        profile.slide("perfmult", 1100);
        EXPECT_EQ(profile.text("Text6"), "   19:42  ");   // 1300.657 / 1.1 = 1182.4
        EXPECT_TRUE(closeTo(profile.course().flatTime, 1200.2608947941644));
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

    TEST(SmoothCurve, IsDrawnInAHundredChords)
    {
        OpenProfile profile;
        profile.press(6150, 3700);
        profile.choose("scur");
        EXPECT_EQ(profile.drawn(classic::lightBlue).size(), 100U);
        profile.choose("cdots");
        EXPECT_THAT(profile.drawn(classic::lightBlue), IsEmpty());
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

    TEST(Files, ComeBackWithTheirPoints)
    {
        OpenProfile profile;
        profile.enterPoint("2.5", "300.25");
        profile.enterPoint("4", "310");
        profile.choose("minpkm");
        profile.slide("origel", 120);
        const std::string even = profile.text("Text5");
        profile.type("savname", "hills");
        profile.click("Command2");
        profile.click("Command3");
        profile.type("Text1", "8");
        profile.choose("minpmi");
        profile.slide("origel", 300);
        profile.type("retname", "hills.cpf");
        profile.click("Command5");
        EXPECT_THAT(profile.xs(), ElementsAre(0, 2500, 4000, 5000));
        EXPECT_EQ(profile.course().pointY[1], 300.25);
        EXPECT_EQ(profile.text("Text1"), "5");
        EXPECT_EQ(profile.text("origelm"), "120");
        EXPECT_TRUE(profile.isOn("minpkm"));
        EXPECT_EQ(profile.text("Text5"), even);
        EXPECT_EQ(profile.course().courseLoading, 0);
        EXPECT_THAT(profile.outside.events, IsEmpty());
    }

    TEST(Files, OfTwoPointsAreStraightAsStored)
    {
        OpenProfile profile;
        profile.write("two.cpf",
                      "5\r\n3\r\n600\r\n100\r\n250\r\n350\r\n2\r\n1\r\n9999\r\n2\r\n0\r\n111\r\n4800\r\n222\r\n");
        profile.type("retname", "two.cpf");
        profile.click("Command5");
        EXPECT_THAT(profile.xs(), ElementsAre(0, 4800));
        EXPECT_EQ(profile.course().pointY[0], 111);
        EXPECT_EQ(profile.course().pointY[1], 222);
        EXPECT_EQ(profile.course().origElev, 4500) << "held within its bar";
        EXPECT_THAT(profile.outside.events, IsEmpty());
    }

    TEST(Files, ThatAreBadLeaveTheCourse)
    {
        OpenProfile profile;
        profile.enterPoint("2.5", "300");
        const std::string even = profile.text("Text5");
        profile.write("bad.cpf", "5\r\n3\r\n600\r\n");
        for (const char* name : {"bad.cpf", "none.cpf", "."})
        {
            profile.type("retname", name);
            profile.click("Command5");
        }
        const std::vector<std::string> said = profile.said();
        ASSERT_EQ(said.size(), 3U);
        EXPECT_EQ(said[0], "The course can't be read: the file breaks off (line 3).");
        EXPECT_THAT(said[1], HasSubstr("can't be opened"));
        EXPECT_THAT(said[2], HasSubstr("can't be opened"));
        EXPECT_THAT(profile.xs(), ElementsAre(0, 2500, 5000));
        EXPECT_EQ(profile.text("Text5"), even);
        EXPECT_EQ(profile.course().courseLoading, 0);
    }

    TEST(Files, LeaveLoadingOnWithoutANameOrWithoutUpdate)
    {
        OpenProfile profile;
        profile.enterPoint("2.5", "300");
        profile.click("Command2");
        profile.click("Command5");
        EXPECT_EQ(profile.said(), (std::vector<std::string>{"Choose or enter a file name to retrieve."}));
        EXPECT_EQ(profile.course().courseLoading, 1);
        profile.type("Text1", "6");
        EXPECT_THAT(profile.outside.events, IsEmpty()) << "distance can be changed with points present";
        profile.type("retname", ".cpf");
        profile.tick("update", false);
        profile.click("Command5");
        EXPECT_EQ(profile.course().courseLoading, 1);
        profile.tick("update", true);
        profile.click("Command5");
        EXPECT_EQ(profile.course().courseLoading, 0);
    }

    TEST(Files, ThatCannotBeWrittenSaySo)
    {
        OpenProfile profile;
        profile.type("savname", "no/such/folder");
        profile.click("Command2");
        EXPECT_THAT(profile.said(), ElementsAre(HasSubstr("could not be saved")));
        profile.type("maxel", "zzz");
        profile.type("savname", "odd");
        profile.outside.forget();
        profile.click("Command2");
        EXPECT_THAT(profile.said(), ElementsAre(HasSubstr("\"zzz\" is no elevation")));
    }

    TEST(Files, AreListedWhenTheFormOpens)
    {
        OpenProfile profile;
        profile.write("b.cpf", "");
        profile.write("A.CPF.bak", "");
        profile.write("c.txt", "");
        std::filesystem::create_directory(profile.folder.path / "d.cpf");
        EXPECT_THAT(profile.get<ListBox>("cpflist").items, IsEmpty());
        profile.click("Command1");
        profile.open();
        EXPECT_THAT(profile.get<ListBox>("cpflist").items, ElementsAre("A.CPF.bak", "b.cpf"));
        ListBox& list = profile.get<ListBox>("cpflist");
        enter(profile.program, "profile.cpflist", false, [&] { select(list, 1); });
        EXPECT_EQ(profile.text("retname"), "b.cpf");
    }

    TEST(Reopened, KeepsCourseAndEntriesAndForgetsTheRest)
    {
        OpenProfile profile;
        profile.enterPoint("2.5", "300");
        profile.choose("scur");
        profile.slide("perfmult", 950);
        profile.slide("origel", 500);
        profile.choose("minpkm");
        profile.click("Command1");
        EXPECT_FALSE(profile.isOpen());
        EXPECT_EQ(profile.course().courseSaved, 1);
        profile.open();
        EXPECT_THAT(profile.xs(), ElementsAre(0, 2500, 5000));
        EXPECT_TRUE(profile.isOn("cdots"));
        EXPECT_EQ(profile.course().scur, 0);
        EXPECT_EQ(profile.text("perfmulttx"), "100.0");
        EXPECT_EQ(profile.course().perfScale, 1);
        EXPECT_EQ(profile.text("origelm"), "500");
        EXPECT_EQ(profile.course().origElev, 500);
        EXPECT_TRUE(profile.isOn("minpkm"));
        EXPECT_EQ(profile.course().courseLoading, 0);
        EXPECT_THAT(profile.outside.events, IsEmpty());
    }

    std::string gpxHill()
    {
        std::string bytes = "<gpx><trk><trkseg>";
        for (int i = 0; i <= 500; ++i)   // 500 steps of 11.12 m up a slope of 0.02
            bytes += "<trkpt lat=\"" + std::to_string(0.0001 * i) + "\" lon=\"0\"><ele>" +
                     std::to_string(100 + 0.2224 * i) + "</ele></trkpt>";
        return bytes + "</trkseg></trk></gpx>";
    }

    TEST(Import, MakesACourseOfATrack)
    {
        OpenProfile profile;
        profile.write("hill.gpx", gpxHill());
        profile.outside.files = {(profile.folder.path / "hill.gpx").string()};
        profile.click("importtrack");
        EXPECT_EQ(profile.text("Text1"), "5.56");   // 0.05 degrees of 111195.08 m: 5559.75
        EXPECT_EQ(profile.text("startel"), "100");
        EXPECT_EQ(profile.text("endel"), "211.2");
        EXPECT_EQ(profile.text("maxel"), "250");
        EXPECT_EQ(profile.text("minel"), "50");
        EXPECT_THAT(profile.xs(), ElementsAre(0, 5560));
        EXPECT_EQ(profile.text("risetx"), "111");
        EXPECT_EQ(profile.label("importnote"),
                  "501 points recorded, climb 111 m; smoothed over 100 m on either side, climb 111 m; 2 points kept, "
                  "largest elevation error 0.0 m");
        EXPECT_THAT(profile.outside.events, ElementsAre("choose: Import course"));
        EXPECT_EQ(profile.course().courseLoading, 0);
    }

    TEST(Import, OfAnythingElseLeavesTheCourse)
    {
        OpenProfile profile;
        profile.enterPoint("2.5", "300");
        profile.write("a.gpx", "<gpx><trk><trkseg><trkpt lat=\"1\" lon=\"1\"/></trkseg></trk></gpx>");
        profile.write("b.gpx", "<gpx");
        for (const char* name : {"a.gpx", "b.gpx", "c.gpx"})
            profile.outside.files.push_back((profile.folder.path / name).string());
        for (int i = 0; i < 4; ++i)
            profile.click("importtrack");
        const std::vector<std::string> said = profile.said();
        ASSERT_EQ(said.size(), 3U) << "none for no file";
        EXPECT_EQ(said[0], "The file has no elevations along its way.");
        EXPECT_THAT(said[1], HasSubstr("no XML"));
        EXPECT_THAT(said[2], HasSubstr("can't be opened"));
        EXPECT_THAT(profile.xs(), ElementsAre(0, 2500, 5000));
    }

    TEST(Working, ComesWhileASolveBlocksAndGoes)
    {
        OpenProfile profile;
        bool wasOpen = false;
        int asked = 0;
        profile.state().goOn = [&asked] { return ++asked > 0; };
        EXPECT_EQ(findForm(profile.program, "working"), nullptr);
        bool wasOpenAtOnce = true;
        profile.get<TextBox>("Text5").shown = [&] {
            (void)profile.state().goOn();   // as a search does
            wasOpenAtOnce = findForm(profile.program, "working") != nullptr;
            std::this_thread::sleep_for(std::chrono::milliseconds(310));
            (void)profile.state().goOn();
            wasOpen = findForm(profile.program, "working") != nullptr;
        };
        profile.slide("origel", 2000);
        EXPECT_FALSE(wasOpenAtOnce) << "an ordinary solve is over by then";
        EXPECT_TRUE(wasOpen);
        EXPECT_GT(asked, 0) << "whoever was asked before is still";
        EXPECT_EQ(findForm(profile.program, "working"), nullptr);
        profile.get<TextBox>("Text5").shown = [&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(310));
            (void)profile.state().goOn();
            stopWith("a reason");
        };
        int faults = 0;
        profile.program.outside.dialogs.fault = [&](const FaultReport&) {
            ++faults;
            EXPECT_EQ(findForm(profile.program, "working"), nullptr) << "away before the fault is told";
        };
        profile.slide("origel", 1000);
        EXPECT_EQ(faults, 1);
    }

    TEST(Tables, HoldSplitsOfBothUnits)
    {
        OpenProfile profile;
        const TextTable table = findForm(profile.program, "profile")->table();
        ASSERT_EQ(table.rows.size(), 1U + 5 + 1 + 1 + 4);
        EXPECT_THAT(table.rows[0], ElementsAre("Kilometer", "Meters into course", "Elevation (m)", "Time", "Split",
                                               "min/mi", "min/km", "Grade (%)"));
        // even pace on an even slope: 1300.667 s over 5001 m
        EXPECT_THAT(table.rows[1], ElementsAre("1", "1000", "270", "4:20", "4:20", "6:58", "4:20", "2.0"));
        EXPECT_EQ(table.rows[5][0], "5.001");
        EXPECT_EQ(table.rows[5][3], "21:41");
        EXPECT_THAT(table.rows[6], IsEmpty());
        EXPECT_EQ(table.rows[7][0], "Mile");
        EXPECT_EQ(table.rows[11][0], "3.107");
    }

    TEST(Tables, AreEmptyBeforeASolve)
    {
        PlanningProgram program("profile");
        program.state().curve = {};
        program.open();
        EXPECT_TRUE(findForm(program.program, "profile")->table().rows.empty());
        program.click("paceband");
        EXPECT_EQ(program.outside.messages.back().text, "There are no splits: the course has not been worked out yet.");
    }
}
