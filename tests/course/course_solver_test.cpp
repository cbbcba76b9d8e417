#include "course/course_solver.h"

#include <cmath>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "course/course_curve.h"
#include "course/course_reading.h"
#include "course/course_splits.h"
#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/units.h"
#include "solved_course.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/draws.h"
#include "support/faults.h"
#include "support/person.h"

namespace
{
    using nlohmann::json;

    class SolvedCourse : public testing::TestWithParam<CourseCase>
    {};

    void expectNumbers(const OneBased<double, courseMarks>& got, const json& expected, double tolerance)
    {
        for (int j = 1; j <= courseMarks; ++j)
            EXPECT_TRUE(closeTo(got[j], expected[static_cast<std::size_t>(j - 1)], tolerance)) << "mark " << j;
    }

    // Parabolas far from the start are differences of large numbers, so that the second computation, which works in
    // fractions, agrees with those of a smooth course in fewer digits.
    double toleranceOf(const json& data)
    {
        return data.at("smooth") == 1 ? 1e-8 : 1e-9;
    }

    TEST_P(SolvedCourse, AgreesWithASecondComputation)
    {
        ModelState state = stateOf(GetParam());
        solveAndSplit(state, {});
        const json& data = GetParam().data;
        const double tolerance = toleranceOf(data);
        const Course& course = state.course;
        EXPECT_TRUE(closeTo(course.slopeDist, data.at("slopeDist"), tolerance));
        EXPECT_NEAR(course.totalRise, data.at("totalRise"), 1e-6);
        EXPECT_NEAR(course.totalDrop, data.at("totalDrop"), 1e-6);
        EXPECT_TRUE(closeTo(course.flatTime, data.at("flatTime"), tolerance));
        EXPECT_TRUE(closeTo(course.evenTime, data.at("evenTime"), tolerance));
        EXPECT_TRUE(closeTo(course.strategicTime, data.at("strategicTime"), tolerance));
        EXPECT_TRUE(closeTo(course.courseLevelSpeed, data.at("courseLevelSpeed"), tolerance));
        EXPECT_TRUE(closeTo(course.evenFlatSpeed, data.at("evenFlatSpeed"), tolerance));
        for (std::size_t k = 0; k <= courseSteps; ++k)
        {
            EXPECT_TRUE(closeTo(course.distAt[k], data.at("distAt")[k], tolerance)) << k;
            EXPECT_TRUE(closeTo(course.timeAt[k], data.at("timeAt")[k], tolerance)) << k;
        }
        expectNumbers(course.marks.mileX, data.at("mileX"), tolerance);
        expectNumbers(course.marks.mileTime, data.at("mileTime"), tolerance);
        expectNumbers(course.marks.kmX, data.at("kmX"), tolerance);
        expectNumbers(course.marks.kmTime, data.at("kmTime"), tolerance);
        EXPECT_EQ(course.netGrade, 0);
    }

    TEST_P(SolvedCourse, IsReadAsASecondComputationReadsIt)
    {
        ModelState state = stateOf(GetParam());
        solveAndSplit(state, {});
        const double tolerance = toleranceOf(GetParam().data);
        CourseSlope slope;
        for (const json& reading : GetParam().data.at("readings"))
        {
            const double x = reading.at("x");
            slope = courseSlopeAt(state.course, x, slope);
            EXPECT_NEAR(slope.grade, reading.at("grade"), 1e-9) << x;
            EXPECT_NEAR(slope.height, reading.at("height"), 1e-5) << x;
            const CoursePassage passage = coursePassageAt(state.course, x);
            EXPECT_TRUE(closeTo(passage.metres, reading.at("metres"), tolerance)) << x;
            EXPECT_TRUE(closeTo(passage.seconds, reading.at("seconds"), tolerance)) << x;
            const CoursePaces paces = coursePacesAt(state, x, slope);
            EXPECT_TRUE(closeTo(paces.shownEven, reading.at("even"), tolerance)) << x;
            EXPECT_TRUE(closeTo(paces.strategic, reading.at("strategic"), tolerance)) << x;
            EXPECT_TRUE(closeTo(paces.flatEquivalent, reading.at("flatEquivalent"), tolerance)) << x;
        }
    }

