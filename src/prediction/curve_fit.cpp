#include "prediction/curve_fit.h"

#include <cmath>
#include <string>

#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/record_curve.h"
#include "model/text.h"
#include "model/units.h"
#include "prediction/specialty.h"

namespace
{
    constexpr int maxPairs = 5;   // only pairs on the upper edge of the data are kept

    struct KeptPair
    {
        double shorterTime = 0;       // s, fitTime of the shorter race
        double shorterDistance = 0;   // m
        double longerDistance = 0;    // m
        double aerobicPower = 0;
        double raceEnergy = 0;
    };

    /// Working values of one fit.
    struct Fit
    {
        double bestAerobicPower = 0;   // highest of the one-race fits
        int bestRace = 0;              // the race that the curve is hung on in "Use all data"
        double raceEnergy = 0;         // of the reference race
        double refTime = 0;            // its fitTime, s
        OneBased<KeptPair, maxPairs> pairs;
        int pairCount = 0;
        int chosenPair = 0;
    };

    /// Model power at a pace in seconds a mile.
    double powerAtPace(double aerobicPace)
    {
        return modelPower(quotient(metresPerMile, aerobicPace));
    }

    std::string metresText(double distance)
    {
        return plainText(distance) + " m";
    }

    double timeAt(ModelState& state, double distance)
    {
        state.results.curDistance = distance;
        return timeStep(state).time;
    }

    double rawTimeAt(ModelState& state, double distance)
    {
        state.results.curDistance = distance;
        return timeStep(state).rawTime;
    }

    void takeReference(ModelState& state, Fit& fit, int race)
    {
        state.curve.refDistance = state.races.entryDist[race];
        fit.refTime = state.races.fitTime[race];
        fit.raceEnergy = modelPower(quotient(state.curve.refDistance, fit.refTime)) * fit.refTime;
    }

    /// The energy that makes the curve pass through the reference race.
    void settleEnergy(ModelState& state, const Fit& fit)
    {
        state.curve.anaerobicEnergy = checked(fit.raceEnergy - state.curve.aerobicPower * fit.refTime);
    }

    /// Distance of peak performance that the curve suggests, km. Writes curDistance, level and speedRatioAdj.
    double specialtyEstimate(ModelState& state)
    {
        Results& results = state.results;
        const double distance = 1000 * specialtyAt(results.speedRatio) + 1000 * enduranceExtra(results.speedRatio);
        const double T = timeAt(state, distance);
        results.level = levelOf(state, distance, T);
        results.speedRatioAdj = power(results.speedRatio, results.level / 0.9);
        return specialtyAt(results.speedRatioAdj) + enduranceExtra(results.speedRatioAdj);
    }

    /// Puts the curve through the reference race at a pace and takes the speed ratio that follows.
    void settleCurveAt(ModelState& state, const Fit& fit, double aerobicPace)
    {
        state.curve.aerobicPower = powerAtPace(aerobicPace);
        settleEnergy(state, fit);
        const double T800 = timeAt(state, 800);
        const double T5000 = timeAt(state, 5000);
        state.results.speedRatio = quotient(0.16 * T5000, T800);
    }

    /// Weekly miles that the curve's level and specialty call for.
    double volumeEstimateOf(ModelState& state)
    {
        const double specialtyKm = specialtyEstimate(state);
        const double volume = power(state.results.level, 2.2) * 35 * naturalLog(1.1 + specialtyKm);
        return state.runner.sex == 'f' ? volume * 0.8 : volume;
    }

