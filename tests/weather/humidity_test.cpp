#include "weather/humidity.h"

#include <algorithm>
#include <cmath>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "model/arithmetic.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/faults.h"
#include "support/table_file.h"

namespace
{
    double kelvinOf(double fahrenheit)
    {
        return (fahrenheit - 32) / 1.8 + 273;
    }

    class Indices : public testing::TestWithParam<TableRow>
    {};

    // By a program of its own in another language.
    TEST_P(Indices, AreThoseOfTheFormulas)
    {
        const TableRow& row = GetParam();
        const double T = row.number("T");
        const double rh = row.number("rh");
        EXPECT_TRUE(closeTo(saturationPressure(T), row.number("saturationPressure")));
        EXPECT_TRUE(closeTo(dewPoint(T, rh), row.number("dewPoint")));
        EXPECT_TRUE(closeTo(wetBulb(T, rh), row.number("wetBulb")));
        EXPECT_TRUE(closeTo(heatIndex(T, rh), row.number("heatIndex")));
        EXPECT_TRUE(closeTo(humidexOf(T, rh), row.number("humidex"), 1e-8)) << "differences of larger numbers";
    }

    INSTANTIATE_TEST_SUITE_P(InFile, Indices, testing::ValuesIn(readTable("weather/data/indices.csv")), byName);

    TEST(Saturation, HasAFloorAndAnInverse)
    {
        EXPECT_EQ(saturationPressure(160), 0.00001);
        EXPECT_EQ(saturationPressure(-1e6), 0.00001);
        EXPECT_LT(saturationPressure(160.0001), 0.00001) << "the floor is no continuation: 9.3e-07 millibars come next";
        EXPECT_EQ(saturationPressure(273), 6.1078);
        EXPECT_EQ(saturationTemp(6.1078), 273);
        EXPECT_TRUE(closeTo(saturationTemp(0), 273 - 237.3 * 5.786 / 13.286));
        EXPECT_EQ(saturationTemp(-3), saturationTemp(0));
    }

    TEST(Saturation, IsKnownToMeteorologists)
    {
        // Smithsonian tables over water, millibars, at 0, 20, 30 and 40 degrees C; a quarter of a percent at most apart
        EXPECT_TRUE(closeTo(saturationPressure(273 + 0), 6.1078, 2.5e-3));
        EXPECT_TRUE(closeTo(saturationPressure(273 + 20), 23.373, 2.5e-3));
        EXPECT_TRUE(closeTo(saturationPressure(273 + 30), 42.430, 2.5e-3));
        EXPECT_TRUE(closeTo(saturationPressure(273 + 40), 73.777, 2.5e-3));
    }

    TEST(DewPoint, OfDryAndOfSaturatedAir)
    {
        EXPECT_TRUE(closeTo(dewPoint(300, 0), 169.6567966280295));
        EXPECT_NEAR(dewPoint(300, 100), 300, 1e-9);
        EXPECT_EQ(dewPoint(300, 150), 300);
    }

    TEST(WetBulb, StaysAtTheAirWhereThatIsSaturated)
    {
        for (const double f : {-20.0, 19.9, 20.0, 85.0, 130.0})
            EXPECT_NEAR(wetBulb(kelvinOf(f), 100), kelvinOf(f), 1e-6) << f;
        EXPECT_EQ(wetBulb(300, 100.5), 300);
    }

    // Both estimates lead to where the damping stops; at 60 percent that is 0.08 K apart.
    TEST(WetBulb, TakesTheEstimateOfColdAirBelow20)
    {
        EXPECT_NEAR(wetBulb(kelvinOf(19.999999), 60) - 273, -8.205569587403488, 1e-9);
        EXPECT_NEAR(wetBulb(kelvinOf(20.000001), 60) - 273, -8.281661531495729, 1e-9);
        EXPECT_LT((kelvinOf(20) - 273) * 9 / 5 + 32, 20) << "in doubles 20 F is a hair below itself";
        EXPECT_NEAR(wetBulb(kelvinOf(20), 60) - 273, -8.20556909782374, 1e-9);
        EXPECT_NEAR(wetBulb(266.4, 60), wetBulb(266.4 - 1e-6, 60), 1e-5) << "20.12 F: no jump elsewhere";
    }

    // Psychrometric tables at sea level: 30 C and 50 percent 22.0 C, 20 C and 50 percent 13.7 C.
    TEST(WetBulb, IsNearPsychrometricTables)
    {
        EXPECT_NEAR(wetBulb(273 + 30, 50) - 273, 22.0, 0.2);
        EXPECT_NEAR(wetBulb(273 + 20, 50) - 273, 13.7, 0.2);
    }

