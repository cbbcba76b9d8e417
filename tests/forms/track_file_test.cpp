#include "forms/track_file.h"

#include <cmath>
#include <ostream>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "support/case_name.h"
#include "support/close_to.h"

namespace
{
    Track track(const std::string& bytes)
    {
        Messages said;
        const std::optional<Track> read = readTrack(bytes, said);
        EXPECT_TRUE(read.has_value()) << (said.empty() ? "" : said.front().text);
        return read.value_or(Track{});
    }

    std::string gpx(const std::string& points)
    {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<gpx version=\"1.1\" "
               "xmlns=\"http://www.topografix.com/GPX/1/1\"><trk><name>a &amp; b</name><trkseg>" +
               points + "</trkseg></trk></gpx>";
    }

    std::string tcx(const std::string& laps)
    {
        return "\xEF\xBB\xBF<?xml version=\"1.0\"?><ns:TrainingCenterDatabase xmlns:ns=\"x\"><ns:Activities>"
               "<ns:Activity Sport=\"Running\"><ns:Id>x</ns:Id>" +
               laps + "</ns:Activity></ns:Activities></ns:TrainingCenterDatabase>";
    }

    TEST(Gpx, GivesTheWayOverTheSphere)
    {
        // a degree of latitude is 6371008.8 * pi / 180 = 111195.0802 m; of longitude at 60 degrees half of it
        const Track read =
            track(gpx("<trkpt lat=\"59\" lon=\"10\"><ele>12.5</ele><time>2024-02-29T23:59:30Z</time></trkpt>"
                      "<trkpt lat=\"60\" lon=\"10\"><time>2024-03-01T01:00:30+01:00</time></trkpt>"
                      "<trkpt lat=\"60\" lon=\"10.001\"><ele>-3</ele></trkpt>"));
        ASSERT_EQ(read.points.size(), 3U);
        EXPECT_EQ(read.points[0].distance, 0);
        EXPECT_EQ(read.points[0].elevation, 12.5);
        EXPECT_EQ(read.points[0].time, 0);
        EXPECT_TRUE(closeTo(read.points[1].distance, 111195.0802, 1e-8));
        EXPECT_EQ(read.points[1].elevation, std::nullopt);
        EXPECT_EQ(read.points[1].time, 60);
        EXPECT_TRUE(closeTo(read.points[2].distance - read.points[1].distance, 55.597540, 1e-6));
        EXPECT_EQ(read.points[2].time, std::nullopt);
        EXPECT_TRUE(read.laps.empty());
    }

    TEST(Gpx, TakesTheFirstTrackOrRouteWithPoints)
    {
        const Track read = track("<gpx><wpt lat=\"5\" lon=\"5\"/><trk><name/></trk><rte><rtept lat=\"1\" lon=\"1\"/>"
                                 "<rtept lat=\"2\" lon=\"1\"/></rte><trk><trkseg><trkpt lat=\"3\" lon=\"3\"/></trkseg>"
                                 "</trk></gpx>");
        EXPECT_EQ(read.points.size(), 2U);
    }

    TEST(Gpx, GoesOnOverItsSegments)
    {
        const Track read = track("<gpx><trk><trkseg><trkpt lat=\"0\" lon=\"0\"/></trkseg><trkseg>"
                                 "<trkpt lat=\"0\" lon=\"0.01\"/></trkseg></trk></gpx>");
        ASSERT_EQ(read.points.size(), 2U);
        EXPECT_NEAR(read.points[1].distance, 1111.95, 0.01);
    }

    TEST(Gpx, HasItsTracksAtItsTopAndTheirPointsWhereTheyBelong)
    {
        const std::string point = "<trkpt lat=\"0\" lon=\"0\"/>";
        EXPECT_TRUE(track("<gpx><a><trk><trkseg>" + point + "</trkseg></trk></a></gpx>").points.empty());
        EXPECT_TRUE(track("<gpx><trk><trk><trkseg>" + point + "</trkseg></trk></trk></gpx>").points.empty());
        const Track read = track("<gpx><trk><extensions>" + point + "</extensions>" + point + "<trkseg/></trk><trk>" +
                                 "<trkseg>" + point + point + "</trkseg></trk></gpx>");
        EXPECT_EQ(read.points.size(), 2U);
    }

    TEST(Gpx, LeavesOutPointsWithoutAPlace)
    {
        for (const char* point : {"<trkpt lat=\"91\" lon=\"0\"/>", "<trkpt lat=\"x\" lon=\"0\"/>", "<trkpt lon=\"0\"/>",
                                  "<trkpt lat=\"nan\" lon=\"0\"/>", "<trkpt lat=\"1e999\" lon=\"0\"/>",
                                  "<trkpt lat=\"0\" lon=\"181\"/>", "<trkpt/>"})
            EXPECT_TRUE(track(gpx(point)).points.empty()) << point;
    }

