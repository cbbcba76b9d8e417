#include "prediction/calculate.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/text.h"
#include "model/units.h"
#include "prediction/curve_fit.h"
#include "prediction/predicted_table.h"

namespace
{
    using RaceLabels = OneBased<std::string, maxRaces>;

    struct DistanceSpan
    {
        double shortestRace = 999999;   // m
        double longestRace = 0;
    };

    double factorOf(RaceUnit unit)
    {
        switch (unit)
        {
        case RaceUnit::miles: return metresPerMile;
        case RaceUnit::yards: return metresPerYard;
        case RaceUnit::kilometers: return metresPerKilometre;
        case RaceUnit::meters: return 1;
        case RaceUnit::marathon: return marathonCode;
        case RaceUnit::halfMarathon: return halfMarathonCode;
        case RaceUnit::none: break;
        }
        return 0;
    }

    /// The number is read for every row, so that one that can't be held stops a marathon row, too.
    double distanceOf(const std::string& number, double factor)
    {
        const double distance = checked(val(number) * factor);
        if (factor == marathonCode)
            return marathonMetres;
        if (factor == halfMarathonCode)
            return halfMarathonMetres;
        return distance;
    }

    std::string unitWord(double factor)
    {
        if (factor == metresPerMile)
            return "mi";
        if (factor == metresPerYard)
            return "yd";
        if (factor == metresPerKilometre)
            return "km";
        if (factor == marathonCode)
            return "marathon";
        if (factor == halfMarathonCode)
            return "half marathon";
        return "m";
    }

    std::string labelOf(double time, const std::string& number, double factor)
    {
        const bool coded = factor == marathonCode || factor == halfMarathonCode;
        return formatTime(time) + " " + (coded ? "" : number) + " " + unitWord(factor);
    }

    /// Reads one checked row as race n of the run. Returns the text of the check that it fails, or nothing.
    std::string readRace(Races& races, const RaceRow& row, double factor, int n, RaceLabels& raceLabel)
    {
        const double time = checked(val(row.minutes) * 60 + val(row.hours) * 3600 + val(row.seconds));
        races.fitTime[n] = time;
        races.rowTime[n] = time;
        if (time == 0)
            return "Bad time entry";
        races.entryTime[n] = time;
        const double distance = distanceOf(row.number, factor);
        races.entryDist[n] = distance;
        races.rowDist[n] = distance;
        if (distance == 0)
            return "Bad distance entry";
        if (quotient(distance, time) > 12)
            return "Way too fast";
        if (quotient(distance, time) < 0.5)
            return "Way too slow";
        raceLabel[n] = labelOf(time, row.number, factor);
        return {};
    }

    bool readRows(ModelState& state, const CalculationInput& input, RaceLabels& raceLabel, Messages& messages)
    {
        int& n = state.races.raceCount;
        n = 0;
        for (std::size_t i = 0; i < input.rows.size(); ++i)
        {
            double& factor = state.races.unitFactor[i];
            if (input.rows[i].unit != RaceUnit::none)
                factor = factorOf(input.rows[i].unit);
            if (!input.rows[i].use)
                continue;
            const std::string rowNumber = signedText(static_cast<double>(i + 1));
            state.activity = "reading race row" + rowNumber;
            n = n + 1;
            const std::string failure = readRace(state.races, input.rows[i], factor, n, raceLabel);
            if (!failure.empty())
            {
                messages.push_back({failure + " in row #" + rowNumber});
                return false;
            }
        }
        if (n == 0)
            messages.push_back({"No rows checked!"});
        return n > 0;
    }

    void readRunner(ModelState& state, const CalculationInput& input, Messages& messages)
    {
        Runner& runner = state.runner;
        state.activity = "reading the runner's age";
        if (state.flags.tableMode != 1)
            runner.age = val(input.age);
        if (numericEntry(runner.age) == 0)
            messages.push_back({"Non-numeric age entry"});
        runner.weeklyMiles = input.weeklyMiles;
        state.curve.fatigueCoef = fatigueCoefOf(runner.weeklyMiles, input.sex == SexChoice::female);
        if (input.sex == SexChoice::male)
            runner.sex = 'm';
        if (input.sex == SexChoice::female)
            runner.sex = 'f';
    }

    void stripFinishCorrections(ModelState& state)
    {
        Races& races = state.races;
        for (int i = 1; i <= races.raceCount; ++i)
        {
            state.activity = "taking the start and finish corrections off race" + signedText(i);
            races.fitTime[i] = strippedTime(state, races.fitTime[i], races.entryDist[i]);
        }
    }

    DistanceSpan distanceSpan(const Races& races)
    {
        DistanceSpan span;
        for (int i = 1; i <= races.raceCount; ++i)
        {
            span.shortestRace = std::min(span.shortestRace, races.entryDist[i]);
            span.longestRace = std::max(span.longestRace, races.entryDist[i]);
        }
        return span;
    }

    void swapRaces(Races& races, RaceLabels& raceLabel, int i, int j)
    {
        std::swap(races.entryDist[i], races.entryDist[j]);
        std::swap(races.fitTime[i], races.fitTime[j]);
        std::swap(races.entryTime[i], races.entryTime[j]);
        std::swap(raceLabel[i], raceLabel[j]);
    }

    void sortRaces(Races& races, RaceLabels& raceLabel)
    {
        bool swapped = true;
        while (swapped)
        {
            swapped = false;
            for (int i = 1; i <= races.raceCount - 1; ++i)
            {
                if (races.entryDist[i] > races.entryDist[i + 1])
                {
                    swapRaces(races, raceLabel, i, i + 1);
                    swapped = true;
                }
            }
        }
    }

