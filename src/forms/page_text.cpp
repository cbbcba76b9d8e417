#include "forms/page_text.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace
{
    constexpr std::string_view fieldGap = "  ";

    std::string csvLine(std::string_view line)
    {
        std::string csv;
        std::size_t from = line.find_first_not_of(' ');
        while (from != std::string_view::npos)
        {
            const std::size_t end = std::min(line.find(fieldGap, from), line.size());
            std::string_view field = line.substr(from, end - from);
            if (field.back() == ' ')
                field.remove_suffix(1);
            csv += (csv.empty() ? "" : ",") + csvField(field);
            from = line.find_first_not_of(' ', end);
        }
        return csv;
    }
}

std::string csvField(std::string_view field)
{
    if (field.find_first_of(",\"\r\n") == std::string_view::npos)
        return std::string(field);
    std::string quoted = "\"";
    for (const char c : field)
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + '"';
}

std::string textOf(const TextPage& page)
{
    std::string text;
    for (const std::string& line : page.lines)
        text += line + '\n';
    return text;
}

std::string csvOf(const TextPage& page)
{
    std::string text;
    for (const std::string& line : page.lines)
    {
        const std::string csv = csvLine(line);
        if (!csv.empty())
            text += csv + '\n';
    }
    return text;
}
