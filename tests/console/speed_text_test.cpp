#include "console/speed_text.h"

#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "support/case_name.h"
#include "support/close_to.h"

namespace
{
    struct Word
    {
        std::string name;
        const char* text;
        double value;   // m/s, or a fraction; -1: refused

        friend std::ostream& operator<<(std::ostream& out, const Word& row) { return out << row.name; }
    };

    constexpr double isRefused = -1;

    template <class Read>
    void expectRead(const Word& word, Read read, const std::string& kind)
    {
        std::string wrong;
        const std::optional<double> value = read(word.text, wrong);
        EXPECT_EQ(value.has_value(), word.value != isRefused);
        if (value)
        {
            EXPECT_TRUE(closeTo(*value, word.value));
        }
        else
        {
            EXPECT_EQ(wrong.find(std::string("\"") + word.text + "\" is not a " + kind), 0U) << wrong;
        }
    }

    class Speed : public testing::TestWithParam<Word>
    {};

    TEST_P(Speed, IsANumberAndAUnit)
    {
        expectRead(GetParam(), readSpeed, "speed");
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, Speed,
                             testing::Values(Word{"miles", "9mph", 4.02336}, Word{"miles_parted", " 9 mi/h ", 4.02336},
                                             Word{"kilometers", "14.4km/h", 4}, Word{"kph_in_capitals", "14.4 KPH", 4},
                                             Word{"metres", "4m/s", 4}, Word{"zero", "0mph", isRefused},
                                             Word{"negative", "-4m/s", isRefused}, Word{"no_unit", "9", isRefused},
                                             Word{"no_number", "mph", isRefused}, Word{"a_pace", "6:40/mi", isRefused},
                                             Word{"huge", "1e999m/s", isRefused}, Word{"empty", "", isRefused},
                                             Word{"two_numbers", "9 9mph", isRefused}),
                             byName);

    class Pace : public testing::TestWithParam<Word>
    {};

    TEST_P(Pace, IsATimeAUnit)
    {
        expectRead(GetParam(), readPace, "pace");
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, Pace,
                             testing::Values(Word{"per_mile", "6:40/mi", 4.02336}, Word{"per_kilometer", "4:10/km", 4},
                                             Word{"seconds", "250 / KM", 4}, Word{"hours", "1:00:00/mi", 0.44704},
                                             Word{"zero", "0/km", isRefused}, Word{"no_unit", "4:10", isRefused},
                                             Word{"no_time", "/km", isRefused},
                                             Word{"other_unit", "1:36/lap", isRefused},
                                             Word{"above_a_minute", "4:70/km", isRefused},
                                             Word{"text", "fast/km", isRefused}, Word{"empty", "", isRefused}),
                             byName);

    class Grade : public testing::TestWithParam<Word>
    {};

    TEST_P(Grade, IsPercentOrAFraction)
    {
        expectRead(GetParam(), readGrade, "grade");
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, Grade,
                             testing::Values(Word{"percent", "3%", 0.03}, Word{"percent_parted", " -2.5 % ", -0.025},
                                             Word{"fraction", "0.03", 0.03}, Word{"flat", "0", 0},
                                             Word{"text", "steep", isRefused}, Word{"sign_alone", "%", isRefused},
                                             Word{"two_signs", "3%%", isRefused}, Word{"huge", "1e999%", isRefused}),
                             byName);
}