    /// Searches the pace at which the curve calls for the runner's weekly miles. The curve is that of the last
    /// round, whose pace update is discarded. A fault leaves `age` and `speedRatio` as the search has them.
    void searchPace(ModelState& state, const Fit& fit, double volumeTarget)
    {
        Runner& runner = state.runner;
        const double keptSpeedRatio = state.results.speedRatio;
        double aerobicPace = quotient(900 - 150 * power(runner.weeklyMiles, 0.25), state.results.level);
        if (aerobicPace < 360)
            aerobicPace = 360;
        LongLoop loop(state.goOn);
        bool done = false;
        do
        {
            loop.nextRound();
            const double pace = aerobicPace;
            settleCurveAt(state, fit, pace);
            const double keptAge = runner.age;
            runner.age = 27;
            const double volumeEstimate = volumeEstimateOf(state);
            aerobicPace = checked(pace - quotient((volumeTarget + 0.3 - volumeEstimate) * 2000,
                                                  squareRoot(state.curve.refDistance + 500)) /
                                             (runner.weeklyMiles + 10));
            runner.age = keptAge;
            done = volumeEstimate > volumeTarget - 0.1 || aerobicPace < 270 || state.results.speedRatio < 1.12;
            if (!done && aerobicPace == pace)
                stopWith("a search that cannot end, because its pace no longer moves");
        } while (!done);
        state.results.speedRatio = keptSpeedRatio;
    }

    void fitOneRace(ModelState& state, Fit& fit, int i)
    {
        state.activity = "fitting the race over " + metresText(state.races.entryDist[i]);
        Runner& runner = state.runner;
        runner.ageDistanceTerm = ageDistanceTermOf(runner.age);
        const double volumeTarget = runner.weeklyMiles + runner.ageDistanceTerm;
        takeReference(state, fit, i);
        searchPace(state, fit, volumeTarget);
        for (int pass = 1; pass <= 2; ++pass)
        {
            const double T = timeAt(state, 2000);
            state.results.level = levelOf(state, 2000, T);
            searchPace(state, fit, volumeTarget);
        }
    }

    /// The race that the best one-race curve runs closest above becomes the reference.
    void chooseClosestRace(ModelState& state, Fit& fit)
    {
        const Races& races = state.races;
        takeReference(state, fit, fit.bestRace);
        state.curve.aerobicPower = fit.bestAerobicPower;
        settleEnergy(state, fit);
        double lowestRatio = 999;
        int chosen = fit.bestRace;
        for (int j = 1; j <= races.raceCount; ++j)
        {
            const double ratio = quotient(races.entryTime[j], timeAt(state, races.entryDist[j]));
            if (ratio < lowestRatio)
            {
                lowestRatio = ratio;
                chosen = j;
            }
        }
        fit.bestRace = chosen;
    }

    void fitSingleRaces(ModelState& state, Fit& fit, bool useBestTwo)
    {
        const Races& races = state.races;
        const int n = races.raceCount;
        for (int i = 1; i <= n; ++i)
        {
            const double d = races.entryDist[i];
            state.activity = "rating the race over " + metresText(d);
            state.results.curDistance = d;
            state.curve.refDistance = d;
            state.results.level = levelOf(state, d, races.entryTime[i]);
            if (useBestTwo && n > 1)
                continue;
            fitOneRace(state, fit, i);
            takeReference(state, fit, i);
            if (state.curve.aerobicPower > fit.bestAerobicPower)
            {
                fit.bestAerobicPower = state.curve.aerobicPower;
                fit.bestRace = i;
            }
            if (i == n)
                chooseClosestRace(state, fit);
        }
    }

    /// Slows the pace until the curve through race i no longer beats race j. Returns the last pace.
    double meetLongerRace(ModelState& state, const Fit& fit, int j)
    {
        const double distance = state.races.entryDist[j];
        const double target = state.races.fitTime[j];
        double aerobicPace = 270;
        LongLoop loop(state.goOn);
        bool done = false;
        do
        {
            loop.nextRound();
            const double pace = aerobicPace;
            const double keptExp = state.curve.anaerobicExp;
            state.curve.aerobicPower = powerAtPace(aerobicPace);
            settleEnergy(state, fit);
            const double rawTime = rawTimeAt(state, distance);
            if (rawTime < target)
                aerobicPace = checked(aerobicPace + 1000 * (target + 0.2 - rawTime) / distance);
            if (aerobicPace > 2000 && state.curve.anaerobicExp > 0.5)
                state.curve.anaerobicExp = state.curve.anaerobicExp - 0.01;
            done = rawTime >= target || aerobicPace > 15000;
            if (!done && aerobicPace == pace && state.curve.anaerobicExp == keptExp)
                stopWith("a search that cannot end, because its pace no longer moves");
        } while (!done);
        return aerobicPace;
    }

