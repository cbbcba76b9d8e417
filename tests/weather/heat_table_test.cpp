#include "weather/heat_table.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "model/text.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/draws.h"
#include "support/faults.h"
#include "support/table_file.h"

namespace
{
    constexpr const char* tooShort =
        "This form does not use or predict races shorter than 400 meters, which are hardly "
        "affected by temperature or humidity anyway.";

    HeatEntries usual()
    {
        return {{true, 250, 1500}, {true, 5400, 21097.5}, 10000, "72.6", "178", "40", 30, false};
    }

    struct Heated
    {
        explicit Heated(const HeatEntries& entered, double wbgtC = 24.3) : entries(entered)
        {
            state.heat.wbgtC = wbgtC;
            state.heat.heatFatigueCoef = heatFatigueCoefOf(entries.weekmi, entries.fop);
            fault = faultOf([&] { calculateHeatTable(state, entries, table, said); });
        }

        HeatEntries entries;
        ModelState state;
        HeatTable table;
        Messages said;
        std::string fault;
    };

    class HeatTables : public testing::TestWithParam<TableRow>
    {};

    // By a program of its own in another language.
    TEST_P(HeatTables, AreThoseOfTheFormulas)
    {
        const TableRow& row = GetParam();
        const HeatEntries entries{{row.number("use1") == 1, row.number("time1"), row.number("metres1")},
                                  {row.number("use2") == 1, row.number("time2"), row.number("metres2")},
                                  row.number("dispred"),
                                  std::string(row.text("kg")),
                                  std::string(row.text("cm")),
                                  std::string(row.text("age")),
                                  row.number("miles"),
                                  row.number("fop") == 1};
        ModelState state;
        state.runner.sex = row.letter("sex");
        state.heat.wbgtC = row.number("wbgt");
        state.heat.heatFatigueCoef = heatFatigueCoefOf(entries.weekmi, entries.fop);
        HeatTable table;
        Messages said;
        calculateHeatTable(state, entries, table, said);
        EXPECT_TRUE(said.empty());
        EXPECT_TRUE(closeTo(state.heat.paceBase, row.number("paceBase")));
        EXPECT_TRUE(closeTo(state.heat.paceSlope, row.number("paceSlope")));
        for (std::size_t i = 0; i < heatRows; ++i)
        {
            const std::string n = std::to_string(i);
            EXPECT_TRUE(closeTo(table[i].ideal, row.number("ideal" + n))) << i;
            EXPECT_TRUE(closeTo(table[i].decrement, row.number("decrement" + n))) << i;
            EXPECT_TRUE(closeTo(table[i].given, row.number("given" + n))) << i;
            EXPECT_EQ(table[i].idealt, formatTime(row.number("ideal" + n)));
            EXPECT_EQ(table[i].pdec, formatNumber(row.number("decrement" + n), 6, 2));
            EXPECT_EQ(table[i].givent, formatTime(row.number("given" + n)));
        }
    }

    INSTANTIATE_TEST_SUITE_P(InFile, HeatTables, testing::ValuesIn(readTable("weather/data/heat_tables.csv")), byName);

    TEST(HeatFatigueCoef, IsTheModelsOwnCoefficient)
    {
        EXPECT_TRUE(closeTo(heatFatigueCoefOf(20, false), 0.14564314245873303));
        EXPECT_TRUE(closeTo(heatFatigueCoefOf(0, false), 0.40108842979943704));
        EXPECT_TRUE(closeTo(heatFatigueCoefOf(150, true), 0.007461174217531833));
    }

    TEST(Corrections, BeginAndEndWhereTheySay)
    {
        EXPECT_EQ(middleDistanceFactor(400), 1);
        EXPECT_TRUE(closeTo(middleDistanceFactor(1500), 1 - std::sin(std::log10(3.75) * 4.8293) * 0.00615));
        EXPECT_EQ(heatDistances[1], 400);
        const Heated at400(usual());
        const Heat& heat = at400.state.heat;
        EXPECT_TRUE(closeTo(at400.table[1].ideal, 400 * (heat.paceBase + heat.paceSlope * std::log(400.0 / 1500))));
    }

    TEST(HeatTable, GivesBackTheRacesThatItIsMadeFrom)
    {
        const Heated two(usual());
        EXPECT_TRUE(closeTo(two.table[3].ideal, 250));
        EXPECT_TRUE(closeTo(two.table[8].ideal, 5400));
        HeatEntries one = usual();
        one.race1 = {true, 1200, 5000};
        one.race2.use = false;
        EXPECT_TRUE(closeTo(Heated(one).table[6].ideal, 1200));
        HeatEntries other = usual();
        other.race1 = {false, 0, 1500};
        other.race2 = {true, 1200, 5000};
        EXPECT_FALSE(closeTo(Heated(other).table[6].ideal, 1200)) << "the rows refer to race 1 all the same";
    }