    class GpxTime : public testing::TestWithParam<const char*>
    {};

    TEST_P(GpxTime, ThatIsNoneIsLeftOut)
    {
        const Track read =
            track(gpx(std::string("<trkpt lat=\"0\" lon=\"0\"><time>") + GetParam() + "</time></trkpt>"));
        ASSERT_EQ(read.points.size(), 1U);
        EXPECT_EQ(read.points[0].time, std::nullopt);
    }

    INSTANTIATE_TEST_SUITE_P(Texts, GpxTime,
                             testing::Values("", "now", "2024-05-01", "2024-05-01T10:00", "2024-13-01T10:00:00Z",
                                             "2024-00-01T10:00:00Z", "2024-05-32T10:00:00Z", "2024-05-01 10:00:00Z",
                                             "2024-05-01T10:00:xxZ", "2024-05-01T10:00:00Zulu", "2024-05-01T10:00:00+1",
                                             "-024-05-01T10:00:00Z", "2024-05-01T10:00:1e9Z"));

    TEST(Times, MayHaveDecimalsAndGoBackNowhere)
    {
        const Track read = track(gpx("<trkpt lat=\"0\" lon=\"0\"><time>2023-12-31T23:59:59.25Z</time></trkpt>"
                                     "<trkpt lat=\"0\" lon=\"1\"><time>2024-01-01T00:00:01</time></trkpt>"
                                     "<trkpt lat=\"0\" lon=\"2\"><time>2023-12-31T23:59:59Z</time></trkpt>"));
        EXPECT_EQ(read.points[1].time, 1.75);
        EXPECT_EQ(read.points[2].time, 1.75);
    }

    TEST(Tcx, GivesLapsAndPoints)
    {
        const Track read = track(tcx(
            "<ns:Lap StartTime=\"x\"><ns:TotalTimeSeconds>75.5</ns:TotalTimeSeconds><ns:DistanceMeters> 400.2 "
            "</ns:DistanceMeters><ns:Track>"
            "<ns:Trackpoint><ns:Time>2024-05-01T10:00:00Z</ns:Time><ns:AltitudeMeters>5</ns:AltitudeMeters>"
            "<ns:DistanceMeters>0</ns:DistanceMeters></ns:Trackpoint>"
            "<ns:Trackpoint><ns:Time>2024-05-01T10:01:15Z</ns:Time></ns:Trackpoint>"
            "<ns:Trackpoint><ns:Time>2024-05-01T10:01:15Z</ns:Time><ns:DistanceMeters>400</ns:DistanceMeters>"
            "</ns:Trackpoint></ns:Track></ns:Lap>"
            "<ns:Lap><ns:TotalTimeSeconds>10</ns:TotalTimeSeconds><ns:DistanceMeters>0</ns:DistanceMeters></ns:Lap>"
            "<ns:Lap><ns:TotalTimeSeconds>80</ns:TotalTimeSeconds></ns:Lap>"
            "<ns:Lap><ns:TotalTimeSeconds>-80</ns:TotalTimeSeconds><ns:DistanceMeters>9</ns:DistanceMeters></ns:Lap>"
            "<ns:Lap><ns:TotalTimeSeconds>80</ns:TotalTimeSeconds><ns:DistanceMeters>400</ns:DistanceMeters></"
            "ns:Lap>"));
        ASSERT_EQ(read.laps.size(), 2U);
        EXPECT_EQ(read.laps[0].metres, 400.2);
        EXPECT_EQ(read.laps[0].seconds, 75.5);
        EXPECT_EQ(read.laps[1].seconds, 80);
        ASSERT_EQ(read.points.size(), 2U) << "one point has neither a place nor a distance";
        EXPECT_EQ(read.points[1].distance, 400);
        EXPECT_EQ(read.points[1].time, 75);
        EXPECT_EQ(read.points[0].elevation, 5);
    }

    TEST(Tcx, OfACourseHasItsTrackBesideItsLap)
    {
        const Track read = track("<TrainingCenterDatabase><Courses><Course><Lap><TotalTimeSeconds>9</TotalTimeSeconds>"
                                 "<DistanceMeters>30</DistanceMeters></Lap><Track><Trackpoint><Position>"
                                 "<LatitudeDegrees>1</LatitudeDegrees><LongitudeDegrees>2</LongitudeDegrees></Position>"
                                 "</Trackpoint></Track></Course></Courses></TrainingCenterDatabase>");
        EXPECT_EQ(read.laps.size(), 1U);
        EXPECT_EQ(read.points.size(), 1U);
    }

    struct BadFile
    {
        std::string name;
        std::string bytes;
        std::string why;

        friend std::ostream& operator<<(std::ostream& out, const BadFile& row) { return out << row.name; }
    };

    class Refused : public testing::TestWithParam<BadFile>
    {};

