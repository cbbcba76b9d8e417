#include "splits/pasted_splits.h"

#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "forms/pasted_cells.h"
#include "support/case_name.h"

namespace
{
    using Rows = std::vector<SplitTexts>;
    constexpr auto distance = SplitColumn::distance;
    constexpr auto minutes = SplitColumn::minutes;
    constexpr auto seconds = SplitColumn::seconds;

    struct PasteCase
    {
        std::string name;
        SplitColumn cursor;
        std::string text;
        Rows rows;

        friend std::ostream& operator<<(std::ostream& out, const PasteCase& row) { return out << row.name; }
    };

    SplitTexts onlyDistance(const char* d)
    {
        return {d, {}, {}};
    }
    SplitTexts onlyTime(const char* m, const char* s)
    {
        return {{}, m, s};
    }

    class Pasted : public testing::TestWithParam<PasteCase>
    {};

    TEST_P(Pasted, BecomesRows)
    {
        const auto& [name, cursor, text, rows] = GetParam();
        const Rows got = pastedSplits(pastedCells(text), cursor);
        ASSERT_EQ(got.size(), rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i)
        {
            EXPECT_EQ(got[i].distance, rows[i].distance) << "row " << i;
            EXPECT_EQ(got[i].minutes, rows[i].minutes) << "row " << i;
            EXPECT_EQ(got[i].seconds, rows[i].seconds) << "row " << i;
        }
    }

    INSTANTIATE_TEST_SUITE_P(
        Columns, Pasted,
        testing::Values(
            PasteCase{"distances",
                      distance,
                      "400\n800\n1200\n",
                      {onlyDistance("400"), onlyDistance("800"), onlyDistance("1200")}},
            PasteCase{"distances with a gap",
                      distance,
                      "400\r\n\r\n1200\r\n",
                      {onlyDistance("400"), onlyDistance(""), onlyDistance("1200")}},
            PasteCase{"times m:s", distance, "1:15\n1:05.3\n", {onlyTime("1", "15"), onlyTime("1", "5.3")}},
            PasteCase{"times h:m:s", minutes, "1:02:03\n0:59:59.9\n", {onlyTime("62", "3"), onlyTime("59", "59.9")}},
            PasteCase{"time without minutes", seconds, ":45\n:50", {onlyTime("", "45"), onlyTime("", "50")}},
            PasteCase{"minutes", minutes, "1\n2\n", {{{}, "1", {}}, {{}, "2", {}}}},
            PasteCase{"seconds", seconds, "75\n76.5\n", {{{}, {}, "75"}, {{}, {}, "76.5"}}},
            PasteCase{"minutes and seconds", minutes, "1\t15\n2\t3.5\n", {onlyTime("1", "15"), onlyTime("2", "3.5")}}),
        byName);

    INSTANTIATE_TEST_SUITE_P(
        Tables, Pasted,
        testing::Values(
            PasteCase{"distance and m:s", distance, "400\t1:15\n800\t2:31\n", {{"400", "1", "15"}, {"800", "2", "31"}}},
            PasteCase{
                "distance and seconds", distance, "400\t75.3\n200\t35", {{"400", "1", "15.3"}, {"200", "", "35"}}},
            PasteCase{"distance minutes seconds",
                      distance,
                      "400\t1\t15\n400\t1\t16",
                      {{"400", "1", "15"}, {"400", "1", "16"}}},
            PasteCase{"commas", distance, "400,1:15\n800,2:31\n", {{"400", "1", "15"}, {"800", "2", "31"}}},
            PasteCase{"semicolons and decimal commas",
                      distance,
                      "0,4;1:15,5\n1,5;6:00",
                      {{"0.4", "1", "15.5"}, {"1.5", "6", "0"}}},
            PasteCase{"blanks", distance, "  400   1:15\n  800   2:31  ", {{"400", "1", "15"}, {"800", "2", "31"}}},
            PasteCase{"hard blanks",
                      distance,
                      "400\t\xC2\xA0"
                      "1:15\xC2\xA0",
                      {{"400", "1", "15"}}},
            PasteCase{"time before distance", distance, "1:15\t400", {{"400", "1", "15"}}},
            PasteCase{"lap numbers first",
                      distance,
                      "1\t1.00\t4:05\t4:05\n2\t1.00\t4:10\t4:10",
                      {{"1.00", "4", "5"}, {"1.00", "4", "10"}}},
            PasteCase{"lap words first",
                      distance,
                      "Lap 1\t400\t1:15\nLap 2\t400\t1:16",
                      {{"400", "1", "15"}, {"400", "1", "16"}}},
            PasteCase{"headings",
                      distance,
                      "Lap,Time,Cumulative Time,Distance km,Pace\n1,4:05,4:05,1.00,4:05\n",
                      {{"1.00", "4", "5"}}},
            PasteCase{"short headings",
                      distance,
                      "Distance,Min,Sec\n400,1,15\n300,1,5\n",
                      {{"400", "1", "15"}, {"300", "1", "5"}}},
            PasteCase{"heading of a duration",
                      distance,
                      "Lap\tDuration\tMoving Time\tDistance\n1\t245\t240\t1000\n",
                      {{"1000", "4", "5"}}},
            PasteCase{"headings that name no time",
                      distance,
                      "Distance\tRun\n400\t1:15\n300\t1:05\n",
                      {{"400", "1", "15"}, {"300", "1", "5"}}},
            PasteCase{"a table of its own",
                      distance,
                      "Split,Distance,Minutes,Seconds,Min/mile,Sec/400 m,Even Split Times\n"
                      "1,400,1,15,5:02,1:15,1:19\n3,300,1,5,5:49,1:27,59.0\n",
                      {{"400", "1", "15"}, {"300", "1", "5"}}},
            PasteCase{"summary last",
                      distance,
                      "Laps\tTime\tDistance\n1\t4:05\t1.00\nSummary\t4:05\t1.00\n",
                      {{"1.00", "4", "5"}}},
            PasteCase{
                "quoted", distance, "\"400\",\"1:15\"\n\"800\",\"2:31\"", {{"400", "1", "15"}, {"800", "2", "31"}}},
            PasteCase{"from the minutes on no distance", minutes, "400\t1:15", {onlyTime("1", "15")}},
            PasteCase{"missing cells",
                      distance,
                      "400\t1:15\n800\n\t2:31",
                      {{"400", "1", "15"}, {"800", "", ""}, {"", "2", "31"}}},
            PasteCase{"words among numbers", distance, "400\t1:15\n800\tDNF", {{"400", "1", "15"}, {"800", "", ""}}}),
        byName);

