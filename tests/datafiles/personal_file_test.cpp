// Personal data files, line by line.

#include "datafiles/personal_file.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "support/case_name.h"
#include "support/faults.h"

namespace
{
    using testing::ElementsAre;

    TEST(PersonalFile, HasNineLines)
    {
        const PersonalData data{"Ann Example", "44.5", 132, 66, false, true, "181", "50 or so", 35};
        EXPECT_EQ(bytesOf(data),
                  "Ann Example\r\n44.5\r\n 132 \r\n 66 \r\nFalse\r\nTrue\r\n181\r\n50 or so\r\n 35 \r\n");
    }

    TEST(PersonalFile, KeepsEachTextOnItsLine)
    {
        EXPECT_TRUE(bytesOf(PersonalData{.txtname = "Ann\r\nB"}).starts_with("Ann  B\r\n\r\n"));
    }

    struct FieldsCase
    {
        std::string name, bytes;
        std::vector<std::string> fields;
    };

    class Fields : public testing::TestWithParam<FieldsCase>
    {};

    TEST_P(Fields, AreRead)
    {
        EXPECT_EQ(personalFieldsOf(GetParam().bytes), GetParam().fields);
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, Fields,
        testing::Values(FieldsCase{"none", "", {}}, FieldsCase{"one", "Ann", {"Ann"}},
                        FieldsCase{"line_feeds", "Ann\n44\n", {"Ann", "44"}},
                        FieldsCase{"carriage_returns", "Ann\r44\r\n50", {"Ann", "44", "50"}},
                        FieldsCase{"empty_lines", "\r\n\r\nx\r\n", {"", "", "x"}},
                        FieldsCase{"blanks_before", "   Ann\r\n 132 \r\n", {"Ann", "132 "}},
                        FieldsCase{"comma_in_the_name", "Smith, Bo\r\n52\r\n", {"Smith", "Bo", "52"}},
                        FieldsCase{"quotation_marks", "\"Smith, Bo\"\r\n", {"\"Smith", "Bo\""}},
                        FieldsCase{"code_page", "Z\xfcrich\r\n\x80\r\n", {"Z\u00fcrich", "\u20ac"}},
                        FieldsCase{"utf8", "Z\u00fcrich\r\n", {"Z\u00fcrich"}},
                        FieldsCase{"each_for_itself", "Z\u00fcrich\r\n\x80\r\n", {"Z\u00fcrich", "\u20ac"}},
                        FieldsCase{"byte_order_mark", "\xEF\xBB\xBF Ann\r\n44\r\n", {"Ann", "44"}},
                        FieldsCase{"cut_in_a_character_of_two", "Ann\r\nZ\xc3", {"Ann", "Z"}},
                        FieldsCase{"cut_in_a_character_of_three", "\u6771\xe6\x9d", {"\u6771"}},
                        FieldsCase{"cut_in_a_character_of_four", "x\xf0\x9f\x8f", {"x"}},
                        FieldsCase{"cut_behind_a_character", "\u6771", {"\u6771"}},
                        FieldsCase{"cut_in_the_code_page", "\xfc\xe9", {"\u00fc\u00e9"}},
                        FieldsCase{"no_cut_before_a_line_end", "Z\xc3\r\n", {"Z\u00c3"}},
                        FieldsCase{"more_than_nine",
                                   "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n",
                                   {"1", "2", "3", "4", "5", "6", "7", "8", "9"}}),
        byName);

    TEST(ScrollValue, IsHeldWithinItsBar)
    {
        EXPECT_EQ(scrollValueOf("132 ", 30, 300), 132);
        EXPECT_EQ(scrollValueOf("132.5", 30, 300), 132);   // a tie goes to the even one
        EXPECT_EQ(scrollValueOf("29", 30, 300), 30);
        EXPECT_EQ(scrollValueOf("1e300", 30, 300), 300);
        EXPECT_EQ(scrollValueOf("-1e300", 30, 300), 30);
        EXPECT_EQ(scrollValueOf("heavy", 30, 300), 30);
        EXPECT_EQ(scrollValueOf("", 0, 150), 0);
        EXPECT_NE(faultOf([] { (void)scrollValueOf("1e999", 0, 150); }), "");
    }

    TEST(Truth, IsAWordOrANumber)
    {
        for (const char* text : {"True", "TRUE", "true", "tRuE  ", "1", "-1", "0.5", "2x"})
            EXPECT_TRUE(truthOf(text)) << text;
        for (const char* text : {"False", "false", "0", "", "yes", "truer", "\"True\"", "0.0"})
            EXPECT_FALSE(truthOf(text)) << text;
        EXPECT_NE(faultOf([] { (void)truthOf("1e999"); }), "");
    }

    RC_GTEST_PROP(PersonalData, ComesBackWhereNoTextHasACommaOrALineEnd, ())
    {
        const auto text = rc::gen::map(rc::gen::string<std::string>(), [](std::string drawn) {
            std::erase_if(drawn, [](char c) { return c == ',' || c == '\r' || c == '\n' || (c & 0x80) != 0; });
            return "x" + drawn;   // blanks before it would be skipped
        });
        PersonalData data;
        for (std::string* const field : {&data.txtname, &data.txtage, &data.actmhrtx, &data.resthrtx})
            *field = *text;
        data.wtscrl = *rc::gen::inRange(30, 301);
        data.htscrl = *rc::gen::inRange(36, 91);
        data.optfemale = *rc::gen::arbitrary<bool>();
        data.HScroll1 = *rc::gen::inRange(0, 151);
        const std::vector<std::string> fields = personalFieldsOf(bytesOf(data));
        RC_ASSERT(fields.size() == 9U);
        RC_ASSERT(fields[0] == data.txtname);
        RC_ASSERT(fields[1] == data.txtage);
        RC_ASSERT(scrollValueOf(fields[2], 30, 300) == data.wtscrl);
        RC_ASSERT(scrollValueOf(fields[3], 36, 90) == data.htscrl);
        RC_ASSERT(truthOf(fields[4]) == data.optmale);
        RC_ASSERT(truthOf(fields[5]) == data.optfemale);
        RC_ASSERT(fields[6] == data.actmhrtx);
        RC_ASSERT(fields[7] == data.resthrtx);
        RC_ASSERT(scrollValueOf(fields[8], 0, 150) == data.HScroll1);
    }
}
