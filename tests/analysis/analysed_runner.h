#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "model/text.h"
#include "program/state_names.h"

/// Sets a value of the state by its name.
inline void letState(ModelState& state, const std::string& name, const nlohmann::json& value)
{
    const StateName* entry = findStateName(name);
    const std::string text = value.is_string() ? value.get<std::string>() : exactText(value.get<double>());
    if (!entry || !entry->let || !entry->let(state, text))
        throw std::runtime_error("no state " + name);
}

/// A number of the state by its name.
inline double numberOf(const ModelState& state, const std::string& name)
{
    const StateName* entry = findStateName(name);
    if (!entry)
        throw std::runtime_error("no state " + name);
    const StateValue value = entry->get(state);
    if (const int* whole = std::get_if<int>(&value))
        return *whole;
    return std::get<double>(value);
}

/// The runners of tests/analysis/data: the state after a calculation, and what a second computation has found.
inline const std::vector<nlohmann::json>& analysedRunners()
{
    static const std::vector<nlohmann::json> runners = [] {
        std::ifstream file(std::string(VANTELOS_SOURCE_DIR) + "/tests/analysis/data/runners.json");
        return nlohmann::json::parse(file).get<std::vector<nlohmann::json>>();
    }();
    return runners;
}

inline ModelState stateOf(const nlohmann::json& runner)
{
    ModelState state;
    for (const auto& [name, value] : runner.at("given").items())
        letState(state, name, value);
    return state;
}

/// The state of the runner of that name.
inline ModelState stateOfRunner(const std::string& name)
{
    for (const nlohmann::json& runner : analysedRunners())
        if (runner.at("name") == name)
            return stateOf(runner);
    throw std::runtime_error("no runner " + name);
}
