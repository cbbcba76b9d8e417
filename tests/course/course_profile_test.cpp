#include "course/course_profile.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "course/course_curve.h"
#include "solved_course.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/faults.h"

namespace
{
    using testing::ElementsAre;

    constexpr const char* tooLong =
        "Distance over 500 km (311 miles)!  Check your units as well as the entered number.";
    constexpr const char* tooShort = "Distance under 50 meters.  Check your units as well as the entered number.";

    struct DistanceCase
    {
        const char* name;
        const char* text;
        CourseUnit unit;
        double metres;
        const char* message;   // or nothing
    };

    class CourseDistance : public testing::TestWithParam<DistanceCase>
    {};

    TEST_P(CourseDistance, IsTakenOrRefused)
    {
        ModelState state;
        CourseEntries entries;
        entries.distance = GetParam().text;
        entries.unit = GetParam().unit;
        Messages messages;
        const bool taken = readCourseDistance(state, entries, messages);
        EXPECT_EQ(taken, GetParam().message == nullptr);
        EXPECT_EQ(state.course.distanceValid, taken ? 1 : 0);
        EXPECT_TRUE(closeTo(state.course.courseDist, GetParam().metres));
        EXPECT_TRUE(closeTo(state.course.xScale, taken ? GetParam().metres / 12000 : 5000.0 / 12000));
        if (!taken)
            EXPECT_EQ(messages, (Messages{{GetParam().message}}));
        else
            EXPECT_EQ(state.course.pointX[1], state.course.courseDist);
    }

    INSTANTIATE_TEST_SUITE_P(
        Rows, CourseDistance,
        testing::Values(DistanceCase{"miles", "3", CourseUnit::miles, 4828.032, nullptr},
                        DistanceCase{"yards", "1760", CourseUnit::yards, 1609.344, nullptr},
                        DistanceCase{"kilometers", "5", CourseUnit::kilometers, 5000, nullptr},
                        DistanceCase{"leading_number", "5 km", CourseUnit::kilometers, 5000, nullptr},
                        DistanceCase{"meters", "400", CourseUnit::meters, 400, nullptr},
                        DistanceCase{"marathon", "abc", CourseUnit::marathon, 42195, nullptr},
                        DistanceCase{"half", "", CourseUnit::halfMarathon, 21097.5, nullptr},
                        DistanceCase{"just_long_enough", "50", CourseUnit::meters, 50, nullptr},
                        DistanceCase{"just_short_enough", "500000", CourseUnit::meters, 500000, nullptr},
                        DistanceCase{"too_short", "49.99", CourseUnit::meters, 49.99, tooShort},
                        DistanceCase{"blank", "", CourseUnit::kilometers, 0, tooShort},
                        DistanceCase{"negative", "-5", CourseUnit::kilometers, -5000, tooShort},
                        DistanceCase{"too_long", "500.001", CourseUnit::kilometers, 500001, tooLong}),
        byName);

    TEST(CourseElevations, AreFeetOrMeters)
    {
        ModelState state;
        Messages messages;
        CourseEntries entries;
        entries.feet = true;
        entries.maxElev = "3281";
        EXPECT_TRUE(readCourseElevations(state, entries, messages));
        EXPECT_TRUE(closeTo(state.course.maxElev, 1000));
        EXPECT_TRUE(closeTo(state.course.minElev, 100 / 3.281));
        EXPECT_TRUE(closeTo(state.course.yScale, (1000 - 100 / 3.281) / 6000));
        EXPECT_TRUE(closeTo(state.course.pointY[0], 250 / 3.281));
        EXPECT_TRUE(closeTo(state.course.pointY[1], 350 / 3.281));
        EXPECT_TRUE(messages.empty());
    }

