// Race records to the byte, code page 1252, and the line of the list.

#include "datafiles/race_record.h"

#include <bit>
#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "datafiles/code_page.h"
#include "datafiles/race_list.h"
#include "hex_records.h"
#include "support/case_name.h"
#include "support/faults.h"

namespace
{
    TEST(Record, IsWrittenToTheByte)
    {
        const RaceRecord record = recordOf({"1", "", "19", "20.5", "5", 3, "Parkrun, wet"});
        EXPECT_EQ(hexOf(bytesOf(record)), hexOf(parkrun()));
        EXPECT_EQ(bytesOf(record).size(), 84U);
    }

    TEST(Record, IsReadFromTheByte)
    {
        const RaceRecord record = recordOfBytes(halfMarathon());
        EXPECT_EQ(record.number, 300);
        EXPECT_EQ(record.hours, 1);
        EXPECT_EQ(record.minutes, 29);
        EXPECT_EQ(record.seconds, 30.25F);
        EXPECT_EQ(record.distance, 0);
        EXPECT_EQ(std::string(record.flags.begin(), record.flags.end()), "     X");
        EXPECT_EQ(std::string(record.comment.begin(), record.comment.end()), "Z\xfcrich" + std::string(54, ' '));
        EXPECT_EQ(recordOffset(300), 299U * 84);
    }

    TEST(Record, ThatIsCutIsFilledWithZeros)
    {
        const RaceRecord record = recordOfBytes(parkrun().substr(0, 11));
        EXPECT_EQ(record.minutes, 19);
        EXPECT_EQ(record.seconds, 0);
        EXPECT_EQ(record.comment[59], '\0');
    }

    struct NumberCase
    {
        std::string name, number;
        int stored;   // 0 for a fault
    };

    class RaceNumber : public testing::TestWithParam<NumberCase>
    {};

    TEST_P(RaceNumber, IsRoundedOrRefused)
    {
        const auto store = [] { return recordOf({GetParam().number, "", "", "", "", 0, ""}).number; };
        if (GetParam().stored > 0)
            EXPECT_EQ(store(), GetParam().stored);
        else
            EXPECT_NE(faultOf([&] { (void)store(); }), "");
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, RaceNumber,
        testing::Values(NumberCase{"one", "1", 1}, NumberCase{"tie_to_even_below", "2.5", 2},
                        NumberCase{"tie_to_even_above", "3.5", 4}, NumberCase{"of_85_bytes", "2.01190476190476", 2},
                        NumberCase{"with_a_word", "12 or so", 12}, NumberCase{"highest", "32767", 32767},
                        NumberCase{"rounded_to_the_highest", "32767.4", 32767},
                        NumberCase{"rounded_beyond", "32767.5", 0}, NumberCase{"rounded_to_zero", "0.5", 0},
                        NumberCase{"rounded_up_to_one", "0.51", 1}, NumberCase{"zero", "0", 0},
                        NumberCase{"blank", "", 0}, NumberCase{"a_word", "next", 0}, NumberCase{"negative", "-1", 0},
                        NumberCase{"beyond_16_bits", "40000", 0}, NumberCase{"beyond_a_double", "1e999", 0}),
        byName);

    TEST(Record, RefusesWhatNoFloatHolds)
    {
        const auto seconds = [](const std::string& text) { return recordOf({"1", "", "", text, "", 0, ""}).seconds; };
        EXPECT_NE(faultOf([&] { (void)seconds("1e39"); }), "");
        EXPECT_NE(faultOf([&] { (void)seconds("-1e39"); }), "");
        EXPECT_EQ(seconds("3.40282356e38"), std::numeric_limits<float>::max());   // rounds down to it
        EXPECT_EQ(seconds("0.1"), 0.1F);
        EXPECT_EQ(seconds("1e-60"), 0);
        EXPECT_EQ(seconds("fast"), 0);
    }

