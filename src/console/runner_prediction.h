#pragma once

#include <string>
#include <vector>

#include "console/runner_entries.h"
#include "model/messages.h"
#include "model/model_state.h"
#include "prediction/calculation.h"

/// One table of a prediction, as a Re-Calculate on a fresh state leaves it.
struct PredictionRun
{
    ModelState state;
    CalculationInput input;
    CalculationResults results;
};

/// All that is predicted for one runner.
struct Prediction
{
    std::vector<PredictionRun> runs;   // the tables asked for, then one with the added distances
    Messages messages;                 // each distinct one once, in order
    std::string fault;                 // in plain words; empty if nothing stopped the calculation
};

/// Predicts what a runner's entries ask for. This is where a command's faults are caught: what was done before one
/// stays. The rows of added distances are rated as those of the first table are.
///   limitSeconds  after which a search without an end is stopped, as a fault
[[nodiscard]] Prediction predictRunner(const RunnerEntries& entries, double limitSeconds);

/// Whether a check refused the entries; its message then tells why, and there are no rows.
[[nodiscard]] bool isRefused(const Prediction& prediction);

/// All rows by distance; at the same distance the metric table's come first, added ones last.
[[nodiscard]] std::vector<PredictedRow> rowsOf(const Prediction& prediction);

/// The trimmed labels of the rows that a prediction without a fault has, in the order of `rowsOf`.
[[nodiscard]] std::vector<std::string> rowLabels(const RunnerEntries& entries);

/// The table as it is printed: a single table as its picture holds it, else heading, blank line and all rows.
[[nodiscard]] std::vector<std::string> linesOf(const Prediction& prediction);

/// A message on one line: "Title: text", or the text alone where the title is the program's name.
[[nodiscard]] std::string messageLine(const Message& message);
