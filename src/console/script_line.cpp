#include "console/script_line.h"

#include <algorithm>
#include <utility>

namespace
{
    constexpr const char* blanks = " \t";
    constexpr std::size_t longestLine = 1 << 20;
}

ScriptLine::ScriptLine(std::string lineText) : text(std::move(lineText))
{
    if (!text.empty() && text.back() == '\r')
        text.pop_back();
    position = std::min(text.find_first_not_of(blanks), text.size());
}

bool ScriptLine::isBlank() const
{
    return position == text.size() || text[position] == '#';
}

std::string ScriptLine::word(const char* what)
{
    if (text.size() > longestLine)
        throw ScriptMistake("the line is too long");
    const std::size_t from = text.find_first_not_of(blanks, position);
    if (from == std::string::npos)
        throw ScriptMistake(std::string("the line lacks ") + what + " after \"" + text.substr(0, position) + "\"");
    if (text[from] == '"')
    {
        const std::size_t end = text.find('"', from + 1);
        if (end == std::string::npos)
            throw ScriptMistake("a quotation mark is not closed");
        position = end + 1;
        return text.substr(from + 1, end - from - 1);
    }
    position = std::min(text.find_first_of(blanks, from), text.size());
    return text.substr(from, position - from);
}

std::vector<std::string> ScriptLine::words()
{
    std::vector<std::string> all;
    while (text.find_first_not_of(blanks, position) != std::string::npos)
        all.push_back(word("word"));
    return all;
}

std::string ScriptLine::rest() const
{
    return position < text.size() ? text.substr(position + 1) : "";
}
