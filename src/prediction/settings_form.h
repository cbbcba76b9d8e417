#pragma once

#include <optional>
#include <string>

#include "prediction/settings_file.h"
#include "prediction/vantstart_form.h"

// The settings of the main form, the workout planner and the split form, read at the start and written at the end.

/// The stored state that the settings carry for forms that may not be open.
struct StoredState
{
    StoredPlanner planner;
    StoredSplits splits;
};

/// Sets the form and the model to the defaults of a start.
void setLoadDefaults(VantstartForm& form);

/// Assigns the fields of a settings file to the controls in their order, each at once. Errors are skips: what a
/// control refuses leaves it as it was. Without a file texts go blank, options and boxes off, bars stay.
///   bytes  the file, or nothing if it could not be opened
void readSettings(VantstartForm& form, StoredState& stored, std::optional<std::string> bytes);

/// The program's start: defaults, the file, the heart rates' last resorts (180 and 60), Re-Calculate.
/// Faults: as Re-Calculate.
void load(VantstartForm& form, StoredState& stored, std::optional<std::string> bytes);

/// The file as it is written at the end: all 173 fields.
[[nodiscard]] std::string settingsOf(const VantstartForm& form, const StoredState& stored);
