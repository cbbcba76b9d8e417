#include "course/profile_form.h"

#include <chrono>
#include <string>
#include <thread>
#include <utility>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/colours.h"
#include "model/arithmetic.h"
#include "open_profile.h"
#include "support/close_to.h"

namespace
{
    using testing::ElementsAre;
    using testing::HasSubstr;
    using testing::IsEmpty;

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

    /// A point that spoils the course has been stored: every redraw faults until "Clear", which the fault tells.
    void expectFaultsUntilClear(OpenProfile& profile)
    {
        ASSERT_EQ(profile.outside.faults.size(), 1U);
        EXPECT_THAT(profile.outside.faults[0].text, HasSubstr("\"Clear\""));
        profile.slide("origel", 301);
        EXPECT_EQ(profile.outside.faults.size(), 2U);
        profile.click("Command3");
        EXPECT_EQ(profile.outside.faults.size(), 2U);
        EXPECT_THAT(profile.xs(), ElementsAre(0, 5000));
    }

    TEST(Mouse, AtTheEdgesStoresAFirstPointThatFaultsUntilClear)
    {
        OpenProfile profile;
        profile.press(150, 3700);
        EXPECT_EQ(profile.text("Text5"), "   21:41  ") << "the old times stand";
        expectFaultsUntilClear(profile);
    }

    TEST(Mouse, OnTheRightEdgeStoresAFirstPointAtTheFinish)
    {
        OpenProfile profile;
        profile.press(12150, 3700);
        EXPECT_THAT(profile.xs(), ElementsAre(0, 5000, 5000));
        expectFaultsUntilClear(profile);
    }

    TEST(TypedPoint, OfAMarathonOrAHalfLiesAtTheFinishAndFaultsUntilClear)
    {
        for (const auto& [unit, metres] : {std::pair{"pma", 42195.0}, std::pair{"phm", 21097.5}})
        {
            OpenProfile profile;
            profile.choose(unit);
            profile.enterPoint("1", "300");   // the number does not count
            EXPECT_THAT(profile.xs(), ElementsAre(0, metres, metres));
            ASSERT_EQ(profile.outside.faults.size(), 1U);
            EXPECT_THAT(profile.outside.faults[0].text, HasSubstr("\"Clear\""));
            profile.slide("origel", 301);
            EXPECT_EQ(profile.outside.faults.size(), 2U);
            profile.click("Command3");
            EXPECT_EQ(profile.outside.faults.size(), 2U);
            EXPECT_THAT(profile.xs(), ElementsAre(0, metres));
        }
    }

    TEST(TypedPoint, Beyond500KilometersIsDroppedAndTheMarksStay)
    {
        OpenProfile profile;
        const double mark = profile.course().marks.kmX[1];
        EXPECT_GT(mark, 0);
        profile.enterPoint("500.001", "300");
        EXPECT_EQ(profile.said(),
                  (std::vector<std::string>{
                      "Distance over 500 km (311 miles)!  Check your units as well as the entered number."}));
        EXPECT_THAT(profile.xs(), ElementsAre(0, 5000));
        EXPECT_EQ(profile.course().marks.kmX[1], mark);
        EXPECT_EQ(profile.course().distanceValid, 1);
        profile.enterPoint("500", "300");   // not beyond, and a first point is not checked
        EXPECT_THAT(profile.xs(), ElementsAre(0, 500000, 5000));
    }

    // Second computation of the first pass: 199460.68 m along the slopes of 39.88 and -39.88, 199351.46 s on the flat;
    // uphill the search passes below 0 and ends at -10.24 m/s, so that the first round's sum is -20769.6 s.
    TEST(TooSteep, ShowsTheFirstPassAndFaultsUntilClear)
    {
        OpenProfile profile;
        profile.enterPoint("2.5", "99999");
        EXPECT_EQ(profile.outside.faults.size(), 1U);
        EXPECT_EQ(profile.course().pointCount, 3);
        EXPECT_EQ(profile.course().marks.kmX[1], 0);
        EXPECT_EQ(profile.text("Text3"), "199460.7");
        EXPECT_EQ(profile.text("Text4"), " 55:22:31  ");
        EXPECT_EQ(profile.text("Text5"), "       0.0");
        EXPECT_EQ(profile.text("Text6"), "   21:41  ") << "of the solve before";
        profile.choose("scur");
        EXPECT_EQ(profile.outside.faults.size(), 2U);
        profile.choose("cdots");
        EXPECT_EQ(profile.outside.faults.size(), 3U);
        EXPECT_EQ(profile.course().marks.kmX[1], 0);
        profile.click("Command3");
        EXPECT_EQ(profile.outside.faults.size(), 3U);
        EXPECT_EQ(profile.course().pointCount, 2);
        EXPECT_EQ(profile.text("Text5"), "   21:41  ");
    }

