#include "special/pacing_table.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "analysed_runner.h"
#include "model/race_time.h"
#include "model/units.h"
#include "support/close_to.h"

namespace
{
    TEST(PacingCurve, PassesThroughEvenPacingAndTheFastHalf)
    {
        for (const double d : {400.0, 5000.0, 15000.0, 42195.0})
        {
            ModelState state = runnerOf40Minutes();
            layPacingCurve(state, d);
            const Special& s = state.special;
            const double c = s.pacingCentre;
            EXPECT_TRUE(closeTo((s.evenPace - c) * (s.evenPace - c), s.pacingArea)) << d;
            EXPECT_TRUE(closeTo((s.fastHalfPace - c) * (s.aerobicHalfPace - c), s.pacingArea, 1e-8)) << d;
            EXPECT_LT(s.fastHalfPace, s.evenPace);
            EXPECT_GT(s.aerobicHalfPace, s.evenPace);
            EXPECT_EQ(state.results.curDistance, d / 2) << "stays at the half";
            EXPECT_TRUE(closeTo(s.evenPace, raceTimeAt(state, d) * metresPerMile / d));
            EXPECT_TRUE(closeTo(s.fastHalfPace, raceTimeAt(state, d / 2) * metresPerMile / (d / 2)));
        }
    }

    /// The aerobic pace for a half as it is before it eases with distance, s a mile.
    double plainAerobicPace(const ModelState& state, double h, double k)
    {
        const double va = std::sqrt((state.curve.aerobicPower - 140) / 60);
        return metresPerMile * (h / va + 2 * k) / h;
    }

    double penalty(const ModelState& state, double d)
    {
        return d > 9000 ? raceTimeAt(state, d) * (1 / enduranceFactor(state, d, state.curve.fatigueCoef, 1) - 1) : 0;
    }

    TEST(PacingCurve, EasesTheAerobicPaceByTwoFactorsOfDistance)
    {
        ModelState state = runnerOf40Minutes();
        layPacingCurve(state, 2 * 7840);   // the first factor is 1
        double k = penalty(state, 15680);
        EXPECT_TRUE(closeTo(state.special.aerobicHalfPace,
                            plainAerobicPace(state, 7840, k) * (1 + std::log(7840.0 / 25000) / 40)));
        layPacingCurve(state, 50000);   // the second factor is 1
        k = penalty(state, 50000) - 2 * penalty(state, 25000);
        EXPECT_TRUE(closeTo(state.special.aerobicHalfPace,
                            plainAerobicPace(state, 25000, k) *
                                std::pow(25000.0 / 7840, 0.063 * std::pow(25000.0 / 7840, 0.32))));
    }

    TEST(PacingCurve, TakesThePenaltyOfTheWholeBeyond9000MetresAndOfTheHalfBeyond18000)
    {
        struct Case
        {
            double distance;
            bool whole, half;
        };
        for (const Case& row :
             {Case{9000, false, false}, Case{9001, true, false}, Case{18000, true, false}, Case{18002, true, true}})
        {
            ModelState state = runnerOf40Minutes();
            layPacingCurve(state, row.distance);
            const double h = row.distance / 2;
            const double k = (row.whole ? penalty(state, row.distance) : 0) - (row.half ? 2 * penalty(state, h) : 0);
            const double eased = std::pow(h / 7840, 0.063 * std::pow(h / 7840, 0.32)) * (std::log(h / 25000) / 40 + 1);
            EXPECT_TRUE(closeTo(state.special.aerobicHalfPace, plainAerobicPace(state, h, k) * eased)) << row.distance;
        }
    }

    TEST(PacingCurve, HasNoneOnASlowCurve)
    {
        ModelState state = runnerOf40Minutes();
        state.curve.aerobicPower = 139;
        EXPECT_EQ(faultOf([&] { layPacingCurve(state, 10000); }), "the square root of a negative number");
        state.curve.aerobicPower = 140;
        EXPECT_EQ(faultOf([&] { layPacingCurve(state, 10000); }), "division by zero");
    }

    TEST(PacingCurve, HasNoneWhereAerobicAndFastHalfAreAsFarFromEvenPacing)
    {
        // a runner of one speed over all distances: what is left is the easing of the aerobic pace, less than 1 over
        // short distances and more over long ones
        ModelState state;
        state.curve.aerobicPower = 500;
        state.curve.refDistance = 1000;
        state.curve.startDelay = 0;
        const Special& s = state.special;
        const auto difference = [&](double d) {
            layPacingCurve(state, d);
            return (s.aerobicHalfPace + s.fastHalfPace) - 2 * s.evenPace;
        };
        double low = 40000;
        double high = 5000;
        ASSERT_GT(difference(low), 0);
        ASSERT_LT(difference(high), 0);
        const std::string fault = faultOf([&] {
            while (std::abs(low - high) > 1e-9)
                (difference((low + high) / 2) > 0 ? low : high) = (low + high) / 2;
            for (double d = high; d < low; d = std::nextafter(d, low))   // hundreds of them, and three differences
                (void)difference(d);
        });
        EXPECT_EQ(fault, "division by zero");
        EXPECT_NEAR(s.aerobicHalfPace + s.fastHalfPace, 2 * s.evenPace, 1e-9) << "of the one before it";
        EXPECT_NEAR(state.results.curDistance, low / 2, 1e-3) << "it got as far as the half";
    }

