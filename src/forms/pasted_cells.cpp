#include "forms/pasted_cells.h"

#include <algorithm>

namespace
{
    using Cells = std::vector<std::string>;

    constexpr char blank = ' ';

    /// The text with LF line ends and plain blanks: no control character but tabs and line ends, no hard blank.
    std::string cleaned(std::string_view text)
    {
        constexpr std::string_view hardBlank = "\xC2\xA0";
        std::string clean;
        for (std::size_t i = 0; i < text.size(); ++i)
        {
            const char c = text[i];
            if (c == '\r')
            {
                if (i + 1 == text.size() || text[i + 1] != '\n')
                    clean += '\n';
            }
            else if (text.substr(i, 2) == hardBlank)
            {
                clean += blank;
                ++i;
            }
            else
                clean += static_cast<unsigned char>(c) < 0x20 && c != '\n' && c != '\t' ? blank : c;
        }
        return clean;
    }

    bool isDigitAt(std::string_view text, std::size_t i)
    {
        return i < text.size() && text[i] >= '0' && text[i] <= '9';
    }

    /// Whether a comma is the only one of its text and stands between digits.
    bool isDecimal(std::string_view text, std::size_t comma)
    {
        return comma > 0 && text.find(',') == comma && text.rfind(',') == comma && isDigitAt(text, comma - 1) &&
               isDigitAt(text, comma + 1);
    }

    std::string withDecimalPoint(std::string cell)
    {
        const std::size_t comma = cell.find(',');
        if (comma != std::string::npos && isDecimal(cell, comma))
            cell[comma] = '.';
        return cell;
    }

    /// Whether the commas of a text are decimal points, as far as they can tell.
    bool areDecimal(std::string_view text)
    {
        while (!text.empty())
        {
            const std::string_view line = text.substr(0, text.find('\n'));
            const std::size_t comma = line.find(',');
            if (comma != std::string_view::npos &&
                (!isDecimal(line, comma) || line.find(':', comma) != std::string_view::npos))
                return false;
            text.remove_prefix(std::min(line.size() + 1, text.size()));
        }
        return true;
    }

    char separatorOf(std::string_view text, Commas commas)
    {
        for (const char separator : {'\t', ';'})
            if (text.find(separator) != std::string_view::npos)
                return separator;
        const bool apart = text.find(',') != std::string_view::npos;
        return apart && !(commas == Commas::maybeDecimal && areDecimal(text)) ? ',' : blank;
    }

    std::string finished(std::string_view cell, char separator)
    {
        cell.remove_prefix(std::min(cell.find_first_not_of(" \t"), cell.size()));
        cell = cell.substr(0, cell.find_last_not_of(" \t") + 1);
        if (cell.size() > longestPastedCell)
            return {};
        return separator == ',' ? std::string(cell) : withDecimalPoint(std::string(cell));
    }

    /// Takes the next cell off the line, with the separator behind it.
    std::string nextCell(std::string_view& line, char separator)
    {
        std::string cell;
        bool quoted = false;
        std::size_t i = 0;
        for (; i < line.size() && (quoted || line[i] != separator); ++i)
        {
            if (line[i] != '"')
                cell += line[i];
            else if (quoted && i + 1 < line.size() && line[i + 1] == '"')
                cell += line[++i];
            else
                quoted = !quoted;
        }
        line.remove_prefix(std::min(i, line.size()));
        return finished(cell, separator);
    }

    Cells cellsOf(std::string_view line, char separator)
    {
        Cells cells;
        line.remove_prefix(std::min(line.find_first_not_of(blank), line.size()));
        line = line.substr(0, line.find_last_not_of(blank) + 1);
        while (!line.empty() && cells.size() < mostPastedCells)
        {
            cells.push_back(nextCell(line, separator));
            const bool more = !line.empty();
            if (more)
                line.remove_prefix(1);
            if (more && line.empty())
                cells.emplace_back();   // a line that ends in a separator
            if (separator == blank)
                line.remove_prefix(std::min(line.find_first_not_of(blank), line.size()));
        }
        if (std::all_of(cells.begin(), cells.end(), [](const std::string& cell) { return cell.empty(); }))
            cells.clear();
        return cells;
    }
}

std::vector<std::vector<std::string>> pastedCells(std::string_view text, Commas commas)
{
    const std::string clean = cleaned(text.substr(0, longestPaste));
    const char separator = separatorOf(clean, commas);
    std::vector<Cells> lines;
    for (std::string_view rest = clean; !rest.empty();)
    {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        lines.push_back(cellsOf(rest.substr(0, end), separator));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    while (!lines.empty() && lines.back().empty())
        lines.pop_back();
    return lines;
}
