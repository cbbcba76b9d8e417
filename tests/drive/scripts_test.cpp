#include <clocale>
#include <filesystem>
#include <locale>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "forms/on_leaving.h"
#include "running.h"
#include "script_files.h"
#include "support/case_name.h"
#include "support/scratch_folder.h"

namespace
{
    namespace fs = std::filesystem;

    /// Numbers as much of Europe writes them: 1.234,5.
    struct CommaNumbers : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };

    ScriptRun runWithCommas(const std::string& script)
    {
        const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaNumbers));
        const OnLeaving goBack([&] {
            std::setlocale(LC_ALL, "C");
            std::locale::global(before);
        });
        for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE", "fr_FR"})   // where the system has one
            if (std::setlocale(LC_ALL, name) != nullptr)
                break;
        return runScript(script);
    }

    /// The first line in which two texts differ.
    std::string firstDifference(const std::string& got, const std::string& expected)
    {
        std::istringstream gotLines(got);
        std::istringstream expectedLines(expected);
        for (int number = 1;; ++number)
        {
            std::string gotLine;
            std::string expectedLine;
            const bool gotOne = static_cast<bool>(std::getline(gotLines, gotLine));
            const bool expectedOne = static_cast<bool>(std::getline(expectedLines, expectedLine));
            if (gotLine != expectedLine || gotOne != expectedOne)
                return "line " + std::to_string(number) + "\n     got " + (gotOne ? gotLine : "no more lines") +
                       "\nexpected " + (expectedOne ? expectedLine : "no more lines");
            if (!gotOne)
                return "the line ends";
        }
    }

    class Script : public testing::TestWithParam<fs::path>
    {};

    TEST_P(Script, GivesItsExpectedLines)
    {
        const std::string script = readBytes(GetParam());
        const fs::path expectedFile = fs::path(GetParam()).replace_extension(".expected");
        const fs::path receivedFile = expectedFile.string() + ".received";
        const ScriptRun run = runScript(script);

        const std::string expected = fs::exists(expectedFile) ? readBytes(expectedFile) : "";
        if (run.output == expected && fs::exists(expectedFile))
            fs::remove(receivedFile);
        else
            writeBytes(receivedFile, run.output);
        ASSERT_TRUE(fs::exists(expectedFile)) << "read " << receivedFile << " line by line, then tests/accept it";
        EXPECT_EQ(run.output, expected) << firstDifference(run.output, expected);

        const std::string lastLine = expected.substr(expected.rfind('\n', expected.size() - 2) + 1);
        EXPECT_EQ(run.status, lastLine.starts_with("{\"error\":") ? 2 : 0);

        const ScriptRun withCommas = runWithCommas(script);
        EXPECT_EQ(withCommas.output, run.output) << "with decimal commas";
        EXPECT_EQ(withCommas.status, run.status);
    }

    INSTANTIATE_TEST_SUITE_P(InFiles, Script, testing::ValuesIn(scriptFiles()),
                             [](const auto& row) { return asTestName(row.param.stem().string()); });

    TEST(Scripts, HaveNoExpectationLeftOver)
    {
        for (const auto& entry : fs::directory_iterator(VANTELOS_SOURCE_DIR "/tests/scripts"))
        {
            const fs::path file = entry.path();
            if (file.extension() == ".expected")
            {
                EXPECT_TRUE(fs::exists(fs::path(file).replace_extension(".drive"))) << file;
            }
            else
            {
                EXPECT_TRUE(file.extension() == ".drive" || file.extension() == ".received") << file;
            }
        }
    }
}