    bool beatenByAnotherRace(ModelState& state, int i, int j)
    {
        const Races& races = state.races;
        for (int k = 1; k <= races.raceCount; ++k)
            if (k != i && k != j && rawTimeAt(state, races.entryDist[k]) > races.fitTime[k])
                return true;
        return false;
    }

    void keepPair(const ModelState& state, Fit& fit, int i, int j)
    {
        const Races& races = state.races;
        fit.pairCount = fit.pairCount + 1;
        fit.pairs[fit.pairCount] = {races.fitTime[i], races.entryDist[i], races.entryDist[j], state.curve.aerobicPower,
                                    fit.raceEnergy};
        if (fit.chosenPair == 0)
            fit.chosenPair = fit.pairCount;   // the first pair stays: shortest races first
    }

    void fitPairs(ModelState& state, Fit& fit, Messages& messages)
    {
        const int n = state.races.raceCount;
        for (int i = 1; i <= n - 1; ++i)
        {
            takeReference(state, fit, i);
            for (int j = i + 1; j <= n; ++j)
            {
                state.activity = "fitting the pair of races over " + metresText(state.races.entryDist[i]) + " and " +
                                 metresText(state.races.entryDist[j]);
                const double aerobicPace = meetLongerRace(state, fit, j);
                if (aerobicPace > 15000 && state.flags.warnedProfile == 0)
                {
                    messages.push_back({"Very unusual profile.  Could not match performances with realistic "
                                        "aerobic capacity."});
                    state.flags.warnedProfile = 1;
                }
                if (!beatenByAnotherRace(state, i, j))
                    keepPair(state, fit, i, j);
            }
        }
    }

    void blendAllData(ModelState& state, Fit& fit)
    {
        takeReference(state, fit, fit.bestRace);
        double weightedPower = 0;
        double weights = 0;
        for (int p = 1; p <= fit.pairCount; ++p)
        {
            const KeptPair& pair = fit.pairs[p];
            weightedPower = weightedPower + quotient(pair.aerobicPower * pair.longerDistance, pair.shorterDistance);
            weights = weights + quotient(pair.longerDistance, pair.shorterDistance);
        }
        const double pairPower = quotient(weightedPower, weights);
        state.curve.aerobicPower = pairPower;
        const double w = (state.races.raceCount + signOf(pairPower - fit.bestAerobicPower)) / 2;
        state.curve.aerobicPower = (w * pairPower + fit.bestAerobicPower) / (1 + w);
    }

    void takeChosenPair(ModelState& state, Fit& fit)
    {
        const KeptPair pair = fit.chosenPair > 0 ? fit.pairs[fit.chosenPair] : KeptPair{};
        state.curve.aerobicPower = pair.aerobicPower;
        state.curve.refDistance = pair.shorterDistance;
        fit.raceEnergy = pair.raceEnergy;
        fit.refTime = pair.shorterTime;
    }
}

void fitCurve(ModelState& state, bool useBestTwo, Messages& messages)
{
    Fit fit;
    const bool several = state.races.raceCount > 1;
    fitSingleRaces(state, fit, useBestTwo);
    if (several)
        fitPairs(state, fit, messages);
    state.activity = "putting the curve together from the races";
    if (several && !useBestTwo)
        blendAllData(state, fit);
    if (several && useBestTwo)
        takeChosenPair(state, fit);
    settleEnergy(state, fit);
}
