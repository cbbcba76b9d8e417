#pragma once

#include <string>
#include <vector>

#include "analysis/training_analysis.h"
#include "console/runner_entries.h"
#include "console/runner_prediction.h"

/// What is told of a runner: the full report of the main window, or the text of its analysis window.
enum class ReportKind { full, analysis };

/// One report.
struct RunnerReport
{
    Prediction prediction;   // what it rests on
    ModelState state;        // as the report leaves it
    Specialty specialty;
    std::vector<std::string> lines;   // up to the fault if there is one
    std::string fault;                // in plain words, of the prediction or of the report
};

/// Predicts a runner's times and reports on them, as the windows do after a Re-Calculate. Which table the entries ask
/// for makes no difference to the lines unless they ask for age comparison, where each calculation rates by the
/// age-curve index that the one before has left. This is where the command's faults are caught.
///   limitSeconds  after which a search without an end is stopped, as a fault
[[nodiscard]] RunnerReport reportOn(const RunnerEntries& entries, ReportKind kind, double limitSeconds);

/// One JSON object on a line: the runner as a runner file has it, messages, fault, the training results and the lines.
[[nodiscard]] std::string jsonOf(const RunnerEntries& entries, const RunnerReport& report);
