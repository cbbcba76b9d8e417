#include "splits/pasted_splits.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "model/text.h"

namespace
{
    using Cells = std::vector<std::string>;

    constexpr std::size_t longestNumber = 15;   // characters; every number of them is far from an overflow

    std::string lowerCase(std::string_view text)
    {
        std::string lower(text);
        for (char& c : lower)
            if (c >= 'A' && c <= 'Z')
                c = static_cast<char>(c - 'A' + 'a');
        return lower;
    }

    /// Digits with at most one point, as people write a number by hand.
    bool isNumber(std::string_view cell)
    {
        return cell.size() <= longestNumber && cell.find_first_not_of("0123456789.") == std::string_view::npos &&
               isNumeric(cell);
    }

    bool isWhole(std::string_view cell)
    {
        return isNumber(cell) && cell.find('.') == std::string_view::npos;
    }

    std::string withoutLeadingZeros(std::string_view digits)
    {
        while (digits.size() > 1 && digits[0] == '0' && digits[1] != '.')
            digits.remove_prefix(1);
        return std::string(digits);
    }

    /// m:s or h:m:s; the first part may be missing.
    std::optional<SplitTexts> clockTime(std::string_view cell)
    {
        const std::size_t last = cell.rfind(':');
        if (last == std::string_view::npos || !isNumber(cell.substr(last + 1)))
            return std::nullopt;
        const std::string seconds = withoutLeadingZeros(cell.substr(last + 1));
        const std::string_view before = cell.substr(0, last);
        const std::size_t colon = before.find(':');
        if (colon == std::string_view::npos)
        {
            if (!before.empty() && !isWhole(before))
                return std::nullopt;
            return SplitTexts{{}, withoutLeadingZeros(before), seconds};
        }
        const std::string_view hours = before.substr(0, colon);
        const std::string_view minutes = before.substr(colon + 1);
        if ((!hours.empty() && !isWhole(hours)) || !isWhole(minutes))
            return std::nullopt;
        return SplitTexts{{}, plainText(val(hours) * 60 + val(minutes)), seconds};
    }

    bool isTime(std::string_view cell)
    {
        return clockTime(cell).has_value();
    }

    bool holdsData(const Cells& line)
    {
        return std::any_of(line.begin(), line.end(), [](const auto& cell) { return isNumber(cell) || isTime(cell); });
    }

    bool sumsUp(const Cells& line)
    {
        return std::any_of(line.begin(), line.end(), [](const std::string& cell) {
            const std::string word = lowerCase(cell);
            return word == "total" || word == "totals" || word == "summary";
        });
    }

    /// Which column holds what.
    struct Columns
    {
        std::optional<std::size_t> distance, time, minutes, seconds;

        [[nodiscard]] bool anyTime() const { return time || minutes || seconds; }
        [[nodiscard]] bool any() const { return distance || anyTime(); }
    };

    Columns columnsNamed(const Cells& headings)
    {
        Columns columns;
        for (std::size_t i = 0; i < headings.size(); ++i)
        {
            const std::string word = lowerCase(headings[i]);
            const auto take = [i, &word](std::optional<std::size_t>& column, std::string_view part) {
                if (!column && word.find(part) != std::string::npos)
                    column = i;
            };
            take(columns.distance, "dist");
            if (word == "minutes" || word == "min")
                take(columns.minutes, word);
            else if (word == "seconds" || word == "sec")
                take(columns.seconds, word);
            else
            {
                take(columns.time, "time");
                take(columns.time, "duration");
            }
        }
        if (columns.minutes || columns.seconds)
            columns.time.reset();
        return columns;
    }

    template <class Test>
    bool columnHas(const std::vector<Cells>& lines, std::size_t column, Test test)
    {
        return std::any_of(lines.begin(), lines.end(),
                           [&](const Cells& line) { return column < line.size() && test(line[column]); });
    }

    Columns columnsByContents(const std::vector<Cells>& lines, SplitColumn cursor)
    {
        std::size_t count = 0;
        for (const Cells& line : lines)
            count = std::max(count, line.size());
        std::vector<std::size_t> numbers;
        Columns columns;
        for (std::size_t i = 0; i < count; ++i)
        {
            if (columnHas(lines, i, isTime))
            {
                if (!columns.time)
                    columns.time = i;
            }
            else if (columnHas(lines, i, isNumber))
                numbers.push_back(i);
        }
        if (columns.time)
        {
            for (const std::size_t i : numbers)
                if (!columns.distance || i < *columns.time)   // the one before the time, behind a lap's number
                    columns.distance = i;
            return columns;
        }
        const auto numberAt = [&numbers](std::size_t i) {
            return i < numbers.size() ? std::optional(numbers[i]) : std::nullopt;
        };
        if (cursor == SplitColumn::seconds)
            return {{}, {}, {}, numberAt(0)};
        if (cursor == SplitColumn::minutes)
            return {{}, {}, numberAt(0), numberAt(1)};
        if (numbers.size() < 3)
            return {numberAt(0), numberAt(1), {}, {}};
        return {numberAt(0), {}, numberAt(1), numberAt(2)};
    }

    std::string numberAt(const Cells& line, std::size_t column)
    {
        return column < line.size() && isNumber(line[column]) ? line[column] : "";
    }

    SplitTexts timeAt(const Cells& line, std::size_t column)
    {
        if (column < line.size())
        {
            if (const auto time = clockTime(line[column]))
                return *time;
            if (isNumber(line[column]))
                return timeTexts(val(line[column]));
        }
        return {{}, "", ""};
    }

    SplitTexts textsOf(const Cells& line, const Columns& columns)
    {
        SplitTexts texts;
        if (columns.time)
            texts = timeAt(line, *columns.time);
        if (columns.distance)
            texts.distance = numberAt(line, *columns.distance);
        if (columns.minutes)
            texts.minutes = numberAt(line, *columns.minutes);
        if (columns.seconds)
            texts.seconds = numberAt(line, *columns.seconds);
        return texts;
    }
}

SplitTexts timeTexts(double seconds)
{
    const double minutes = std::floor(seconds / 60);
    return {{}, minutes > 0 ? plainText(minutes) : "", plainText(seconds - 60 * minutes)};
}

std::vector<SplitTexts> pastedSplits(const std::vector<std::vector<std::string>>& lines, SplitColumn cursor)
{
    const auto firstData = std::find_if(lines.begin(), lines.end(), holdsData);
    if (firstData == lines.end())
        return {};
    std::vector<Cells> data;
    std::copy_if(firstData, lines.end(), std::back_inserter(data),
                 [](const Cells& line) { return line.empty() || (holdsData(line) && !sumsUp(line)); });
    Columns columns;
    if (firstData != lines.begin())
        columns = columnsNamed(*std::prev(firstData));
    if (!columns.anyTime())
        columns = columnsByContents(data, cursor);
    if (cursor != SplitColumn::distance)
        columns.distance.reset();
    std::vector<SplitTexts> rows;
    if (columns.any())
        std::transform(data.begin(), data.end(), std::back_inserter(rows),
                       [&columns](const Cells& line) { return textsOf(line, columns); });
    return rows;
}
