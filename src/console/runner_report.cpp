#include "console/runner_report.h"

#include <nlohmann/json.hpp>

#include "analysis/full_report.h"
#include "console/json_text.h"
#include "console/prediction_text.h"
#include "console/time_limit.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "prediction/calculate.h"
#include "program/program.h"

namespace
{
    using Json = nlohmann::ordered_json;

    /// The main form's entries, as it shows them.
    ReportEntries shownEntries(const RunnerEntries& entries, const PredictionRun& run)
    {
        const int miles = run.input.weeklyMiles;
        ReportEntries shown;
        shown.name = run.state.runner.runnerName;
        shown.age = entries.age.value_or("");
        shown.miles = plainText(miles);
        shown.kilometers = plainText(roundHalfEven(miles * displayKilometresPerMile));
        shown.comparisonLevel = plainText(run.input.comparisonLevel / 10.0);
        shown.input = run.input;
        return shown;
    }

    /// With English output the window calculates the metric table anew before its analysis, and then the English one.
    /// The same runs are taken here, as each rates by the age-curve index that the one before has left; what they say
    /// has been said.
    void prepareAnalysis(ModelState& state, CalculationInput input, CalculationResults results)
    {
        if (input.output != OutputMode::english)
            return;
        Messages alreadySaid;
        for (const OutputMode output : {OutputMode::metric, OutputMode::english})
        {
            input.output = output;
            recalculate(state, input, results, alreadySaid);
        }
    }

    Specialty print(ModelState& state, const RunnerEntries& entries, ReportKind kind, const PredictionRun& run,
                    TextPage& page)
    {
        if (kind == ReportKind::full)
            return printFullReport(state, shownEntries(entries, run), page);
        prepareAnalysis(state, run.input, run.results);
        const Specialty specialty = trainingAnalysis(state);
        state.activity = "printing the training analysis";
        printAnalysis(state, specialty, ReportMode::screen, page);
        return specialty;
    }

    Json trainingJson(const Training& t, const Specialty& specialty)
    {
        return {{"aerobicTrainSpeed", t.aerobicTrainSpeed},
                {"aerobicSpeedLow", t.aerobicSpeedLow},
                {"aerobicSpeedHigh", t.aerobicSpeedHigh},
                {"aerobicHr", t.aerobicHr},
                {"aerobicHrLow", t.aerobicHrLow},
                {"aerobicHrHigh", t.aerobicHrHigh},
                {"thresholdSpeed", t.thresholdSpeed},
                {"thresholdSpeedLow", t.thresholdSpeedLow},
                {"thresholdSpeedHigh", t.thresholdSpeedHigh},
                {"thresholdHr", t.thresholdHr},
                {"thresholdHrLow", t.thresholdHrLow},
                {"thresholdHrHigh", t.thresholdHrHigh},
                {"vo2max", t.vo2max},
                {"vo2maxSpeed", t.vo2maxSpeed},
                {"intervalSpeed", t.intervalSpeed},
                {"repFastTime", t.repFastTime},
                {"repSlowTime", t.repSlowTime},
                {"peakDistance", specialty.peak},
                {"band", specialty.band},
                {"typicalMiles", specialty.typicalMiles}};
    }
}

RunnerReport reportOn(const RunnerEntries& entries, ReportKind kind, double limitSeconds)
{
    RunnerEntries oneTable = entries;
    oneTable.allDistances.reset();
    oneTable.distances.clear();
    RunnerReport report;
    report.prediction = predictRunner(oneTable, limitSeconds);
    report.fault = report.prediction.fault;
    if (isRefused(report.prediction) || !report.fault.empty())
        return report;
    const PredictionRun& run = report.prediction.runs.front();
    const TimeLimit limit(limitSeconds);
    report.state = run.state;
    report.state.goOn = [limit] { return !limit.reached(); };
    TextPage page;
    try
    {
        report.specialty = print(report.state, entries, kind, run, page);
    }
    catch (const ArithmeticFault& fault)
    {
        report.fault = faultText(fault, report.state.activity);
    }
    report.lines = page.lines;
    return report;
}

std::string jsonOf(const RunnerEntries& entries, const RunnerReport& report)
{
    const bool whole = report.fault.empty() && !report.lines.empty();
    Json json = Json::object();
    json["runner"] = runnerJson(entries, report.prediction.runs.front());
    json["messages"] = messagesJson(report.prediction.messages);
    json["fault"] = report.fault.empty() ? Json(nullptr) : Json(report.fault);
    json["training"] = whole ? trainingJson(report.state.training, report.specialty) : Json(nullptr);
    json["lines"] = report.lines;
    return jsonText(json) + '\n';
}
