#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "console/race_text.h"
#include "model/model_state.h"
#include "prediction/calculation.h"

// A runner as the command line, a runner file or a line of a roster describes one.

struct RaceEntry
{
    std::string text;   // as typed, with single blanks
    RaceRow row;
};

struct DistanceEntry
{
    std::string text;
    NamedDistance distance;
};

/// What one source says of a runner; what it leaves out is absent or empty.
struct RunnerEntries
{
    std::vector<RaceEntry> races;     // at most five, each in its row of the form; a row may be unused
    std::optional<std::string> age;   // any text, as in the form
    std::optional<char> sex;          // 'm' or 'f'
    std::optional<int> miles;         // 0 to 150
    std::optional<std::string> name;
    std::optional<double> maxHr;   // beats a minute, > 0
    std::optional<double> restHr;
    std::optional<double> kgWeight;   // > 0
    std::optional<double> cmHeight;   // > 0
    std::optional<bool> bestTwo;
    std::optional<bool> english;
    std::optional<bool> allDistances;
    std::optional<int> level;   // tenths of a percent, 0 to 1100
    std::optional<bool> ageCompare;
    std::vector<DistanceEntry> distances;
};

enum class EntryKind { text, number, numberOrText, yesNo };

/// One thing that can be said of a runner.
struct EntryName
{
    std::string_view key;   // its option is "--" and the key
    EntryKind kind;         // in a runner file
    bool repeated;          // can be said several times; a runner file then has a list, under the key and an "s"
    const char* value;      // how its value is called in the help
    const char* help;
    std::optional<std::string> (*set)(RunnerEntries& entries, std::string_view text);
};

inline constexpr std::size_t entryNameCount = 15;
extern const std::array<EntryName, entryNameCount> entryNames;

/// Adds what a text says under a key of `entryNames`.
/// Returns what is wrong with the text, or nothing; the entries then stand as before.
[[nodiscard]] std::optional<std::string> setEntry(RunnerEntries& entries, std::string_view key, std::string_view text);

/// What is wrong with the entries of one source taken together, or nothing.
[[nodiscard]] std::optional<std::string> contradictionIn(const RunnerEntries& entries);

/// The entries of two sources: whatever `upper` says replaces what `lower` says of it, lists as a whole. A table that
/// one asks for replaces the one that the other asks for.
[[nodiscard]] RunnerEntries overlaid(const RunnerEntries& lower, const RunnerEntries& upper);

/// The entries of the main form; what is absent has the form's own default, except for the fit, which is all data.
[[nodiscard]] CalculationInput inputOf(const RunnerEntries& entries);

/// What stands for heart rates that nobody has entered, as at the start of the windows.
inline constexpr double standardMaxHr = 180;   // beats a minute
inline constexpr double standardRestHr = 60;

/// Sets what is not read from the form by a calculation: name, weight, height, drag, heart rates, age comparison, and
/// the miles that the age stands for.
/// Faults: weight and height that are too far apart, an age that is too large.
void describeRunner(ModelState& state, const RunnerEntries& entries);
