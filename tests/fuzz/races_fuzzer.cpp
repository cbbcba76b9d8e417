#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

#include "console/race_csv.h"
#include "datafiles/code_page.h"
#include "datafiles/race_list.h"
#include "datafiles/race_record.h"
#include "model/arithmetic.h"

// Bytes as a race file and as CSV: each record is read and written as the same bytes, and shown or refused; CSV gives
// races or says which line is wrong, and what it gives comes back from CSV again.

namespace
{
    void check(bool good, const char* what)
    {
        if (good)
            return;
        std::cerr << what << '\n';
        std::abort();
    }

    bool hasNoNumber(const RaceRecord& record)
    {
        return !std::isfinite(record.hours) || !std::isfinite(record.minutes) || !std::isfinite(record.seconds) ||
               !std::isfinite(record.distance);
    }

    void readRecords(std::string_view bytes)
    {
        constexpr auto length = static_cast<std::size_t>(raceRecordLength);
        for (; bytes.size() >= length; bytes.remove_prefix(length))
        {
            const RaceRecord record = recordOfBytes(bytes.substr(0, length));
            check(bytesOf(record) == bytes.substr(0, length), "a record was changed");
            try
            {
                const std::string line = raceListLine(rowOf(record), 0);
                check(isUtf8(line) && characterCount(line) >= 70, "a line of the list is no text, or too short");
            }
            catch (const ArithmeticFault&)
            {
                check(hasNoNumber(record), "a record of numbers is refused");
            }
        }
    }

    void readCsv(std::string_view bytes)
    {
        const RaceCsv csv = racesOfCsv(bytes);
        for (const CsvRemark& error : csv.errors)
            check(error.line > 0 && !error.text.empty(), "an error without a place or a reason");
        if (!csv.errors.empty())
            return;
        const RaceCsv again = racesOfCsv(csvOf(csv.records));
        check(again.errors.empty() && again.records.size() == csv.records.size(), "what was written is refused");
        for (std::size_t i = 0; i < csv.records.size(); ++i)
            check(csvOf({again.records[i]}) == csvOf({csv.records[i]}), "a race was changed");
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    readRecords(bytes);
    readCsv(bytes);
    return 0;
}
