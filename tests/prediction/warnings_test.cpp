// Warnings of extrapolation, what they say and how often, and the message about the age.

#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "prediction/calculate.h"
#include "support/case_name.h"
#include "support/runners.h"

namespace
{
    const Message under1500{"LONGEST RACE UNDER 1500 METERS - EXTRAPOLATION TO LONGER DISTANCES UNCERTAIN.",
                            "Questionable extrapolation"};
    const Message under800{"LONGEST RACE UNDER 800 METERS - EXTRAPOLATION TO LONGER DISTANCES VERY UNCERTAIN.",
                           "Very questionable extrapolation"};
    const Message over10000{"SHORTEST RACE OVER 10 KM - EXTRAPOLATION TO SHORTER DISTANCES UNCERTAIN.",
                            "Questionable extrapolation"};

    struct WarningCase
    {
        std::string name;
        CalculationInput input;
        Messages messages;   // of Re-Calculate with metric output

        friend std::ostream& operator<<(std::ostream& out, const WarningCase& row) { return out << row.name; }
    };

    class Extrapolation : public testing::TestWithParam<WarningCase>
    {};

    TEST_P(Extrapolation, IsWarnedOfOnceARecalculation)
    {
        Prediction prediction = recalculated(GetParam().input);
        EXPECT_EQ(prediction.messages, GetParam().messages);
        EXPECT_EQ(prediction.state.flags.warnedExtrapolation, GetParam().messages.empty() ? 0 : 1);
        prediction.messages.clear();
        prediction.start(recalculate, GetParam().input);
        EXPECT_EQ(prediction.messages, GetParam().messages);
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, Extrapolation,
        testing::Values(WarningCase{"longest_799_9_m", entries({"799.9 m 2:06"}), {under800}},
                        WarningCase{"longest_800_m", entries({"800 m 2:06"}), {under1500}},
                        WarningCase{"longest_1499_9_m", entries({"1499.9 m 4:20"}), {under1500}},
                        WarningCase{"longest_1500_m", entries({"1500 m 4:20"}), {}},
                        WarningCase{"longest_of_two_counts", entries({"400 m 58", "1500 m 4:20"}), {}},
                        WarningCase{"shortest_10000_m", entries({"10000 m 40:00"}), {}},
                        WarningCase{"shortest_10000_1_m", entries({"10000.1 m 40:00"}), {over10000}},
                        WarningCase{"shortest_of_two_counts", entries({"marathon 3:10:00", "10 km 40:00"}), {}},
                        WarningCase{"both_long", entries({"marathon 3:10:00", "half 1:30:00"}), {over10000}}),
        byName);

    TEST(Extrapolation, LooksAtOmittedRacesToo)
    {
        const Prediction run = calculatedOnce(entries({"10 km 50:00", "half 1:40:00"}));
        EXPECT_EQ(run.messages.size(), 1U);
        EXPECT_EQ(run.state.races.raceCount, 1);
        EXPECT_EQ(run.state.races.entryDist[1], 21097.5);
    }

    TEST(Extrapolation, WithEnglishOutputIsWarnedOfInBothPairsAtFirstAndThenInTheSecondOnly)
    {
        CalculationInput input = entries({"400 m 58"});
        input.output = OutputMode::english;
        Prediction prediction = recalculated(input);
        EXPECT_EQ(prediction.messages, (Messages{under800, under800}));
        prediction.messages.clear();
        prediction.start(recalculate, input);
        EXPECT_EQ(prediction.messages, Messages{under800});
    }

    TEST(Extrapolation, IsNotWarnedOfByAPlainSecondRun)
    {
        Prediction prediction = calculatedOnce(entries({"400 m 58"}));
        EXPECT_EQ(prediction.messages, Messages{under800});
        prediction.start(calculate, entries({"marathon 3:10:00"}));
        EXPECT_EQ(prediction.messages, Messages{under800});
    }

    TEST(Extrapolation, ComesAfterOmissionsInEachRun)
    {
        const Prediction prediction = recalculated(entries({"half 1:45:00", "marathon 3:25:00"}));
        const Message omitted{"Omitting 1:45:00    half marathon because it is slower paced than a longer race."};
        EXPECT_EQ(prediction.messages, (Messages{omitted, over10000, omitted}));
    }

    struct AgeCase
    {
        std::string name;
        std::string age;
        double years;
        bool told;

        friend std::ostream& operator<<(std::ostream& out, const AgeCase& row) { return out << row.age; }
    };

    class AgeEntry : public testing::TestWithParam<AgeCase>
    {};

    TEST_P(AgeEntry, IsReadAndTheRunGoesOn)
    {
        CalculationInput input = entries({"5 km 20:00"});
        input.age = GetParam().age;
        const Prediction prediction = recalculated(input);
        EXPECT_EQ(prediction.state.runner.age, GetParam().years);
        const Message told{"Non-numeric age entry"};
        EXPECT_EQ(prediction.messages, GetParam().told ? (Messages{told, told}) : Messages{});
        EXPECT_EQ(prediction.results.picture.lines.size(), 11U);
        EXPECT_EQ(prediction.fault, "");
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, AgeEntry,
                             testing::Values(AgeCase{"word", "abc", 0, true}, AgeCase{"nothing", "", 0, true},
                                             AgeCase{"zero", "0", 0, true}, AgeCase{"fraction", "44.5", 44.5, false},
                                             AgeCase{"tail", " 67 years", 67, false},
                                             AgeCase{"negative", "-3", -3, false}, AgeCase{"old", "103", 103, false}),
                             byName);

    TEST(AgeEntry, ComesBeforeOmissionsAndWarnings)
    {
        CalculationInput input = entries({"half 1:45:00", "marathon 3:25:00"});
        input.age = "";
        const Prediction prediction = calculatedOnce(input);
        ASSERT_EQ(prediction.messages.size(), 3U);
        EXPECT_EQ(prediction.messages[0], Message{"Non-numeric age entry"});
        EXPECT_EQ(prediction.messages[2], over10000);
    }
}
