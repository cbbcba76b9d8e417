#include "console/script_line.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace
{
    constexpr std::string_view blankCharacters = " \t";
    constexpr std::size_t longestLine = 1 << 20;
}

ScriptLine::ScriptLine(std::string lineText) : text(std::move(lineText))
{
    if (!text.empty() && text.back() == '\r')
        text.pop_back();
    position = std::min(text.find_first_not_of(blankCharacters), text.size());
}

bool ScriptLine::isBlank() const
{
    return position == text.size() || text[position] == '#';
}

std::string ScriptLine::word(const char* what)
{
    if (text.size() > longestLine)
        throw ScriptMistake("the line is too long");
    const std::size_t from = text.find_first_not_of(blankCharacters, position);
    if (from == std::string::npos)
        throw ScriptMistake(std::string("the line lacks ") + what + " after \"" + text.substr(0, position) + "\"");
    if (text[from] == '"')
    {
        const std::size_t end = text.find('"', from + 1);
        if (end == std::string::npos)
            throw ScriptMistake("a quotation mark is not closed");
        position = end + 1;
        if (position < text.size() && blankCharacters.find(text[position]) == std::string_view::npos)
            throw ScriptMistake("a blank is missing after a closing quotation mark");
        return text.substr(from + 1, end - from - 1);
    }
    position = std::min(text.find_first_of(blankCharacters, from), text.size());
    return text.substr(from, position - from);
}

std::vector<std::string> ScriptLine::words()
{
    std::vector<std::string> all;
    while (text.find_first_not_of(blankCharacters, position) != std::string::npos)
        all.push_back(word("word"));
    return all;
}

void ScriptLine::end() const
{
    const std::size_t more = text.find_first_not_of(blankCharacters, position);
    if (more != std::string::npos)
        throw ScriptMistake("\"" + text.substr(more) + "\" is too much");
}

std::string ScriptLine::rest() const
{
    return position < text.size() ? text.substr(position + 1) : "";
}