    TEST_P(SolvedCourse, HasTheSameBitsOnARerun)
    {
        ModelState state = stateOf(GetParam());
        solveAndSplit(state, {});
        const Course first = state.course;
        solveAndSplit(state, {});
        EXPECT_EQ(state.course.evenTime, first.evenTime);
        EXPECT_EQ(state.course.strategicTime, first.strategicTime);
        EXPECT_EQ(state.course.timeAt, first.timeAt);
        EXPECT_EQ(state.course.marks.kmTime.items, first.marks.kmTime.items);
    }

    INSTANTIATE_TEST_SUITE_P(Apart, SolvedCourse, testing::ValuesIn(courseCases()), byName);

    struct GradeCase
    {
        const char* name;
        double grade, drop, expected;
    };

    class DownhillGrade : public testing::TestWithParam<GradeCase>
    {};

    TEST_P(DownhillGrade, LosesWithTheDrop)
    {
        EXPECT_TRUE(closeTo(downhillGrade(GetParam().grade, GetParam().drop), GetParam().expected));
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, DownhillGrade,
                             testing::Values(GradeCase{"uphill", 0.1, 1000, 0.1}, GradeCase{"level", 0, 1000, 0},
                                             GradeCase{"drop_of_550_is_a_tenth_of_7000", -0.1, 550, -0.066},
                                             // log10(7000 / 150) = 1.669006781; log10(7000 / 1150) = 0.784400200
                                             GradeCase{"no_drop", -0.1, 0, -0.1101544475305896},
                                             GradeCase{"drop_of_1000", -0.1, 1000, -0.0517704131776026}),
                             byName);

    TEST(DownhillGradeFault, IsTheLogarithm)
    {
        EXPECT_THAT(faultOf([] { (void)downhillGrade(-0.1, -150); }), testing::HasSubstr("division by zero"));
        EXPECT_THAT(faultOf([] { (void)downhillGrade(-0.1, -200); }), testing::HasSubstr("logarithm"));
    }

    struct AltitudeCase
    {
        const char* name;
        double speed, seconds, difference, expected;
    };

    class AltitudeSpeed : public testing::TestWithParam<AltitudeCase>
    {};

    TEST_P(AltitudeSpeed, AgreesWithASecondComputation)
    {
        EXPECT_TRUE(
            closeTo(altitudeSpeed(GetParam().speed, GetParam().seconds, GetParam().difference), GetParam().expected));
    }

    // second computations of the nine steps, in Python
    INSTANTIATE_TEST_SUITE_P(Apart, AltitudeSpeed,
                             testing::Values(AltitudeCase{"same_elevation", 4, 1200, 0, 4},
                                             AltitudeCase{"up_1000_m", 4, 1200, 1000, 3.906901755314873},
                                             AltitudeCase{"up_in_a_sprint", 8, 20, 2000, 8.019755033760012},
                                             // 2 - 0.5 / 75 = 1.99333: about half of the share 0.23323
                                             AltitudeCase{"up_in_half_a_second", 7, 0.5, 2000, 7.030780557117303},
                                             AltitudeCase{"down_1000_m", 4, 3600, -1000, 4.097333920720102},
                                             AltitudeCase{"very_high", 3, 7200, 4000, 2.490842808376938},
                                             AltitudeCase{"walking", 1, 100000, 500, 0.9885642539829712}),
                             byName);

    TEST(AltitudeSpeedBelowTheRaces, IsAGain)
    {
        EXPECT_GT(altitudeSpeed(4, 3600, -1000), 4) << "oxygen outweighs the thicker air";
        EXPECT_GT(altitudeSpeed(10, 10, 2000), 10) << "in a sprint the thinner air outweighs the oxygen";
    }

    TEST(AltitudeSpeedInASprint, HasHalfOfTheAerobicShareAndLess)
    {
        const double before = altitudeSpeed(7, 75, 2000);
        const double after = altitudeSpeed(7, 74.999999, 2000);
        EXPECT_NEAR(before, after, 1e-6) << "no step at 75 s";
        EXPECT_GT(altitudeSpeed(7, 30, 2000), altitudeSpeed(7, 75, 2000));
    }

    TEST(AltitudeSpeedFault, IsWhatHasNoRealValue)
    {
        EXPECT_NE(faultOf([] { (void)altitudeSpeed(0, 1200, 0); }), "");
        EXPECT_NE(faultOf([] { (void)altitudeSpeed(-1, 1200, 0); }), "");
        EXPECT_NE(faultOf([] { (void)altitudeSpeed(4, -156, 0); }), "");
        EXPECT_NE(faultOf([] { (void)altitudeSpeed(4, 1200, 1e6); }), "") << "no power is left";
    }

