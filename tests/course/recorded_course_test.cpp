#include "course/recorded_course.h"

#include <cmath>
#include <optional>
#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "course/course_profile.h"
#include "course/track_points_form.h"
#include "solved_course.h"
#include "support/close_to.h"

namespace
{
    constexpr double pi = 3.14159265358979;

    /// Two hills of 60 m on 10 km: a climb of 120 m, recorded every 8 m by a barometer that wavers.
    std::vector<RecordedPoint> noisyHills(double waver, std::uint32_t seed)
    {
        std::mt19937 random(seed);
        std::vector<RecordedPoint> points;
        for (int i = 0; i <= 1250; ++i)
        {
            double noise = -6;   // twelve even draws: spread 1
            for (int draw = 0; draw < 12; ++draw)
                noise += static_cast<double>(random()) / 4294967296.0;
            const double x = 8.0 * i;
            points.push_back({x, 200 - 30 * std::cos(2 * pi * x / 5000) + waver * noise});
        }
        return points;
    }

    TEST(NoisyHill, KeepsItsTrueClimb)
    {
        for (const std::uint32_t seed : {1U, 2U, 3U})
        {
            Messages said;
            const auto course = courseOfRecording(noisyHills(2, seed), usualSmoothing, said);
            ASSERT_TRUE(course) << said.front().text;
            EXPECT_GT(course->recordedRise, 1000) << "noise counts as climb";
            EXPECT_NEAR(course->rise, 120, 24);
            PointList points;
            for (std::size_t i = 0; i < course->pointX.size(); ++i)
                points.emplace_back(course->pointX[i], course->pointY[i]);
            const ModelState run = solved(points);
            EXPECT_NEAR(run.course.totalRise, 120, 8) << "thinning leaves the rest of the noise out";
            EXPECT_LE(course->pointX.size(), 40U);
            EXPECT_LE(course->largestError, thinningError);
        }
    }

    TEST(NoisyHill, WithoutSmoothingIsRough)
    {
        Messages said;
        const auto course = courseOfRecording(noisyHills(2, 1), 0, said);
        ASSERT_TRUE(course);
        EXPECT_EQ(course->pointX.size(), 100U);
        EXPECT_GT(course->largestError, thinningError) << "and says how rough";
    }

    TEST(Smoothing, LeavesAnEvenSlopeUpToItsEnds)
    {
        EvenProfile slope{10, {}};
        for (int i = 0; i <= 200; ++i)
            slope.elevation.push_back(100 + 0.7 * i);
        const EvenProfile smooth = smoothed(slope, 100);
        for (std::size_t i = 0; i <= 200; ++i)
            EXPECT_TRUE(closeTo(smooth.elevation[i], slope.elevation[i])) << i;
    }

    TEST(Smoothing, WeighsNeighboursDownToTheWindowsEdge)
    {
        EvenProfile peak{10, std::vector<double>(21, 0.0)};
        peak.elevation[10] = 16;
        // weights 1 2 3 4 3 2 1 of 16
        const EvenProfile smooth = smoothed(peak, 30);
        EXPECT_TRUE(closeTo(smooth.elevation[10], 4));
        EXPECT_TRUE(closeTo(smooth.elevation[12], 2));
        EXPECT_EQ(smooth.elevation[14], 0);
        EXPECT_EQ(smoothed(peak, 9).elevation, peak.elevation);
        EXPECT_EQ(smoothed(peak, 1e9).elevation.size(), 21U);
    }

    TEST(Recording, MergesStopsAndBridgesGaps)
    {
        Messages said;
        const auto course =
            courseOfRecording({{100, {}}, {200, 10}, {200, 14}, {600, {}}, {1000, 20}, {1100, {}}}, 0, said);
        ASSERT_TRUE(course);
        EXPECT_EQ(course->recorded, 3U);
        EXPECT_EQ(course->pointX.front(), 0);
        EXPECT_EQ(course->pointX.back(), 1000);
        EXPECT_TRUE(closeTo(course->pointY.front(), 12)) << "level before the first elevation";
        EXPECT_TRUE(closeTo(course->pointY.back(), 20)) << "and behind the last one";
        EXPECT_TRUE(closeTo(course->recordedRise, 8));
        EXPECT_TRUE(closeTo(course->rise, 8));
        EXPECT_NEAR(course->drop, 0, 1e-9);
    }

    std::string refusal(const std::vector<RecordedPoint>& points)
    {
        Messages said;
        EXPECT_FALSE(courseOfRecording(points, usualSmoothing, said));
        return said.size() == 1 ? said.front().text : "not one message";
    }

    TEST(Recording, IsRefusedWithAReason)
    {
        EXPECT_EQ(refusal({}), "The file has no elevations along its way.");
        EXPECT_EQ(refusal({{0, {}}, {1000, {}}}), "The file has no elevations along its way.");
        EXPECT_EQ(refusal({{0, 1}, {0, 2}, {1000, {}}}), "The file has no elevations along its way.");
        EXPECT_EQ(refusal({{0, 1}, {49, 2}}), "The way in the file is shorter than 50 meters.");
        EXPECT_EQ(refusal({{0, 1}, {500001, 2}}), "The way in the file is longer than 500 km (311 miles).");
        EXPECT_EQ(refusal({{0, 0}, {1000, 1001}}), "The way in the file is steeper than 1:1 (45 degrees).");
    }

