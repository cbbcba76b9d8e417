#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "support/runners.h"

// Whole cases in files: entries of one or several runs after one another on one state, with the messages, the fault,
// the numbers and the table that each run leaves. The numbers were worked out a second time, apart from the program.

struct RunCase
{
    std::string name;
    nlohmann::json steps;

    friend std::ostream& operator<<(std::ostream& out, const RunCase& row) { return out << row.name; }
};

/// The cases of all files of tests/prediction/data.
[[nodiscard]] std::vector<RunCase> readCases();

/// The entries of one step.
[[nodiscard]] CalculationInput entriesOf(const nlohmann::json& step);

/// Runs one step on a prediction, as its word "does" says: recalculate, calculate, or table for one column of the
/// performance table.
void runStep(Prediction& prediction, const nlohmann::json& step);
