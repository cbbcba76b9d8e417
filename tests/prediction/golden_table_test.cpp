// Whole tables, line by line. Each file of tests/prediction/golden holds a runner's entries, an empty line, and the
// table as it is printed. Of a text that differs the received one is left beside it: see tests/accept.

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "prediction/calculate.h"
#include "support/comma_locale.h"
#include "support/runners.h"

namespace
{
    const std::filesystem::path folder = std::filesystem::path(VANTELOS_SOURCE_DIR) / "tests" / "prediction" / "golden";

    std::vector<std::string> goldenNames()
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            if (entry.path().extension() == ".txt")
                names.push_back(entry.path().stem().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    std::string contentOf(const std::filesystem::path& path)
    {
        std::ifstream file(path);
        std::ostringstream content;
        content << file.rdbuf();
        return content.str();
    }

    struct Script
    {
        std::string text;   // with the empty line
        CalculationInput input = entries({});
        int agecomp = 0;
    };

    void readEntry(Script& script, std::size_t& races, const std::string& word, const std::string& value)
    {
        CalculationInput& input = script.input;
        if (word == "race")
            input.rows.at(races++) = raceRow(value);
        else if (word == "age")
            input.age = value;
        else if (word == "miles")
            input.weeklyMiles = std::stoi(value);
        else if (word == "sex")
            input.sex = value == "f" ? SexChoice::female : SexChoice::male;
        else if (word == "fit")
            input.fit = value == "best" ? FitMode::bestTwo : FitMode::allData;
        else if (word == "output")
            input.output = value == "english" ? OutputMode::english : OutputMode::metric;
        else if (word == "level")
            input.comparisonLevel = std::stoi(value);
        else if (word == "agecomp")
            script.agecomp = std::stoi(value);
        else
            throw std::runtime_error("no entry: " + word);
    }

    Script readScript(const std::string& golden)
    {
        Script script;
        std::size_t races = 0;
        std::istringstream lines(golden);
        for (std::string line; std::getline(lines, line);)
        {
            script.text += line + '\n';
            if (line.empty())
                break;
            const std::size_t blank = line.find(' ');
            readEntry(script, races, line.substr(0, blank), line.substr(blank + 1));
        }
        return script;
    }

    /// The script, and below it what it prints.
    std::string received(const Script& script)
    {
        Prediction prediction;
        prediction.state.flags.agecomp = script.agecomp;
        prediction.start(recalculate, script.input);
        std::string text = script.text;
        for (const std::string& line : prediction.results.picture.lines)
            text += line + '\n';
        return text + prediction.fault;
    }

    class GoldenTable : public testing::TestWithParam<std::string>
    {};

    TEST_P(GoldenTable, IsPrinted)
    {
        const std::filesystem::path path = folder / (GetParam() + ".txt");
        const std::filesystem::path receivedPath = path.string() + ".received";
        const std::string expected = contentOf(path);
        const std::string got = received(readScript(expected));
        if (got == expected)
            std::filesystem::remove(receivedPath);
        else
            std::ofstream(receivedPath) << got;
        EXPECT_EQ(got, expected);
    }

    TEST_P(GoldenTable, IsPrintedTheSameInACommaLocale)
    {
        const std::string expected = contentOf(folder / (GetParam() + ".txt"));
        const Script script = readScript(expected);
        const CommaLocale commas;
        EXPECT_EQ(received(script), expected);
    }

    INSTANTIATE_TEST_SUITE_P(InFiles, GoldenTable, testing::ValuesIn(goldenNames()),
                             [](const auto& name) { return name.param; });
}
