#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// A personal data file (.vtd): who the runner is apart from races, a value a line. In this order: name, age, weight (lb),
// height (in), male, female, maximum heart rate, resting heart rate, weekly training volume (miles).

inline constexpr int personalFields = 9;
inline constexpr std::size_t personalFileLimit = 1 << 16;   // bytes; what lies behind is not read

/// The main form's entries that such a file holds.
struct PersonalData
{
    std::string txtname = {}, txtage = {};
    int wtscrl = 0, htscrl = 0;
    bool optmale = false, optfemale = false;
    std::string actmhrtx = {}, resthrtx = {};
    int HScroll1 = 0;
};

/// The nine lines: texts as they are, a line end within one being a blank; scroll values with one blank before and one
/// behind; True or False. Lines end in CR LF.
[[nodiscard]] std::string bytesOf(const PersonalData& data);

/// The values of a file, nine at the most: blanks before a value are skipped, and a comma or a line's end ends it. A file
/// that is cut short has fewer. A byte order mark is skipped. A value that is no UTF-8 is taken as code page 1252, but where
/// the bytes end within a character, that is left out.
[[nodiscard]] std::vector<std::string> personalFieldsOf(std::string_view bytes);

/// What a value means for a scroll bar from `least` to `most`: its leading number rounded, held within these.
/// Faults: a number beyond the range of a double.
[[nodiscard]] int scrollValueOf(std::string_view field, int least, int most);

/// What a value means for an option: "True" in any letters, or a leading number other than 0.
/// Faults: as `scrollValueOf`.
[[nodiscard]] bool truthOf(std::string_view field);
