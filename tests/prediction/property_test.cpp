// What holds for any races and runner.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "model/race_time.h"
#include "model/text.h"
#include "prediction/calculate.h"
#include "program/state_names.h"
#include "support/close_to.h"
#include "support/draws.h"
#include "support/runners.h"

namespace
{
    RaceRow rowOf(double metres, double seconds)
    {
        return {true, "", "", exactText(seconds), exactText(metres), RaceUnit::meters};
    }

    /// Races from `shortest` to `longest` m at speeds from `slowest` to `fastest` m/s, and a runner of any sort.
    CalculationInput drawnEntries(int races, double shortest, double longest, double slowest, double fastest)
    {
        CalculationInput input;
        for (int i = 0; i < races; ++i)
        {
            const double metres = *drawnInLogSteps(shortest, longest);
            input.rows.at(static_cast<std::size_t>(i)) = rowOf(metres, metres / *drawnInLogSteps(slowest, fastest));
        }
        input.age = std::to_string(*rc::gen::inRange(8, 96));
        input.weeklyMiles = *rc::gen::inRange(0, 151);
        input.sex = *rc::gen::element(SexChoice::male, SexChoice::female, SexChoice::none);
        input.fit = *rc::gen::element(FitMode::bestTwo, FitMode::allData, FitMode::none);
        input.output = *rc::gen::element(OutputMode::metric, OutputMode::english, OutputMode::none);
        input.comparisonLevel = *rc::gen::inRange(1, 1101);
        return input;
    }

    CalculationInput drawnRaces()
    {
        return drawnEntries(*rc::gen::inRange(1, 6), 100, 50000, 2, 7);
    }

    /// Runs on a state; a search that takes absurdly long is stopped after a while.
    void startBounded(Prediction& prediction, const Prediction::Run& run, const CalculationInput& input)
    {
        int questions = 0;
        prediction.state.goOn = [&] { return ++questions < 20; };
        prediction.start(run, input);
        prediction.state.goOn = {};
    }

    /// A state of its own after Re-Calculate.
    Prediction started(const CalculationInput& input, int agecomp)
    {
        Prediction prediction;
        prediction.state.flags.agecomp = agecomp;
        startBounded(prediction, recalculate, input);
        return prediction;
    }

    std::vector<StateValue> valuesOf(const ModelState& state)
    {
        std::vector<StateValue> values;
        for (const StateName& name : stateNames())
            values.push_back(name.get(state));
        return values;
    }

    bool isFinite(const StateValue& value)
    {
        if (const auto* number = std::get_if<double>(&value))
            return std::isfinite(*number);
        if (const auto* numbers = std::get_if<std::vector<double>>(&value))
            return std::all_of(numbers->begin(), numbers->end(), [](double each) { return std::isfinite(each); });
        if (const auto* columns = std::get_if<std::vector<std::vector<double>>>(&value))
            return std::all_of(columns->begin(), columns->end(),
                               [](const std::vector<double>& column) { return isFinite(column); });
        return true;
    }

    void expectAllFinite(const Prediction& prediction)
    {
        for (const StateName& name : stateNames())
            if (!isFinite(name.get(prediction.state)))
                RC_FAIL(std::string(name.name) + " is not finite after: " + prediction.fault);
        for (const PredictedRow& row : prediction.results.rows)
            for (const double number : {row.time, row.perMile, row.perKilometre, row.per400, row.record,
                                        row.percentSpeed, row.level, row.percentLevel, row.topPercent})
                RC_ASSERT(std::isfinite(number));
    }

    RC_GTEST_PROP(Recalculation, GivesTheSameBitsAgain, ())
    {
        const CalculationInput input = drawnRaces();
        const int agecomp = *rc::gen::inRange(0, 2);
        const Prediction one = started(input, agecomp);
        const Prediction other = started(input, agecomp);
        RC_ASSERT(valuesOf(one.state) == valuesOf(other.state));
        RC_ASSERT(one.results.picture == other.results.picture);
        RC_ASSERT(one.messages == other.messages);
        RC_ASSERT(one.fault == other.fault);
    }

    RC_GTEST_PROP(Recalculation, IsUndisturbedByAnotherStateBesideIt, ())
    {
        const CalculationInput input = drawnRaces();
        const CalculationInput otherInput = drawnRaces();
        Prediction alone;
        startBounded(alone, calculate, input);
        startBounded(alone, calculate, input);

        Prediction one;
        Prediction other;
        startBounded(one, calculate, input);
        startBounded(other, calculate, otherInput);
        startBounded(one, calculate, input);
        RC_ASSERT(valuesOf(one.state) == valuesOf(alone.state));
        RC_ASSERT(one.results.picture == alone.results.picture);
        RC_ASSERT(one.fault == alone.fault);
    }

