#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "console/runner_entries.h"
#include "console/runner_prediction.h"

// A prediction as other programs read it.

/// A time as a table shows it, without the blanks around it: "43.2", "2:05:46".
[[nodiscard]] std::string timeText(double seconds);

/// A field of a CSV file, in quotation marks where it needs them.
[[nodiscard]] std::string csvField(const std::string& text);

/// A header line and a line a row: labels, full numbers (m, s) and each time as it is shown.
[[nodiscard]] std::string csvTable(const Prediction& prediction);

/// The entries that a prediction went by, defaults included, under the keys of a runner file.
[[nodiscard]] nlohmann::ordered_json runnerJson(const RunnerEntries& entries, const PredictionRun& run);

[[nodiscard]] nlohmann::ordered_json messagesJson(const Messages& messages);

/// One JSON object on a line: the runner as a runner file has it, messages, fault, curve and rows.
[[nodiscard]] std::string jsonOf(const RunnerEntries& entries, const Prediction& prediction);
