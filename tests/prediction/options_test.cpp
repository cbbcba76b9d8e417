// What a run reads of the options and sets of them, and what it enables.

#include <gtest/gtest.h>

#include "prediction/calculate.h"
#include "support/close_to.h"
#include "support/runners.h"

namespace
{
    TEST(FitOption, OfOneCheckedRowIsAllDataAndBestTwoIsDisabled)
    {
        CalculationInput input = entries({"5 km 20:00"});
        input.fit = FitMode::bestTwo;
        const Prediction prediction = recalculated(input);
        EXPECT_EQ(prediction.input.fit, FitMode::allData);
        EXPECT_FALSE(prediction.results.bestTwoEnabled);
    }

    TEST(FitOption, IsEnabledAgainByASecondRowButNotChosen)
    {
        CalculationInput input = entries({"5 km 20:00"});
        input.fit = FitMode::bestTwo;
        Prediction prediction = recalculated(input);
        input = prediction.input;
        input.rows[1] = raceRow("10 km 42:00");
        prediction.start(recalculate, input);
        EXPECT_EQ(prediction.input.fit, FitMode::allData);
        EXPECT_TRUE(prediction.results.bestTwoEnabled);
    }

    TEST(FitOption, IsChangedToAllDataWhereOmissionLeavesOneRace)
    {
        CalculationInput input = entries({"5 km 21:00", "10 km 41:00"});
        input.fit = FitMode::bestTwo;
        const Prediction prediction = recalculated(input);
        EXPECT_EQ(prediction.input.fit, FitMode::allData);
        EXPECT_TRUE(prediction.results.bestTwoEnabled);
        // With one race in use both modes are the one-race fit.
        EXPECT_EQ(prediction.state.curve.aerobicPower, recalculated(entries({"10 km 41:00"})).state.curve.aerobicPower);
    }

    TEST(FitOption, NeitherIsAllData)
    {
        CalculationInput input = entries({"1500 m 4:20", "10 km 36:30"});
        const double allData = recalculated(input).state.curve.aerobicPower;
        input.fit = FitMode::none;
        const Prediction prediction = recalculated(input);
        EXPECT_EQ(prediction.state.curve.aerobicPower, allData);
        EXPECT_EQ(prediction.input.fit, FitMode::none);
        input.fit = FitMode::bestTwo;
        EXPECT_NE(recalculated(input).state.curve.aerobicPower, allData);
    }

    TEST(OutputOption, NeitherIsMetric)
    {
        CalculationInput input = entries({"5 km 20:00"});
        const auto metric = recalculated(input).results.picture.lines;
        input.output = OutputMode::none;
        const Prediction prediction = recalculated(input);
        EXPECT_EQ(prediction.results.picture.lines, metric);
        EXPECT_EQ(prediction.input.output, OutputMode::none);
    }

    TEST(OutputOption, EnglishComesBackAfterTheMetricPassThatSetsTheRatioTimes)
    {
        CalculationInput input = entries({"5 km 20:00"});
        const Prediction metric = recalculated(input);
        input.output = OutputMode::english;
        const Prediction english = recalculated(input);
        EXPECT_EQ(english.input.output, OutputMode::english);
        EXPECT_TRUE(closeTo(english.state.results.time800, metric.state.results.time800));
        EXPECT_TRUE(closeTo(english.state.results.time5000, metric.state.results.time5000));
        EXPECT_TRUE(closeTo(english.state.results.speedRatio, metric.state.results.speedRatio));
        EXPECT_EQ(english.results.rows.front().label, "     440 yd ");
        EXPECT_EQ(english.results.rows.size(), 9U);
    }

    TEST(OutputOption, AFaultInTheMetricPassLeavesMetricChosen)
    {
        CalculationInput input = entries({"5 km 20:00"});
        input.output = OutputMode::english;
        input.comparisonLevel = 0;
        const Prediction prediction = recalculated(input);
        EXPECT_EQ(prediction.fault, "division by zero");
        EXPECT_EQ(prediction.input.output, OutputMode::metric);
        EXPECT_EQ(prediction.state.flags.calculatedOnce, 0);
    }

