#include "datafiles/race_list.h"

#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

#include "datafiles/code_page.h"
#include "model/arithmetic.h"
#include "model/model_state.h"
#include "model/text.h"

namespace
{
    std::string_view withoutBlanks(std::string_view text)
    {
        const std::size_t from = text.find_first_not_of(' ');
        if (from == std::string_view::npos)
            return {};
        return text.substr(from, text.find_last_not_of(' ') - from + 1);
    }

    std::size_t checkedRow(int r)
    {
        if (r < 0 || r >= raceTableRows)
            stopWith("an index out of range");
        return static_cast<std::size_t>(r);
    }
}

std::string padText(std::string_view text, int width, int leftPad)
{
    std::string padded(withoutBlanks(text));
    std::size_t length = characterCount(padded);
    do
    {
        padded.insert(leftPad != 0 ? padded.begin() : padded.end(), ' ');
        ++length;
    } while (static_cast<long long>(length) < width);
    return padded;
}

std::string floatText(double single)
{
    std::array<char, 64> buffer{};
    const auto number = static_cast<float>(checked(single));
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    double shortest = 0;
    std::from_chars(buffer.data(), end, shortest);
    return plainText(shortest);
}

std::string cellText(const RaceCell& cell)
{
    if (const double* number = std::get_if<double>(&cell))
        return floatText(*number);
    const std::string* text = std::get_if<std::string>(&cell);
    return text ? *text : "";
}

RaceTableRow rowOf(const RaceRecord& record)
{
    RaceTableRow row;
    row[1] = static_cast<double>(record.number);
    std::size_t field = 2;
    for (const float number : {record.hours, record.minutes, record.seconds, record.distance})
        row[field++] = checked(static_cast<double>(number));
    for (const char flag : record.flags)
        row[field++] = textOfCodePage({&flag, 1});
    row[field] = textOfCodePage({record.comment.data(), record.comment.size()});
    return row;
}

std::string raceListLine(const RaceTableRow& row, int pick)
{
    constexpr std::array<int, 5> widths{3, 4, 5, 7, 8};   // race number, hours, minutes, seconds, distance number
    std::string line = pick == 0 ? "  " : padText(plainText(pick), 2, 1);
    std::size_t field = 1;
    for (const int width : widths)
        line += padText(cellText(row[field++]), width, 1);
    for (int flag = 0; flag < raceFlags; ++flag)
        line += padText(cellText(row[field++]), 4, 1);
    return line + "  " + padText(cellText(row[field]), 15, 0);
}

RaceTableRow& raceTableRow(RaceFileState& file, int r)
{
    const std::size_t row = checkedRow(r);
    file.raceTable.resize(static_cast<std::size_t>(raceTableRows));
    return file.raceTable[row];
}

int& pickOrderOf(RaceFileState& file, int r)
{
    return file.pickOrder[checkedRow(r)];
}

void enterPick(RaceFileState& file)
{
    const int pick = file.nextSlot + 1;
    pickOrderOf(file, file.listRow) = pick;
    for (int r = 1; r < raceTableRows; ++r)
        if (r != file.listRow && pickOrderOf(file, r) == pick)
            pickOrderOf(file, r) = 0;
}

void countPick(RaceFileState& file)
{
    file.nextSlot = file.nextSlot + 1;
    file.pickedCount = file.pickedCount + 1;
    if (file.nextSlot == maxRaces)
        file.nextSlot = 0;
}
