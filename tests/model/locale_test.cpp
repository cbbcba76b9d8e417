// Texts and numbers are the same wherever a person lives: no routine looks at the locale.

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "model/text.h"
#include "model/text_page.h"
#include "support/comma_locale.h"

namespace
{
    /// Every text routine once, on numbers that show a point and, with a locale, would show separators.
    std::string texts()
    {
        TextPage page;
        double seconds = 43.18;
        for (const std::string& text :
             {formatTime(seconds), formatTime(0.5), formatTime(7546.2), formatNumber(1234567.891, 14, 2),
              formatNumber(-0.25, 0, 1), plainText(1234567.5), plainText(1.25e20), signedText(-0.75),
              signedText(1609.344), exactText(0.1 + 0.2), exactText(1234567.5)})
            printLine(page, text);
        print(page, 1234.5);
        std::string all;
        for (const std::string& line : page.lines)
            all += line + "|";
        return all;
    }

    constexpr const char* expectedTexts =
        "      43.2|       0.5| 2:05:46  |    1234567.89|-0.2|1234567.5|1.25E+20|-.75| 1609.344|0.30000000000000004|"
        "1234567.5| 1234.5 |";

    TEST(ClassicLocale, WritesPoints)
    {
        EXPECT_EQ(texts(), expectedTexts);
    }

    TEST(CommaLocale, IsSet)
    {
        const CommaLocale commas;
        std::ostringstream stream;
        stream << 1234.5;
        EXPECT_EQ(stream.str(), "1.234,5");
    }

    TEST(CommaLocale, WritesPointsAllTheSame)
    {
        const CommaLocale commas;
        EXPECT_EQ(texts(), expectedTexts);
    }

    TEST(CommaLocale, ReadsPointsAllTheSame)
    {
        const CommaLocale commas;
        EXPECT_EQ(val("1.5"), 1.5);
        EXPECT_EQ(val("1,5"), 1);
        EXPECT_EQ(val("1.234,5"), 1.234);
        EXPECT_EQ(val(" -12.75e1 km"), -127.5);
        EXPECT_TRUE(isNumeric("1.5"));
        EXPECT_FALSE(isNumeric("1,5"));
        EXPECT_EQ(numericEntry("0,5"), 0);
        EXPECT_EQ(numericEntry("0.5"), 1);
        EXPECT_EQ(numericEntry(0.5), 1);
    }
}
