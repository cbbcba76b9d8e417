// Sorting the races, and leaving out those that are no faster than a longer one.

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "prediction/calculate.h"
#include "support/case_name.h"
#include "support/runners.h"

namespace
{
    using Numbers = std::vector<double>;

    Numbers firstOf(const OneBased<double, maxRaces>& numbers, int count)
    {
        return {numbers.items.begin(), numbers.items.begin() + count};
    }

    std::vector<std::string> omissionsOf(const Messages& messages)
    {
        std::vector<std::string> omissions = textsOf(messages);
        std::erase_if(omissions, [](const std::string& text) { return !text.starts_with("Omitting"); });
        return omissions;
    }

    struct OrderCase
    {
        std::string name;
        std::vector<std::string> races;     // in the order of the form
        Numbers distances;                  // of the races in use, m
        Numbers times;                      // s
        std::vector<std::string> omitted;   // labels, in the order in which they are told

        friend std::ostream& operator<<(std::ostream& out, const OrderCase& row) { return out << row.name; }
    };

    class RaceOrder : public testing::TestWithParam<OrderCase>
    {};

    TEST_P(RaceOrder, LeavesTheRacesInUse)
    {
        CalculationInput input = entries({});
        for (std::size_t i = 0; i < GetParam().races.size(); ++i)
            input.rows[i] = raceRow(GetParam().races[i]);
        const Prediction run = calculatedOnce(input);
        const Races& races = run.state.races;
        EXPECT_EQ(firstOf(races.entryDist, races.raceCount), GetParam().distances);
        EXPECT_EQ(firstOf(races.entryTime, races.raceCount), GetParam().times);
        std::vector<std::string> messages;
        for (const std::string& label : GetParam().omitted)
            messages.push_back("Omitting" + label + " because it is slower paced than a longer race.");
        EXPECT_EQ(omissionsOf(run.messages), messages);
    }

    TEST_P(RaceOrder, KeepsEachRowAsEntered)
    {
        CalculationInput input = entries({});
        for (std::size_t i = 0; i < GetParam().races.size(); ++i)
            input.rows[i] = raceRow(GetParam().races[i]);
        const Prediction run = calculatedOnce(input);
        EXPECT_EQ(run.state.races.rowsUsed, static_cast<int>(GetParam().races.size()));
        for (std::size_t i = 0; i < GetParam().races.size(); ++i)
        {
            CalculationInput alone = entries({GetParam().races[i]});
            const Prediction one = calculatedOnce(alone);
            const int row = static_cast<int>(i) + 1;
            EXPECT_EQ(run.state.races.rowTime[row], one.state.races.rowTime[1]);
            EXPECT_EQ(run.state.races.rowDist[row], one.state.races.rowDist[1]);
        }
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, RaceOrder,
        testing::Values(
            OrderCase{"in_order", {"1500 m 4:20", "10 km 36:30"}, {1500, 10000}, {260, 2190}, {}},
            OrderCase{"reversed", {"10 km 36:30", "1500 m 4:20"}, {1500, 10000}, {260, 2190}, {}},
            OrderCase{"five",
                      {"10 km 37:00", "800 m 2:05", "half 1:22:00", "3 km 9:50", "1500 m 4:20"},
                      {800, 1500, 3000, 10000, 21097.5},
                      {125, 260, 590, 2220, 4920},
                      {}},
            OrderCase{"shorter_is_slower", {"5 km 21:00", "10 km 41:00"}, {10000}, {2460}, {"   21:00   5 km"}},
            OrderCase{
                "shorter_is_slower_reversed", {"10 km 41:00", "5 km 21:00"}, {10000}, {2460}, {"   21:00   5 km"}},
            OrderCase{"equal_speeds", {"5 km 20:00", "10 km 40:00"}, {10000}, {2400}, {"   20:00   5 km"}},
            OrderCase{"same_distance_faster_first", {"5 km 20:00", "5 km 20:30"}, {5000, 5000}, {1200, 1230}, {}},
            OrderCase{"same_distance_slower_first", {"5 km 20:30", "5 km 20:00"}, {5000}, {1200}, {"   20:30   5 km"}},
            OrderCase{"same_distance_same_time", {"5 km 20:00", "5000 m 20:00"}, {5000}, {1200}, {"   20:00   5 km"}},
            OrderCase{"slower_than_the_longest_of_three",
                      {"1500 m 6:10", "5 km 21:00", "10 km 41:00"},
                      {10000},
                      {2460},
                      {"    6:10   1500 m", "   21:00   5 km"}},
            OrderCase{"middle_goes",
                      {"1500 m 4:40", "5 km 21:30", "10 km 41:00"},
                      {1500, 10000},
                      {280, 2460},
                      {"   21:30   5 km"}},
            OrderCase{"middle_of_five_goes",
                      {"800 m 2:10", "1500 m 4:30", "5 km 22:00", "10 km 41:00", "half 1:31:00"},
                      {800, 1500, 10000, 21097.5},
                      {130, 270, 2460, 5460},
                      {"   22:00   5 km"}},
            OrderCase{"first_goes_for_the_last",
                      {"400 m 2:00", "5 km 20:00", "10 km 42:00"},
                      {5000, 10000},
                      {1200, 2520},
                      {"    2:00   400 m"}},
            OrderCase{"label_of_a_half_marathon",
                      {"half 1:45:00", "marathon 3:25:00"},
                      {42195},
                      {12300},
                      {" 1:45:00    half marathon"}}),
        byName);

