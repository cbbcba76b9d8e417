#include "datafiles/personal_file.h"

#include <algorithm>

#include "datafiles/code_page.h"
#include "model/arithmetic.h"
#include "model/text.h"

namespace
{
    constexpr const char* lineEnd = "\r\n";

    std::string lineOf(std::string text)
    {
        std::replace_if(
            text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
        return text + lineEnd;
    }

    std::string lineOf(int scrollValue)
    {
        return signedText(scrollValue) + " " + lineEnd;
    }

    std::string lineOf(bool choice)
    {
        return std::string(choice ? "True" : "False") + lineEnd;
    }

    std::string lowerCase(std::string_view text)
    {
        std::string lower(text);
        for (char& c : lower)
            if (c >= 'A' && c <= 'Z')
                c = static_cast<char>(c - 'A' + 'a');
        return lower;
    }

    /// A text that breaks off within a UTF-8 character, without that character; any other as it is.
    std::string_view withWholeCharacters(std::string_view text)
    {
        constexpr std::size_t longestPart = 3;   // bytes of a character of four
        for (std::size_t part = 1; part <= std::min(longestPart, text.size()); ++part)
        {
            const std::string_view last = text.substr(text.size() - part);
            const auto first = static_cast<unsigned char>(last.front());
            if (first < 0x80)
                return text;
            const std::size_t whole = first >= 0xF0 ? 4 : (first >= 0xE0 ? 3 : 2);
            if (first >= 0xC2 && first <= 0xF4)
                return part < whole && isUtf8(text.substr(0, text.size() - part)) ? text.substr(0, text.size() - part)
                                                                                  : text;
        }
        return text;
    }

    std::string textOf(std::string_view field)
    {
        return isUtf8(field) ? std::string(field) : textOfCodePage(field);
    }
}

std::string bytesOf(const PersonalData& data)
{
    return lineOf(data.txtname) + lineOf(data.txtage) + lineOf(data.wtscrl) + lineOf(data.htscrl) +
           lineOf(data.optmale) + lineOf(data.optfemale) + lineOf(data.actmhrtx) + lineOf(data.resthrtx) +
           lineOf(data.HScroll1);
}

std::vector<std::string> personalFieldsOf(std::string_view bytes)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    std::vector<std::string> fields;
    std::string_view left = bytes;
    if (left.starts_with(byteOrderMark))
        left.remove_prefix(byteOrderMark.size());
    while (!left.empty() && fields.size() < static_cast<std::size_t>(personalFields))
    {
        left.remove_prefix(std::min(left.find_first_not_of(' '), left.size()));
        const std::size_t end = std::min(left.find_first_of(",\r\n"), left.size());
        const bool isCut = end == left.size();
        fields.push_back(textOf(isCut ? withWholeCharacters(left) : left.substr(0, end)));
        left.remove_prefix(end);
        left.remove_prefix(std::min<std::size_t>(left.starts_with("\r\n") ? 2 : 1, left.size()));
    }
    return fields;
}

int scrollValueOf(std::string_view field, int least, int most)
{
    return static_cast<int>(std::clamp<double>(roundHalfEven(val(field)), least, most));
}

bool truthOf(std::string_view field)
{
    const std::string_view word = field.substr(0, field.find_last_not_of(' ') + 1);
    return lowerCase(word) == "true" || val(word) != 0;
}