    void removeRace(Races& races, RaceLabels& raceLabel, int gone)
    {
        for (int i = gone; i < races.raceCount; ++i)
        {
            races.entryDist[i] = races.entryDist[i + 1];
            races.fitTime[i] = races.fitTime[i + 1];
            races.entryTime[i] = races.entryTime[i + 1];
            raceLabel[i] = raceLabel[i + 1];
        }
        races.raceCount = races.raceCount - 1;
    }

    /// Drops each race that is no faster than a longer one, by the times as entered.
    void omitInconsistentRaces(ModelState& state, RaceLabels& raceLabel, Messages& messages)
    {
        Races& races = state.races;
        int& n = races.raceCount;
        if (n < 2)
            return;
        state.activity = "comparing the speeds of the races";
        int i = 1;
        do
        {
            int k = i + 1;
            do
            {
                if (quotient(races.entryDist[i], races.entryTime[i]) <=
                    quotient(races.entryDist[k], races.entryTime[k]))
                {
                    messages.push_back({"Omitting" + raceLabel[i] + " because it is slower paced than a longer race."});
                    removeRace(races, raceLabel, i);
                    i = i - 1;
                    break;
                }
                k = k + 1;
            } while (k <= n);
            i = i + 1;
        } while (i < n);
    }

    void warnOfExtrapolation(Flags& flags, const DistanceSpan& span, Messages& messages)
    {
        if (flags.warnedExtrapolation != 0)
            return;
        const auto warn = [&](const char* text, const char* title) {
            messages.push_back({text, title});
            flags.warnedExtrapolation = 1;
        };
        if (800 <= span.longestRace && span.longestRace < 1500)
            warn("LONGEST RACE UNDER 1500 METERS - EXTRAPOLATION TO LONGER DISTANCES UNCERTAIN.",
                 "Questionable extrapolation");
        if (span.longestRace < 800)
            warn("LONGEST RACE UNDER 800 METERS - EXTRAPOLATION TO LONGER DISTANCES VERY UNCERTAIN.",
                 "Very questionable extrapolation");
        if (span.shortestRace > 10000)
            warn("SHORTEST RACE OVER 10 KM - EXTRAPOLATION TO SHORTER DISTANCES UNCERTAIN.",
                 "Questionable extrapolation");
    }

    void takeTableTimes(ModelState& state)
    {
        Races& races = state.races;
        races.entryDist[1] = 800;
        races.entryDist[2] = 5000;
        races.entryTime[1] = checked(state.table.tableTime800 - state.curve.startDelay);
        races.entryTime[2] = checked(state.table.tableTime5000 - state.curve.startDelay);
        races.fitTime[1] = races.entryTime[1];
        races.fitTime[2] = races.entryTime[2];
    }

    void fillTableColumn(ModelState& state)
    {
        const int row = state.table.tableRow;
        if (row < 0 || row >= tableColumns)
            stopWith("an index out of range");
        auto& times = state.table.tableTimes[static_cast<std::size_t>(row)];
        for (int c = 1; c <= tableDistances; ++c)
        {
            state.results.curDistance = state.table.tableDist[c];
            times[c] = timeStep(state).time;
        }
    }

    /// Everything from the sorting of the races to their warnings, for entries that passed their checks.
    void prepareRaces(ModelState& state, CalculationInput& input, CalculationResults& results, RaceLabels& raceLabel,
                      Messages& messages)
    {
        stripFinishCorrections(state);
        const DistanceSpan span = distanceSpan(state.races);
        sortRaces(state.races, raceLabel);
        omitInconsistentRaces(state, raceLabel, messages);
        if (state.races.raceCount < 2)
            input.fit = FitMode::allData;
        results.reportsEnabled = true;
        warnOfExtrapolation(state.flags, span, messages);
    }

    void calculateTwice(ModelState& state, CalculationInput& input, CalculationResults& results, Messages& messages)
    {
        calculate(state, input, results, messages);
        calculate(state, input, results, messages);
    }
}

void calculate(ModelState& state, CalculationInput& input, CalculationResults& results, Messages& messages)
{
    const bool tableMode = state.flags.tableMode == 1;
    RaceLabels raceLabel;
    state.curve.piValue = 3.1415926;
    state.curve.startDelay = 3;
    if (!tableMode)
    {
        clear(results.picture);
        results.rows.clear();
        if (!readRows(state, input, raceLabel, messages))
            return;
        state.races.rowsUsed = state.races.raceCount;
        if (state.races.raceCount < 2)
            input.fit = FitMode::allData;
        results.bestTwoEnabled = state.races.raceCount > 1;
        state.curve.aerobicPower = 0;
    }
    readRunner(state, input, messages);
    const bool useBestTwo = tableMode || input.fit == FitMode::bestTwo;
    if (tableMode)
    {
        state.races.raceCount = 2;
        takeTableTimes(state);
    }
    else
        prepareRaces(state, input, results, raceLabel, messages);
    fitCurve(state, useBestTwo, messages);
    if (tableMode)
    {
        state.activity = "filling the performance table";
        fillTableColumn(state);
        return;
    }
    printPredictedTable(state, input, results);
    results.toolsEnabled = true;
    closeCalculation(state);
}

void recalculate(ModelState& state, CalculationInput& input, CalculationResults& results, Messages& messages)
{
    resetCurveConstants(state);
    state.flags.warnedProfile = 0;
    state.flags.performanceFromTable = 0;
    if (input.output == OutputMode::english)
    {
        input.output = OutputMode::metric;
        calculateTwice(state, input, results, messages);
        input.output = OutputMode::english;
    }
    state.flags.warnedExtrapolation = 0;
    calculateTwice(state, input, results, messages);
    state.flags.calculatedOnce = 1;
}