    TEST(FlatCourse, TakesItsFlatTimeWithinTheBiasOfTheSearch)
    {
        const ModelState state = solved({{0, 300}, {5000, 300}});
        const Course& course = state.course;
        EXPECT_TRUE(closeTo(course.flatTime, 1200));
        EXPECT_EQ(course.slopeDist, 5000);
        // a level search returns L - 0.0000625: 5000 / (25 / 6 - 0.0000625) is 18 ms more than 1200 s
        EXPECT_NEAR(course.evenTime, course.flatTime, 0.03);
        EXPECT_NEAR(course.strategicTime, course.evenTime, 0.01);
        EXPECT_NEAR(course.timeAt[courseSteps], course.evenTime, 0.01);
    }

    TEST(RisingCourseOfTwoPoints, IsLevelToTheFirstPass)
    {
        ModelState state = runnerBefore({{0, 250}, {5000, 350}});
        std::vector<double> rises;
        std::vector<double> evens;
        solveCourse(state, [&](CourseResult result) {
            if (result == CourseResult::climbs)
                rises.push_back(state.course.totalRise);
            if (result == CourseResult::evenTime)
                evens.push_back(state.course.evenTime);
        });
        EXPECT_THAT(rises, testing::ElementsAre(0, testing::DoubleNear(100, 1e-9)));
        ASSERT_EQ(evens.size(), 8U);
        EXPECT_NEAR(evens[3], 1200, 0.03);
        EXPECT_GT(evens[4], 1290);
        EXPECT_NEAR(state.course.strategicTime, state.course.evenTime, 0.01) << "nothing to give back";
    }

    TEST(Results, AreToldInTheOrderInWhichTheyStand)
    {
        ModelState state = runnerBefore({{0, 250}, {2000, 300}, {5000, 350}}, true);
        std::string order;
        solveAndSplit(state, [&](CourseResult result) { order += "lcfesp"[static_cast<int>(result)]; });
        EXPECT_EQ(order, "llcfeeee"
                         "llcfeeee"
                         "s"
                         "llc"
                         "p");
    }

    TEST(SteepSegment, FaultsWithTheMarksOfBefore)
    {
        ModelState state = solved({{0, 250}, {5000, 350}});
        const auto marks = state.course.marks.kmX.items;
        setPoints(state, {{0, 250}, {2500, 5000}, {5000, 350}});
        EXPECT_NE(faultOf([&] { solveAndSplit(state, {}); }), "");
        EXPECT_EQ(state.course.marks.kmX.items, marks);
    }

    TEST(EqualDistances, FaultWithTheWayOut)
    {
        ModelState state = runnerBefore({{0, 250}, {0, 260}, {5000, 350}});
        EXPECT_THAT(faultOf([&] { solveAndSplit(state, {}); }), testing::HasSubstr("\"Clear\""));
        EXPECT_EQ(state.activity, "measuring the course");
    }

    TEST(CourseWithoutLength, Faults)
    {
        ModelState state = runnerBefore({{0, 250}, {5, 260}, {0, 250}}, true);
        state.course.courseDist = 5000;
        EXPECT_THAT(faultOf([&] { solveAndSplit(state, {}); }), testing::HasSubstr("no length"));
        state.course.courseDist = 0;
        EXPECT_EQ(faultOf([&] { solveAndSplit(state, {}); }), "division by zero");
    }

    TEST(EvenFlatDistance, IsThatOfTheTime)
    {
        ModelState state;
        setUsualCurve(state);
        const double distance = evenFlatDistance(state, 5001, 1300);
        EXPECT_NEAR(raceTimeAt(state, distance), 1300, 0.5);
        EXPECT_EQ(state.results.curDistance, distance);
    }

    // A man of 40 who runs 10 km in 40:00 on 30 miles a week: the search goes around 9410.5 m in nine rounds.
    TEST(EvenFlatDistance, ThatComesBackIsAFault)
    {
        Program program({}, {}, "");
        Person person(program);
        person.type("txtage", "40");
        person.slide("HScroll1", 30);
        person.enterRace(0, {"", "40", "", "10", 3});
        person.click("Command1");
        ModelState& state = program.state;
        int questions = 0;
        state.goOn = [&questions] { return ++questions < 10; };
        EXPECT_THAT(faultOf([&] { (void)evenFlatDistance(state, 9122.5, 2243.875); }),
                    testing::HasSubstr("comes back"));
        EXPECT_EQ(questions, 0);
        EXPECT_NEAR(state.results.curDistance, 9410, 400);
    }

