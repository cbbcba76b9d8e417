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
    struct NumberCase
    {
        std::string name;
        double number;
        std::string plain;     // as a field holds it
        std::string printed;   // as it is printed

        friend std::ostream& operator<<(std::ostream& out, const NumberCase& row) { return out << row.plain; }
    };

    class NumberText : public testing::TestWithParam<NumberCase>
    {};

    TEST_P(NumberText, InAField)
    {
        EXPECT_EQ(plainText(GetParam().number), GetParam().plain);
    }

    TEST_P(NumberText, Printed)
    {
        EXPECT_EQ(signedText(GetParam().number), GetParam().printed);
    }

    TEST_P(NumberText, ReadsBackToFifteenDigits)
    {
        EXPECT_EQ(plainText(val(plainText(GetParam().number))), GetParam().plain);
        EXPECT_EQ(val(GetParam().plain), val(GetParam().printed));
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, NumberText,
        testing::Values(NumberCase{"zero", 0, "0", " 0"}, NumberCase{"minus_zero", -0.0, "0", " 0"},
                        NumberCase{"three", 3, "3", " 3"}, NumberCase{"minus_three", -3, "-3", "-3"},
                        NumberCase{"half", 0.5, "0.5", " .5"}, NumberCase{"three_quarters", 0.75, "0.75", " .75"},
                        NumberCase{"minus_half", -0.5, "-0.5", "-.5"}, NumberCase{"tenths", 99.9, "99.9", " 99.9"},
                        NumberCase{"hundred", 100, "100", " 100"},
                        NumberCase{"mile", 1609.344, "1609.344", " 1609.344"},
                        NumberCase{"sum_of_tenths", 0.1 + 0.2, "0.3", " .3"},
                        NumberCase{"third", 1.0 / 3, "0.333333333333333", " .333333333333333"},
                        NumberCase{"two_thirds", 2.0 / 3, "0.666666666666667", " .666666666666667"},
                        NumberCase{"rounds_up_to_one", 0.9999999999999999, "1", " 1"},
                        NumberCase{"rounds_up_to_thousand", 999.9999999999999, "1000", " 1000"},
                        NumberCase{"small", 0.0001, "0.0001", " .0001"},
                        NumberCase{"fifteen_digits", 123456789012345, "123456789012345", " 123456789012345"},
                        NumberCase{"fifteen_places", 1e-15, "0.000000000000001", " .000000000000001"},
                        NumberCase{"beyond_fifteen_places", 1e-16, "1E-16", " 1E-16"},
                        NumberCase{"largest_without_exponent", 1e14, "100000000000000", " 100000000000000"},
                        NumberCase{"with_exponent", 1e15, "1E+15", " 1E+15"},
                        NumberCase{"twenty", 1e20, "1E+20", " 1E+20"},
                        NumberCase{"exponent_and_digits", -1.25e20, "-1.25E+20", "-1.25E+20"},
                        NumberCase{"tiny", 1.5e-20, "1.5E-20", " 1.5E-20"},
                        NumberCase{"three_digits_of_exponent", 1e300, "1E+300", " 1E+300"}),
        byName);

    TEST(NumberText, OfTheLargestNumberIsRoundedUpBeyondIt)
    {
        const double largest = std::numeric_limits<double>::max();
        EXPECT_EQ(plainText(largest), "1.79769313486232E+308");
        EXPECT_THAT(faultOf([&] { (void)val(plainText(largest)); }), testing::StartsWith("an overflow"));
    }

    struct ExactCase
    {
        std::string name;
        double number;
        std::string text;

        friend std::ostream& operator<<(std::ostream& out, const ExactCase& row) { return out << row.text; }
    };

    class ExactText : public testing::TestWithParam<ExactCase>
    {};

    TEST_P(ExactText, HoldsEveryBit)
    {
        EXPECT_EQ(exactText(GetParam().number), GetParam().text);
        EXPECT_EQ(val(GetParam().text), GetParam().number);
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, ExactText,
        testing::Values(ExactCase{"zero", 0, "0"}, ExactCase{"whole", 1500, "1500"}, ExactCase{"tenth", 0.1, "0.1"},
                        ExactCase{"negative", -2.5, "-2.5"},
                        ExactCase{"sum_of_tenths", 0.1 + 0.2, "0.30000000000000004"},
                        ExactCase{"third", 1.0 / 3, "0.3333333333333333"}, ExactCase{"large", 1e15, "1e+15"},
                        ExactCase{"small", 1e-6, "1e-06"}, ExactCase{"small_without_exponent", 1e-5, "0.00001"},
                        ExactCase{"largest", std::numeric_limits<double>::max(), "1.7976931348623157e+308"}),
        byName);

    struct FixedCase
    {
        std::string name;
        double value;
        int width;
        int decimals;
        std::string text;

        friend std::ostream& operator<<(std::ostream& out, const FixedCase& row) { return out << row.text; }
    };

    class FormatNumber : public testing::TestWithParam<FixedCase>
    {};

    TEST_P(FormatNumber, IsFixed)
    {
        EXPECT_EQ(formatNumber(GetParam().value, GetParam().width, GetParam().decimals), GetParam().text);
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, FormatNumber,
        testing::Values(
            FixedCase{"kilograms", 72.66, 5, 1, " 72.7"}, FixedCase{"tie_to_zero", 0.5, 5, 0, "    0"},
            FixedCase{"tie_up", 1.5, 5, 0, "    2"}, FixedCase{"tie_down", 2.5, 1, 0, "2"},
            FixedCase{"seventy_five_inches", 75 * 2.54, 3, 0, "190"},
            FixedCase{"tie_of_hundredths_down", 0.125, 6, 2, "  0.12"},
            FixedCase{"tie_of_hundredths_up", 0.375, 0, 2, "0.38"}, FixedCase{"negative_tie", -1.25, 8, 1, "    -1.2"},
            FixedCase{"no_tie_but_just_below", 2.675, 6, 2, "  2.67"},
            FixedCase{"no_tie_but_just_above", 1.005000000000001, 4, 2, "1.01"},
            FixedCase{"minus_dropped", -0.4, 3, 0, "  0"}, FixedCase{"minus_dropped_decimals", -0.004, 6, 2, "  0.00"},
            FixedCase{"minus_zero", -0.0, 0, 1, "0.0"}, FixedCase{"minus_kept", -0.006, 6, 2, " -0.01"},
            FixedCase{"zero_before_the_point", 0.5, 0, 1, "0.5"}, FixedCase{"no_decimals", 12.345, 7, 0, "     12"},
            FixedCase{"one_decimal", 12.345, 7, 1, "   12.3"}, FixedCase{"two_decimals", 12.345, 7, 2, "  12.35"},
            FixedCase{"three_decimals", 0.0345, 7, 3, "  0.035"}, FixedCase{"four_decimals", 7, 8, 4, "  7.0000"},
            FixedCase{"five_decimals", 0.00012, 7, 5, "0.00012"},
            FixedCase{"longer_than_its_width", 123456.789, 4, 2, "123456.79"},
            FixedCase{"as_long_as_its_width", 12.5, 4, 1, "12.5"}, FixedCase{"negative_width", 12.5, -4, 1, "12.5"},
            FixedCase{"six_decimals", 3.3, 4, 6, "    "}, FixedCase{"minus_one_decimals", 3.3, 3, -1, "   "},
            FixedCase{"six_decimals_no_width", 3.3, 0, 6, ""},
            FixedCase{"sixteen_digits", 1e15, 3, 0, "1000000000000000"}, FixedCase{"carry", 9.996, 0, 2, "10.00"}),
        byName);

    TEST(FormatNumber, WritesTheLargestNumberInFull)
    {
        const std::string text = formatNumber(-std::numeric_limits<double>::max(), 0, 5);
        EXPECT_EQ(text.size(), 1U + 309 + 1 + 5);
        EXPECT_EQ(text.substr(0, 18), "-17976931348623157");
    }
}