    TEST(Comment, IsCutAt60Characters)
    {
        const std::string sixty(60, 'c');
        const RaceRecord record = recordOf({"1", "", "", "", "", 1, sixty + "d"});
        EXPECT_EQ(std::string(record.comment.begin(), record.comment.end()), sixty);
        EXPECT_EQ(bytesOf(record).size(), 84U);
    }

    TEST(CodePage, HasABytePerCharacter)
    {
        EXPECT_EQ(codePageOf("Z\u00fcrich \u20ac5 \u2018x\u2019 \u0178"), "Z\xfcrich \x80"
                                                                          "5 \x91x\x92 \x9f");
        EXPECT_EQ(textOfCodePage("Z\xfcrich \x80"
                                 "5"),
                  "Z\u00fcrich \u20ac5");
    }

    TEST(CodePage, PutsAQuestionMarkForWhatItHasNot)
    {
        EXPECT_EQ(codePageOf("\u0141\u00f3d\u017a \U0001F3C3"), "?\xf3"
                                                                "d? ?");
        EXPECT_EQ(codePageOf("a\xff\xc3"), "a??");
        EXPECT_EQ(codePageOf("\xed\xa0\x80"), "???");   // half of a pair
        EXPECT_EQ(codePageOf("\xc1\x81"), "??");        // a letter in too many bytes
    }

    TEST(CodePage, ShowsControlCharactersAsBlanks)
    {
        EXPECT_EQ(textOfCodePage(std::string("a\0b\tc\x7f", 6)), "a b c ");
    }

    TEST(CodePage, KeepsControlCharactersWhereTheyAreStored)
    {
        for (int byte = 0; byte < 0x20; ++byte)
            EXPECT_EQ(codePageOf(std::string(1, static_cast<char>(byte))), std::string(1, static_cast<char>(byte)));
        EXPECT_EQ(codePageOf("a\tb\r\nc\x7f"), "a\tb\r\nc\x7f");
    }

    TEST(CodePage, KeepsEveryByteThatShows)
    {
        for (int byte = 0x20; byte < 0x100; ++byte)
        {
            const std::string bytes(1, static_cast<char>(byte));
            EXPECT_EQ(codePageOf(textOfCodePage(bytes)), byte == 0x7F ? " " : bytes) << byte;
            EXPECT_TRUE(isUtf8(textOfCodePage(bytes))) << byte;
            EXPECT_EQ(characterCount(textOfCodePage(bytes)), 1U) << byte;
        }
    }

    struct PadCase
    {
        std::string name, text;
        int width, leftPad;
        std::string padded;
    };

    class PadText : public testing::TestWithParam<PadCase>
    {};

    TEST_P(PadText, AddsABlankAtTheLeast)
    {
        const PadCase& row = GetParam();
        EXPECT_EQ(padText(row.text, row.width, row.leftPad), row.padded);
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, PadText,
        testing::Values(PadCase{"in_front", "7", 3, 1, "  7"}, PadCase{"behind", "7", 3, 0, "7  "},
                        PadCase{"any_number_in_front", "7", 3, -1, "  7"}, PadCase{"full", "1234", 4, 1, " 1234"},
                        PadCase{"too_long", "12345678", 4, 0, "12345678 "}, PadCase{"of_nothing", "", 4, 1, "    "},
                        PadCase{"of_blanks", "     ", 2, 1, "  "},
                        PadCase{"without_its_blanks", " a b ", 6, 1, "   a b"}, PadCase{"no_width", "x", 0, 0, "x "},
                        PadCase{"negative_width", "", -5, 1, " "},
                        PadCase{"counts_characters", "\u00fc\u00fc", 4, 0, "\u00fc\u00fc  "}),
        byName);

    struct FloatCase
    {
        std::string name;
        float number;
        std::string text;
    };

    class FloatText : public testing::TestWithParam<FloatCase>
    {};

