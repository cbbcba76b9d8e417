#pragma once

#include <array>
#include <string>
#include <vector>

// The settings file as the tests know it: 173 lines, each one field.

inline constexpr std::size_t fieldsInAFile = 173;

/// The fields of a runner with an odd value in each, the first at index 0.
[[nodiscard]] inline std::vector<std::string> oddSettings()
{
    std::vector<std::string> lines{"#FALSE#", "#TRUE#", "37",      "\"44.5\"", "151",   "873",
                                   "1",       "#TRUE#", "#FALSE#", "#FALSE#",  "#TRUE#"};
    for (int row = 0; row < 5; ++row)
    {
        const std::string r = std::to_string(row);
        lines.push_back(row % 2 == 0 ? "1" : "0");
        for (const char* letter : {"h", "m", "s", "n"})   // "10h" counts as 10
            lines.push_back("\"" + std::to_string(row + 10) + letter + "\"");
        for (int option = 1; option <= 6; ++option)
            lines.emplace_back(option == row + 1 ? "#TRUE#" : "#FALSE#");
    }
    lines.insert(lines.end(), {"187.5", "51", "66"});                 // 67 to 69
    lines.insert(lines.end(), {"2", "", "3", "-120", "0.5", "95"});   // 70 to 75
    for (int row = 0; row < 5; ++row)
        for (const char* text : {"dist", "num", "wrp"})
            lines.push_back("\"" + (text + std::to_string(row)) + "\"");
    lines.insert(lines.end(), {"3", "1"});   // 91, 92
    for (int row = 0; row < 27; ++row)
        for (const char* text : {"splitdis", "splitmin", "splitsec"})
            lines.push_back("\"" + (text + std::to_string(row)) + "\"");
    return lines;
}

[[nodiscard]] inline std::string joined(const std::vector<std::string>& lines, const std::string& lineEnd = "\r\n")
{
    std::string text;
    for (const std::string& line : lines)
        text += line + lineEnd;
    return text;
}

/// The lines of a file whose lines end in CR LF, one and all.
[[nodiscard]] inline std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::size_t from = 0;
    for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", from))
    {
        lines.push_back(text.substr(from, end - from));
        from = end + 2;
    }
    if (from != text.size())
        lines.push_back("(no line end) " + text.substr(from));
    return lines;
}
