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
}

std::string bytesOf(const PersonalData& data)
{
    return lineOf(data.txtname) + lineOf(data.txtage) + lineOf(data.wtscrl) + lineOf(data.htscrl) +
           lineOf(data.optmale) + lineOf(data.optfemale) + lineOf(data.actmhrtx) + lineOf(data.resthrtx) +
           lineOf(data.HScroll1);
}

std::vector<std::string> personalFieldsOf(std::string_view bytes)
{
    const bool asItIs = isUtf8(bytes);
    std::vector<std::string> fields;
    std::string_view left = bytes;
    while (!left.empty() && fields.size() < static_cast<std::size_t>(personalFields))
    {
        left.remove_prefix(std::min(left.find_first_not_of(' '), left.size()));
        const std::size_t end = std::min(left.find_first_of(",\r\n"), left.size());
        const std::string_view field = left.substr(0, end);
        fields.push_back(asItIs ? std::string(field) : textOfCodePage(field));
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