    TEST(PointsBetween, KeepDistanceAndElevations)
    {
        ModelState state = runnerBefore({{0, 250}, {2000, 300}, {5000, 350}});
        Messages messages;
        CourseEntries entries;
        entries.distance = "10";
        entries.startElev = "200";
        EXPECT_FALSE(readCourseDistance(state, entries, messages));
        EXPECT_FALSE(readCourseElevations(state, entries, messages));
        EXPECT_EQ(messages,
                  (Messages{{"Cannot change distance after entering mouse clicks.  Please Clear and try again."},
                            {"Cannot change these elevations after entering mouse clicks.  Please Clear and try "
                             "again."}}));
        EXPECT_EQ(state.course.courseDist, 10000) << "in force all the same";
        EXPECT_EQ(state.course.distanceValid, 1);
        EXPECT_EQ(state.course.startElev, 200);
        EXPECT_EQ(state.course.pointX[2], 5000);
        EXPECT_EQ(state.course.pointY[0], 250);
        state.course.courseLoading = 1;
        EXPECT_TRUE(readCourseDistance(state, entries, messages));
        EXPECT_TRUE(readCourseElevations(state, entries, messages));
        EXPECT_EQ(messages.size(), 2U);
    }

    std::vector<double> xs(const ModelState& state)
    {
        return {state.course.pointX.begin(), state.course.pointX.begin() + state.course.pointCount};
    }

    TEST(FirstPoint, IsNotChecked)
    {
        for (const double x : {2000.0, 0.0, 5000.0, 9000.0, -10.0})
        {
            ModelState state = runnerBefore({{0, 250}, {5000, 350}});
            Messages messages;
            EXPECT_TRUE(addCoursePoint(state, x, 99999, messages));
            EXPECT_THAT(xs(state), ElementsAre(0, x, 5000));
            EXPECT_EQ(state.course.pointY[1], 99999);
            EXPECT_EQ(state.course.pointY[2], 350);
        }
    }

    TEST(LaterPoint, IsCheckedAgainstTheOneBeforeItAlone)
    {
        ModelState state = runnerBefore({{0, 250}, {2000, 300}, {5000, 350}});
        state.course.marks.kmX[1] = 1000;
        Messages messages;
        EXPECT_FALSE(addCoursePoint(state, 2000, 310, messages));
        EXPECT_EQ(state.course.marks.kmX[1], 0) << "a refused point clears the marks, too";
        EXPECT_FALSE(addCoursePoint(state, 0, 310, messages));
        EXPECT_FALSE(addCoursePoint(state, 2001, 301.5, messages)) << "just behind a close neighbour";
        EXPECT_EQ(messages, (Messages{{"Must enter x-value not yet used"},
                                      {"Must enter x-value not yet used"},
                                      {"Grades steeper than 1:1 (45 degree angles) not allowed"}}));
        EXPECT_TRUE(addCoursePoint(state, 2001, 301, messages)) << "1:1 is allowed";
        EXPECT_TRUE(addCoursePoint(state, 1999, 1000, messages)) << "just before one";
        EXPECT_THAT(xs(state), ElementsAre(0, 1999, 2000, 2001, 5000));
        EXPECT_EQ(state.course.pointY[1], 1000);
    }

    TEST(LaterPoint, OutsideTheCourseFaults)
    {
        ModelState state = runnerBefore({{0, 250}, {2000, 300}, {5000, 350}});
        state.course.marks.kmX[1] = 1000;
        Messages messages;
        EXPECT_THAT(faultOf([&] { (void)addCoursePoint(state, 5001, 310, messages); }),
                    testing::HasSubstr("beyond the finish"));
        EXPECT_THAT(faultOf([&] { (void)addCoursePoint(state, -1, 310, messages); }),
                    testing::HasSubstr("before the start"));
        EXPECT_FALSE(addCoursePoint(state, 5000, 310, messages)) << "at the finish it is a used one";
        EXPECT_EQ(state.course.marks.kmX[1], 0);
        EXPECT_EQ(state.course.pointCount, 3);
    }

