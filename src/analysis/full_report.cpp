#include "analysis/full_report.h"

#include "analysis/curve_time.h"
#include "model/arithmetic.h"
#include "model/record_curve.h"
#include "model/text.h"

namespace
{
    struct DistanceWords
    {
        std::string number, unit;
    };

    DistanceWords wordsOf(const RaceRow& race)
    {
        switch (race.unit)
        {
        case RaceUnit::miles: return {race.number, " mi"};
        case RaceUnit::yards: return {race.number, " yd"};
        case RaceUnit::kilometers: return {race.number, " km"};
        case RaceUnit::meters: return {race.number, " m"};
        case RaceUnit::marathon: return {" ", "marathon"};
        case RaceUnit::halfMarathon: return {" ", "half marathon"};
        case RaceUnit::none: break;
        }
        return {};
    }

    std::string raceLine(const RaceRow& race)
    {
        double seconds = checked(val(race.hours) * 3600 + val(race.minutes) * 60 + val(race.seconds));
        const auto [number, unit] = wordsOf(race);
        return "     " + formatTime(seconds) + " for " + number + unit;
    }

    void printRunner(TextPage& page, const ReportEntries& entries)
    {
        const char* const sex = entries.input.sex == SexChoice::male ? "male" : "female";
        printLine(page, "VANTELOS full report on " + entries.name + " (" + entries.age + " year old " + sex + "):");
        newLine(page);
        printLine(page, "Weekly training distance = " + entries.miles + " miles = " + entries.kilometers + " km.");
    }

    void printRaces(TextPage& page, const ReportEntries& entries)
    {
        printLine(page, "Based on the following race performances:");
        newLine(page);
        for (const RaceRow& race : entries.input.rows)
            if (race.use)
                printLine(page, raceLine(race));
        newLine(page);
    }

    void printBasis(const ModelState& state, TextPage& page, const ReportEntries& entries)
    {
        printLine(page, entries.input.fit == FitMode::bestTwo
                            ? "Fitting best two races."
                            : "Using age, sex, and training data in addition to races.");
        const std::string age = state.flags.ageCompareOn == 1 ? signedText(state.runner.age) : "open class";
        printLine(page, "Comparing to performance level " + entries.comparisonLevel + "    Age = " + age);
    }

    /// The numbers of one row.
    struct ReportRow
    {
        double time = 0;           // s
        double speed = 0;          // m/s
        double comparison = 0;     // s
        double percentSpeed = 0;   // whole numbers
        double percentLevel = 0;
    };

    ReportRow reportRow(ModelState& state, double d, int comparisonLevel, double& t800)
    {
        const char sex = state.runner.sex;
        state.activity = "predicting the time over " + plainText(d) + " m";
        ReportRow row;
        row.time = timeOver(state, d);
        if (d == 800)
            t800 = row.time;
        if (d == 5000)
            state.results.speedRatio = quotient(0.16 * row.time, t800);
        row.speed = quotient(d, row.time);
        state.activity = "rating the time over " + plainText(d) + " m";
        const double q = comparisonLevel / 1000.0;
        row.comparison = recordTime(state, sex, RecordMode::timeOfLevel, d, q);
        row.percentSpeed = roundHalfEven(quotient(100 * row.comparison, row.time));
        state.results.level = levelOf(state, d, row.time);
        row.percentLevel = roundHalfEven(100 * state.results.level);
        return row;
    }

    void printRow(TextPage& page, const char* label, ReportRow row)
    {
        print(page, label);
        goToColumn(page, 14);
        print(page, formatTime(row.time));
        goToColumn(page, 25);
        print(page, formatTime(quotient(metresPerMile, row.speed)));
        goToColumn(page, 35);
        print(page, formatTime(quotient(metresPerKilometre, row.speed)));
        goToColumn(page, 45);
        print(page, formatTime(quotient(metresPerTrackLap, row.speed)));
        goToColumn(page, 55);
        print(page, formatTime(row.comparison));
        goToColumn(page, 68);
        print(page, row.percentSpeed);
        goToColumn(page, 76);
        print(page, row.percentLevel);
        newLine(page);
    }
}

Specialty printFullReport(ModelState& state, const ReportEntries& entries, TextPage& page)
{
    state.activity = "printing the races";
    printRunner(page, entries);
    printRaces(page, entries);
    printBasis(state, page, entries);
    newLine(page);
    printLine(page, fullReportHeading);
    newLine(page);
    double t800 = 0;
    for (const TableDistance& at : reportDistances)
        printRow(page, at.label, reportRow(state, at.distance, entries.input.comparisonLevel, t800));
    const Specialty specialty = trainingAnalysis(state);
    state.activity = "printing the training analysis";
    printAnalysis(state, specialty, ReportMode::fullReport, page);
    return specialty;
}
