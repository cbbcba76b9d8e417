#include "course/profile_files_form.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "course/profile_form.h"
#include "open_profile.h"
#include "support/close_to.h"

namespace
{
    using testing::ElementsAre;
    using testing::HasSubstr;
    using testing::IsEmpty;

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
    }

    TEST(Files, ThatNobodyCouldRetrieveAreNotWritten)
    {
        OpenProfile profile;
        profile.type("savname", "odd");
        profile.click("Command2");
        const std::string before = readBytes(profile.folder.path / "odd.cpf");
        profile.type("maxel", "zzz");
        profile.outside.forget();
        profile.click("Command2");
        EXPECT_EQ(
            profile.said(),
            (std::vector<std::string>{
                "The course has not been saved, for it could not be retrieved: The course can't be read: a number "
                "is wanted (line 3).\nPlease mend the entry and save again."}));
        EXPECT_EQ(readBytes(profile.folder.path / "odd.cpf"), before);
        EXPECT_EQ(profile.folder.entryCount(), 1U);
    }

    std::string fileWith(int changedLine, const std::string& text)
    {
        const std::vector<std::string> lines{"7",     " 1 ", "900", "200", "210",    "220",  " 1 ",    " 2 ",
                                             " 100 ", " 3 ", " 0 ", "64 ", " 5000 ", " 66 ", " 9000 ", " 67 "};
        std::string bytes;
        for (std::size_t i = 0; i < lines.size(); ++i)
            bytes += (static_cast<int>(i) + 1 == changedLine ? text : lines[i]) + "\r\n";
        return bytes;
    }

    std::vector<std::string> entriesShown(OpenProfile& profile)
    {
        return {profile.text("Text1"),
                profile.text("maxel"),
                profile.text("minel"),
                profile.text("startel"),
                profile.text("endel"),
                profile.text("origelm"),
                profile.text("Text2"),
                profile.text("Text5"),
                profile.isOn("pkm") ? "km" : "another unit",
                profile.isOn("elm") ? "m" : "ft",
                profile.isOn("minpmi") ? "mi" : "km"};
    }

    TEST(Files, WithANumberBeyondAnyCourseAreRefusedWhole)
    {
        for (const int line : {1, 3, 4, 5, 6})
            for (const char* number : {"1e999", "1e308", "-1e308"})
                for (const int loading : {0, 1})
                {
                    OpenProfile profile;
                    profile.enterHills();
                    const Course before = profile.course();
                    const std::vector<std::string> shown = entriesShown(profile);
                    profile.write("far.cpf", fileWith(line, number));
                    profile.course().courseLoading = loading;
                    profile.retrieve("far.cpf");
                    EXPECT_EQ(profile.said(),
                              (std::vector<std::string>{
                                  "The course can't be read: the number is larger than any course (line " +
                                  std::to_string(line) + ")."}));
                    EXPECT_EQ(profile.course().courseLoading, loading);
                    EXPECT_EQ(profile.course().pointX, before.pointX);
                    EXPECT_EQ(profile.course().pointY, before.pointY);
                    EXPECT_EQ(profile.course().pointCount, 5);
                    EXPECT_EQ(profile.course().courseDist, 5000);
                    EXPECT_EQ(profile.course().timeAt, before.timeAt);
                    EXPECT_EQ(entriesShown(profile), shown);
                }
    }

    TEST(Files, OfMilesAndFeetLeaveThePointsInMeters)
    {
        OpenProfile profile;
        profile.write("far.cpf", fileWith(0, ""));
        profile.retrieve("far.cpf");
        EXPECT_THAT(profile.outside.events, IsEmpty());
        EXPECT_TRUE(profile.isOn("pmi"));
        EXPECT_TRUE(profile.isOn("elft"));
        EXPECT_TRUE(profile.isOn("minpkm"));
        EXPECT_EQ(profile.label("Label32"), "Total (feet)");
        EXPECT_EQ(profile.text("Text1"), "7");
        EXPECT_TRUE(closeTo(profile.course().courseDist, 7 * 1609.344));
        EXPECT_TRUE(closeTo(profile.course().maxElev, 900 / 3.281));
        EXPECT_TRUE(closeTo(profile.course().startElev, 210 / 3.281));
        const std::vector<double> ys{64, 66, 67};
        const auto expectPoints = [&] {
            EXPECT_THAT(profile.xs(), ElementsAre(0, 5000, 9000));
            EXPECT_TRUE(std::equal(ys.begin(), ys.end(), profile.course().pointY.begin()));
        };
        expectPoints();
        EXPECT_EQ(profile.text("risetx"), "10");   // 3 m are 9.8 feet
        profile.course().courseLoading = 1;        // or the units were refused
        for (const char* unit : {"pkm", "elm", "pyd", "elft", "pme"})
        {
            profile.choose(unit);
            expectPoints();
        }
    }

    constexpr const char* tooLong =
        "Distance over 500 km (311 miles)!  Check your units as well as the entered number.";

    TEST(Files, WithADistanceOutOfBoundsSaySoAndAreTaken)
    {
        OpenProfile profile;
        profile.write("long.cpf", fileWith(1, "311"));   // miles
        profile.retrieve("long.cpf");
        EXPECT_EQ(profile.said(), (std::vector<std::string>{tooLong}));
        EXPECT_EQ(profile.course().distanceValid, 0);
        EXPECT_THAT(profile.xs(), ElementsAre(0, 5000, 9000));
        EXPECT_EQ(profile.text("Text2"), "5000") << "of before";
        profile.write("short.cpf", fileWith(1, "0.031"));
        profile.retrieve("short.cpf");
        EXPECT_EQ(profile.said(), (std::vector<std::string>{
                                      "Distance under 50 meters.  Check your units as well as the entered number."}));
    }

    TEST(Files, AreSolvedTwice)
    {
        OpenProfile profile;
        profile.enterHills();
        profile.type("savname", "hills");
        profile.click("Command2");
        int shown = 0;
        profile.get<TextBox>("Text6").shown = [&shown] { ++shown; };
        profile.tick("update", false);
        profile.tick("update", true);
        EXPECT_EQ(shown, 2) << "22:24 of the model and 22:19 of the steps";
        profile.retrieve("hills.cpf");
        EXPECT_EQ(shown, 2 + 2 * 2);
        profile.tick("update", false);
        profile.retrieve("hills.cpf");
        EXPECT_EQ(shown, 6);
        EXPECT_THAT(profile.outside.events, IsEmpty());
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

    TEST(Reopened, TellsOfADistanceOutOfBounds)
    {
        OpenProfile profile;
        profile.type("Text1", "501");
        profile.outside.forget();
        profile.click("Command1");
        profile.open();
        EXPECT_EQ(profile.said(), (std::vector<std::string>{tooLong}));
        EXPECT_EQ(profile.text("Text1"), "501");
        EXPECT_EQ(profile.course().distanceValid, 0);
        EXPECT_EQ(profile.course().courseLoading, 0);
    }

    TEST(Reopened, WithAFaultIsNotLoadingAnyMore)
    {
        OpenProfile profile;
        profile.enterPoint("2.5", "99999");
        profile.click("Command1");
        EXPECT_EQ(profile.outside.faults.size(), 1U);
        profile.open();
        EXPECT_TRUE(profile.isOpen());
        EXPECT_EQ(profile.outside.faults.size(), 2U);
        EXPECT_EQ(profile.course().courseLoading, 0);
        profile.outside.forget();
        profile.type("Text1", "6");
        EXPECT_EQ(profile.said(),
                  (std::vector<std::string>{
                      "Cannot change distance after entering mouse clicks.  Please Clear and try again."}));
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

    std::vector<std::string> printedBand(OpenProfile& profile)
    {
        profile.outside.printedTexts.clear();
        profile.click("paceband");
        return profile.outside.printedTexts.empty() ? std::vector<std::string>{} : profile.outside.printedTexts.back();
    }

    TEST(Tables, StayThoseOfTheLatestSolveWithoutADistance)
    {
        OpenProfile profile;
        const auto rows = profile.rows();
        const auto band = printedBand(profile);
        ASSERT_EQ(rows.size(), 12U);
        ASSERT_EQ(band.size(), 5U);
        profile.type("Text1", "");
        EXPECT_EQ(profile.course().courseDist, 0);
        EXPECT_EQ(profile.rows(), rows);
        EXPECT_EQ(printedBand(profile), band);
        EXPECT_THAT(profile.outside.faults, IsEmpty());
    }

    TEST(Tables, StayThoseOfTheLatestSolveBesideAPointAtTheStart)
    {
        OpenProfile profile;
        const auto rows = profile.rows();
        const auto band = printedBand(profile);
        profile.press(150, 3700);
        EXPECT_EQ(profile.outside.faults.size(), 1U);
        EXPECT_EQ(profile.rows(), rows);
        EXPECT_EQ(printedBand(profile), band);
        EXPECT_EQ(profile.outside.faults.size(), 1U);
    }

    TEST(Tables, StayThoseOfTheLatestSolveUnderAnotherDistance)
    {
        OpenProfile profile;
        profile.enterHills();
        const auto rows = profile.rows();
        const auto band = printedBand(profile);
        // the end of 1000 m along the slope of 0.05 is 998.75 m away and 49.94 m up
        ASSERT_EQ(rows.size(), 1U + 5 + 1 + 1 + 4);
        EXPECT_EQ(rows[1][1], "999");
        EXPECT_EQ(rows[1][2], "300");
        EXPECT_EQ(rows[5][1], "5000");
        EXPECT_EQ(rows[5][2], "350");
        profile.type("Text1", "6");
        EXPECT_EQ(profile.said().size(), 1U);
        EXPECT_EQ(profile.course().courseDist, 6000);
        EXPECT_EQ(profile.rows(), rows);
        EXPECT_EQ(printedBand(profile), band);
        profile.slide("origel", 301);   // a redraw
        EXPECT_NE(profile.rows(), rows);
        EXPECT_NE(printedBand(profile), band);
    }

    TEST(Tables, TakeTheMultiplierAsItIs)
    {
        OpenProfile profile;
        profile.slide("perfmult", 900);
        EXPECT_EQ(profile.rows()[5][3], "24:05");                             // 1300.667 / 0.9 = 1445.2
        EXPECT_EQ(printedBand(profile).back(), "  3.11     24:05    50.0");   // 45.003 / 0.9
    }

    TEST(PaceBandButton, DoesNothingWithoutAPrinter)
    {
        OpenProfile profile;
        profile.program.outside.printer = {};
        profile.click("paceband");
        EXPECT_THAT(profile.outside.events, IsEmpty());
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
