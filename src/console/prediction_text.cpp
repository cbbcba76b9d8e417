#include "console/prediction_text.h"

#include <array>
#include <string_view>

#include <nlohmann/json.hpp>

#include "console/json_text.h"
#include "console/words.h"
#include "model/text.h"

namespace
{
    using Json = nlohmann::ordered_json;

    constexpr std::string_view csvHeader =
        "label,distance_m,time_s,time,per_mile_s,per_mile,per_km_s,per_km,per_400_s,per_400,record_s,record,"
        "percent_speed,level,percent_level,top_percent\n";

    std::string csvRow(const PredictedRow& row)
    {
        std::string line = csvField(std::string(trimmed(row.label))) + ',' + exactText(row.distance);
        for (const double seconds : {row.time, row.perMile, row.perKilometre, row.per400, row.record})
            line += ',' + exactText(seconds) + ',' + timeText(seconds);
        for (const double number : {row.percentSpeed, row.level, row.percentLevel, row.topPercent})
            line += ',' + exactText(number);
        return line + '\n';
    }

    Json curveJson(const Curve& curve)
    {
        return {{"aerobicPower", curve.aerobicPower}, {"anaerobicEnergy", curve.anaerobicEnergy},
                {"refDistance", curve.refDistance},   {"fatigueCoef", curve.fatigueCoef},
                {"startDelay", curve.startDelay},     {"anaerobicExp", curve.anaerobicExp},
                {"humpCentre", curve.humpCentre},     {"humpDepth", curve.humpDepth},
                {"humpWidth", curve.humpWidth},       {"piValue", curve.piValue}};
    }

    Json rowsJson(const std::vector<PredictedRow>& rows)
    {
        Json list = Json::array();
        for (const PredictedRow& row : rows)
            list.push_back({{"label", trimmed(row.label)},
                            {"distance", row.distance},
                            {"time", row.time},
                            {"perMile", row.perMile},
                            {"perKilometre", row.perKilometre},
                            {"per400", row.per400},
                            {"record", row.record},
                            {"percentSpeed", row.percentSpeed},
                            {"level", row.level},
                            {"percentLevel", row.percentLevel},
                            {"topPercent", row.topPercent}});
        return list;
    }
}

std::string timeText(double seconds)
{
    return std::string(trimmed(formatTime(seconds)));
}

std::string csvField(const std::string& text)
{
    const bool plain = text.find_first_of(",\"\r\n") == std::string::npos && trimmed(text).size() == text.size();
    if (plain)
        return text;
    std::string field = "\"";
    for (const char c : text)
        field += c == '"' ? "\"\"" : std::string(1, c);
    return field + '"';
}

std::string csvTable(const Prediction& prediction)
{
    std::string table(csvHeader);
    for (const PredictedRow& row : rowsOf(prediction))
        table += csvRow(row);
    return table;
}

nlohmann::ordered_json runnerJson(const RunnerEntries& entries, const PredictionRun& run)
{
    Json runner = Json::object();
    runner["races"] = Json::array();
    for (const RaceEntry& race : entries.races)
        runner["races"].push_back(race.text);
    runner["age"] = printable(run.input.age);
    runner["sex"] = run.input.sex == SexChoice::female ? "f" : "m";
    runner["miles"] = run.input.weeklyMiles;
    runner["name"] = printable(run.state.runner.runnerName);
    runner["max-hr"] = run.state.runner.maxHr;
    runner["rest-hr"] = run.state.runner.restHr;
    runner["kg-weight"] = run.state.runner.weightKg;
    runner["cm-height"] = run.state.runner.heightCm;
    runner["best-two"] = entries.bestTwo.value_or(false);
    runner["english"] = entries.english.value_or(false);
    runner["all-distances"] = entries.allDistances.value_or(false);
    runner["level"] = run.input.comparisonLevel / 10.0;
    runner["age-compare"] = entries.ageCompare.value_or(false);
    runner["distances"] = Json::array();
    for (const DistanceEntry& added : entries.distances)
        runner["distances"].push_back(added.text);
    return runner;
}

nlohmann::ordered_json messagesJson(const Messages& messages)
{
    Json list = Json::array();
    for (const Message& message : messages)
        list.push_back({{"text", message.text}, {"title", message.title}});
    return list;
}

std::string jsonOf(const RunnerEntries& entries, const Prediction& prediction)
{
    const PredictionRun& run = prediction.runs.front();
    const std::vector<PredictedRow> rows = rowsOf(prediction);
    Json json = Json::object();
    json["runner"] = runnerJson(entries, run);
    json["messages"] = messagesJson(prediction.messages);
    json["fault"] = prediction.fault.empty() ? Json(nullptr) : Json(prediction.fault);
    json["curve"] = rows.empty() ? Json(nullptr) : curveJson(run.state.curve);
    json["rows"] = rowsJson(rows);
    return jsonText(json) + '\n';
}