    /// A course whose last descent is worth less than nothing to a runner of almost no power: the last of all efforts
    /// is that of a speed below 0.
    struct SlowProfile : OpenProfile
    {
        SlowProfile()
        {
            type("startel", "300");
            type("endel", "250");
            state().curve.anaerobicEnergy = 1e-6;
            state().curve.aerobicPower = 140.02;
        }
        void pressMiddle() { press(6150, 3700); }   // 2500 m, 300 m
    };

    constexpr const char* tooSlow = "Speed to slow for reliable calculations";

    TEST(Slowness, IsToldAfterAPressThatStoresAPoint)
    {
        SlowProfile profile;
        profile.pressMiddle();
        EXPECT_EQ(profile.said(), (std::vector<std::string>{tooSlow}));
        EXPECT_EQ(profile.state().incline.zeroPowerFlag, 1);
        EXPECT_THAT(profile.xs(), ElementsAre(0, 2500, 5000));
        EXPECT_THAT(profile.outside.faults, IsEmpty());
        profile.pressMiddle();
        EXPECT_EQ(profile.said(), (std::vector<std::string>{"Must enter x-value not yet used"}))
            << "no point was stored";
        EXPECT_EQ(profile.state().incline.zeroPowerFlag, 1);
    }

    TEST(Slowness, IsNotToldWithoutUpdate)
    {
        SlowProfile profile;
        profile.pressMiddle();
        profile.outside.forget();
        profile.tick("update", false);
        profile.press(3150, 3700);
        EXPECT_EQ(profile.course().pointCount, 4);
        EXPECT_EQ(profile.state().incline.zeroPowerFlag, 1) << "left from before";
        EXPECT_THAT(profile.outside.events, IsEmpty());
    }

    TEST(Slowness, IsNotToldOfATypedPointNorOfAnotherRedraw)
    {
        SlowProfile profile;
        profile.enterPoint("2.5", "300");
        EXPECT_EQ(profile.course().pointCount, 3);
        EXPECT_EQ(profile.state().incline.zeroPowerFlag, 1);
        profile.tick("update", false);
        profile.tick("update", true);
        EXPECT_EQ(profile.state().incline.zeroPowerFlag, 1);
        EXPECT_THAT(profile.outside.events, IsEmpty());
    }

