#include "console/runner_prediction.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "console/time_limit.h"
#include "console/words.h"
#include "model/arithmetic.h"
#include "prediction/calculate.h"
#include "prediction/predicted_table.h"
#include "program/program.h"

namespace
{
    std::vector<OutputMode> tablesOf(const RunnerEntries& entries)
    {
        if (entries.allDistances.value_or(false))
            return {OutputMode::metric, OutputMode::english};
        return {inputOf(entries).output};
    }

    std::vector<TableDistance> distancesOf(const std::vector<OutputMode>& tables)
    {
        std::vector<TableDistance> distances;
        for (const OutputMode table : tables)
        {
            const auto& rows = table == OutputMode::english ? englishDistances : metricDistances;
            distances.insert(distances.end(), rows.begin(), rows.end());
        }
        return distances;
    }

    /// The tables' distances and behind them the added ones, without those whose row would read like another's.
    std::vector<TableDistance> allDistancesOf(const RunnerEntries& entries)
    {
        std::vector<TableDistance> distances = distancesOf(tablesOf(entries));
        for (const DistanceEntry& added : entries.distances)
        {
            const std::string& label = added.distance.label;
            if (std::ranges::find(distances, label, &TableDistance::label) == distances.end())
                distances.push_back({label.c_str(), added.distance.distance});
        }
        return distances;
    }

    void calculateTables(const RunnerEntries& entries, const GoOn& goOn, Prediction& prediction)
    {
        for (const OutputMode table : tablesOf(entries))
        {
            PredictionRun& run = prediction.runs.emplace_back();
            run.state.goOn = goOn;
            describeRunner(run.state, entries);
            run.input = inputOf(entries);
            run.input.output = table;
            recalculate(run.state, run.input, run.results, prediction.messages);
            if (run.results.rows.empty())
                return;
        }
    }

    void addDistances(const RunnerEntries& entries, Prediction& prediction)
    {
        const std::size_t tableRows = distancesOf(tablesOf(entries)).size();
        const std::vector<TableDistance> distances = allDistancesOf(entries);
        if (distances.size() == tableRows || isRefused(prediction))
            return;
        const PredictionRun& table = prediction.runs.front();
        PredictionRun added{table.state, table.input, {}};
        added.state.results.levelIndex = table.results.tableLevelIndex;
        PredictionRun& run = prediction.runs.emplace_back(std::move(added));
        for (std::size_t i = tableRows; i < distances.size(); ++i)
            run.results.rows.push_back(predictRow(run.state, distances[i], run.input.comparisonLevel));
    }

    Messages distinct(const Messages& messages)
    {
        Messages once;
        for (const Message& message : messages)
            if (std::ranges::find(once, message) == once.end())
                once.push_back(message);
        return once;
    }
}

Prediction predictRunner(const RunnerEntries& entries, double limitSeconds)
{
    Prediction prediction;
    const TimeLimit limit(limitSeconds);
    try
    {
        calculateTables(
            entries, [limit] { return !limit.reached(); }, prediction);
        addDistances(entries, prediction);
    }
    catch (const ArithmeticFault& fault)
    {
        prediction.fault = faultText(fault, prediction.runs.back().state.activity);
    }
    prediction.messages = distinct(prediction.messages);
    return prediction;
}

bool isRefused(const Prediction& prediction)
{
    return prediction.fault.empty() && prediction.runs.front().results.rows.empty();
}

std::vector<PredictedRow> rowsOf(const Prediction& prediction)
{
    std::vector<PredictedRow> rows;
    for (const PredictionRun& run : prediction.runs)
        rows.insert(rows.end(), run.results.rows.begin(), run.results.rows.end());
    std::ranges::stable_sort(rows, {}, &PredictedRow::distance);
    return rows;
}

std::vector<std::string> rowLabels(const RunnerEntries& entries)
{
    std::vector<TableDistance> distances = allDistancesOf(entries);
    std::ranges::stable_sort(distances, {}, &TableDistance::distance);
    std::vector<std::string> labels;
    labels.reserve(distances.size());
    for (const TableDistance& at : distances)
        labels.emplace_back(trimmed(at.label));
    return labels;
}

std::vector<std::string> linesOf(const Prediction& prediction)
{
    const std::vector<std::string>& first = prediction.runs.front().results.picture.lines;
    if (prediction.runs.size() == 1 || first.empty())
        return first;
    std::vector<std::string> lines{predictedHeading, ""};
    for (const PredictedRow& row : rowsOf(prediction))
        lines.push_back(predictedLine(row));
    return lines;
}

std::string messageLine(const Message& message)
{
    return message.title == programName ? message.text : message.title + ": " + message.text;
}