    TEST(HeatTable, LosesNothingInIdealWeather)
    {
        const Heated warm(usual());
        for (std::size_t row = 0; row < heatRows; ++row)
        {
            const Heated ideal(usual(), idealWbgt(warm.table[row].ideal, 72.6, 178));
            EXPECT_NEAR(ideal.table[row].decrement, 0, 1e-12) << row;
            EXPECT_EQ(ideal.table[row].pdec, "  0.00");
            EXPECT_EQ(ideal.table[row].givent, ideal.table[row].idealt);
        }
        EXPECT_TRUE(closeTo(idealWbgt(2400, 72.6, 178), 6.613777955842969));
    }

    TEST(HeatTable, CountsColdAsHeat)
    {
        const Heated cold(usual(), -40);
        for (const HeatRow& row : cold.table)
        {
            EXPECT_GT(row.decrement, 0);
            EXPECT_GT(row.given, row.ideal);
        }
        EXPECT_TRUE(closeTo(heatDecrement(2400, 12000, 9, false), heatDecrement(2400, 12000, -9, false)));
    }

    TEST(HeatTable, CanShowMoreThanAHundredPercent)
    {
        HeatEntries slow = usual();
        slow.race1.seconds = 900;
        slow.race2.seconds = 25000;
        slow.wtkg = "149.7";
        slow.htcm = "150";
        EXPECT_GT(Heated(slow, 50).table[9].decrement, 100);
    }

    TEST(HeatTable, RefusesShortDistancesWhetherUsedOrNot)
    {
        for (const int which : {0, 1, 2})
        {
            HeatEntries entries = usual();
            entries.race1.use = entries.race2.use = which == 2;
            (which == 0 ? entries.race1.metres : which == 1 ? entries.race2.metres : entries.dispred) = 399.99;
            const Heated refused(entries);
            EXPECT_EQ(refused.said, (Messages{{tooShort}})) << which;
            EXPECT_EQ(refused.table[0].idealt, "");
            EXPECT_EQ(refused.state.heat.paceBase, 0);
        }
    }

    TEST(HeatTable, RefusesToGoByNoRace)
    {
        HeatEntries entries = usual();
        entries.race1.use = entries.race2.use = false;
        const Heated refused(entries);
        EXPECT_EQ(refused.said, (Messages{{"Please check at least one of the two races to be used."}}));
        EXPECT_EQ(refused.table[0].idealt, "");
        EXPECT_EQ(refused.fault, "");
    }

    TEST(HeatTable, StopsWhereThereIsNoResult)
    {
        HeatEntries equal = usual();
        equal.race2.metres = equal.race1.metres;
        EXPECT_EQ(Heated(equal).fault, "division by zero");
        HeatEntries blank = usual();
        blank.race1.seconds = 0;
        EXPECT_EQ(Heated(blank).fault, "division by zero") << "times below race 1 count as 0 once they have been shown";
        blank.race2.use = false;
        EXPECT_EQ(Heated(blank).fault, "division by zero");
        HeatEntries restless = usual();
        restless.race1 = {true, 2400, 10000};
        restless.race2.use = false;
        restless.weekmi = 150;
        EXPECT_EQ(Heated(restless).fault, "a power without a real value")
            << "one race, and far too much training for it";
        HeatEntries unused = usual();
        unused.race2 = {false, 0, 400};
        EXPECT_EQ(Heated(unused).fault, "");
        HeatEntries far = usual();
        far.dispred = 3000000;
        EXPECT_EQ(Heated(far).fault, "an overflow");
        HeatEntries ageless = usual();
        ageless.agetx = "1e999";
        EXPECT_EQ(Heated(ageless).fault, "") << "age is read with one race alone";
        ageless.race2.use = false;
        EXPECT_EQ(Heated(ageless).fault, "an overflow (a number is too large)");
        HeatEntries heavy = usual();
        heavy.wtkg = "1e999";
        const Heated late(heavy);
        EXPECT_EQ(late.fault, "an overflow (a number is too large)");
        EXPECT_NE(late.state.heat.paceBase, 0) << "weight is read row by row";
        HeatEntries nobody = usual();
        nobody.htcm = "0";
        const Heated stopped(nobody);
        EXPECT_EQ(stopped.fault, "division by zero");
        EXPECT_NE(stopped.table[0].idealt, "") << "what was found before stays";
        EXPECT_EQ(stopped.table[0].pdec, "");
    }

    RC_GTEST_PROP(HeatTable, NeverGainsFromWeather, ())
    {
        HeatEntries entries = usual();
        entries.race1 = {true, *drawnInLogSteps(210, 500), 1500};
        entries.race2 = {*rc::gen::arbitrary<bool>(), entries.race1.seconds * *drawnInLogSteps(16, 22), 21097.5};
        entries.dispred = *drawnInLogSteps(400, 100000);
        entries.fop = *rc::gen::arbitrary<bool>();
        entries.weekmi = *rc::gen::inRange(0, 151);
        const Heated heated(entries, *rc::gen::inRange(-400, 500) / 10.0);
        if (!entries.race2.use && entries.weekmi > 100 && !heated.fault.empty())
            return;   // one race, and far too much training for it
        RC_ASSERT(heated.fault.empty());
        for (const HeatRow& row : heated.table)
        {
            RC_ASSERT(std::isfinite(row.given));
            RC_ASSERT(row.decrement >= 0);
            RC_ASSERT(row.given >= row.ideal);
        }
    }
}