    TEST(Wbgt, GoesByRoundedTemperatures)
    {
        EXPECT_TRUE(closeTo(approximateWbgt(5, 29.4, 24.2), 28.06));
        EXPECT_TRUE(closeTo(shownWbgt(5, kelvinOf(85), 65), 28.06));
        EXPECT_TRUE(closeTo(shownWbgt(0, kelvinOf(85), 65) + 2.3, shownWbgt(5, kelvinOf(85), 65)));
    }

    TEST(HeatIndex, HasItsSteps)
    {
        for (const double h : {0.0, 30.0, 65.0, 100.0})
            EXPECT_NEAR(heatIndex(kelvinOf(80), h), 90.7 - std::pow(100 - h, 0.9) * 0.29, 1e-9) << h;
        EXPECT_NE(heatIndex(kelvinOf(57.0001), 10), fahrenheitOf(kelvinOf(57.0001)));
        for (const double f : {-20.0, 20.0, 56.9})
            EXPECT_NEAR(heatIndex(kelvinOf(f), 80), f, 1e-9);
        EXPECT_EQ(faultOf([] { (void)heatIndex(kelvinOf(85), 100.5); }), "a power without a real value");
    }

    struct Published
    {
        std::string name;
        double fahrenheit, humidity, published, most;   // degrees F
    };

    class PublishedHeatIndex : public testing::TestWithParam<Published>
    {};

    // U.S. National Weather Service chart. The formula is this program's own: most tells how far from the chart it is.
    TEST_P(PublishedHeatIndex, IsNear)
    {
        const Published& row = GetParam();
        EXPECT_NEAR(heatIndex(kelvinOf(row.fahrenheit), row.humidity), row.published, row.most);
    }

    INSTANTIATE_TEST_SUITE_P(
        Chart, PublishedHeatIndex,
        testing::Values(Published{"80_at_40", 80, 40, 80, 3}, Published{"80_at_80", 80, 80, 84, 2.5},
                        Published{"90_at_50", 90, 50, 95, 3}, Published{"90_at_70", 90, 70, 105, 3},
                        Published{"100_at_40", 100, 40, 109, 3}, Published{"90_at_90", 90, 90, 122, 3.5},
                        Published{"100_at_60", 100, 60, 129, 3.5}, Published{"110_at_40", 110, 40, 136, 3}),
        byName);

    TEST(Humidex, IsNearTheCanadianTable)
    {
        EXPECT_NEAR(humidexOf(303, 50), 36, 1);   // 30 C and 50 %
        EXPECT_NEAR(humidexOf(308, 60), 48, 1);   // 35 C and 60 %
    }

    RC_GTEST_PROP(Moisture, LiesBetweenDewPointAndAir, ())
    {
        const int f = *rc::gen::inRange(-20, 131);
        const int rh = *rc::gen::inRange(0, 101);
        const double T = kelvinOf(f);
        const double d = dewPoint(T, rh);
        const double w = wetBulb(T, rh);
        const double room = f <= -16 ? 0.363 : 1e-6;   // dry air of -20 to -16 F leaves the search at its first step
        RC_ASSERT(d <= T);
        RC_ASSERT(w <= T + room);
        RC_ASSERT(w >= d - room);
    }

    TEST(Moisture, IsDefinedForEveryPairOfTheBars)
    {
        double outside = 0;
        for (int f = -20; f <= 130; ++f)
            for (int rh = 0; rh <= 100; ++rh)
            {
                const double T = kelvinOf(f);
                const double w = wetBulb(T, rh);
                EXPECT_TRUE(std::isfinite(heatIndex(T, rh)));
                EXPECT_TRUE(std::isfinite(humidexOf(T, rh)));
                outside = std::max({outside, w - T, dewPoint(T, rh) - w});
            }
        EXPECT_NEAR(outside, 0.3628799442895172, 1e-9) << "in dry air of -20 F";
    }

    RC_GTEST_PROP(Saturation, IsUndoneByItsInverse, ())
    {
        const double T = 161 + *rc::gen::inRange(0, 200000) / 1000.0;
        RC_ASSERT(closeTo(saturationTemp(saturationPressure(T)), T));
    }

    RC_GTEST_PROP(DewPoint, RisesWithHumidity, ())
    {
        const double T = kelvinOf(*rc::gen::inRange(-20, 131));
        const int rh = *rc::gen::inRange(0, 100);
        RC_ASSERT(dewPoint(T, rh) < dewPoint(T, rh + 1) + 1e-9);
    }
}
