#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "model/model_state.h"

// The pure functions of the model by their names, for scripts and for the curious.

/// One function: its name, what it takes, and its call.
struct PureFunction
{
    std::string_view name;
    std::string_view arguments;   // "distance coefficient mode"; [brackets] for what may be left out
    nlohmann::ordered_json (*call)(ModelState& state, const std::vector<std::string>& arguments);
};

[[nodiscard]] const std::vector<PureFunction>& pureFunctions();

/// A call that can't be made: an unknown name, a wrong count or kind of arguments. what() says which.
class CallMistake : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Calls a function by its name with words as arguments. The state is not changed.
/// Faults: as the function. Throws CallMistake.
[[nodiscard]] nlohmann::ordered_json callFunction(const ModelState& state, const std::string& name,
                                                  const std::vector<std::string>& arguments);
