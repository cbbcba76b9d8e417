#pragma once

#include <cctype>
#include <string>

#include <gtest/gtest.h>

/// A text as the name of a test: letters and digits stay, whatever else stands between them becomes one underscore.
[[nodiscard]] inline std::string asTestName(const std::string& text)
{
    std::string name;
    for (const char c : text)
    {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0)
            name += c;
        else if (!name.empty() && name.back() != '_')
            name += '_';
    }
    return name;
}

/// For INSTANTIATE_TEST_SUITE_P: calls each row by its field `name`.
inline constexpr auto byName = [](const auto& row) { return asTestName(row.param.name); };
