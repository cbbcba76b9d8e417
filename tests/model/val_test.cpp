#include <limits>
#include <ostream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/text.h"
#include "support/case_name.h"
#include "support/faults.h"

namespace
{
    struct EntryCase
    {
        std::string name;
        std::string text;
        double value;   // to the last bit
        bool numeric;   // the whole text is one number

        friend std::ostream& operator<<(std::ostream& out, const EntryCase& row) { return out << row.text; }
    };

    class Entry : public testing::TestWithParam<EntryCase>
    {};

    TEST_P(Entry, IsReadAsItsLeadingNumber)
    {
        EXPECT_EQ(val(GetParam().text), GetParam().value);
    }

    TEST_P(Entry, IsNumericIfItIsOneNumber)
    {
        EXPECT_EQ(isNumeric(GetParam().text), GetParam().numeric);
    }

    TEST_P(Entry, CountsAsNumericEntryUnlessItIsZero)
    {
        EXPECT_EQ(numericEntry(GetParam().text), GetParam().value == 0 ? 0 : 1);
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, Entry,
        testing::Values(
            EntryCase{"nothing", "", 0, false}, EntryCase{"blanks", "   ", 0, false}, EntryCase{"zero", "0", 0, true},
            EntryCase{"zero_with_point", "0.0", 0, true}, EntryCase{"minus_zero", "-0", 0, true},
            EntryCase{"five", "5", 5, true}, EntryCase{"blanks_before", "   12", 12, true},
            EntryCase{"blanks_behind", "12  ", 12, true}, EntryCase{"unit_behind", "12 km", 12, false},
            EntryCase{"unit_at_once", "45x", 45, false}, EntryCase{"word", "abc", 0, false},
            EntryCase{"word_and_number", "x5", 0, false}, EntryCase{"plus", "+3", 3, true},
            EntryCase{"minus", "-3", -3, true}, EntryCase{"two_minuses", "--3", 0, false},
            EntryCase{"plus_minus", "+-3", 0, false}, EntryCase{"minus_plus", "-+3", 0, false},
            EntryCase{"sign_alone", "-", 0, false}, EntryCase{"sign_and_blank", "- 3", 0, false},
            EntryCase{"point_alone", ".", 0, false}, EntryCase{"sign_and_point", "-.", 0, false},
            EntryCase{"no_digit_before_point", "+.5", 0.5, true}, EntryCase{"no_digit_behind_point", "5.", 5, true},
            EntryCase{"two_points", "1.2.3", 1.2, false}, EntryCase{"comma", "1,5", 1, false},
            EntryCase{"comma_first", ",5", 0, false}, EntryCase{"thousands", "1,000", 1, false},
            EntryCase{"blank_inside", "5 0", 5, false}, EntryCase{"clock", "12:30", 12, false},
            EntryCase{"exponent", "1e3", 1000, true}, EntryCase{"exponent_and_tail", " -5.5e1x", -55, false},
            EntryCase{"exponent_plus", "2.5E+02", 250, true}, EntryCase{"exponent_minus", "1E-2z", 0.01, false},
            EntryCase{"exponent_empty", "1e", 1, false}, EntryCase{"exponent_sign_alone", "1e+", 1, false},
            EntryCase{"exponent_of_a_fraction", "1e2.5", 100, false}, EntryCase{"exponent_alone", "e5", 0, false},
            EntryCase{"exponent_of_a_point", ".e5", 0, false}, EntryCase{"exponent_blank", "1 e3", 1, false},
            EntryCase{"letter_d_exponent", "1d3", 1, false}, EntryCase{"hexadecimal", "0x10", 0, false},
            EntryCase{"hexadecimal_power", "0x1p4", 0, false}, EntryCase{"inf", "inf", 0, false},
            EntryCase{"minus_inf", "-Infinity", 0, false}, EntryCase{"nan", "nan", 0, false},
            EntryCase{"nan_in_brackets", "nan(1)", 0, false}, EntryCase{"marked_hexadecimal", "&H10", 0, false},
            EntryCase{"tab_before", "\t5", 0, false}, EntryCase{"line_end_behind", "5\n", 5, false},
            EntryCase{"null_byte_inside", std::string("5\0006", 3), 5, false},
            EntryCase{"wide_minus",
                      "\xe2\x88\x92"
                      "5",
                      0, false},
            EntryCase{"tenths", "0.1", 0.1, true},
            EntryCase{"seventeen_digits", "0.30000000000000004", 0.1 + 0.2, true}, EntryCase{"tiny", "1e-999", 0, true},
            EntryCase{"tiny_negative", "-1e-999999999999", 0, true},
            EntryCase{"smallest", "4.9406564584124654e-324", std::numeric_limits<double>::denorm_min(), true},
            EntryCase{"largest", "1.7976931348623157e308", std::numeric_limits<double>::max(), true},
            EntryCase{"zero_to_any_power", "0e999", 0, true},
            EntryCase{"zero_to_a_long_power", "0e99999999999999999999", 0, true}),
        byName);

