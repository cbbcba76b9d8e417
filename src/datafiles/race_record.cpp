#include "datafiles/race_record.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

#include "datafiles/code_page.h"
#include "model/arithmetic.h"
#include "model/text.h"

namespace
{
    std::int16_t raceNumberOf(const std::string& text)
    {
        const double number = roundHalfEven(val(text));
        if (!(number >= 1 && number <= highestRaceNumber))
            stopWith("a race number outside 1 to 32767");
        return static_cast<std::int16_t>(number);
    }

    float floatOf(const std::string& text)
    {
        const double number = val(text);
        // the nearest float of what is more than half a last place above the largest one would be infinite
        constexpr double beyondFloats = 0x1.ffffffp127;
        if (std::abs(number) >= beyondFloats)
            stopWith("an overflow (a number is too large for the file)");
        return static_cast<float>(number);
    }

    /// Adds and takes fields one after the other.
    struct Bytes
    {
        std::string bytes = {};
        std::size_t at = 0;

        void add(std::uint32_t value, std::size_t size)
        {
            for (std::size_t i = 0; i < size; ++i)
                bytes += static_cast<char>((value >> (8 * i)) & 0xFF);
        }
        void add(float value) { add(std::bit_cast<std::uint32_t>(value), sizeof value); }

        std::uint32_t take(std::size_t size)
        {
            std::uint32_t value = 0;
            for (std::size_t i = 0; i < size; ++i)
                value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + i])) << (8 * i);
            at += size;
            return value;
        }
        float takeFloat() { return std::bit_cast<float>(take(sizeof(float))); }

        template <class Field>
        void takeInto(Field& field)
        {
            std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), field.size(), field.begin());
            at += field.size();
        }
    };
}

std::array<char, raceCommentLength> commentField(std::string_view text)
{
    std::array<char, raceCommentLength> field{};
    field.fill(' ');
    const std::string bytes = codePageOf(text);
    std::copy_n(bytes.begin(), std::min(bytes.size(), field.size()), field.begin());
    return field;
}

RaceRecord recordOf(const RaceEntries& entries)
{
    RaceRecord record;
    record.number = raceNumberOf(entries.number);
    record.hours = floatOf(entries.hours);
    record.minutes = floatOf(entries.minutes);
    record.seconds = floatOf(entries.seconds);
    record.distance = floatOf(entries.distance);
    for (int i = 0; i < raceFlags; ++i)
        record.flags[static_cast<std::size_t>(i)] = entries.unit == i + 1 ? 'X' : ' ';
    record.comment = commentField(entries.comment);
    return record;
}

std::string bytesOf(const RaceRecord& record)
{
    Bytes fields;
    fields.add(static_cast<std::uint16_t>(record.number), sizeof record.number);
    for (const float number : {record.hours, record.minutes, record.seconds, record.distance})
        fields.add(number);
    fields.bytes.append(record.flags.begin(), record.flags.end());
    fields.bytes.append(record.comment.begin(), record.comment.end());
    return fields.bytes;
}

RaceRecord recordOfBytes(std::string_view bytes)
{
    Bytes fields{std::string(bytes)};
    fields.bytes.resize(static_cast<std::size_t>(raceRecordLength), '\0');
    RaceRecord record;
    record.number = static_cast<std::int16_t>(fields.take(sizeof record.number));
    for (float* const number : {&record.hours, &record.minutes, &record.seconds, &record.distance})
        *number = fields.takeFloat();
    fields.takeInto(record.flags);
    fields.takeInto(record.comment);
    return record;
}
