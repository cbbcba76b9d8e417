// The examples in the fixed sentences, against what the tables say for a bodyDrag of 60. The sentences stay as they
// are; those that the tables do not bear out are known by name.

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "power/slope_tables.h"
#include "power/treadmill_texts.h"

namespace
{
    struct Sentence
    {
        const char* name;
        int tmillMode;
        bool kilometers;
        int tmillDisplay;
        bool indoors;
        const char* says;
        const char* table;   // what the table says, where that is something else

        friend std::ostream& operator<<(std::ostream& out, const Sentence& row) { return out << row.name; }
    };

    constexpr const char* theSame = nullptr;

    class TreadmillSentence : public testing::TestWithParam<Sentence>
    {};

    /// The cell of a row that begins with a speed, in the column of 3 percent.
    std::string cellOf(const TextPage& page, const std::string& speed)
    {
        for (const std::string& line : page.lines)
            if (line.size() > 100 && line.substr(2, 4) == speed)
            {
                std::string cell = line.substr(2 + 7 * 5, 7);
                cell.erase(0, cell.find_first_not_of(' '));
                return cell.substr(0, cell.find(' '));
            }
        return "no such row";
    }

    TEST_P(TreadmillSentence, SaysWhatTheTableSaysOrIsKnownNotTo)
    {
        const Sentence& row = GetParam();
        const std::string sentence =
            treadmillTexts(row.tmillMode, row.kilometers, row.tmillDisplay, row.indoors).example;
        EXPECT_NE(sentence.find(std::string(" ") + row.says + " "), std::string::npos) << sentence;
        EXPECT_NE(sentence.find(row.kilometers ? "15.0 kilometers per hour (a 4:00 per kilometer pace)"
                                               : "9.0 miles per hour (a 6:40 per mile pace)"),
                  std::string::npos);
        ModelState state;
        state.slopeTools.tmillMode = row.tmillMode;
        state.slopeTools.tmillDisplay = row.tmillDisplay;
        TextPage page;
        printTreadmillTable(state, row.kilometers, row.indoors, page);
        EXPECT_EQ(cellOf(page, row.kilometers ? "15.0" : " 9.0"), row.table ? row.table : row.says);
    }

    INSTANTIATE_TEST_SUITE_P(
        Sixteen, TreadmillSentence,
        testing::Values(Sentence{"flat_mile_pace_outdoors", 1, false, 1, false, "6:07", "6:08"},
                        Sentence{"flat_mile_pace_indoors", 1, false, 1, true, "5:56", theSame},
                        Sentence{"flat_mile_speed_outdoors", 1, false, 2, false, "9.80", "9.79"},
                        Sentence{"flat_mile_speed_indoors", 1, false, 2, true, "10.13", theSame},
                        Sentence{"flat_km_pace_outdoors", 1, true, 1, false, "3:41", theSame},
                        Sentence{"flat_km_pace_indoors", 1, true, 1, true, "3:34", theSame},
                        Sentence{"flat_km_speed_outdoors", 1, true, 2, false, "16.28", "16.26"},
                        Sentence{"flat_km_speed_indoors", 1, true, 2, true, "16.84", theSame},
                        Sentence{"incline_mile_pace_outdoors", 2, false, 1, false, "7:20", theSame},
                        Sentence{"incline_mile_pace_indoors", 2, false, 1, true, "7:34", theSame},
                        Sentence{"incline_mile_speed_outdoors", 2, false, 2, false, "8.18", "8.19"},
                        Sentence{"incline_mile_speed_indoors", 2, false, 2, true, "7.94", theSame},
                        Sentence{"incline_km_pace_outdoors", 2, true, 1, false, "4:23", theSame},
                        Sentence{"incline_km_pace_indoors", 2, true, 1, true, "4:32", theSame},
                        Sentence{"incline_km_speed_outdoors", 2, true, 2, false, "13.69", "13.70"},
                        Sentence{"incline_km_speed_indoors", 2, true, 2, true, "13.26", theSame}),
        [](const auto& row) { return row.param.name; });

    TEST(TreadmillTexts, OfNoStateAreEmpty)
    {
        EXPECT_EQ(std::string(treadmillTexts(3, false, 1, false).title), "");
        EXPECT_EQ(std::string(treadmillTexts(1, true, 0, false).example), "");
    }

    std::string hillCell(const TextPage& page, const std::string& levelPace, std::size_t column)
    {
        for (const std::string& line : page.lines)
            if (line.size() > 100 && line.substr(3 + 8 * 6, 7) == levelPace)
                return line.substr(3 + 8 * column, 7);
        return "no such row";
    }

    TEST(HillSentences, SayWhatTheTablesSay)
    {
        ModelState state;
        TextPage page;
        printHillTable(state, false, page);   // 6 percent stands in columns 3 and 9 of scale 2
        EXPECT_EQ(hillCell(page, " 7:00  ", 9), " 9:00  ");
        EXPECT_EQ(hillCell(page, " 7:00  ", 3), " 5:52  ");
        printHillTable(state, true, page);
        EXPECT_EQ(hillCell(page, " 5:00  ", 9), " 6:34  ");
        EXPECT_EQ(hillCell(page, " 5:00  ", 3), " 4:06  ");
    }
}