    TEST(RecordedEntries, AreRoundedAndFitted)
    {
        RecordedCourse course;
        course.pointX = {0, 4000, 10123.4};
        course.pointY = {199.96, 333, 101.23};
        CourseEntries before;
        before.unit = CourseUnit::marathon;
        const CourseEntries entries = entriesOf(course, before);
        EXPECT_EQ(entries.unit, CourseUnit::kilometers);
        EXPECT_EQ(entries.distance, "10.123");
        EXPECT_EQ(entries.startElev, "200");
        EXPECT_EQ(entries.endElev, "101.2");
        EXPECT_EQ(entries.maxElev, "350");
        EXPECT_EQ(entries.minElev, "50");
        EXPECT_TRUE(closeTo(course.pointX[2], 10123));
        EXPECT_TRUE(closeTo(course.pointX[1], 4000 * 10123 / 10123.4));
        EXPECT_EQ(course.pointY[0], 200);
        EXPECT_EQ(course.pointY[2], 101.2);
        EXPECT_EQ(course.pointY[1], 333);
    }

    TEST(RecordedEntries, KeepFeetAndMiles)
    {
        RecordedCourse course;
        course.pointX = {0, 16093.44};
        course.pointY = {100, 200};
        CourseEntries before;
        before.unit = CourseUnit::miles;
        before.feet = true;
        const CourseEntries entries = entriesOf(course, before);
        EXPECT_EQ(entries.distance, "10");
        EXPECT_EQ(entries.startElev, "328.1");
        EXPECT_EQ(entries.endElev, "656.2");
        EXPECT_EQ(entries.maxElev, "700");
        EXPECT_EQ(entries.minElev, "250");
    }

    void expectWithinBounds(CourseUnit unit, const char* text)
    {
        RecordedCourse course;
        course.pointX = {0, 250000, 499999.95};
        course.pointY = {100, 200, 150};
        CourseEntries before;
        before.unit = unit;
        const CourseEntries entries = entriesOf(course, before);
        EXPECT_EQ(entries.distance, text);
        ModelState state;
        Messages said;
        EXPECT_TRUE(readCourseDistance(state, entries, said)) << said.front().text;
        EXPECT_EQ(state.course.courseDist, course.pointX.back());
        EXPECT_LE(state.course.courseDist, longestCourse);
        EXPECT_NEAR(state.course.courseDist, 499999.95, 1);
    }

    TEST(RecordedEntries, AreNotRoundedBeyondTheLongestCourse)
    {
        expectWithinBounds(CourseUnit::miles, "310.6855");   // ...6 would be 500000.006 m
        expectWithinBounds(CourseUnit::yards, "546806");     // ...7 would be 500000.321 m
        expectWithinBounds(CourseUnit::kilometers, "500");
        expectWithinBounds(CourseUnit::meters, "500000");
    }

    // Beyond 100 km the places are a 20,000th of the way apart, here 6 m. Of a peak between two slopes of 0.01 the
    // window of 16 places on either side, weighted 17 - j, takes 6 * 0.01 * 96 / 17 m: sum of j * (17 - j) is 816 on
    // either side, over weights of 289 together.
    TEST(Recording, OfAnUltraHasCoarserPlaces)
    {
        Messages said;
        const auto course = courseOfRecording({{0, 100}, {60000, 700}, {120000, 100}}, usualSmoothing, said);
        ASSERT_TRUE(course);
        ASSERT_EQ(course->pointX.size(), 3U);
        EXPECT_TRUE(closeTo(course->pointX[1], 60000));
        EXPECT_TRUE(closeTo(course->pointX[2], 120000));
        EXPECT_TRUE(closeTo(course->pointY[1], 700 - 6 * 0.01 * 96 / 17));
        EXPECT_TRUE(closeTo(course->rise, 600 - 6 * 0.01 * 96 / 17));
        EXPECT_TRUE(closeTo(course->drop, course->rise));
    }

    std::optional<RecordedCourse> courseOfFile(const std::string& bytes)
    {
        Messages said;
        const std::optional<Track> track = readTrack(bytes, said);
        EXPECT_TRUE(track) << said.front().text;
        return track ? courseOfRecording(recordedPoints(*track), 0, said) : std::nullopt;
    }

    // A watch counts the way itself; its places on the ground are not needed, and points without an elevation are
    // bridged.
    TEST(Recording, OfATrainingFileIsACourse)
    {
        const auto trackpoint = [](const std::string& metres, const std::string& elevation) {
            return "<Trackpoint><DistanceMeters>" + metres + "</DistanceMeters>" +
                   (elevation.empty() ? "" : "<AltitudeMeters>" + elevation + "</AltitudeMeters>") + "</Trackpoint>";
        };
        const auto course =
            courseOfFile("<TrainingCenterDatabase><Activities><Activity><Lap><Track>" + trackpoint("0", "400") +
                         trackpoint("500", "") + trackpoint("1000", "440") + "</Track></Lap><Lap><Track>" +
                         trackpoint("3000", "420") + "</Track></Lap></Activity></Activities></TrainingCenterDatabase>");
        ASSERT_TRUE(course);
        EXPECT_EQ(course->recorded, 3U);
        EXPECT_THAT(course->pointX, testing::ElementsAre(0, testing::DoubleNear(1000, 1e-9), 3000));
        EXPECT_THAT(course->pointY, testing::ElementsAre(400, testing::DoubleNear(440, 1e-9), 420));
        EXPECT_TRUE(closeTo(course->recordedRise, 40));
    }

    TEST(Recording, TakesAnElevationWithASign)
    {
        const auto course = courseOfFile("<gpx><trk><trkseg><trkpt lat=\"0\" lon=\"0\"><ele>+12.5</ele></trkpt>"
                                         "<trkpt lat=\"0.01\" lon=\"0\"><ele>-2.5</ele></trkpt></trkseg></trk></gpx>");
        ASSERT_TRUE(course);
        EXPECT_EQ(course->recorded, 2U);
        EXPECT_THAT(course->pointY, testing::ElementsAre(12.5, -2.5));
    }
}
