#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

// Golden files: lines of a name and a value, an empty line, and below it the text that these lead to. Of a text that
// differs the received one is left beside it: see tests/accept.

/// Names of the *.txt files of a folder below tests/, in their order.
[[nodiscard]] inline std::vector<std::string> goldenNames(const std::string& folder)
{
    const std::filesystem::path path = std::filesystem::path(VANTELOS_SOURCE_DIR) / "tests" / folder;
    std::map<std::string, bool> names;
    for (const auto& entry : std::filesystem::directory_iterator(path))
        if (entry.path().extension() == ".txt")
            names[entry.path().stem().string()] = true;
    std::vector<std::string> list;
    for (const auto& [name, ignored] : names)
        list.push_back(name);
    return list;
}

struct GoldenFile
{
    GoldenFile(const std::string& folder, const std::string& name)
        : path(std::filesystem::path(VANTELOS_SOURCE_DIR) / "tests" / folder / (name + ".txt"))
    {
        std::ifstream file(path);
        for (std::string line; std::getline(file, line) && !line.empty();)
        {
            head += line + '\n';
            const std::size_t blank = line.find(' ');
            entries[line.substr(0, blank)] = line.substr(blank + 1);
        }
        std::ostringstream rest;
        rest << file.rdbuf();
        expected = rest.str();
    }

    [[nodiscard]] const std::string& text(const std::string& name) const { return entries.at(name); }
    [[nodiscard]] bool isOn(const std::string& name) const { return entries.at(name) == "1"; }

    /// Fails where `got` is another text.
    void expect(const std::string& got) const
    {
        const std::string received = path.string() + ".received";
        if (got == expected)
            std::filesystem::remove(received);
        else
            std::ofstream(received) << head << '\n' << got;
        EXPECT_EQ(got, expected);
    }

    std::filesystem::path path;
    std::string head;
    std::map<std::string, std::string> entries;
    std::string expected;
};
