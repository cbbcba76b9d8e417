#include "forms/text_table.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "forms/page_text.h"

namespace
{
    constexpr std::size_t columnGap = 2;

    using Rows = std::vector<std::vector<std::string>>;

    std::string_view trimmed(std::string_view cell)
    {
        cell.remove_prefix(std::min(cell.find_first_not_of(' '), cell.size()));
        return cell.substr(0, cell.find_last_not_of(' ') + 1);
    }

    std::vector<std::size_t> widthsOf(Rows::const_iterator from, Rows::const_iterator to)
    {
        std::vector<std::size_t> widths;
        for (; from != to; ++from)
        {
            widths.resize(std::max(widths.size(), from->size()));
            for (std::size_t column = 0; column < from->size(); ++column)
                widths[column] = std::max(widths[column], trimmed((*from)[column]).size());
        }
        return widths;
    }

    std::string lineOf(const std::vector<std::string>& row, const std::vector<std::size_t>& widths)
    {
        std::string line;
        std::size_t end = 0;
        for (std::size_t column = 0; column < row.size(); ++column)
        {
            const std::string_view cell = trimmed(row[column]);
            if (!cell.empty())
                line.resize(end, ' ');
            line += cell;
            end += widths[column] + columnGap;
        }
        return line + '\n';
    }
}

std::string textOf(const TextTable& table)
{
    std::string text;
    const auto isGap = [](const auto& row) { return row.empty(); };
    for (auto from = table.rows.begin(); from != table.rows.end();)
    {
        const auto to = std::find_if(from, table.rows.end(), isGap);
        const std::vector<std::size_t> widths = widthsOf(from, to);
        for (; from != to; ++from)
            text += lineOf(*from, widths);
        if (from != table.rows.end())
        {
            text += '\n';
            ++from;
        }
    }
    return text;
}

std::string csvOf(const TextTable& table)
{
    std::string text;
    for (const std::vector<std::string>& row : table.rows)
    {
        for (std::size_t column = 0; column < row.size(); ++column)
            text += (column == 0 ? "" : ",") + csvField(trimmed(row[column]));
        text += '\n';
    }
    return text;
}