    TEST_P(Refused, TellsWhy)
    {
        Messages said;
        EXPECT_FALSE(readTrack(GetParam().bytes, said).has_value());
        EXPECT_EQ(said, (Messages{{"The file can't be read: " + GetParam().why + "."}}));
    }

    std::string repeated(const std::string& text, int times)
    {
        std::string all;
        for (int i = 0; i < times; ++i)
            all += text;
        return all;
    }

    const std::string noXml = "it is no XML, or breaks off";
    const std::string type = "it defines a document type, which no TCX or GPX file does";

    INSTANTIATE_TEST_SUITE_P(
        Files, Refused,
        testing::Values(BadFile{"empty", "", noXml}, BadFile{"words", "no laps here", noXml},
                        BadFile{"broken off", gpx("<trkpt lat=\"1\" lon=\"1\"/>").substr(0, 150), noXml},
                        BadFile{"zeros", std::string(1000, '\0'), noXml},
                        BadFile{"other XML", "<html><body/></html>", "it is neither a TCX nor a GPX file"},
                        BadFile{"document type", "<!DOCTYPE gpx><gpx/>", type},
                        BadFile{"entities",
                                "<?xml version=\"1.0\"?><!DOCTYPE g [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b "
                                "\"&a;&a;\">]><gpx>&b;</gpx>",
                                type},
                        BadFile{"external entity", "<!DOCTYPE g [<!ENTITY x SYSTEM \"file:///etc/passwd\">]><gpx/>",
                                type},
                        BadFile{"wide document type",
                                std::string("<\0!\0D\0O\0C\0T\0Y\0P\0E\0 \0g\0>\0<\0g\0p\0x\0/\0>\0", 36), type},
                        BadFile{"deep nesting", "<gpx>" + repeated("<a>", 200) + repeated("</a>", 200) + "</gpx>",
                                "its elements are nested deeper than any watch writes"},
                        BadFile{"too many elements", "<gpx>" + repeated("<a/>", 4'000'001) + "</gpx>",
                                "it has more elements than any watch writes"},
                        BadFile{"too large", std::string(longestTrackFile + 1, ' '), "it is larger than 32 megabytes"}),
        byName);

    TEST(MillionLaps, AreRead)
    {
        const Track read = track(
            "<TrainingCenterDatabase><Activities><Activity>" +
            repeated("<Lap><TotalTimeSeconds>1</TotalTimeSeconds><DistanceMeters>4</DistanceMeters></Lap>", 300000) +
            "</Activity></Activities></TrainingCenterDatabase>");
        EXPECT_EQ(read.laps.size(), 300000U);
    }

    Track steadyTrack(double length, double speed)
    {
        Track steady;
        for (double d = 0; d < length; d += 37)
            steady.points.push_back({d, {}, d / speed});
        steady.points.push_back({length, {}, length / speed});
        return steady;
    }

    TEST(EvenLaps, LieBetweenThePoints)
    {
        const std::vector<TrackLap> laps = evenLaps(steadyTrack(1250, 4), 400, 27);
        ASSERT_EQ(laps.size(), 4U);
        for (std::size_t i = 0; i < 3; ++i)
        {
            EXPECT_EQ(laps[i].metres, 400);
            EXPECT_TRUE(closeTo(laps[i].seconds, 100));
        }
        EXPECT_TRUE(closeTo(laps[3].metres, 50));
        EXPECT_TRUE(closeTo(laps[3].seconds, 12.5));
    }

    TEST(EvenLaps, TellOfOneTooMany)
    {
        EXPECT_EQ(evenLaps(steadyTrack(10000, 4), 100, 27).size(), 28U);
        EXPECT_EQ(evenLaps(steadyTrack(2700, 4), 100, 27).size(), 27U);
        EXPECT_TRUE(evenLaps(Track{{{0, {}, {}}, {5000, {}, {}}}, {}}, 1000, 27).empty()) << "no times";
        EXPECT_TRUE(evenLaps(Track{}, 1000, 27).empty());
        EXPECT_EQ(evenLaps(Track{{{0, {}, 0}, {1e8, {}, 10}}, {}}, 1, 27).size(), 28U) << "one leap";
    }

    RC_GTEST_PROP(EvenLaps, AddUpToTheTrack, ())
    {
        const double length = *rc::gen::inRange(10, 20000);
        const double step = *rc::gen::inRange(100, 3000);
        double metres = 0;
        double seconds = 0;
        for (const TrackLap& lap : evenLaps(steadyTrack(length, 3.7), step, 1000))
        {
            metres += lap.metres;
            seconds += lap.seconds;
            RC_ASSERT(lap.metres > 0 && lap.seconds > 0);
        }
        RC_ASSERT(std::abs(metres - length) <= 1);
        RC_ASSERT(std::abs(seconds - metres / 3.7) < 1e-6);
    }
}
