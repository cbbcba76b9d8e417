// The race rows of the form: what is refused, in which words and order, and what a refused run leaves.

#include <algorithm>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "prediction/calculate.h"
#include "support/case_name.h"
#include "support/runners.h"

namespace
{
    using Texts = std::vector<std::string>;

    RaceRow rowOf(std::string hours, std::string minutes, std::string seconds, std::string number, RaceUnit unit)
    {
        return {true, std::move(hours), std::move(minutes), std::move(seconds), std::move(number), unit};
    }

    struct RowCase
    {
        std::string name;
        std::vector<RaceRow> rows;
        Texts messages;   // of one run

        friend std::ostream& operator<<(std::ostream& out, const RowCase& row) { return out << row.name; }
    };

    CalculationInput entriesOf(const RowCase& row)
    {
        CalculationInput input = entries({});
        std::copy(row.rows.begin(), row.rows.end(), input.rows.begin());
        return input;
    }

    class RaceRows : public testing::TestWithParam<RowCase>
    {};

    TEST_P(RaceRows, AreCheckedOnceARun)
    {
        const Prediction run = calculatedOnce(entriesOf(GetParam()));
        EXPECT_EQ(textsOf(run.messages), GetParam().messages);
        EXPECT_EQ(run.fault, "");
    }

    TEST_P(RaceRows, AreCheckedTwiceByReCalculate)
    {
        Texts twice = GetParam().messages;
        twice.insert(twice.end(), GetParam().messages.begin(), GetParam().messages.end());
        EXPECT_EQ(textsOf(recalculated(entriesOf(GetParam())).messages), twice);
    }

    TEST_P(RaceRows, AreCheckedFourTimesWithEnglishOutput)
    {
        CalculationInput input = entriesOf(GetParam());
        input.output = OutputMode::english;
        EXPECT_EQ(recalculated(input).messages.size(), 4 * GetParam().messages.size());
    }

    const RaceRow good = raceRow("5 km 20:00");
    const RaceRow unchecked;
    const RaceRow uncheckedAndBad{false, "", "", "", "", RaceUnit::none};

    INSTANTIATE_TEST_SUITE_P(
        Refused, RaceRows,
        testing::Values(
            RowCase{"none", {}, {"No rows checked!"}},
            RowCase{"none_checked",
                    {uncheckedAndBad, {false, "", "20", "", "5", RaceUnit::kilometers}},
                    {"No rows checked!"}},
            RowCase{"zero_time", {rowOf("0", "0", "0", "5", RaceUnit::kilometers)}, {"Bad time entry in row # 1"}},
            RowCase{"blank_time", {rowOf("", "", "", "5", RaceUnit::kilometers)}, {"Bad time entry in row # 1"}},
            RowCase{
                "word_for_a_time", {rowOf("", "abc", "", "5", RaceUnit::kilometers)}, {"Bad time entry in row # 1"}},
            RowCase{"time_that_adds_up_to_zero",
                    {rowOf("1", "-60", "", "5", RaceUnit::kilometers)},
                    {"Bad time entry in row # 1"}},
            RowCase{"blank_distance", {rowOf("", "20", "", "", RaceUnit::meters)}, {"Bad distance entry in row # 1"}},
            RowCase{"word_for_a_distance",
                    {rowOf("", "20", "", "five", RaceUnit::kilometers)},
                    {"Bad distance entry in row # 1"}},
            RowCase{"no_unit", {rowOf("", "20", "", "5", RaceUnit::none)}, {"Bad distance entry in row # 1"}},
            RowCase{"time_before_distance", {rowOf("", "", "", "", RaceUnit::meters)}, {"Bad time entry in row # 1"}},
            RowCase{"too_fast", {raceRow("100 m 8")}, {"Way too fast in row # 1"}},
            RowCase{"just_too_fast", {raceRow("120.001 m 10")}, {"Way too fast in row # 1"}},
            RowCase{"too_slow", {raceRow("1 km 40:00")}, {"Way too slow in row # 1"}},
            RowCase{"just_too_slow", {raceRow("999.99 m 33:20")}, {"Way too slow in row # 1"}},
            RowCase{"negative_time", {raceRow("5 km -20:00")}, {"Way too slow in row # 1"}},
            RowCase{"negative_distance", {raceRow("-5 km 20:00")}, {"Way too slow in row # 1"}},
            RowCase{"row_of_the_form_is_named",
                    {unchecked, unchecked, rowOf("", "", "", "5", RaceUnit::kilometers)},
                    {"Bad time entry in row # 3"}},
            RowCase{
                "row_five", {unchecked, good, unchecked, unchecked, raceRow("5 km 50")}, {"Way too fast in row # 5"}},
            RowCase{"only_the_first_bad_row_is_told",
                    {good, raceRow("100 m 8"), raceRow("5 km 0")},
                    {"Way too fast in row # 2"}},
            RowCase{"unchecked_rows_are_not_looked_at",
                    {uncheckedAndBad, raceRow("5 km 0"), uncheckedAndBad},
                    {"Bad time entry in row # 2"}}),
        byName);

