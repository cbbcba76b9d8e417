#include "course/course_splits.h"

#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "course/course_file.h"
#include "course/course_profile.h"
#include "model/units.h"
#include "solved_course.h"
#include "support/close_to.h"
#include "support/faults.h"

namespace
{
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

    // A course file may hold a cliff: 6850 m down within a micrometer 250 km from the start. It can be solved, but step
    // 50 is met by that slope, so that its 5 km become 3.4e13 m along the surface.
    TEST(Splits, OfACliffAreTooMany)
    {
        Messages said;
        const std::optional<CourseFile> file = readCourseFile(
            "500\r\n 3 \r\n9000\r\n0\r\n0\r\n0\r\n 2 \r\n 1 \r\n 300 \r\n 4 \r\n 0 \r\n 0 \r\n 249999.999999 \r\n "
            "6850 \r\n 250000 \r\n 0 \r\n 500000 \r\n 0 \r\n",
            said);
        ASSERT_TRUE(file) << said.front().text;
        const CourseEntries entries = entriesOf(*file, {});
        ModelState state;
        setUsualCurve(state);
        EXPECT_TRUE(readCourseDistance(state, entries, said));
        EXPECT_TRUE(readCourseElevations(state, entries, said));
        takePoints(*file, state.course);
        EXPECT_EQ(faultOf([&] { solveAndSplit(state, {}); }), "");
        EXPECT_GT(state.course.distAt[100], 1e13);
        for (const double unit : {metresPerMile, metresPerKilometre})
            EXPECT_EQ(faultOf([&] { (void)courseSplits(state.course, unit); }),
                      "a course with far more than 10,000 splits");
        EXPECT_NE(faultOf([&] { (void)paceBand(state.course, true); }), "");
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
