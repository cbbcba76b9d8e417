#include "program/state_names.h"

#include <ostream>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "main_form.h"
#include "support/case_name.h"

namespace
{
    /// Every name by which the model's state is known.
    const std::vector<std::string> known{"runnerName",
                                         "age",
                                         "sex",
                                         "weeklyMiles",
                                         "weightKg",
                                         "heightCm",
                                         "bodyDrag",
                                         "maxHr",
                                         "restHr",
                                         "rowsUsed",
                                         "rowTime",
                                         "rowDist",
                                         "entryTime",
                                         "entryDist",
                                         "fitTime",
                                         "aerobicPower",
                                         "anaerobicEnergy",
                                         "refDistance",
                                         "fatigueCoef",
                                         "startDelay",
                                         "anaerobicExp",
                                         "humpCentre",
                                         "humpDepth",
                                         "humpWidth",
                                         "piValue",
                                         "speedRatio",
                                         "speedRatioAdj",
                                         "time800",
                                         "time5000",
                                         "level",
                                         "level5000",
                                         "levelIndex",
                                         "levelIndexFromLevel",
                                         "ageDistanceTerm",
                                         "curDistance",
                                         "tableMode",
                                         "tableTime800",
                                         "tableTime5000",
                                         "tableTimes",
                                         "tableDist",
                                         "tableRow",
                                         "warnedExtrapolation",
                                         "warnedProfile",
                                         "ageCompareOn",
                                         "ageCompareForced",
                                         "ageCompareLocal",
                                         "calculatedOnce",
                                         "reportToFile",
                                         "graphScale",
                                         "unitsMode",
                                         "indoorMode",
                                         "windSpeed",
                                         "slopeDirection",
                                         "zeroPowerFlag",
                                         "curSpeed",
                                         "slopeValue",
                                         "tmillMode",
                                         "tmillDisplay",
                                         "hillScale",
                                         "gradeDefinition",
                                         "analysisMode",
                                         "slope",
                                         "windBase",
                                         "evenPace",
                                         "fastHalfPace",
                                         "aerobicHalfPace",
                                         "pacingCentre",
                                         "pacingArea",
                                         "paceDivisor",
                                         "aerobicTrainSpeed",
                                         "thresholdSpeed",
                                         "vo2maxSpeed",
                                         "vo2maxSpeedTop",
                                         "intervalSpeed",
                                         "vo2max",
                                         "repSlowTime",
                                         "repFastTime",
                                         "repSlowSpeed",
                                         "repFastSpeed",
                                         "time10k",
                                         "peakSeed",
                                         "aerobicHr",
                                         "aerobicHrLow",
                                         "aerobicHrHigh",
                                         "thresholdHr",
                                         "thresholdHrLow",
                                         "thresholdHrHigh",
                                         "aerobicSpeedLow",
                                         "aerobicSpeedHigh",
                                         "thresholdSpeedLow",
                                         "thresholdSpeedHigh"};

    std::string textOf(const StateValue& value)
    {
        if (const double* number = std::get_if<double>(&value))
            return std::to_string(*number);
        if (const int* number = std::get_if<int>(&value))
            return std::to_string(*number);
        if (const std::string* text = std::get_if<std::string>(&value))
            return *text;
        return "array";
    }

    class KnownName : public testing::TestWithParam<std::string>
    {};

    TEST_P(KnownName, IsReadableBeforeAndAfterACalculation)
    {
        MainForm main;
        const StateName* entry = findStateName(GetParam());
        ASSERT_NE(entry, nullptr);
        EXPECT_EQ(entry->name, GetParam());
        const StateValue before = entry->get(main.state());
        main.enterTwoRaces();
        main.recalculate();
        EXPECT_EQ(entry->get(main.state()).index(), before.index());
    }

    INSTANTIATE_TEST_SUITE_P(State, KnownName, testing::ValuesIn(known), [](const auto& row) { return row.param; });

    TEST(StateNames, AreUnique)
    {
        std::set<std::string_view> names;
        for (const StateName& entry : stateNames())
            EXPECT_TRUE(names.insert(entry.name).second) << entry.name;
        EXPECT_EQ(findStateName("nothing"), nullptr);
        EXPECT_EQ(findStateName(""), nullptr);
        EXPECT_EQ(findStateName("Age"), nullptr);
    }

