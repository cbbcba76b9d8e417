// Whole analyses, line by line, worked out by a program of its own in another language and read by people.

#include <string>

#include <gtest/gtest.h>

#include "forms/page_text.h"
#include "model/text.h"
#include "program/state_names.h"
#include "special/special_analysis.h"
#include "support/comma_locale.h"
#include "support/faults.h"
#include "support/golden.h"

namespace
{
    SpecialUnit unitOf(const std::string& word)
    {
        if (word == "mi")
            return SpecialUnit::miles;
        if (word == "yd")
            return SpecialUnit::yards;
        if (word == "km")
            return SpecialUnit::kilometers;
        if (word == "m")
            return SpecialUnit::meters;
        return word == "mara" ? SpecialUnit::marathon : SpecialUnit::halfMarathon;
    }

    std::string received(const GoldenFile& golden)
    {
        ModelState state;
        for (const char* name : {"sex", "heightCm", "aerobicPower", "anaerobicEnergy", "refDistance", "fatigueCoef"})
            findStateName(name)->let(state, golden.text(name));
        SpecialEntries entries;
        entries.number = golden.text("number");
        entries.unit = unitOf(golden.text("unit"));
        entries.mode = golden.text("mode");
        entries.slope = golden.text("slope");
        const double wind = val(golden.text("wind")) / 10;
        state.special.windBase = golden.isOn("tail") ? -wind : wind;
        SpecialResults results;
        Messages said;
        const int comparison = static_cast<int>(val(golden.text("comparisonLevel")));
        const std::string fault =
            faultOf([&] { specialAnalysis(state, entries, comparison, golden.isOn("kilometers"), results, said); });
        std::string text = "Text4: " + results.levelLine + "\nText5: " + results.hillLine + "\n" +
                           textOf(results.table) + textOf(results.winds);
        for (const Message& message : said)
            text += "message: " + message.text + "\n";
        return fault.empty() ? text : text + "fault: " + fault + "\n";
    }

    class GoldenAnalysis : public testing::TestWithParam<std::string>
    {};

    TEST_P(GoldenAnalysis, IsPrinted)
    {
        const GoldenFile golden("special/golden", GetParam());
        golden.expect(received(golden));
    }

    TEST_P(GoldenAnalysis, IsPrintedTheSameInACommaLocale)
    {
        const GoldenFile golden("special/golden", GetParam());
        const CommaLocale commas;
        EXPECT_EQ(received(golden), golden.expected);
    }

    INSTANTIATE_TEST_SUITE_P(InFiles, GoldenAnalysis, testing::ValuesIn(goldenNames("special/golden")),
                             [](const auto& name) { return name.param; });
}