    TEST_P(FloatText, IsTheShortest)
    {
        EXPECT_EQ(floatText(GetParam().number), GetParam().text);
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, FloatText,
                             testing::Values(FloatCase{"whole", 19, "19"}, FloatCase{"with_its_zero", 0.5F, "0.5"},
                                             FloatCase{"tenth", 20.1F, "20.1"},
                                             FloatCase{"third", 1.0F / 3, "0.33333334"},
                                             FloatCase{"negative", -0.25F, "-0.25"}, FloatCase{"zero", 0, "0"},
                                             FloatCase{"minus_zero", -0.0F, "0"},
                                             FloatCase{"half_marathon", 21.0975F, "21.0975"},
                                             FloatCase{"large", 16777216.0F, "16777216"},
                                             FloatCase{"largest", std::numeric_limits<float>::max(), "3.4028235E+38"},
                                             FloatCase{"smallest", std::numeric_limits<float>::denorm_min(), "1E-45"}),
                             byName);

    TEST(ListLine, HasItsColumns)
    {
        EXPECT_EQ(raceListLine(rowOf(recordOfBytes(parkrun())), 0),
                  "    1   0   19   20.5       5           X              Parkrun, wet   ");
        EXPECT_EQ(raceListLine(rowOf(recordOfBytes(halfMarathon())), 4),
                  " 4 300   1   29  30.25       0                       X  Z\u00fcrich         ");
    }

    TEST(ListLine, OfZerosShowsThem)
    {
        EXPECT_EQ(raceListLine(rowOf(recordOfBytes("")), 0),
                  "    0   0    0      0       0" + std::string(24 + 2 + 15, ' '));
    }

    TEST(ListLine, OfARowWithoutAnythingIsBlank)
    {
        EXPECT_EQ(raceListLine({}, 0), std::string(70, ' '));
    }

    TEST(ListLine, ShowsALongCommentWhole)
    {
        const RaceRecord record = recordOf({"1", "", "", "", "", 1, std::string(61, 'c')});
        EXPECT_TRUE(raceListLine(rowOf(record), 0).ends_with("  " + std::string(60, 'c') + " "));
    }

    TEST(Row, RefusesWhatIsNoNumber)
    {
        RaceRecord record;
        record.seconds = std::numeric_limits<float>::quiet_NaN();
        EXPECT_NE(faultOf([&] { (void)rowOf(record); }), "");
        record.seconds = std::numeric_limits<float>::infinity();
        EXPECT_NE(faultOf([&] { (void)rowOf(record); }), "");
    }

    TEST(Table, HasNoRowBeyond99)
    {
        RaceFileState file;
        EXPECT_EQ(faultOf([&] { (void)raceTableRow(file, 99); }), "");
        for (const int r : {100, -1, 40000})
        {
            EXPECT_EQ(faultOf([&] { (void)raceTableRow(file, r); }), "an index out of range");
            EXPECT_EQ(faultOf([&] { (void)pickOrderOf(file, r); }), "an index out of range");
        }
    }

    RC_GTEST_PROP(Records, ComeBackByteForByte, (const std::string& drawn))
    {
        std::string bytes = drawn;
        bytes.resize(84, '\x01');
        RC_ASSERT(bytesOf(recordOfBytes(bytes)) == bytes);
    }

    RC_GTEST_PROP(FloatTexts, ReadBackAsTheSameFloat, (std::uint32_t bits))
    {
        const auto number = std::bit_cast<float>(bits);
        RC_PRE(std::isfinite(number));
        RC_ASSERT(static_cast<float>(std::stod(floatText(number))) == number);
    }

    RC_GTEST_PROP(PaddedText, IsTheTextWithBlanks, (const std::string& text))
    {
        const int width = *rc::gen::inRange(-5, 40);
        const int leftPad = *rc::gen::inRange(0, 2);
        const std::string padded = padText(text, width, leftPad);
        RC_ASSERT(static_cast<int>(characterCount(padded)) >= width);
        RC_ASSERT((leftPad != 0 ? padded.front() : padded.back()) == ' ');
        RC_ASSERT(padText(padded, width, leftPad) == padded);
    }
}
