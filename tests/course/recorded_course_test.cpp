#include "course/recorded_course.h"

#include <cmath>
#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "course/course_splits.h"
#include "model/units.h"
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
            ModelState state = runnerBefore({{0, 0}, {1, 0}});
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

    TEST(Splits, AreTheMarksAndTheFinish)
    {
        const ModelState state = solved({{0, 200}, {3000, 280}, {10500, 220}});
        const std::vector<CourseSplit> splits = courseSplits(state.course, metresPerKilometre);
        ASSERT_EQ(splits.size(), 11U);
        double sum = 0;
        for (std::size_t j = 0; j < 10; ++j)
        {
            EXPECT_TRUE(closeTo(splits[j].place, state.course.marks.kmX[static_cast<int>(j) + 1], 1e-6)) << j;
            EXPECT_TRUE(closeTo(splits[j].time, state.course.marks.kmTime[static_cast<int>(j) + 1], 1e-6)) << j;
            EXPECT_TRUE(closeTo(splits[j].perKilometer, splits[j].split)) << j;
            EXPECT_TRUE(closeTo(splits[j].perMile, splits[j].split * 1.609344)) << j;
            sum += splits[j].split;
        }
        EXPECT_TRUE(closeTo(sum + splits[10].split, state.course.timeAt[100]));
        EXPECT_TRUE(closeTo(splits[10].time, state.course.timeAt[100]));
        EXPECT_TRUE(closeTo(splits[10].number, state.course.distAt[100] / 1000));
        EXPECT_NEAR(splits[0].grade, 80 / 3000.0, 1e-9);
        EXPECT_NEAR(splits[10].elevation, 220, 1e-9);
    }

    TEST(Splits, GoOnBehindTheFiftiethAndTakeTheMultiplier)
    {
        ModelState state = solved({{0, 200}, {60000, 200}});
        const double time = courseSplits(state.course, metresPerKilometre).back().time;
        EXPECT_EQ(courseSplits(state.course, metresPerKilometre).size(), 60U);
        state.course.perfScale = 1.1;
        EXPECT_TRUE(closeTo(courseSplits(state.course, metresPerKilometre).back().time, 1.1 * time));
        EXPECT_TRUE(courseSplits(runnerBefore({{0, 200}, {60000, 200}}).course, 1000).empty());
    }

    TEST(PaceBand, HasALineASplit)
    {
        const ModelState state = solved({{0, 300}, {5000, 300}});
        // 1200.016 s at even pace: 240.003 s a kilometer, 386.245 s a mile, 41.25 s for the rest of 171.968 m
        EXPECT_THAT(paceBand(state.course, false),
                    testing::ElementsAre("    km      time   split", "     1      4:00    4:00",
                                         "     2      8:00    4:00", "     3     12:00    4:00",
                                         "     4     16:00    4:00", "     5     20:00    4:00"));
        EXPECT_THAT(paceBand(state.course, true),
                    testing::ElementsAre("  mile      time   split", "     1      6:26    6:26",
                                         "     2     12:52    6:26", "     3     19:19    6:26",
                                         "  3.11     20:00    41.3"));
    }
}