    INSTANTIATE_TEST_SUITE_P(
        Nothing, Pasted,
        testing::Values(PasteCase{"empty", distance, "", {}}, PasteCase{"line ends", distance, "\n\r\n\r", {}},
                        PasteCase{"words", distance, "hello world\nthis is no table", {}},
                        PasteCase{"signs and exponents", distance, "-5\t1e5\n+3\tinf", {}},
                        PasteCase{
                            "far too long a number", distance, std::string(100, '9') + "\t" + std::string(70, '1'), {}},
                        PasteCase{"clock of four parts", distance, "1:2:3:4\tx", {}},
                        PasteCase{"colons alone", distance, ":\t::\t1:", {}},
                        PasteCase{"headings alone", distance, "Distance\tTime\n", {}}),
        byName);

    struct CommaCase
    {
        std::string name;
        std::string text;
        std::vector<std::vector<std::string>> parted, decimal;

        friend std::ostream& operator<<(std::ostream& out, const CommaCase& row) { return out << row.name; }
    };

    class CommasOf : public testing::TestWithParam<CommaCase>
    {};

    TEST_P(CommasOf, PartCellsOrAreDecimal)
    {
        EXPECT_EQ(pastedCells(GetParam().text), GetParam().parted);
        EXPECT_EQ(pastedCells(GetParam().text, Commas::maybeDecimal), GetParam().decimal);
    }

    INSTANTIATE_TEST_SUITE_P(
        Texts, CommasOf,
        testing::Values(
            CommaCase{"one in each line", "75,3\n76,1\n", {{"75", "3"}, {"76", "1"}}, {{"75.3"}, {"76.1"}}},
            CommaCase{"a whole number and a gap",
                      "75,3\r\n76\r\n\r\n9,5",
                      {{"75", "3"}, {"76"}, {}, {"9", "5"}},
                      {{"75.3"}, {"76"}, {}, {"9.5"}}},
            CommaCase{"behind a colon", "1:15,5\n1:16,2", {{"1:15", "5"}, {"1:16", "2"}}, {{"1:15.5"}, {"1:16.2"}}},
            CommaCase{"before a colon",
                      "400,1:15\n800,2:31",
                      {{"400", "1:15"}, {"800", "2:31"}},
                      {{"400", "1:15"}, {"800", "2:31"}}},
            CommaCase{"two in a line", "75,3\n1,2,3", {{"75", "3"}, {"1", "2", "3"}}, {{"75", "3"}, {"1", "2", "3"}}},
            CommaCase{"not between digits", "75,3\n1,", {{"75", "3"}, {"1", ""}}, {{"75", "3"}, {"1", ""}}},
            CommaCase{"first of a line", "75,3\n,1", {{"75", "3"}, {"", "1"}}, {{"75", "3"}, {"", "1"}}},
            CommaCase{"tabs as well", "75,3\t1,5", {{"75.3", "1.5"}}, {{"75.3", "1.5"}}}),
        byName);

    TEST(PastedCells, AreBounded)
    {
        const std::string wide(5000, '\t');
        EXPECT_LE(pastedCells("1" + wide + "2").front().size(), mostPastedCells + 1);
        std::string tall;
        for (int i = 0; i < 100000; ++i)
            tall += "1\t2\n";
        EXPECT_LE(pastedCells(tall).size(), longestPaste / 4 + 1);
        EXPECT_EQ(pastedCells("\"open quote\t1\n2\t3").size(), 2U);
    }

    TEST(TimeTexts, PartMinutesAndSeconds)
    {
        EXPECT_EQ(timeTexts(75.3), (SplitTexts{{}, "1", "15.3"}));
        EXPECT_EQ(timeTexts(59.9), (SplitTexts{{}, "", "59.9"}));
        EXPECT_EQ(timeTexts(60), (SplitTexts{{}, "1", "0"}));
        EXPECT_EQ(timeTexts(3725), (SplitTexts{{}, "62", "5"}));
    }

    RC_GTEST_PROP(PastedText, OfAnyBytesLeavesNumbersOrNothing, (const std::string& text, int column))
    {
        const auto cursor = static_cast<SplitColumn>(std::abs(column % 3));
        for (const SplitTexts& row : pastedSplits(pastedCells(text), cursor))
            for (const auto& box : {row.distance, row.minutes, row.seconds})
                RC_ASSERT(box.value_or("").find_first_not_of("0123456789.E+") == std::string::npos);
    }
}