    struct LongCase
    {
        std::string name;
        std::string text;
        double value;

        friend std::ostream& operator<<(std::ostream& out, const LongCase& row) { return out << row.name; }
    };

    class LongEntry : public testing::TestWithParam<LongCase>
    {};

    TEST_P(LongEntry, IsReadInFull)
    {
        EXPECT_EQ(val(GetParam().text), GetParam().value);
    }

    std::string times(std::size_t count, char c)
    {
        return std::string(count, c);
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, LongEntry,
        testing::Values(LongCase{"blanks", times(100000, ' ') + "7", 7},
                        LongCase{"zeros_before", times(100000, '0') + "7", 7},
                        LongCase{"zeros_behind_the_point", "7." + times(100000, '0'), 7},
                        LongCase{"tiny", "0." + times(100000, '0') + "7", 0},
                        LongCase{"large_by_digits_small_by_exponent", "1" + times(400, '0') + "e-400", 1},
                        LongCase{"small_by_digits_large_by_exponent", "0." + times(399, '0') + "1e400", 1},
                        LongCase{"many_thirds", "0." + times(1000, '3'), 1.0 / 3},
                        LongCase{"exponent_with_zeros", "5e" + times(1000, '0') + "1", 50},
                        LongCase{"tiny_with_a_long_exponent_of_0", "0." + times(400, '0') + "1e" + times(10, '0'), 0},
                        LongCase{"letters", times(100000, 'x'), 0}, LongCase{"signs", times(100000, '-'), 0}),
        byName);

    class TooLargeEntry : public testing::TestWithParam<LongCase>
    {};

    TEST_P(TooLargeEntry, IsAnOverflow)
    {
        EXPECT_THAT(faultOf([] { (void)val(GetParam().text); }), testing::StartsWith("an overflow"));
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, TooLargeEntry,
                             testing::Values(LongCase{"exponent", "1e999", 0}, LongCase{"negative", "-1e999", 0},
                                             LongCase{"just", "1.8e308", 0}, LongCase{"tail", " +2E400 km", 0},
                                             LongCase{"exponent_plus", "1e+999", 0},
                                             LongCase{"exponent_of_many_digits", "1e99999999999999999999", 0},
                                             LongCase{"digits", times(100000, '9'), 0},
                                             LongCase{"digits_and_point", times(310, '9') + ".5", 0},
                                             LongCase{"fraction", "0." + times(400, '0') + "1e800", 0},
                                             LongCase{"digits_and_a_long_small_exponent",
                                                      "1" + times(400, '0') + "e-" + times(8, '0') + "50", 0}),
                             byName);

    TEST(NumericEntry, ReadsANumberAsItIsPrinted)
    {
        EXPECT_EQ(numericEntry(0.0), 0);
        EXPECT_EQ(numericEntry(-0.0), 0);
        EXPECT_EQ(numericEntry(0.5), 1);
        EXPECT_EQ(numericEntry(-3.0), 1);
        EXPECT_EQ(numericEntry(1e-300), 1);
        EXPECT_EQ(numericEntry(1e300), 1);
    }
}
