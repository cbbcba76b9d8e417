#include "model/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

#include "model/arithmetic.h"

namespace
{
    bool isDigit(char c)
    {
        return c >= '0' && c <= '9';
    }

    std::size_t skipDigits(std::string_view text, std::size_t from)
    {
        while (from < text.size() && isDigit(text[from]))
            ++from;
        return from;
    }

    std::size_t skipSign(std::string_view text, std::size_t from)
    {
        return from < text.size() && (text[from] == '+' || text[from] == '-') ? from + 1 : from;
    }

    std::string_view withoutLeadingBlanks(std::string_view text)
    {
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        return text;
    }

    /// Length of the number that `text` begins with; 0 if it begins with none.
    std::size_t numberLength(std::string_view text)
    {
        const std::size_t whole = skipSign(text, 0);
        std::size_t end = skipDigits(text, whole);
        std::size_t digits = end - whole;
        if (end < text.size() && text[end] == '.')
        {
            const std::size_t fraction = end + 1;
            end = skipDigits(text, fraction);
            digits += end - fraction;
        }
        if (digits == 0)
            return 0;
        if (end < text.size() && (text[end] == 'e' || text[end] == 'E'))
        {
            const std::size_t exponent = skipSign(text, end + 1);
            const std::size_t exponentEnd = skipDigits(text, exponent);
            if (exponentEnd > exponent)
                end = exponentEnd;
        }
        return end;
    }

    /// Whether a number that no double holds is too large rather than too small: its first digit's place tells.
    bool isHuge(std::string_view number)
    {
        const std::size_t exponentMark = std::min(number.find_first_of("eE"), number.size());
        const std::string_view mantissa = number.substr(0, exponentMark);
        const std::size_t firstDigit = mantissa.find_first_of("123456789");
        const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
        std::string_view exponent = number.substr(std::min(exponentMark + 1, number.size()));
        const bool negative = !exponent.empty() && exponent.front() == '-';
        exponent.remove_prefix(std::min(exponent.find_first_of("123456789"), exponent.size()));
        constexpr std::size_t longestExponent = 12;   // far more digits than any text has
        if (exponent.size() > longestExponent)
            return !negative;
        double places = 0;
        std::from_chars(exponent.data(), exponent.data() + exponent.size(), places);
        return static_cast<double>(point) - static_cast<double>(firstDigit) + (negative ? -places : places) > 0;
    }

    /// Decimal digits and exponent of a number: `digits` without trailing zeros, the point after the first one.
    struct Decimal
    {
        std::string digits;
        int exponent = 0;
    };

    Decimal decimalOf(double magnitude)
    {
        constexpr int significantDigits = 15;
        std::array<char, 40> buffer{};
        const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                       std::chars_format::scientific, significantDigits - 1)
                             .ptr;
        const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
        const std::size_t mark = text.find('e');

