#include "console/race_csv.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "console/prediction_text.h"
#include "console/roster.h"
#include "console/words.h"
#include "datafiles/code_page.h"
#include "datafiles/race_list.h"
#include "model/text.h"

namespace
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    constexpr std::array<std::string_view, static_cast<std::size_t>(raceFlags)> units{"mi", "yd",       "km",
                                                                                      "m",  "marathon", "half"};
    enum class Column { number, hours, minutes, seconds, distance, unit, comment };
    constexpr std::array<std::string_view, 7> columnNames{"number",   "hours", "minutes", "seconds",
                                                          "distance", "unit",  "comment"};
    constexpr std::size_t longestLine = 65536;   // bytes
    constexpr std::size_t mostErrors = 100;
    constexpr const char* allColumns = "number, hours, minutes, seconds, distance, unit, comment";

    std::optional<std::vector<Column>> columnsOf(std::string_view line, std::string& wrong)
    {
        const auto headings = csvFields(line, wrong);
        if (!headings)
            return std::nullopt;
        std::vector<Column> columns;
        for (const std::string& heading : *headings)
        {
            const auto* const name = std::ranges::find(columnNames, lowerCase(trimmed(heading)));
            if (name == columnNames.end())
            {
                wrong = "the column " + inQuotes(heading) + " is not known; the columns are " + allColumns;
                return std::nullopt;
            }
            const auto column = static_cast<Column>(name - columnNames.begin());
            if (std::ranges::find(columns, column) != columns.end())
            {
                wrong = "the column " + inQuotes(heading) + " stands there twice";
                return std::nullopt;
            }
            columns.push_back(column);
        }
        return columns;
    }

    /// Puts the fields of a line into a record.
    struct LineReader
    {
        RaceRecord& record;
        std::string wrong = {};
        std::string remark = {};

        void take(Column column, const std::string& field)
        {
            switch (column)
            {
            case Column::number: takeNumber(field); break;
            case Column::hours: takeFloat(field, "hours", record.hours); break;
            case Column::minutes: takeFloat(field, "minutes", record.minutes); break;
            case Column::seconds: takeFloat(field, "seconds", record.seconds); break;
            case Column::distance: takeFloat(field, "distance", record.distance); break;
            case Column::unit: takeUnit(field); break;
            case Column::comment: takeComment(field); break;
            }
        }

    private:
        void refuse(const std::string& why)
        {
            if (wrong.empty())
                wrong = why;
        }

        void takeNumber(const std::string& field)
        {
            if (trimmed(field).empty())
                return;
            const std::optional<double> number = numberOf(field);
            using Number = std::numeric_limits<std::int16_t>;
            // any that a record can hold: a gap in a file has 0, and what others wrote may have anything
            if (number && *number >= Number::min() && *number <= Number::max() && *number == std::floor(*number))
                record.number = static_cast<std::int16_t>(*number);
            else
                refuse("number: " + inQuotes(field) + " is not a whole number from -32768 to 32767");
        }

        void takeFloat(const std::string& field, const std::string& name, float& value)
        {
            if (trimmed(field).empty())
                return;
            const std::optional<double> number = numberOf(field);
            constexpr double beyondFloats = 0x1.ffffffp127;
            if (!number)
                refuse(name + ": " + inQuotes(field) + " is not a number");
            else if (std::abs(*number) >= beyondFloats)
                refuse(name + ": " + inQuotes(field) + " is too large for the file");
            else
                value = static_cast<float>(*number);
        }

        void takeUnit(const std::string& field)
        {
            for (const std::string_view word : wordsOf(field))
            {
                const auto* const unit = std::ranges::find(units, lowerCase(word));
                if (unit == units.end())
                    return refuse("unit: " + inQuotes(field) + " is none of mi, yd, km, m, marathon, half");
                record.flags[static_cast<std::size_t>(unit - units.begin())] = 'X';
            }
        }

        void takeComment(const std::string& field)
        {
            if (!isUtf8(field))
                return refuse("the comment is not UTF-8");
            record.comment = commentField(field);
            const std::size_t length = characterCount(field);
            if (length > raceCommentLength)
                remark = "the comment is cut after 60 of its " + std::to_string(length) + " characters";
            if (std::ranges::count(codePageOf(field), '?') != std::ranges::count(field, '?'))
                remark += std::string(remark.empty() ? "" : "; ") +
                          "characters of the comment that race files can't hold became \"?\"";
        }
    };

    std::optional<RaceRecord> recordOfLine(const std::vector<Column>& columns, std::string_view line, int place,
                                           CsvRemark& error, CsvRemark& warning)
    {
        if (line.size() > longestLine)
        {
            error.text = "the line is longer than 65536 bytes";
            return std::nullopt;
        }
        const auto fields = csvFields(line, error.text);
        if (!fields)
            return std::nullopt;
        if (fields->size() > columns.size())
        {
            error.text = "there are more fields than headings";
            return std::nullopt;
        }
        RaceRecord record;
        record.number = static_cast<std::int16_t>(place);
        record.flags.fill(' ');
        record.comment.fill(' ');
        LineReader reader{record};
        for (std::size_t i = 0; i < fields->size(); ++i)
            reader.take(columns[i], (*fields)[i]);
        warning.text = reader.remark;
        error.text = reader.wrong;
        return error.text.empty() ? std::optional(record) : std::nullopt;
    }

    /// Takes the next line, without its end.
    std::string_view takeLine(std::string_view& left)
    {
        const std::size_t end = std::min(left.find('\n'), left.size());
        std::string_view line = left.substr(0, end);
        left.remove_prefix(std::min(end + 1, left.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        return line;
    }
}

std::string unitWords(const RaceRecord& record)
{
    std::string words;
    for (std::size_t i = 0; i < units.size(); ++i)
        if (record.flags[i] == 'X')
            words += (words.empty() ? "" : " ") + std::string(units[i]);
    return words;
}

std::string commentText(const RaceRecord& record)
{
    std::string text = textOfCodePage({record.comment.data(), record.comment.size()});
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

std::string csvOf(const std::vector<RaceRecord>& records)
{
    const auto numberText = [](float number) {
        return number == 0 && std::signbit(number) ? "-0" : floatText(static_cast<double>(number));
    };
    std::string text = "number,hours,minutes,seconds,distance,unit,comment\n";
    for (const RaceRecord& record : records)
    {
        text += std::to_string(record.number);
        for (const float number : {record.hours, record.minutes, record.seconds, record.distance})
            text += ',' + numberText(number);
        text += ',' + unitWords(record) + ',' + csvField(commentText(record)) + '\n';
    }
    return text;
}

RaceCsv racesOfCsv(std::string_view bytes)
{
    RaceCsv csv;
    if (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    std::string wrong;
    const std::string_view headings = takeLine(bytes);
    if (headings.size() > longestLine)
    {
        csv.errors.push_back({1, "the line is longer than 65536 bytes"});
        return csv;
    }
    const auto columns = columnsOf(headings, wrong);
    if (!columns)
    {
        csv.errors.push_back({1, wrong});
        return csv;
    }
    for (long long number = 2; !bytes.empty(); ++number)
    {
        const std::string_view line = takeLine(bytes);
        if (trimmed(line).empty())
            continue;
        if (csv.errors.size() == mostErrors)
        {
            csv.isCutShort = true;
            return csv;
        }
        if (csv.records.size() == static_cast<std::size_t>(highestRaceNumber))
        {
            csv.errors.push_back({number, "a race file holds 32767 races at the most"});
            return csv;
        }
        CsvRemark error{number, {}};
        CsvRemark warning{number, {}};
        const int place = static_cast<int>(csv.records.size()) + 1;
        if (const auto record = recordOfLine(*columns, line, place, error, warning))
            csv.records.push_back(*record);
        else
            csv.errors.push_back(error);
        if (!warning.text.empty())
            csv.warnings.push_back(warning);
    }
    return csv;
}