    TEST(PreliminaryMarks, AskAKilometerOfTheMile)
    {
        ModelState state = runnerBefore({{0, 300}, {1000, 300}, {5000, 300}});
        state.course.netGrade = 0;
        measureCourse(state, {});
        EXPECT_EQ(state.course.marks.mileX[1], 1609.344);
        EXPECT_EQ(state.course.marks.kmX[1], 1000);
        EXPECT_EQ(state.course.marks.kmX[3], 3000) << "three miles are passed";
        EXPECT_EQ(state.course.marks.kmX[4], 0) << "4 km are, but not 4 miles";
        measureCourse(state, {});
        EXPECT_EQ(state.course.marks.mileX[1], 1609.344);
    }

    TEST(Marks, AreOneAStepAtTheMost)
    {
        const ModelState state = solved({{0, 300}, {160934.4, 300}});
        // steps of 1609.344 m: each sets one mark, and the miles go first
        const CourseMarks& marks = state.course.marks;
        EXPECT_NE(marks.mileX[50], 0);
        EXPECT_NE(marks.kmX[1], 0);
        EXPECT_GT(marks.kmTime[1], 0);
    }

    TEST(Marks, EndAtFifty)
    {
        const ModelState state = solved({{0, 300}, {60000, 300}});
        EXPECT_TRUE(closeTo(state.course.marks.kmX[50], 50000));
        EXPECT_NE(state.course.marks.mileX[37], 0);
        EXPECT_EQ(state.course.marks.mileX[38], 0) << "38 miles are more than 60 km";
    }

    struct ShapeCase
    {
        const char* name;
        PointList easier, harder;
    };

    class Climb : public testing::TestWithParam<ShapeCase>
    {};

    TEST_P(Climb, CostsTime)
    {
        EXPECT_LT(solved(GetParam().easier).course.evenTime, solved(GetParam().harder).course.evenTime);
    }

    INSTANTIATE_TEST_SUITE_P(
        Shapes, Climb,
        testing::Values(ShapeCase{"up", {{0, 300}, {5000, 300}}, {{0, 300}, {5000, 400}}},
                        ShapeCase{"further_up", {{0, 300}, {5000, 400}}, {{0, 300}, {5000, 500}}},
                        ShapeCase{"down", {{0, 400}, {5000, 300}}, {{0, 300}, {5000, 300}}},
                        ShapeCase{"up_and_down", {{0, 300}, {5000, 300}}, {{0, 300}, {2500, 400}, {5000, 300}}},
                        ShapeCase{"higher", {{0, 300}, {5000, 300}}, {{0, 2000}, {5000, 2000}}}),
        byName);

    RC_GTEST_PROP(AnyCourse, HasSplitsThatAddUp, ())
    {
        const double length = *drawnInLogSteps(1000, 200000);
        const int count = *rc::gen::inRange(2, 30);
        PointList points;
        for (int i = 0; i < count; ++i)
            points.emplace_back(length * i / (count - 1), 300 + *rc::gen::inRange(-20, 21) * length / count / 1000.0);
        ModelState state = runnerBefore(points, *rc::gen::arbitrary<bool>());
        state.course.perfScale = 1000.0 / *rc::gen::inRange(900, 1101);
        solveAndSplit(state, {});
        const Course& course = state.course;
        RC_ASSERT(std::isfinite(course.evenTime) && std::isfinite(course.strategicTime));
        for (const double unit : {metresPerMile, metresPerKilometre})
        {
            double sum = 0;
            for (const CourseSplit& split : courseSplits(course, unit))
                sum += split.split;
            RC_ASSERT(closeTo(sum, course.perfScale * course.timeAt[courseSteps]));
        }
        RC_ASSERT(course.timeAt[0] == 0);
        for (std::size_t k = 1; k <= courseSteps; ++k)
        {
            RC_ASSERT(course.timeAt[k] > course.timeAt[k - 1]);
            RC_ASSERT(course.distAt[k] > course.distAt[k - 1]);
        }
        // the steps look at the middle or the end of a hundredth, so that they meet the way only about
        RC_ASSERT(std::abs(course.distAt[courseSteps] / course.slopeDist - 1) < 0.01);
        for (int j = 2; j <= courseMarks && course.marks.kmX[j] != 0 && length < 50000; ++j)
            RC_ASSERT(course.marks.kmTime[j] > course.marks.kmTime[j - 1]);
    }
}
