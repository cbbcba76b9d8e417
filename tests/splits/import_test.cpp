#include <cstdio>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "open_splits.h"

namespace
{
    using testing::ElementsAre;

    constexpr const char* twoLaps =
        "<?xml version=\"1.0\"?><TrainingCenterDatabase><Activities><Activity Sport=\"Running\">"
        "<Lap><TotalTimeSeconds>245.04</TotalTimeSeconds><DistanceMeters>1000.02</DistanceMeters></Lap>"
        "<Lap><TotalTimeSeconds>59.5</TotalTimeSeconds><DistanceMeters>250.17</DistanceMeters></Lap>"
        "</Activity></Activities></TrainingCenterDatabase>";

    TEST(Import, FillsTheRowsWithTheLapsOfAFile)
    {
        OpenSplits splits;
        writeBytes(splits.folder.path / "run.tcx", twoLaps);
        splits.outside.files = {(splits.folder.path / "run.tcx").string()};
        splits.click("importlaps");
        ASSERT_EQ(splits.outside.fileQuestions.size(), 1U);
        EXPECT_EQ(splits.outside.fileQuestions.front().patterns, (std::vector<std::string>{"*.tcx", "*.gpx"}));
        EXPECT_THAT(splits.row(0), ElementsAre("1000", "4", "5"));
        EXPECT_THAT(splits.row(1), ElementsAre("250.2", "", "59.5"));
        EXPECT_EQ(splits.row(3), blankRow);
        EXPECT_EQ(splits.label("totracedis"), "1250.2");
        EXPECT_TRUE(splits.outside.messages.empty());
    }

    std::string lapOf(const char* seconds, const char* metres)
    {
        return std::string("<Lap><TotalTimeSeconds>") + seconds + "</TotalTimeSeconds><DistanceMeters>" + metres +
               "</DistanceMeters></Lap>";
    }

    std::string runOf(const std::string& laps)
    {
        return "<TrainingCenterDatabase><Activities><Activity>" + laps +
               "</Activity></Activities></TrainingCenterDatabase>";
    }

    TEST(Import, LeavesOutLapsThatRoundToNothing)
    {
        OpenSplits splits;
        const std::string path = (splits.folder.path / "run.tcx").string();
        writeBytes(path, runOf(lapOf("9", "0.04")));
        splits.outside.files = {path};
        splits.click("importlaps");
        EXPECT_THAT(splits.said(), ElementsAre("The file has neither laps nor a track with times."));
        EXPECT_THAT(splits.row(0), ElementsAre("400", "1", "15")) << "the entries stand";
        writeBytes(path, runOf(lapOf("9", "0.04") + lapOf("75", "400") + lapOf("0.04", "1") + lapOf("60", "300")));
        splits.outside.files = {path};
        splits.click("importlaps");
        EXPECT_TRUE(splits.outside.faults.empty());
        EXPECT_THAT(splits.row(0), ElementsAre("400", "1", "15"));
        EXPECT_THAT(splits.row(1), ElementsAre("300", "1", "0"));
        EXPECT_EQ(splits.row(2), blankRow);
        EXPECT_EQ(splits.label("totracedis"), "700");
    }

    TEST(Import, WritesTheFormsUnit)
    {
        OpenSplits splits;
        splits.click("Command5");
        splits.choose("opsplitmi");
        splits.outside.forget();
        writeBytes(splits.folder.path / "run.tcx", twoLaps);
        splits.outside.files = {(splits.folder.path / "run.tcx").string()};
        splits.click("importlaps");
        EXPECT_THAT(splits.row(0), ElementsAre("0.6214", "4", "5"));
    }

    TEST(Import, CanBeGivenUp)
    {
        OpenSplits splits;
        splits.click("importlaps");
        EXPECT_THAT(splits.outside.events, ElementsAre("choose: Import laps"));
        EXPECT_THAT(splits.row(0), ElementsAre("400", "1", "15"));
    }

    TEST(Import, TellsWhyAFileCannotBeRead)
    {
        OpenSplits splits;
        const std::string path = (splits.folder.path / "no.tcx").string();
        splits.outside.files = {path};
        splits.click("importlaps");
        EXPECT_THAT(splits.said(), ElementsAre("The file " + path + " can't be opened."));
        writeBytes(path, "these are no laps");
        splits.outside.files = {path};
        splits.click("importlaps");
        EXPECT_THAT(splits.said(), ElementsAre("The file can't be read: it is no XML, or breaks off."));
        writeBytes(path, "<gpx><trk><trkseg><trkpt lat=\"1\" lon=\"2\"/></trkseg></trk></gpx>");
        splits.outside.files = {path};
        splits.click("importlaps");
        EXPECT_THAT(splits.said(), ElementsAre("The file has neither laps nor a track with times."));
        EXPECT_THAT(splits.row(0), ElementsAre("400", "1", "15")) << "the entries stand";
    }

    /// A track due north at 5 m/s with a point every 100 m; a degree of latitude is 111195.08 m.
    std::string northwards(int points)
    {
        std::string gpx = "<gpx><trk><trkseg>";
        for (int i = 0; i < points; ++i)
        {
            const int seconds = 20 * i;
            char time[40];
            std::snprintf(time, sizeof time, "2024-05-01T%02d:%02d:%02dZ", seconds / 3600, seconds / 60 % 60,
                          seconds % 60);
            gpx += "<trkpt lat=\"" + std::to_string(i * 100 / 111195.0802) + "\" lon=\"0\"><time>" + time +
                   "</time></trkpt>";
        }
        return gpx + "</trkseg></trk></gpx>";
    }

    TEST(Import, CutsATrackIntoEvenDistances)
    {
        OpenSplits splits;
        writeBytes(splits.folder.path / "run.gpx", northwards(26));   // 2.5 km
        splits.outside.files = {(splits.folder.path / "run.gpx").string()};
        splits.click("importlaps");
        EXPECT_THAT(splits.row(0), ElementsAre("1000", "3", "20"));
        EXPECT_THAT(splits.row(1), ElementsAre("1000", "3", "20"));
        EXPECT_THAT(splits.row(2), ElementsAre("500", "1", "40"));
        EXPECT_EQ(splits.row(3), blankRow);
    }

    TEST(Import, TakesLongerDistancesForALongTrack)
    {
        OpenSplits splits;
        splits.click("Command5");
        splits.choose("opsplitkm");
        splits.outside.forget();
        writeBytes(splits.folder.path / "run.gpx", northwards(422));   // 42.1 km
        splits.outside.files = {(splits.folder.path / "run.gpx").string()};
        splits.click("importlaps");
        EXPECT_THAT(splits.row(20), ElementsAre("2", "6", "40"));
        EXPECT_EQ(splits.text("splitdis(21)"), "0.1");
    }

    TEST(Import, TakesTheFirst27OfManyLaps)
    {
        OpenSplits splits;
        std::string laps;
        for (int i = 0; i < 40; ++i)
            laps += lapOf("75", "400");
        writeBytes(splits.folder.path / "run.tcx", runOf(laps));
        splits.outside.files = {(splits.folder.path / "run.tcx").string()};
        splits.click("importlaps");
        EXPECT_THAT(splits.said(), ElementsAre("There is room for 27 of the rows; the others were left out."));
        EXPECT_THAT(splits.row(26), ElementsAre("400", "1", "15"));
    }
}