        Decimal decimal;
        decimal.digits = text.substr(0, 1);
        decimal.digits += text.substr(2, mark - 2);
        decimal.digits.erase(std::max<std::size_t>(decimal.digits.find_last_not_of('0') + 1, 1));
        const std::size_t exponentDigits = mark + 2;
        std::from_chars(text.data() + exponentDigits, text.data() + text.size(), decimal.exponent);
        if (text[mark + 1] == '-')
            decimal.exponent = -decimal.exponent;
        return decimal;
    }

    std::string wholeText(double magnitude)
    {
        std::array<char, 20> buffer{};
        const auto end =
            std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<long long>(magnitude)).ptr;
        return {buffer.data(), end};
    }

    /// The digits of a number without its sign and without a zero before the point: "3", ".75", "1.5E-20".
    std::string unsignedText(double magnitude)
    {
        constexpr int largestPlaces = 15;   // more, on either side of the point, take an exponent
        if (magnitude < 1e15 && magnitude == std::floor(magnitude))
            return wholeText(magnitude);
        const auto [digits, exponent] = decimalOf(magnitude);
        const int count = static_cast<int>(digits.size());
        if (exponent >= largestPlaces || count - 1 - exponent > largestPlaces)
        {
            std::string text = digits.substr(0, 1);
            if (count > 1)
                text += "." + digits.substr(1);
            const std::string places = std::to_string(std::abs(exponent));
            return text + (exponent < 0 ? "E-" : "E+") + (places.size() < 2 ? "0" : "") + places;
        }
        if (exponent < 0)
            return "." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
        if (count <= exponent + 1)
            return digits + std::string(static_cast<std::size_t>(exponent + 1 - count), '0');
        const auto whole = static_cast<std::size_t>(exponent + 1);
        return digits.substr(0, whole) + "." + digits.substr(whole);
    }

    std::string paddedLeft(std::string text, std::size_t width)
    {
        if (text.size() < width)
            text.insert(0, width - text.size(), ' ');
        return text;
    }

    std::string twoDigits(double number)
    {
        return (number < 10 ? "0" : "") + unsignedText(number);
    }

    /// Values below 0.105 go to the nearest hundredth, from the top down.
    void snapSmall(double& t)
    {
        struct Snap
        {
            double below, value;
        };
        constexpr std::array<Snap, 11> snaps{{{10.5, 0.1},
                                              {9.5, 0.09},
                                              {8.5, 0.08},
                                              {7.5, 0.07},
                                              {6.5, 0.06},
                                              {5.5, 0.05},
                                              {4.5, 0.04},
                                              {3.5, 0.03},
                                              {2.5, 0.02},
                                              {1.5, 0.01},
                                              {0.5, 0}}};
        const double hundredths = 100 * t;
        for (const auto& [below, value] : snaps)
            if (hundredths < below)
                t = value;
    }

    std::string tenthsText(double t)
    {
        std::string s = signedText(t + 0.0500011);
        s = s.substr(0, t < 0.95 ? 3 : (t < 9.95 ? 4 : 5));
        if (t < 0.95)
            s = " 0" + s.substr(s.size() - 2);
        s = "     " + s;
        return t < 9.95 ? " " + s : s;
    }

    std::string clockText(double t)
    {
        double h = std::floor(t / 3600);
        double m = std::floor(60 * (t / 3600 - h));
        double s = roundHalfEven(60 * (60 * (t / 3600 - h) - m));
        if (s == 60)
        {
            s = 0;
            m = m + 1;
            if (m == 60)
            {
                m = 0;
                h = h + 1;
            }
        }
        std::string text = unsignedText(s);
        if (m > 0 || h > 0)
            text = unsignedText(m) + ":" + twoDigits(s);
        if (h > 0)
        {
            const std::string hours = signedText(h);
            text = hours.substr(hours.size() - std::min<std::size_t>(hours.size(), 3)) + ":" + twoDigits(m) + ":" +
                   twoDigits(s);
        }
        return paddedLeft(text + "  ", 10);
    }
}

double val(std::string_view text)
{
    text = withoutLeadingBlanks(text);
    std::string_view number = text.substr(0, numberLength(text));
    if (!number.empty() && number.front() == '+')
        number.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range)
    {
        if (isHuge(number))
            stopWith("an overflow (a number is too large)");
        return 0;
    }
    return value;
}

bool isNumeric(std::string_view text)
{
    text = withoutLeadingBlanks(text);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return !text.empty() && numberLength(text) == text.size();
}

std::string plainText(double number)
{
    std::string text = unsignedText(std::abs(number));
    if (text.front() == '.')
        text.insert(0, 1, '0');
    return number < 0 ? "-" + text : text;
}

std::string signedText(double number)
{
    return (number < 0 ? "-" : " ") + unsignedText(std::abs(number));
}

std::string exactText(double number)
{
    std::array<char, 40> buffer{};
    const double magnitude = std::abs(number);
    const bool plain = number == 0 || (magnitude >= 1e-5 && magnitude < 1e15);
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   plain ? std::chars_format::fixed : std::chars_format::scientific)
                         .ptr;
    return {buffer.data(), end};
}

std::string formatTime(double& seconds)
{
    snapSmall(seconds);
    return seconds < 59.95 ? tenthsText(seconds) : clockText(seconds);
}

std::string formatTime(double&& seconds)
{
    return formatTime(seconds);
}

std::string formatNumber(double value, int width, int decimals)
{
    const auto columns = static_cast<std::size_t>(std::max(width, 0));
    if (decimals < 0 || decimals > 5)
        return std::string(columns, ' ');
    std::array<char, 400> buffer{};   // the largest double has 309 digits before the point
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals).ptr;
    std::string text(buffer.data(), end);
    if (text.front() == '-' && text.find_first_of("123456789") == std::string::npos)
        text.erase(0, 1);
    return paddedLeft(text, columns);
}

int numericEntry(double value)
{
    return numericEntry(signedText(value));
}

int numericEntry(std::string_view text)
{
    return val(text) == 0 ? 0 : 1;
}
