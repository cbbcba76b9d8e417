#include <string>

#include <gtest/gtest.h>

#include "forms/page_text.h"
#include "support/golden.h"
#include "tables/performance_table.h"

namespace
{
    TableKind kindOf(const std::string& word)
    {
        if (word == "runner")
            return TableKind::runnerByAge;
        return word == "ages" ? TableKind::agesAtLevel : TableKind::levels;
    }

    class GoldenTable : public testing::TestWithParam<std::string>
    {};

    // Each text was set by a program of its own in another language, and read by a person.
    TEST_P(GoldenTable, IsPrintedToTheCharacter)
    {
        const GoldenFile golden("tables/golden", GetParam());
        const TableKind kind = kindOf(golden.text("kind"));
        ModelState state;
        CalculationInput input;
        state.runner.sex = golden.text("sex").front();
        input.sex = state.runner.sex == 'f' ? SexChoice::female : SexChoice::male;
        input.age = golden.text("age");
        state.flags.agecomp = state.flags.ageCompareOn = golden.isOn("agecompare") ? 1 : 0;
        state.flags.oplev = kind == TableKind::agesAtLevel ? 1 : 0;
        state.flags.ageCompareForced = kind == TableKind::runnerByAge ? 1 : 0;
        if (kind == TableKind::runnerByAge)
        {
            input.weeklyMiles = std::stoi(golden.text("miles"));
            state.results.time800 = std::stod(golden.text("time800"));
            state.results.time5000 = std::stod(golden.text("time5000"));
            state.results.levelIndex = std::stod(golden.text("levelIndex"));
        }
        PerformanceTable table;
        Messages said;
        printPerformanceTable(state, {kind, golden.text("minimum"), golden.text("interval"), golden.text("lev")}, input,
                              table, said);
        golden.expect(table.title + "\n\n" + textOf(table.page));
        EXPECT_TRUE(said.empty());
    }

    INSTANTIATE_TEST_SUITE_P(InFiles, GoldenTable, testing::ValuesIn(goldenNames("tables/golden")),
                             [](const auto& row) { return row.param; });
}
