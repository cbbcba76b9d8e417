#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// The settings file: one field a line, in a fixed order; a text in double quotes, #TRUE# or #FALSE#, a plain number.

inline constexpr const char* settingsFileName = "vantini.txt";
inline constexpr std::size_t settingsFileLimit = 1 << 23;   // bytes; what lies behind is not read
inline constexpr int settingsFieldCount = 173;

/// What one field holds: nothing, a Boolean, a number or a text.
using FieldValue = std::variant<std::monostate, bool, double, std::string>;

/// Reads fields one after the other into one variable.
///
/// The variable keeps its last good value where a read fails: past the end of the file, without a file, and at a
/// number that no double holds.
class FieldReader
{
public:
    /// bytes: the file, LF or CR LF; nothing if it could not be opened.
    explicit FieldReader(std::optional<std::string> bytes) : file(std::move(bytes)) {}

    /// The variable after the next read.
    const FieldValue& next();

    /// Whether the file is at its end: not one more character. Without a file the question fails, which answers no.
    [[nodiscard]] bool atEnd() const { return file && position >= file->size(); }

private:
    std::optional<std::string> file;
    std::size_t position = 0;
    FieldValue variable;
};

/// What is written in a line: a text lies between its first and its last quotation mark.
/// Faults: a number beyond the range of a double.
[[nodiscard]] FieldValue fieldOfLine(std::string_view line);

/// The line of a field, without its end. Line ends within a text become blanks.
[[nodiscard]] std::string lineOfField(const FieldValue& field);

/// The whole file of some fields, lines ending in CR LF.
[[nodiscard]] std::string settingsText(const std::vector<FieldValue>& fields);

inline constexpr std::size_t plannerRows = 5;
inline constexpr std::size_t splitRows = 27;

/// The workout planner's entries as they were last stored; numbers that never were are absent.
struct StoredPlanner
{
    std::optional<double> workoutMode;   // 1 intervals, 2 continuous
    std::optional<double> repvoscrl, recovpace, pctmax, perfadj;
    struct Row
    {
        std::string dist, num, wrp;
    };
    std::array<Row, plannerRows> rows;
    bool acwr = false;   // kept between openings, and in no file
};

/// The split form's entries, likewise.
struct StoredSplits
{
    std::optional<double> distanceUnit;   // 1 miles, 2 kilometers, 3 meters
    std::optional<double> method;         // 1 Method 1, 2 Method 2, 3 mix
    struct Row
    {
        std::string splitdis, splitmin, splitsec;
    };
    std::array<Row, splitRows> rows;
};

/// Whether a form finds entries of its own to put back.
[[nodiscard]] bool isPresent(const StoredPlanner& planner);
[[nodiscard]] bool isPresent(const StoredSplits& splits);
