// Searches that take absurdly long ask whether to go on; one that can't end any more stops by itself.

#include <string>

#include <gtest/gtest.h>

#include "prediction/calculate.h"
#include "prediction/curve_fit.h"
#include "support/faults.h"
#include "support/runners.h"

namespace
{
    const std::string stopped = "a search that was stopped because it took too long";
    const std::string endless = "a search that cannot end, because its pace no longer moves";

    /// Five races of which the first two lie so that their pair fit creeps for some 14000 rounds.
    CalculationInput creepingPair()
    {
        CalculationInput input = entries(
            {"500 m 198.60251", "750 m 358.16025", "2000 m 3845.61449", "3000 m 5934.80089", "6000 m 11933.27023"});
        input.age = "35";
        input.fit = FitMode::bestTwo;
        return input;
    }

    /// Three and a half days on the way, for which the pace search creeps for some 14000 rounds.
    CalculationInput creepingPace()
    {
        CalculationInput input = entries({"162335 m 304349"});
        input.age = "18";
        input.weeklyMiles = 5;
        return input;
    }

    struct Answers
    {
        int questions = 0;
        Prediction prediction;
    };

    /// Calculates once and answers "yes" a number of times, then "no".
    Answers calculateAnswering(const CalculationInput& input, int yes)
    {
        Answers answers;
        answers.prediction.state.goOn = [&] { return ++answers.questions <= yes; };
        answers.prediction.start(calculate, input);
        answers.prediction.state.goOn = {};
        return answers;
    }

    TEST(LongPairFit, AsksAndStopsAtANo)
    {
        const Answers answers = calculateAnswering(creepingPair(), 2);
        EXPECT_EQ(answers.prediction.fault, stopped);
        EXPECT_EQ(answers.questions, 3);
        EXPECT_TRUE(answers.prediction.results.picture.lines.empty());
        EXPECT_FALSE(answers.prediction.results.toolsEnabled);
    }

    TEST(LongPairFit, GivesTheSameHoweverOftenItAsked)
    {
        const Answers answers = calculateAnswering(creepingPair(), 1000);
        EXPECT_EQ(answers.prediction.fault, "");
        EXPECT_EQ(answers.questions, 3);
        EXPECT_EQ(answers.prediction.results.picture, calculatedOnce(creepingPair()).results.picture);
    }

    TEST(LongPaceSearch, AsksAndStopsAtANoWithTheAgeOfTheRunner)
    {
        const Answers answers = calculateAnswering(creepingPace(), 0);
        EXPECT_EQ(answers.prediction.fault, stopped);
        EXPECT_EQ(answers.questions, 1);
        EXPECT_EQ(answers.prediction.state.runner.age, 18);
        EXPECT_EQ(calculateAnswering(creepingPace(), 3).prediction.fault, "");
    }

    TEST(OrdinaryRuns, AskNothing)
    {
        CalculationInput input = entries({"800 m 2:10", "1500 m 4:25", "5 km 17:40", "10 km 37:30", "half 1:24:00"});
        EXPECT_EQ(calculateAnswering(input, 0).questions, 0);
        input.fit = FitMode::bestTwo;
        EXPECT_EQ(calculateAnswering(input, 0).questions, 0);
    }

    // Beyond all running: a race so long that each step of the search is below the last bit of the pace. The row checks
    // let none through, so it is handed to the fit itself.
    TEST(EndlessPaceSearch, IsAFaultOnceThePaceNoLongerMoves)
    {
        ModelState state;
        state.runner.age = 60;
        state.runner.weeklyMiles = 30;
        state.curve.fatigueCoef = fatigueCoefOf(30, false);
        state.curve.anaerobicExp = 0.83;
        state.races.raceCount = 1;
        state.races.entryDist[1] = 1e33;
        state.races.entryTime[1] = 2e37;
        state.races.fitTime[1] = 2e37;
        Messages messages;
        EXPECT_EQ(faultOf([&] { fitCurve(state, false, messages); }), endless);
        EXPECT_EQ(state.runner.age, 60);
    }
}