    TEST(PacingTable, BeginsWithEvenEffort)
    {
        Analysis analysis;
        analysis.run("n");
        ASSERT_GT(analysis.results.table.lines.size(), 3U);
        EXPECT_EQ(analysis.results.table.lines[0],
                  "   Fastest half   Pace     Slowest half   Pace       Race time   Off best by");
        EXPECT_EQ(analysis.results.table.lines[1], "");
        EXPECT_EQ(analysis.results.table.lines[2],
                  "       20:00      6:26         20:00      6:26          40:00         0.0");
        EXPECT_EQ(analysis.state.results.curDistance, 5000);
    }

    TEST(PacingTable, GivesTheBestOfItsTotalsAndTheFlatTime)
    {
        ModelState state = runnerOf40Minutes();
        TextPage page;
        const PacingTimes times = printPacingTable(state, 10000, "n", 0, page);
        EXPECT_TRUE(closeTo(times.flat, raceTimeAt(state, 10000)));
        EXPECT_TRUE(closeTo(times.best, times.flat, 2e-5)) << "but for the bias of the conversion";
        EXPECT_NE(times.best, times.flat);
    }

    TEST(PacingTable, ShowsLevelPacesPerMileEvenInKilometers)
    {
        Analysis analysis;
        analysis.run("r");
        const std::string miles = analysis.results.table.lines[2];
        analysis.fault = faultOf(
            [&] { specialAnalysis(analysis.state, analysis.entries, 1000, true, analysis.results, analysis.said); });
        const std::string kilometers = analysis.results.table.lines[2];
        EXPECT_EQ(miles, "   20:00    6:26    6:26      20:00    6:26    6:26      40:00         0.0");
        EXPECT_EQ(kilometers, "   20:00    4:00    6:26      20:00    4:00    6:26      40:00         0.0");
        EXPECT_EQ(analysis.state.special.paceDivisor, 1.609344);
    }

    TEST(PacingTable, GoesToFasterFirstHalvesAndOnADownhillToSlowerOnes)
    {
        for (const char* slope : {"0", "0.01", "-0.01"})
        {
            Analysis analysis;
            analysis.run("r", slope);
            EXPECT_EQ(analysis.fault, "");
            const std::vector<std::string>& lines = analysis.results.table.lines;
            const std::string first = lines[2].substr(18, 8);
            const std::string second = lines[3].substr(18, 8);
            EXPECT_EQ(first, "  6:26  ");
            EXPECT_EQ(second, slope[0] == '-' ? "  6:28  " : "  6:24  ");
        }
    }

    TEST(PacingTable, ThatCannotEndStopsAfterTwoHundredRows)
    {
        for (const char* number : {"5", "10"})
        {
            Analysis analysis;
            analysis.state = runnerOfTwoRaces();
            analysis.entries.number = number;
            analysis.run("r", "-0.02");
            EXPECT_EQ(analysis.fault,
                      "a table without an end (on this slope no strategy comes down to the fastest half)");
            EXPECT_EQ(analysis.results.table.lines.size(), 202U);
            EXPECT_TRUE(analysis.results.winds.lines.empty());
            EXPECT_NE(analysis.results.levelLine, "");
            EXPECT_TRUE(analysis.state.special.stored) << "it got as far as its level line";
            analysis.run("r", "0.02");
            EXPECT_EQ(analysis.fault, "");
        }
    }

    TEST(PacingTable, ThatStepsJustPastTheCentreKeepsItsRows)
    {
        // e is 383.4875 and c 381.4973: the second first half is 381.4875 and its second half -24 seconds a mile
        for (const char* mode : {"n", "r"})
        {
            Analysis analysis;
            analysis.state = runnerOfTwoRaces();
            analysis.entries.number = "1630";
            analysis.entries.unit = SpecialUnit::meters;
            analysis.run(mode, "0");
            EXPECT_EQ(analysis.fault, "a search without an end (the level speed is negative)") << mode;
            EXPECT_TRUE(closeTo(analysis.state.special.evenPace, 383.4875207406553));
            EXPECT_TRUE(closeTo(analysis.state.special.pacingCentre, 381.49728284379887, 1e-8));
            EXPECT_EQ(analysis.results.table.lines.size(), 3U) << "head, empty line, even effort";
            EXPECT_NE(analysis.results.levelLine, "");
            EXPECT_TRUE(analysis.results.winds.lines.empty());
        }
    }

    TEST(PacingTable, KeepsItsRowsWhereASlopeOrAWindStopsTheRunner)
    {
        for (const char* slope : {"0.9", "1", "5", "-5", "-0.4"})
            for (const double wind : {-20.0, 0.0, 20.0})
            {
                Analysis analysis;
                int questions = 0;
                analysis.state.goOn = [&] { return ++questions < 5000; };
                analysis.state.special.windBase = wind;
                analysis.run("r", slope);
                EXPECT_GE(analysis.results.table.lines.size(), 2U) << slope << ", " << wind;
                EXPECT_TRUE(!analysis.fault.empty() || analysis.results.table.lines.size() > 2U);
                EXPECT_LT(questions, 5000) << slope << ", " << wind << ": " << analysis.fault;
            }
    }
}
