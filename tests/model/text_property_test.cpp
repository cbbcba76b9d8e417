#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "model/text.h"
#include "support/close_to.h"
#include "support/draws.h"
#include "support/faults.h"

namespace
{
    /// Pieces that entries are made of, good and bad.
    rc::Gen<std::string> anyEntry()
    {
        const auto piece =
            rc::gen::element<std::string>("", " ", "0", "1", "5", "12", "999", "000", ".", ",", "+", "-", "e", "E",
                                          "e3", "e-7", "e99", "e999", "x", "inf", "nan", "0x", ":", "\t", "\n", "km");
        return rc::gen::map(rc::gen::container<std::vector<std::string>>(piece),
                            [](const std::vector<std::string>& pieces) {
                                std::string entry;
                                for (const std::string& part : pieces)
                                    entry += part;
                                return entry;
                            });
    }

    void expectFiniteOrOverflow(const std::string& entry)
    {
        double value = 0;
        const std::string fault = faultOf([&] { value = val(entry); });
        RC_ASSERT(std::isfinite(value));
        RC_ASSERT(fault.empty() || fault.starts_with("an overflow"));
        if (!fault.empty())
            RC_ASSERT(entry.find_first_of("0123456789") != std::string::npos);
    }

    RC_GTEST_PROP(Val, OfAnyTextIsANumberOrAnOverflow, (const std::string& entry))
    {
        expectFiniteOrOverflow(entry);
    }

    RC_GTEST_PROP(Val, OfAnyPiecesIsANumberOrAnOverflow, ())
    {
        expectFiniteOrOverflow(*anyEntry());
    }

    RC_GTEST_PROP(Val, OfANumberIsUntouchedByWhatStandsAround, ())
    {
        const std::string number = *rc::gen::element<std::string>("", "+", "-") +
                                   std::to_string(*rc::gen::inRange(0, 100000)) +
                                   *rc::gen::element<std::string>("", ".", ".5", ".125") +
                                   *rc::gen::element<std::string>("", "e2", "E-3", "e+1");
        const std::string behind = *rc::gen::element<std::string>("", "  ", " km", "x", ":30", ",5", "+1", "-1", " 7");
        RC_ASSERT(val("  " + number + behind) == val(number));
        RC_ASSERT(isNumeric("  " + number + " "));
        RC_ASSERT(isNumeric(number + behind) == (behind.find_first_not_of(' ') == std::string::npos));
    }

    RC_GTEST_PROP(ExactText, ReadsBackToTheSameBits, ())
    {
        const auto bits = *rc::gen::arbitrary<std::uint64_t>();
        const double number = std::bit_cast<double>(bits);
        RC_PRE(std::isfinite(number));
        RC_ASSERT(val(exactText(number)) == number);
        RC_ASSERT(isNumeric(exactText(number)));
    }

    RC_GTEST_PROP(PlainText, ReadsBackToFifteenDigits, ())
    {
        const double number = *drawnInLogSteps(1e-12, 1e14) * *rc::gen::element(1.0, -1.0);
        const double read = val(plainText(number));
        RC_ASSERT(closeTo(read, number, 5.1e-15));
        RC_ASSERT(plainText(read) == plainText(number));
        RC_ASSERT(val(signedText(number)) == read);
        RC_ASSERT(isNumeric(plainText(number)));
    }

    RC_GTEST_PROP(FormatNumber, IsWithinHalfAUnitOfItsLastPlace, ())
    {
        const double number = *drawnInLogSteps(1e-6, 1e9) * *rc::gen::element(1.0, -1.0);
        const int decimals = *rc::gen::inRange(0, 6);
        const int width = *rc::gen::inRange(-2, 20);
        const std::string text = formatNumber(number, width, decimals);
        RC_ASSERT(std::abs(val(text) - number) <= 0.5 * std::pow(10, -decimals) * (1 + 1e-9) + number * 1e-15);
        RC_ASSERT(static_cast<int>(text.size()) >= width);
        RC_ASSERT(text.find("-0") != 0 || val(text) != 0);
    }

    /// Whether the sum that the tenths are cut from shows as a whole number: the text then has no tenths to cut.
    bool showsNoTenths(double seconds)
    {
        return seconds < 59.95 && signedText(seconds + 0.0500011).find('.') == std::string::npos;
    }

    // Ten characters, all but three sorts: 0.0500011 below a whole second from 2 to 60 (no tenths are left: eight or
    // nine characters), ten hours and more (eleven), and what rounds up to ten hours.
    RC_GTEST_PROP(FormatTime, HasTenCharactersBelowTenHours, ())
    {
        const double seconds = *drawnInLogSteps(1e-4, 35999.4);
        RC_PRE(!showsNoTenths(seconds));
        RC_ASSERT(formatTime(double{seconds}).size() == 10U);
    }

    RC_GTEST_PROP(FormatTime, HasElevenCharactersFromTenToAThousandHours, ())
    {
        RC_ASSERT(formatTime(*drawnInLogSteps(35999.6, 3599999)).size() == 11U);
    }

    TEST(FormatTime, IsShortWhereNoTenthsAreLeft)
    {
        for (int whole = 2; whole <= 60; ++whole)
            EXPECT_EQ(formatTime(whole - 0.0500011).size(), whole == 10 ? 9U : 8U) << whole;
        EXPECT_EQ(formatTime(1 - 0.0500011), "       0 1");
    }

    RC_GTEST_PROP(FormatTime, IsWithinATenthOrHalfASecond, ())
    {
        const double seconds = *drawnInLogSteps(0.2, 35999.4);
        const std::string text = formatTime(double{seconds});
        double shown = 0;
        for (std::size_t from = 0, colon = 0; colon != std::string::npos; from = colon + 1)
        {
            colon = text.find(':', from);
            shown = 60 * shown + val(text.substr(from, colon - from));
        }
        RC_PRE(!(seconds < 0.95 && seconds > 0.9499));
        RC_ASSERT(std::abs(shown - seconds) <= (seconds < 59.95 ? 0.0500012 : 0.5000001));
    }

    RC_GTEST_PROP(FormatTime, ReplacesNothingFrom0105On, ())
    {
        const double seconds = *drawnInLogSteps(0.10500001, 1e7);
        double variable = seconds;
        (void)formatTime(variable);
        RC_ASSERT(variable == seconds);
    }
}
