#include "console/words.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <system_error>

#include "model/text.h"

namespace
{
    constexpr std::string_view blanks = " \t";
    constexpr std::size_t longestQuote = 80;   // bytes

    bool isContinuation(char c)
    {
        return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
    }

    /// Length of the UTF-8 character that `text` begins with, or 0 if it begins with none.
    std::size_t characterLength(std::string_view text)
    {
        const auto first = static_cast<unsigned char>(text.front());
        if (first < 0x80)
            return 1;
        const std::size_t length = first >= 0xF0 ? 4 : (first >= 0xE0 ? 3 : 2);
        if (first < 0xC2 || first > 0xF4 || text.size() < length)
            return 0;
        const auto second = static_cast<unsigned char>(text[1]);
        const bool tooLong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
        const bool outside = (first == 0xED && second > 0x9F) || (first == 0xF4 && second > 0x8F);
        const bool whole = std::ranges::all_of(text.substr(1, length - 1), isContinuation);
        return whole && !tooLong && !outside ? length : 0;
    }

    bool isUtf8(std::string_view text)
    {
        while (!text.empty())
        {
            const std::size_t length = characterLength(text);
            if (length == 0)
                return false;
            text.remove_prefix(length);
        }
        return true;
    }
}

std::string_view trimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

std::vector<std::string_view> wordsOf(std::string_view text)
{
    std::vector<std::string_view> words;
    for (text = trimmed(text); !text.empty(); text = trimmed(text))
    {
        words.push_back(text.substr(0, text.find_first_of(blanks)));
        text.remove_prefix(words.back().size());
    }
    return words;
}

std::string lowerCase(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

std::optional<double> numberOf(std::string_view text)
{
    text = trimmed(text);
    if (!isNumeric(text))
        return std::nullopt;
    if (text.front() == '+')
        text.remove_prefix(1);
    double number = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), number).ec != std::errc{})
        return std::nullopt;
    return number;
}

std::string printable(std::string_view text)
{
    const bool beyondAscii = isUtf8(text);
    std::string shown(text);
    for (char& c : shown)
    {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F || (byte > 0x7F && !beyondAscii))
            c = '?';
    }
    return shown;
}

std::string inQuotes(std::string_view text)
{
    if (text.size() <= longestQuote)
        return '"' + printable(text) + '"';
    std::size_t end = longestQuote;
    while (end > 0 && isContinuation(text[end]))
        --end;
    return '"' + printable(text.substr(0, end)) + "...\"";
}