    TEST(Points, AreAHundredAtTheMost)
    {
        ModelState state = runnerBefore({{0, 250}, {5000, 350}});
        Messages messages;
        for (int i = 1; i <= 98; ++i)
            EXPECT_TRUE(addCoursePoint(state, 50.0 * i, 250, messages)) << i;
        EXPECT_EQ(state.course.pointCount, 100);
        EXPECT_EQ(state.course.pointX[99], 5000);
        EXPECT_FALSE(addCoursePoint(state, 1, 250, messages));
        EXPECT_EQ(messages, (Messages{{"Too many points"}}));
    }

    TEST(Curve, GoesThroughThreePointsInEachParabola)
    {
        ModelState state = runnerBefore({{0, 100}, {1000, 110}, {3000, 90}});
        fitCourseCurve(state.course);
        // slopes 0.01 and -0.01 over a base of 3000: a = -0.02 / 3000; b = 0.01 - a * 1000
        EXPECT_TRUE(closeTo(state.course.curveA[0], -0.02 / 3000));
        EXPECT_TRUE(closeTo(state.course.curveB[0], 0.01 + 0.02 / 3));
        EXPECT_TRUE(closeTo(state.course.curveC[0], 100));
        for (const double x : {0.0, 1000.0, 3000.0, 3100.0})   // one parabola throughout
            EXPECT_TRUE(closeTo(courseElevationAt(state.course, x), 100 + (0.01 + 0.02 / 3) * x - 0.02 / 3000 * x * x));
        EXPECT_TRUE(closeTo(courseGradeAt(state.course, 3000), 0.01 + 0.02 / 3 - 0.04));
    }

    TEST(Curve, BlendsBetweenInnerPoints)
    {
        ModelState state = runnerBefore({{0, 0}, {10, 100}, {20, 400}, {30, 300}, {40, 0}});
        fitCourseCurve(state.course);
        // parabola 0 is x ^ 2; parabola 1 through 100, 400, 300: second difference -400, so a = -2, b = 90, c = -600
        EXPECT_TRUE(closeTo(courseElevationAt(state.course, 5), 25));
        EXPECT_TRUE(closeTo(courseElevationAt(state.course, 15), (225 + 300) / 2.0));
        EXPECT_TRUE(closeTo(courseGradeAt(state.course, 15), (30 + 30) / 2.0));
        EXPECT_TRUE(closeTo(courseElevationAt(state.course, 12.5), 0.75 * 156.25 + 0.25 * (-312.5 + 1125 - 600)));
    }

    TEST(Curve, OfPointsAtOneDistanceIsHugeAndNoFault)
    {
        ModelState state = runnerBefore({{0, 1}, {0, 2}, {10, 3}});
        fitCourseCurve(state.course);
        // over rows (0, 0, 1), (0, 0, 1), (100, 10, 1) and y = 1, 2, 3 the determinants are
        //   a: 1 * (0 - 10) + 1 * (2 * 10 - 0) = 10;  b: 100 * (1 * 1 - 1 * 2) = -100;  c: 0, as two columns have 0 0
        EXPECT_TRUE(closeTo(state.course.curveA[0], 1e9));
        EXPECT_TRUE(closeTo(state.course.curveB[0], -1e10));
        EXPECT_EQ(state.course.curveC[0], 0);
        EXPECT_TRUE(closeTo(courseElevationAt(state.course, 5), 25e9 - 50e9));
        EXPECT_EQ(courseElevationAt(state.course, 0), 0);
        EXPECT_EQ(courseElevationAt(state.course, 10), 0);
        EXPECT_TRUE(closeTo(courseGradeAt(state.course, 10), 1e10));
        EXPECT_EQ(courseGradeAt(state.course, 5), 0);
    }

    TEST(Curve, NeedsThreePoints)
    {
        const ModelState state = runnerBefore({{0, 1}, {10, 3}});
        EXPECT_NE(faultOf([&] { (void)courseElevationAt(state.course, 5); }), "");
        EXPECT_NE(faultOf([&] { (void)courseGradeAt(state.course, 5); }), "");
        EXPECT_FALSE(isSmooth(runnerBefore({{0, 1}, {10, 3}}, true).course));
    }
}
