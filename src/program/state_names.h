#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "model/model_state.h"

// The values of the model state by their names, for scripts and tests.

using StateValue = std::variant<double, int, std::string, std::vector<double>, std::vector<std::vector<double>>,
                                std::vector<RaceTableRow>>;

struct StateName
{
    std::string_view name;
    std::function<StateValue(const ModelState&)> get;
    /// Takes the value from a text. Returns whether the text fits. Empty for arrays, which are only read.
    std::function<bool(ModelState&, std::string_view)> let;
};

/// All names, in the order of the records. Race arrays show the races in use: rowTime and rowDist the rowsUsed
/// first, the others the raceCount first.
[[nodiscard]] const std::vector<StateName>& stateNames();

/// The entry of that name, or nothing.
[[nodiscard]] const StateName* findStateName(std::string_view name);
