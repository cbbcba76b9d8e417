#include "analysis/training_analysis.h"

#include <string>

#include "analysis/heart_rates.h"
#include "analysis/peak_distance.h"
#include "analysis/training_paces.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    constexpr double trainingKilometresPerMile = 1.61;   // for the show of the typical training level alone

    std::string trimmedTime(double seconds)
    {
        const std::string text = formatTime(seconds);
        const std::size_t first = text.find_first_not_of(' ');
        return text.substr(first, text.find_last_not_of(' ') + 1 - first);
    }

    /// The time over a distance at a speed, a blank on either side.
    std::string paceText(double distance, double speed)
    {
        return " " + trimmedTime(quotient(distance, speed)) + " ";
    }

    std::string lapText(double speed)
    {
        const double t = quotient(metresPerTrackLap, speed);
        if (t >= 99.5)
            return " " + trimmedTime(t) + " min/400 m.";
        return signedText(roundHalfEven(t)) + " sec/400 m.";
    }

    void printWhole(TextPage& page, double number)
    {
        print(page, roundHalfEven(number));
    }

    /// A training speed with its range, per mile and per kilometre.
    void printPaces(TextPage& page, const char* title, double speed, double low, double high)
    {
        struct Unit
        {
            double metres;
            const char* words;
        };
        print(page, title);
        for (const Unit unit : {Unit{metresPerMile, " min/mi = "}, Unit{metresPerKilometre, " min/km."}})
        {
            print(page, paceText(unit.metres, speed) + " ( range" + paceText(unit.metres, low) + "to" +
                            paceText(unit.metres, high) + ")");
            print(page, unit.words);
        }
        newLine(page);
    }

    void printHeartRates(TextPage& page, const char* range, double mean, double low, double high)
    {
        print(page, " Associated heart rate = ");
        printWhole(page, mean);
        print(page, range);
        printWhole(page, low);
        print(page, "-");
        printWhole(page, high);
        printLine(page, ")");
    }

    std::string vo2Paces(double speed)
    {
        return paceText(metresPerMile, speed) + " min/mi = " + paceText(metresPerKilometre, speed) +
               " min/km = " + lapText(speed);
    }

    void printVo2max(TextPage& page, const Training& training)
    {
        print(page, " Estimated VO2 max = ");
        printWhole(page, training.vo2max);
        print(page, " ml/kg/min, with VO2 max pace = ");
        printLine(page, vo2Paces(training.vo2maxSpeed));
        print(page, " Pace for efforts of 3-5 minutes should be between this and ");
        printLine(page, vo2Paces(training.intervalSpeed));
    }

    void printRepetitions(TextPage& page, const Training& training, ReportMode mode)
    {
        print(page, " 400 meter repetitions with good recovery should be");
        if (mode == ReportMode::fullReport)
            print(page, " about");
        printWhole(page, training.repFastTime);
        print(page, "to");
        printWhole(page, training.repSlowTime);
        printLine(page, "seconds each.");
    }

    void printSpecialty(TextPage& page, const Specialty& specialty, double weeklyMiles)
    {
        print(page, " Best performances likely with race distances ");
        print(page, specialty.band);
        print(page, "  (peak at ");
        print(page, roundHalfEven(specialty.peak * 100) / 100);
        printLine(page, " km).  Performance level and specialty");
        print(page, " typically associated with training level of about");
        printWhole(page, specialty.typicalMiles);
        print(page, "miles (");
        printWhole(page, specialty.typicalMiles * trainingKilometresPerMile);
        printLine(page, "km) per week.  Considering input training volume");
        print(page, " of ");
        print(page, weeklyMiles);
        print(page, " miles per week, this suggests that this runner's potentially best distance");
        print(page, specialty.verdict);
        printLine(page, " this value.");
    }

    void printGraphNote(TextPage& page)
    {
        printLine(page, " Heart rate shown on the graph below best represents value after about 15 minutes running, "
                        "at least the last few");
        printLine(page, " minutes being at the given speed.  Green vertical lines show min, mean, and max speeds for");
        printLine(page, " fully aerobic training, and orange for similar lactate threshold values.  The thick red line "
                        "is the ");
        printLine(page, " VO2max pace, and suggested training for improving that is between this speed and the thin");
        printLine(page, " red line.  Appropriate paces for 400 meter repeats (with ample rest) are between the purple "
                        "lines.");
    }

    double typicalMilesOf(const ModelState& state)
    {
        const double level = state.results.level;
        double typicalLoad = power(level, 2.2) * 35 * naturalLog(1.1 + state.training.peakSeed);
        if (state.runner.sex == 'f')
            typicalLoad = typicalLoad * 0.8;
        return checked(typicalLoad - state.runner.ageDistanceTerm);
    }
}

const char* specialtyVerdict(double typicalMiles, double weeklyMiles)
{
    const double W = weeklyMiles;
    const char* verdict = " is probably shorter than";
    if (typicalMiles > 0.6 * W - 6)
        verdict = " may be somewhat shorter than";
    if (typicalMiles > 0.8 * W - 3)
        verdict = " is probably near";
    if (typicalMiles > 1.25 * W + 3)
        verdict = " may be somewhat longer than";
    if (typicalMiles > 1.67 * W + 6)
        verdict = " is probably longer than";
    return verdict;
}

Specialty trainingAnalysis(ModelState& state)
{
    findTrainingPaces(state);
    Specialty specialty;
    specialty.peak = peakDistance(state, state.results.speedRatio);
    specialty.band = distanceBand(specialty.peak);
    state.activity = "working out the training level";
    specialty.typicalMiles = typicalMilesOf(state);
    specialty.verdict = specialtyVerdict(specialty.typicalMiles, state.runner.weeklyMiles);
    findHeartRateZones(state);
    findZoneSpeeds(state);
    return specialty;
}

void printAnalysis(const ModelState& state, const Specialty& specialty, ReportMode mode, TextPage& page)
{
    const Training& t = state.training;
    if (mode == ReportMode::fullReport)
        newLine(page);
    printLine(page, " TRAINING AND SPECIALIZATION ANALYSIS:");
    newLine(page);
    printPaces(page, " Fully aerobic training pace = ", t.aerobicTrainSpeed, t.aerobicSpeedLow, t.aerobicSpeedHigh);
    printHeartRates(page, " ( range", t.aerobicHr, t.aerobicHrLow, t.aerobicHrHigh);
    newLine(page);
    printPaces(page, " Anaerobic threshhold pace = ", t.thresholdSpeed, t.thresholdSpeedLow, t.thresholdSpeedHigh);
    printHeartRates(page, " ( range ", t.thresholdHr, t.thresholdHrLow, t.thresholdHrHigh);
    newLine(page);
    printVo2max(page, t);
    newLine(page);
    printRepetitions(page, t, mode);
    newLine(page);
    printSpecialty(page, specialty, state.runner.weeklyMiles);
    newLine(page);
    if (mode == ReportMode::screen)
        printGraphNote(page);
}
