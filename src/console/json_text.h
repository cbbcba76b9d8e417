#pragma once

#include <string>

#include <nlohmann/json.hpp>

/// JSON on one line. Numbers have the shortest form that reads back to the same bits; bytes that are not UTF-8 are
/// replaced.
[[nodiscard]] std::string jsonText(const nlohmann::ordered_json& json);