    TEST(Slowness, IsNotToldOfAFastRunner)
    {
        OpenProfile profile;
        profile.press(6150, 3700);
        EXPECT_EQ(profile.state().incline.zeroPowerFlag, 0);
        EXPECT_THAT(profile.outside.events, IsEmpty());
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

    TEST(Elevations, ThatWereRefusedAreComparedAllTheSame)
    {
        OpenProfile profile;
        profile.type("minel", "9");
        profile.outside.forget();
        profile.type("maxel", "7");   // above 350 and 250 as a text, and below 9
        EXPECT_EQ(profile.said(),
                  (std::vector<std::string>{"Max elevation shown on graph must be greater than min elevation."}));
        EXPECT_EQ(profile.course().maxElev, 600);
        EXPECT_EQ(profile.text("maxel"), "7");

        OpenProfile other;
        other.type("maxel", "1000");
        other.outside.forget();
        other.type("minel", "2");   // below 350 and 250 as a text, and above 1000
        EXPECT_EQ(other.said(),
                  (std::vector<std::string>{"Min elevation shown on graph must be less than max elevation."}));
        EXPECT_EQ(other.course().minElev, 100);
        EXPECT_EQ(other.text("minel"), "2");
    }

    TEST(Elevations, ThatWereRefusedAreTakenByUnitAndClearWithoutATest)
    {
        OpenProfile profile;
        profile.type("minel", "9");
        profile.outside.forget();
        profile.choose("elft");
        EXPECT_TRUE(closeTo(profile.course().minElev, 9 / 3.281));
        profile.type("startel", "1000");   // below 9 as a text
        EXPECT_EQ(profile.said().size(), 1U);
        EXPECT_TRUE(closeTo(profile.course().startElev, 250 / 3.281));
        profile.choose("elm");
        EXPECT_EQ(profile.course().minElev, 9);
        EXPECT_EQ(profile.course().startElev, 1000);

        OpenProfile other;
        other.type("minel", "9");
        EXPECT_EQ(other.course().minElev, 100);
        other.outside.forget();
        other.click("Command3");
        EXPECT_EQ(other.course().minElev, 9);
        EXPECT_TRUE(closeTo(other.course().yScale, (600 - 9) / 6000.0));
        EXPECT_THAT(other.outside.events, IsEmpty());
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

    // Second computation at 310 m: evenTime 1300.539595 over the points' 5000 m; the pacing goes on to 6000 m, on the
    // last slope, and takes 1557.349452 s.
    TEST(Distance, ChangedUnderPointsCountsFromTheNextRedrawOn)
    {
        OpenProfile profile;
        profile.enterPoint("2.5", "300");
        profile.type("Text1", "6");
        EXPECT_EQ(profile.said(),
                  (std::vector<std::string>{
                      "Cannot change distance after entering mouse clicks.  Please Clear and try again."}));
        EXPECT_EQ(profile.text("Text2"), "6000");
        const auto finish = [&profile] {
            return std::get<LinePrimitive>(profile.drawn(classic::lightRed).back().shape).to.x;
        };
        EXPECT_NEAR(finish(), 12150, 1e-9) << "nothing is drawn at once";
        EXPECT_EQ(profile.text("Text6"), "   21:41  ");
        profile.slide("origel", 310);
        EXPECT_NEAR(finish(), 150 + 5000 / 0.5, 1e-9);
        EXPECT_THAT(profile.xs(), ElementsAre(0, 2500, 5000));
        EXPECT_TRUE(closeTo(profile.course().evenTime, 1300.5395945748178));
        EXPECT_TRUE(closeTo(profile.course().timeAt[100], 1557.3494523556183));
        EXPECT_TRUE(closeTo(profile.course().distAt[100], 6001.199880023984));
        EXPECT_TRUE(closeTo(profile.course().marks.kmX[6], 5998.8003598800515));
        EXPECT_EQ(profile.text("Text3"), " 5001.0");
        EXPECT_EQ(profile.text("Text4"), "   20:00  ");
        EXPECT_EQ(profile.text("Text5"), "   21:41  ");
        EXPECT_EQ(profile.text("Text6"), "   25:57  ");
        EXPECT_THAT(profile.outside.events, IsEmpty());
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

    // Second computation of the hills: strategicTime 1344.46, and 1338.72 s of the hundred steps.
    TEST(Multiplier, ShowsTheStrategicTimeAndASolveTheSumOfTheSteps)
    {
        OpenProfile profile;
        profile.enterHills();
        EXPECT_EQ(profile.text("Text5"), "   22:30  ");   // 1350.43
        EXPECT_EQ(profile.text("Text6"), "   22:19  ");
        profile.slide("perfmult", 1100);
        EXPECT_EQ(profile.text("Text6"), "   20:22  ");   // 1344.46 / 1.1 = 1222.2
        profile.tick("update", false);
        profile.tick("update", true);
        EXPECT_EQ(profile.text("Text4"), "   18:12  ");   // 1201.66 / 1.1 = 1092.4
        EXPECT_EQ(profile.text("Text5"), "   20:28  ");   // 1350.4313 / 1.1 = 1227.7
        EXPECT_EQ(profile.text("Text6"), "   20:17  ");   // 1338.7168 / 1.1 = 1217.0
        EXPECT_TRUE(closeTo(profile.course().strategicTime, 1344.4610656327488));
        EXPECT_TRUE(closeTo(profile.course().timeAt[100], 1338.716827852355));
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

    TEST(Working, ComesWhileASolveBlocksAndGoes)
    {
        OpenProfile profile;
        bool wasOpen = false;
        int asked = 0;
        profile.state().goOn = [&asked] { return ++asked > 0; };
        EXPECT_EQ(findForm(profile.program, "working"), nullptr);
        bool wasOpenAtOnce = true;
        int shown = 0;
        profile.get<TextBox>("Text5").shown = [&] {
            if (++shown > 1)
                return;
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
}
