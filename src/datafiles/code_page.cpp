#include "datafiles/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace
{
    /// Characters of the bytes 0x80 to 0x9F; all others are the same in code page and Unicode.
    constexpr std::array<char32_t, 32> specialCharacters{
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
    constexpr unsigned firstSpecial = 0x80, lastSpecial = 0x9F;
    constexpr char32_t noCharacter = 0xFFFFFFFF;

    bool isControl(char32_t character)
    {
        return character < 0x20 || character == 0x7F;
    }

    void addUtf8(std::string& text, char32_t c)
    {
        const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
        if (c < 0x80)
            add(c);
        else if (c < 0x800)
        {
            add(0xC0 | (c >> 6));
            add(0x80 | (c & 0x3F));
        }
        else
        {
            add(0xE0 | (c >> 12));
            add(0x80 | ((c >> 6) & 0x3F));
            add(0x80 | (c & 0x3F));
        }
    }

    std::size_t lengthByFirstByte(unsigned char first)
    {
        if (first < 0x80)
            return 1;
        if (first < 0xC2 || first > 0xF4)
            return 0;
        return first >= 0xF0 ? 4 : (first >= 0xE0 ? 3 : 2);
    }

    /// Takes the next character of a text that is not empty; of what is no UTF-8 it takes a byte.
    char32_t takeCharacter(std::string_view& text)
    {
        const auto first = static_cast<unsigned char>(text.front());
        const std::size_t length = lengthByFirstByte(first);
        constexpr std::array<char32_t, 5> firstBits{0, 0x7F, 0x1F, 0x0F, 0x07};
        constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
        char32_t character = first & firstBits[length];
        bool good = length > 0 && text.size() >= length;
        for (std::size_t i = 1; good && i < length; ++i)
        {
            const auto byte = static_cast<unsigned char>(text[i]);
            good = (byte & 0xC0) == 0x80;
            character = (character << 6) | (byte & 0x3F);
        }
        const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
        good = good && character >= smallest[length] && character <= 0x10FFFF && !surrogate;
        text.remove_prefix(good ? length : 1);
        return good ? character : noCharacter;
    }

    char byteOf(char32_t character)
    {
        if (character < firstSpecial || (character > lastSpecial && character <= 0xFF))
            return static_cast<char>(character);
        const auto* const special = std::find(specialCharacters.begin(), specialCharacters.end(), character);
        return special == specialCharacters.end()
                   ? '?'
                   : static_cast<char>(firstSpecial + static_cast<unsigned>(special - specialCharacters.begin()));
    }
}

std::string textOfCodePage(std::string_view bytes)
{
    std::string text;
    for (const char c : bytes)
    {
        const auto byte = static_cast<unsigned char>(c);
        if (isControl(byte))
            text += ' ';
        else
            addUtf8(text, byte >= firstSpecial && byte <= lastSpecial ? specialCharacters[byte - firstSpecial]
                                                                      : char32_t{byte});
    }
    return text;
}

std::string codePageOf(std::string_view text)
{
    std::string bytes;
    while (!text.empty())
        bytes += byteOf(takeCharacter(text));
    return bytes;
}

bool isUtf8(std::string_view text)
{
    while (!text.empty())
        if (takeCharacter(text) == noCharacter)
            return false;
    return true;
}

std::size_t characterCount(std::string_view text)
{
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        (void)takeCharacter(text);
    return count;
}
