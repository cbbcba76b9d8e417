// Races and distances in words.

#include "console/race_text.h"

#include <string>

#include <gtest/gtest.h>

#include "support/case_name.h"

namespace
{
    struct GoodRace
    {
        const char* name;
        const char* text;
        const char* number;
        RaceUnit unit;
        const char *hours, *minutes, *seconds;
    };

    class RaceText : public testing::TestWithParam<GoodRace>
    {};

    TEST_P(RaceText, IsRead)
    {
        const GoodRace& expected = GetParam();
        std::string wrong;
        const auto race = readRace(expected.text, wrong);
        ASSERT_TRUE(race) << wrong;
        EXPECT_TRUE(race->use);
        EXPECT_EQ(race->number, expected.number);
        EXPECT_EQ(race->unit, expected.unit);
        EXPECT_EQ(race->hours, expected.hours);
        EXPECT_EQ(race->minutes, expected.minutes);
        EXPECT_EQ(race->seconds, expected.seconds);
    }

    INSTANTIATE_TEST_SUITE_P(
        Good, RaceText,
        testing::Values(GoodRace{"minutes_and_seconds", "10 km 40:00", "10", RaceUnit::kilometers, "", "40", "00"},
                        GoodRace{"marathon", "marathon 3:05:10", "", RaceUnit::marathon, "3", "05", "10"},
                        GoodRace{"half", "half 1:29:30", "", RaceUnit::halfMarathon, "1", "29", "30"},
                        GoodRace{"seconds_alone", "5000 m 1200", "5000", RaceUnit::meters, "", "", "1200"},
                        GoodRace{"tenths", "100 m 11.25", "100", RaceUnit::meters, "", "", "11.25"},
                        GoodRace{"tenths_of_minutes", "1 mi 4:29.5", "1", RaceUnit::miles, "", "4", "29.5"},
                        GoodRace{"yards", "440 yd 59.9", "440", RaceUnit::yards, "", "", "59.9"},
                        GoodRace{"fraction_of_a_unit", ".5 mi 2:10", ".5", RaceUnit::miles, "", "2", "10"},
                        GoodRace{"many_minutes", "half 95:00", "", RaceUnit::halfMarathon, "", "95", "00"},
                        GoodRace{"blanks_and_tabs", "  10   km\t40:00 ", "10", RaceUnit::kilometers, "", "40", "00"},
                        GoodRace{"capitals", "10 KM 40:00", "10", RaceUnit::kilometers, "", "40", "00"},
                        GoodRace{"time_of_zero", "10 km 0:00", "10", RaceUnit::kilometers, "", "0", "00"},
                        GoodRace{"negative_distance", "-5 km 20:00", "-5", RaceUnit::kilometers, "", "20", "00"}),
        byName);

    struct BadText
    {
        const char* name;
        std::string text;
        const char* wrongWord;   // as the error must name it
    };

    class BadRaceText : public testing::TestWithParam<BadText>
    {};

    TEST_P(BadRaceText, NamesTheWrongWord)
    {
        std::string wrong;
        EXPECT_FALSE(readRace(GetParam().text, wrong));
        EXPECT_NE(wrong.find(GetParam().wrongWord), std::string::npos) << wrong;
    }