    RC_GTEST_PROP(Recalculation, LeavesOnlyFiniteNumbersAfterOrdinaryRaces, ())
    {
        expectAllFinite(started(drawnRaces(), *rc::gen::inRange(0, 2)));
    }

    // Distances from a micrometre to beyond the moon, at any speed that the row checks let through.
    RC_GTEST_PROP(Recalculation, LeavesOnlyFiniteNumbersAfterAnyRaces, ())
    {
        CalculationInput input = drawnEntries(*rc::gen::inRange(1, 6), 1e-6, 1e9, 0.51, 11.9);
        input.age = *rc::gen::element<std::string>("0", "-3", "-50", "40", "104", "200", "1e9", "-1e300", "1e308");
        input.comparisonLevel = *rc::gen::element(0, 1, 1000, 1100);
        expectAllFinite(started(input, *rc::gen::inRange(0, 2)));
    }

    // Texts that nobody would enter.
    RC_GTEST_PROP(Recalculation, LeavesOnlyFiniteNumbersAfterAnyTexts, ())
    {
        const auto text = rc::gen::element<std::string>("", "0", "1", "-1", "5", "59.95", "1e9", "1e-9", "1e308",
                                                        "1e999", "-1e308", "x", "1,5", "nan", "inf", "0.1");
        CalculationInput input = drawnRaces();
        for (RaceRow& row : input.rows)
            row = {*rc::gen::arbitrary<bool>(),
                   *text,
                   *text,
                   *text,
                   *text,
                   *rc::gen::element(RaceUnit::none, RaceUnit::miles, RaceUnit::yards, RaceUnit::kilometers,
                                     RaceUnit::meters, RaceUnit::marathon, RaceUnit::halfMarathon)};
        input.age = *text;
        expectAllFinite(started(input, 0));
    }

    RC_GTEST_PROP(OneRaceFit, GoesThroughItsRace, ())
    {
        CalculationInput input = drawnEntries(1, 200, 50000, 2, 7);
        const Prediction prediction = started(input, 0);
        RC_PRE(prediction.fault.empty());
        const Races& races = prediction.state.races;
        RC_PRE(std::abs(races.entryDist[1] - 9410.5) >= 0.1);
        RC_ASSERT(closeTo(raceTimeAt(prediction.state, races.entryDist[1]), races.entryTime[1]));
    }

    RC_GTEST_PROP(FittedCurve, GoesThroughItsReferenceRace, ())
    {
        const Prediction prediction = started(drawnRaces(), 0);
        RC_PRE(prediction.fault.empty());
        const Races& races = prediction.state.races;
        bool through = false;
        for (int i = 1; i <= races.raceCount; ++i)
        {
            RC_PRE(std::abs(races.entryDist[i] - 9410.5) >= 0.1);
            through = through || (races.entryDist[i] == prediction.state.curve.refDistance &&
                                  closeTo(raceTimeAt(prediction.state, races.entryDist[i]), races.entryTime[i]));
        }
        RC_ASSERT(through);
    }

    RC_GTEST_PROP(FittedCurve, GrowsWithTheDistanceFromOneToNineKilometres, ())
    {
        const Prediction prediction = started(drawnRaces(), 0);
        RC_PRE(prediction.fault.empty());
        double former = 0;
        for (double distance = 1000; distance <= 9000; distance *= 1.01)
        {
            const double time = raceTimeAt(prediction.state, distance);
            RC_ASSERT(time > former);
            former = time;
        }
    }

    RC_GTEST_PROP(RacesInUse, AreSortedAndEachIsFasterThanAllLongerOnes, ())
    {
        const Prediction prediction = started(drawnRaces(), 0);
        const Races& races = prediction.state.races;
        RC_PRE(prediction.results.reportsEnabled);
        for (int i = 1; i < races.raceCount; ++i)
            for (int k = i + 1; k <= races.raceCount; ++k)
            {
                RC_ASSERT(races.entryDist[i] <= races.entryDist[k]);
                RC_ASSERT(races.entryDist[i] / races.entryTime[i] > races.entryDist[k] / races.entryTime[k]);
            }
        RC_ASSERT(races.raceCount >= 1);
        RC_ASSERT(races.rowsUsed >= races.raceCount);
    }
}