    TEST(RaceOrder, FiveRacesCanComeDownToOne)
    {
        CalculationInput input = entries({"1500 m 6:00", "3 km 11:50", "5 km 19:30", "8 km 31:00", "10 km 38:20"});
        input.fit = FitMode::bestTwo;
        const Prediction run = calculatedOnce(input);
        EXPECT_EQ(run.messages.size(), 4U);
        EXPECT_EQ(run.state.races.raceCount, 1);
        EXPECT_EQ(run.state.races.rowsUsed, 5);
        EXPECT_EQ(run.input.fit, FitMode::allData);
        EXPECT_TRUE(run.results.bestTwoEnabled);
        EXPECT_EQ(run.results.rows.size(), 9U);
    }

    TEST(RaceOrder, WithFiveRowsAndOneOmittedFourAreFitted)
    {
        CalculationInput input = entries({"1500 m 4:30", "3 km 11:00", "5 km 18:10", "10 km 38:00", "half 1:25:00"});
        input.fit = FitMode::bestTwo;
        const Prediction run = calculatedOnce(input);
        EXPECT_EQ(run.state.races.raceCount, 4);
        EXPECT_EQ(run.state.races.rowsUsed, 5);
        EXPECT_EQ(run.input.fit, FitMode::bestTwo);
        EXPECT_EQ(run.state.races.rowDist[2], 3000);
        EXPECT_EQ(run.state.races.rowTime[2], 660);
    }

    // The times are compared as entered: a label's text is the time alone, and its own rounding changes nothing.
    TEST(RaceOrder, ALabelShowsTheTextOfTheNumberAsEntered)
    {
        CalculationInput input = entries({"5 km 20:30", "5 km 20:00"});
        input.rows[0].number = " 5.00 or so";
        const Prediction run = calculatedOnce(input);
        EXPECT_EQ(textsOf(run.messages),
                  std::vector<std::string>{
                      "Omitting   20:30    5.00 or so km because it is slower paced than a longer race."});
    }

    TEST(RaceOrder, ATinyTimeIsStoredBeforeItsLabelSnapsIt)
    {
        // 0.07 m in 0.0149 s: the label's time snaps to 0.01 s, the stored one does not.
        CalculationInput input = entries({"0.07 m 0.0149", "5 km 20:00"});
        const Prediction run = calculatedOnce(input);
        EXPECT_EQ(run.state.races.rowTime[1], 0.0149);
    }
}