    INSTANTIATE_TEST_SUITE_P(
        Accepted, RaceRows,
        testing::Values(
            RowCase{"mile_in_three_minutes", {raceRow("1 mi 3:00")}, {}},
            RowCase{"marathon_whatever_the_number", {rowOf("3", "05", "10", "7x", RaceUnit::marathon), good}, {}},
            RowCase{"half_marathon_without_number", {rowOf("1", "35", "", "", RaceUnit::halfMarathon), good}, {}},
            RowCase{"texts_with_tails", {rowOf(" 0h", "  19m", "58.7,5", " 5.0 km", RaceUnit::kilometers)}, {}},
            RowCase{"hours_in_minutes", {rowOf("", "185", "10", "42.195", RaceUnit::kilometers), good}, {}},
            RowCase{"minutes_taken_off", {rowOf("1", "-40", "", "5", RaceUnit::kilometers)}, {}}),
        byName);

    TEST(RaceRows, AcceptExactlyTwelveMetresASecond)
    {
        const Prediction run = calculatedOnce(entries({"120 m 10", "5 km 20:00"}));
        EXPECT_EQ(textsOf(run.messages), Texts{});
        EXPECT_EQ(run.state.races.raceCount, 2);
    }

    TEST(RaceRows, AcceptExactlyHalfAMetreASecond)
    {
        const Prediction run = calculatedOnce(entries({"3 km 1:40:00", "400 m 2:00"}));
        EXPECT_EQ(run.state.races.rowsUsed, 2);
        EXPECT_EQ(run.state.races.rowDist[1] / run.state.races.rowTime[1], 0.5);
    }

    struct UnitCase
    {
        std::string name;
        std::string race;
        double metres;

        friend std::ostream& operator<<(std::ostream& out, const UnitCase& row) { return out << row.race; }
    };

    class RaceUnits : public testing::TestWithParam<UnitCase>
    {};

    TEST_P(RaceUnits, AreReadInMetres)
    {
        const Prediction run = calculatedOnce(entries({GetParam().race}));
        EXPECT_EQ(run.state.races.entryDist[1], GetParam().metres);
        EXPECT_EQ(run.state.races.rowDist[1], GetParam().metres);
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, RaceUnits,
        testing::Values(UnitCase{"mile", "1 mi 5:00", 1609.344}, UnitCase{"mile_of_yards", "1760 yd 5:00", 1609.344},
                        UnitCase{"yards", "880 yd 2:20", 804.672}, UnitCase{"kilometers", "8.5 km 35:00", 8500},
                        UnitCase{"meters", "1500 m 5:00", 1500}, UnitCase{"exponent", "5e3 m 20:00", 5000},
                        UnitCase{"marathon", "marathon 3:05:10", 42195},
                        UnitCase{"half_marathon", "half 1:35:20", 21097.5}),
        byName);

    TEST(RaceUnits, StayWhileNoneIsOn)
    {
        Prediction prediction = recalculated(entries({"5 km 20:00"}));
        CalculationInput input = entries({"6 m 24:00"});
        input.rows[0].unit = RaceUnit::none;
        prediction.start(recalculate, input);
        EXPECT_EQ(prediction.state.races.rowDist[1], 6000);
    }

    TEST(RaceUnits, OfAllRowsAreReadCheckedOrNot)
    {
        CalculationInput input = entries({"5 km 20:00", "2 mi 12:00"});
        input.rows[1].use = false;
        Prediction prediction = calculatedOnce(input);
        EXPECT_EQ(prediction.state.races.unitFactor[1], 1609.344);
        input.rows[1] = {true, "", "12", "", "2", RaceUnit::none};
        prediction.start(calculate, input);
        EXPECT_EQ(prediction.state.races.rowDist[2], 3218.688);
    }

    TEST(RefusedRun, KeepsTheCurveAndTheCountOfTheLastGoodOne)
    {
        Prediction prediction = recalculated(entries({"5 km 20:00", "10 km 42:00"}));
        const Curve curve = prediction.state.curve;
        prediction.start(recalculate, entries({"8 km 33:00", "5 m 20:00", "3 km 12:00"}));
        EXPECT_EQ(prediction.state.curve.aerobicPower, curve.aerobicPower);
        EXPECT_EQ(prediction.state.curve.anaerobicEnergy, curve.anaerobicEnergy);
        EXPECT_EQ(prediction.state.curve.refDistance, curve.refDistance);
        EXPECT_EQ(prediction.state.races.rowsUsed, 2);
        EXPECT_EQ(prediction.results.picture.lines, Texts{});
        EXPECT_TRUE(prediction.results.rows.empty());
        EXPECT_TRUE(prediction.results.toolsEnabled);
        // The rows that were read before the check failed, the failing one included, are stored all the same.
        EXPECT_EQ(prediction.state.races.rowTime[1], 33 * 60);
        EXPECT_EQ(prediction.state.races.rowDist[1], 8000);
        EXPECT_EQ(prediction.state.races.rowTime[2], 20 * 60);
        EXPECT_EQ(prediction.state.races.rowDist[2], 5);
        EXPECT_EQ(prediction.state.races.entryTime[2], 20 * 60);
    }

    TEST(RefusedRun, EnablesNothing)
    {
        const Prediction prediction = recalculated(entries({"5 km 0"}));
        EXPECT_TRUE(prediction.results.bestTwoEnabled);
        EXPECT_FALSE(prediction.results.reportsEnabled);
        EXPECT_FALSE(prediction.results.toolsEnabled);
        EXPECT_EQ(prediction.input.fit, FitMode::allData);
        EXPECT_EQ(prediction.state.flags.calculatedOnce, 1);
    }
}
