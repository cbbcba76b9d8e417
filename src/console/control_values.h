#pragma once

#include <optional>
#include <string_view>

#include <nlohmann/json.hpp>

#include "forms/controls.h"
#include "program/state_names.h"

/// "#rrggbb".
[[nodiscard]] std::string colourText(Colour colour);

/// What a control holds: texts as strings, options and menu ticks as booleans, check boxes and scroll bars as
/// numbers, surfaces and lists as arrays of lines, pictures as arrays of primitives, labels and buttons their caption.
[[nodiscard]] nlohmann::ordered_json valueOf(const ControlRef& control);

/// enabled, visible, caption, colour, min, max or selected; nothing where the control has no such property.
[[nodiscard]] std::optional<nlohmann::ordered_json> propertyOf(const ControlRef& control, std::string_view property);

/// Name, kind, value and properties of a control.
[[nodiscard]] nlohmann::ordered_json describe(const ControlRef& control);

[[nodiscard]] nlohmann::ordered_json stateJson(const StateValue& value);