    TEST(SexOption, SetsTheLetterAndTheFatigue)
    {
        CalculationInput input = entries({"5 km 20:00"});
        input.sex = SexChoice::female;
        Prediction prediction = recalculated(input);
        EXPECT_EQ(prediction.state.runner.sex, 'f');
        EXPECT_EQ(prediction.state.curve.fatigueCoef, fatigueCoefOf(30, true));
        input.sex = SexChoice::none;
        prediction.start(recalculate, input);
        EXPECT_EQ(prediction.state.runner.sex, 'f');
        EXPECT_EQ(prediction.state.curve.fatigueCoef, fatigueCoefOf(30, false));
        input.sex = SexChoice::male;
        prediction.start(recalculate, input);
        EXPECT_EQ(prediction.state.runner.sex, 'm');
    }

    TEST(Run, ReadsTheMiles)
    {
        CalculationInput input = entries({"5 km 20:00"});
        input.weeklyMiles = 150;
        const Prediction prediction = recalculated(input);
        EXPECT_EQ(prediction.state.runner.weeklyMiles, 150);
        EXPECT_EQ(prediction.state.curve.fatigueCoef, fatigueCoefOf(150, false));
    }

    TEST(Run, SetsItsConstantsOnEntryAndLeavesTheOthers)
    {
        Prediction prediction;
        prediction.state.curve.piValue = 3;
        prediction.state.curve.startDelay = 7;
        prediction.state.curve.humpDepth = -0.03;
        prediction.state.curve.anaerobicExp = 0.6;
        prediction.start(calculate, entries({}));
        EXPECT_EQ(prediction.state.curve.piValue, 3.1415926);
        EXPECT_EQ(prediction.state.curve.startDelay, 3);
        EXPECT_EQ(prediction.state.curve.humpDepth, -0.03);
        EXPECT_EQ(prediction.state.curve.anaerobicExp, 0.6);
    }

    TEST(Recalculation, ResetsWhatARunStartsFrom)
    {
        Prediction prediction;
        prediction.state.curve.anaerobicExp = 0.5;
        prediction.state.curve.humpCentre = 300;
        prediction.state.curve.humpDepth = -0.03;
        prediction.state.curve.humpWidth = 1;
        prediction.state.flags.warnedProfile = 1;
        prediction.state.flags.warnedExtrapolation = 1;
        prediction.state.flags.performanceFromTable = 1;
        prediction.start(recalculate, entries({}));
        EXPECT_EQ(prediction.state.curve.anaerobicExp, 0.65);
        EXPECT_EQ(prediction.state.curve.humpCentre, 360);
        EXPECT_EQ(prediction.state.curve.humpDepth, -0.02);
        EXPECT_EQ(prediction.state.curve.humpWidth, 1.15);
        EXPECT_EQ(prediction.state.flags.warnedProfile, 0);
        EXPECT_EQ(prediction.state.flags.warnedExtrapolation, 0);
        EXPECT_EQ(prediction.state.flags.performanceFromTable, 0);
        EXPECT_EQ(prediction.state.flags.calculatedOnce, 1);
    }

    TEST(Recalculation, EnablesReportsAndTools)
    {
        const Prediction prediction = recalculated(entries({"5 km 20:00"}));
        EXPECT_TRUE(prediction.results.reportsEnabled);
        EXPECT_TRUE(prediction.results.toolsEnabled);
    }

    TEST(Recalculation, RatesTheSecondRunByTheIndexOfTheFirst)
    {
        Prediction once;
        once.state.flags.agecomp = 1;
        CalculationInput input = entries({"10 km 43:12"});
        input.age = "67";
        once.start(calculate, input);
        EXPECT_EQ(once.results.tableLevelIndex, 0);
        const double first = once.state.results.levelIndex;
        EXPECT_GT(first, 0);
        once.start(calculate, input);
        EXPECT_EQ(once.results.tableLevelIndex, first);

        Prediction both;
        both.state.flags.agecomp = 1;
        both.start(recalculate, input);
        EXPECT_EQ(both.results.tableLevelIndex, first);
        EXPECT_EQ(both.results.picture, once.results.picture);
    }
}