    TEST(StateNames, RacesAreThoseInUse)
    {
        MainForm main;
        const auto racesOf = [&](const char* name) {
            return std::get<std::vector<double>>(findStateName(name)->get(main.state()));
        };
        EXPECT_TRUE(racesOf("entryDist").empty());
        main.enterTwoRaces();
        main.person.enterRace(4, {"", "30", "", "5", 3});   // slower than the 10 km: omitted
        main.recalculate();
        EXPECT_EQ(racesOf("entryDist"), (std::vector<double>{5000, 10000}));
        EXPECT_EQ(racesOf("entryTime"), (std::vector<double>{1140, 2400}));
        EXPECT_EQ(racesOf("fitTime").size(), 2U);
        EXPECT_EQ(racesOf("rowDist"), (std::vector<double>{10000, 5000, 5000}));
        EXPECT_EQ(racesOf("rowTime"), (std::vector<double>{2400, 1140, 1800}));
    }

    TEST(StateNames, OfPicksReachToTheLastMark)
    {
        MainForm main;
        RaceFileState& file = main.state().raceFile;
        const auto picks = [&] { return std::get<std::vector<double>>(findStateName("pickOrder")->get(main.state())); };
        EXPECT_EQ(picks(), (std::vector<double>{0}));
        file.raceCount = 3.5;
        EXPECT_EQ(picks().size(), 4U);
        file.pickOrder[6] = 2;   // of a longer file before
        EXPECT_EQ(picks(), (std::vector<double>{0, 0, 0, 0, 0, 0, 2}));
        file.pickOrder[99] = 1;
        EXPECT_EQ(picks().size(), 100U);
        file.raceCount = 1e6;
        EXPECT_EQ(picks().size(), 100U);
    }

    struct Let
    {
        std::string name;
        const char* state;
        const char* text;
        bool taken;
        const char* value;   // afterwards
    };

    std::ostream& operator<<(std::ostream& out, const Let& row)
    {
        return out << row.name;
    }

    class Letting : public testing::TestWithParam<Let>
    {};

    TEST_P(Letting, TakesWhatFitsAndLeavesTheRest)
    {
        MainForm main;
        const StateName* entry = findStateName(GetParam().state);
        ASSERT_NE(entry, nullptr);
        ASSERT_TRUE(entry->let);
        EXPECT_EQ(entry->let(main.state(), GetParam().text), GetParam().taken);
        EXPECT_EQ(textOf(entry->get(main.state())), GetParam().value);
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, Letting,
                             testing::Values(Let{"number", "age", "44.5", true, "44.500000"},
                                             Let{"negative", "aerobicPower", "-2", true, "-2.000000"},
                                             Let{"word", "maxHr", "abc", false, "0.000000"},
                                             Let{"number_and_word", "weightKg", "70 kg", false, "72.700000"},
                                             Let{"whole", "graphScale", "2", true, "2"},
                                             Let{"fraction_for_a_whole", "graphScale", "2.5", false, "4"},
                                             Let{"beyond_a_whole", "reportToFile", "1e10", false, "0"},
                                             Let{"letter", "sex", "f", true, "f"},
                                             Let{"other_letter", "sex", "x", false, "m"},
                                             Let{"two_letters", "unitsMode", "me", false, "m"},
                                             Let{"no_letter", "unitsMode", "", false, "m"},
                                             Let{"text", "runnerName", " \"Ann\" ", true, " \"Ann\" "}),
                             byName);

    TEST(Letting, ArraysAreReadOnly)
    {
        for (const char* name : {"rowTime", "rowDist", "entryTime", "entryDist", "fitTime", "tableDist", "tableTimes"})
            EXPECT_FALSE(findStateName(name)->let) << name;
    }

    TEST(Letting, SomeSingleValuesAreReadOnlyAsTheGuideSays)
    {
        std::string names;
        for (const StateName& entry : stateNames())
        {
            const StateValue value = entry.get(ModelState());
            if (!entry.let && (std::holds_alternative<double>(value) || std::holds_alternative<int>(value) ||
                               std::holds_alternative<std::string>(value)))
                names += " " + std::string(entry.name);
        }
        EXPECT_EQ(names, " analysisMode pointCount fileRaceCount nextSlot pickedCount listRow");
    }
}
