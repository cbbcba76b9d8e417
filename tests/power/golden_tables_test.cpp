// Whole tables, line by line, worked out by a program of its own in another language and read by people.

#include <string>

#include <gtest/gtest.h>

#include "forms/page_text.h"
#include "power/power_table.h"
#include "power/slope_tables.h"
#include "program/state_names.h"
#include "support/comma_locale.h"
#include "support/golden.h"

namespace
{
    std::string received(const GoldenFile& golden)
    {
        ModelState state;
        for (const auto& [name, value] : golden.entries)
            if (const StateName* known = findStateName(name))
                known->let(state, value);
        TextPage page;
        const bool kilometers = golden.isOn("kilometers");
        const std::string& table = golden.text("table");
        if (table == "powen")
            printPowerTable(state, kilometers, page);
        else if (table == "tmill")
            printTreadmillTable(state, kilometers, golden.isOn("indoors"), page);
        else
            printHillTable(state, kilometers, page);
        EXPECT_EQ(state.incline.indoorMode, 0);
        return textOf(page);
    }

    class GoldenTable : public testing::TestWithParam<std::string>
    {};

    TEST_P(GoldenTable, IsPrinted)
    {
        const GoldenFile golden("power/golden", GetParam());
        golden.expect(received(golden));
    }

    TEST_P(GoldenTable, IsPrintedTheSameInACommaLocale)
    {
        const GoldenFile golden("power/golden", GetParam());
        const CommaLocale commas;
        EXPECT_EQ(received(golden), golden.expected);
    }

    INSTANTIATE_TEST_SUITE_P(InFiles, GoldenTable, testing::ValuesIn(goldenNames("power/golden")),
                             [](const auto& name) { return name.param; });
}