    INSTANTIATE_TEST_SUITE_P(
        Bad, BadRaceText,
        testing::Values(BadText{"empty", "", "the distance is missing"},
                        BadText{"blanks", "  \t ", "the distance is missing"},
                        BadText{"letter_in_the_time", "10 km 4o:00", "\"4o:00\" is not a time"},
                        BadText{"letter_in_the_number", "1o km 40:00", "\"1o\" is not a number"},
                        BadText{"comma_in_the_number", "10,5 km 40:00", "\"10,5\" is not a number"},
                        BadText{"unknown_unit", "10 furlongs 40:00", "\"furlongs\" is not a unit"},
                        BadText{"unit_without_a_blank", "10km 40:00", "\"10km\" is not a number"},
                        BadText{"no_unit", "10 40:00", "\"40:00\" is not a unit"},
                        BadText{"number_alone", "10", "the unit behind \"10\" is missing"},
                        BadText{"no_time", "10 km", "the time is missing"},
                        BadText{"marathon_without_a_time", "marathon", "the time is missing"},
                        BadText{"marathon_with_a_number", "1 marathon 3:05:10", "\"1\" is one word too many"},
                        BadText{"a_word_behind", "10 km 40:00 fast", "\"fast\" is one word too many"},
                        BadText{"a_second_time", "half 1:29:30 1:30:00", "\"1:30:00\" is one word too many"},
                        BadText{"four_parts", "10 km 1:0:40:00", "\"1:0:40:00\" is not a time"},
                        BadText{"empty_part", "10 km 40:", "\"40:\" is not a time"},
                        BadText{"colon_alone", "10 km :", "\":\" is not a time"},
                        BadText{"point_without_decimals", "10 km 40:00.", "\"40:00.\" is not a time"},
                        BadText{"decimals_in_minutes", "10 km 39.5:00", "\"39.5:00\" is not a time"},
                        BadText{"two_points", "100 m 11.2.5", "\"11.2.5\" is not a time"},
                        BadText{"seconds_of_60", "10 km 39:60", "\"39:60\" is not a time"},
                        BadText{"minutes_of_60", "marathon 2:60:00", "\"2:60:00\" is not a time"},
                        BadText{"negative_time", "10 km -40:00", "\"-40:00\" is not a time"},
                        BadText{"exponent_in_the_time", "10 km 2e3", "\"2e3\" is not a time"},
                        BadText{"infinity", "inf km 40:00", "\"inf\" is not a number"},
                        BadText{"control_characters", "10 km 4\x1b[2J", "\"4?[2J\" is not a time"},
                        BadText{"not_utf8", "10 km \xff\xfe", "\"??\" is not a time"},
                        BadText{"nul", std::string("10 km 40:00\0", 12), "\"40:00?\" is not a time"}),
        byName);

    TEST(BadRaceText, CutsWhatIsTooLongToShow)
    {
        std::string wrong;
        EXPECT_FALSE(readRace("10 km " + std::string(100000, 'x'), wrong));
        EXPECT_LT(wrong.size(), 200U);
        EXPECT_NE(wrong.find("xxx...\" is not a time"), std::string::npos) << wrong;
    }

    struct GoodDistance
    {
        const char* name;
        const char* text;
        const char* label;
        double metres;
    };

    class DistanceText : public testing::TestWithParam<GoodDistance>
    {};

    TEST_P(DistanceText, IsReadAndLabelled)
    {
        std::string wrong;
        const auto distance = readDistance(GetParam().text, wrong);
        ASSERT_TRUE(distance) << wrong;
        EXPECT_EQ(distance->label, GetParam().label);
        EXPECT_DOUBLE_EQ(distance->distance, GetParam().metres);
    }

    INSTANTIATE_TEST_SUITE_P(Good, DistanceText,
                             testing::Values(GoodDistance{"kilometers", "15 km", "      15 km ", 15000},
                                             GoodDistance{"fraction", "7.50 mi", "     7.5 mi ", 7.5 * 1609.344},
                                             GoodDistance{"meters", "+600 m", "     600 m ", 600},
                                             GoodDistance{"yards", "100 yd", "     100 yd ", 91.44},
                                             GoodDistance{"half", "half", " half mara. ", 21097.5},
                                             GoodDistance{"marathon", "Marathon", "  marathon  ", 42195},
                                             GoodDistance{"wide_number", "1234.56789 km", "1234.56789 km ",
                                                          1234567.89}),
                             byName);

    class BadDistanceText : public testing::TestWithParam<BadText>
    {};

    TEST_P(BadDistanceText, NamesTheWrongWord)
    {
        std::string wrong;
        EXPECT_FALSE(readDistance(GetParam().text, wrong));
        EXPECT_NE(wrong.find(GetParam().wrongWord), std::string::npos) << wrong;
    }

    INSTANTIATE_TEST_SUITE_P(
        Bad, BadDistanceText,
        testing::Values(BadText{"empty", "", "the distance is missing"},
                        BadText{"zero", "0 km", "\"0\" is no number above 0"},
                        BadText{"negative", "-1 km", "\"-1\" is no number above 0"},
                        BadText{"overflow", "1e999 km", "\"1e999\" is no number above 0"},
                        BadText{"overflow_in_metres", "1e308 km", "\"1e308\" is no number above 0"},
                        BadText{"with_a_time", "15 km 1:00:00", "\"1:00:00\" is one word too many"},
                        BadText{"no_unit", "15", "the unit behind \"15\" is missing"},
                        BadText{"unknown_unit", "15 k", "\"k\" is not a unit"}),
        byName);
}
