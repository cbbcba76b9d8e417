#include "workouts/workout_plan.h"

#include <cmath>
#include <fstream>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <rapidcheck/gtest.h>

#include "model/race_time.h"
#include "model/text.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/draws.h"
#include "support/faults.h"
#include "support/planning.h"
#include "workouts/workout_heart_rates.h"

namespace
{
    using nlohmann::json;

    /// Entries, and the plan that was worked out a second time, apart from the program.
    struct PlanCase
    {
        std::string name;
        json data;

        friend std::ostream& operator<<(std::ostream& out, const PlanCase& row) { return out << row.name; }
    };

    std::vector<PlanCase> readCases()
    {
        std::ifstream file(VANTELOS_SOURCE_DIR "/tests/workouts/data/plans.json");
        std::vector<PlanCase> cases;
        for (const json& entry : json::parse(file))
            cases.push_back({entry.at("name"), entry});
        return cases;
    }

    WorkoutEntries entriesOf(const json& rows)
    {
        WorkoutEntries entries;
        for (std::size_t i = 0; i < entries.size(); ++i)
            entries[i] = {rows[i][0], rows[i][1], rows[i][2]};
        return entries;
    }

    WorkoutSettings settingsOf(const json& data)
    {
        return {data.at("recovPct"),   data.at("intensityPct"), data.at("purpose"),
                data.at("perfAdjust"), data.at("autoRatio"),    data.at("continuousRun")};
    }

    ModelState stateOf(const json& data)
    {
        ModelState state;
        setUsualCurve(state);
        setUsualTraining(state);
        state.runner.weeklyMiles = data.at("weeklyMiles");
        state.training.vo2maxSpeed = data.at("vo2maxSpeed");
        state.runner.maxHr = data.at("maxHr");
        state.runner.restHr = data.at("restHr");
        return state;
    }

    void expectRow(const PlannedRow& row, const json& expected)
    {
        ASSERT_EQ(row.counts, !expected.is_null());
        if (!row.counts)
            return;
        EXPECT_TRUE(closeTo(row.effortTime, expected.at("effortTime")));
        EXPECT_TRUE(closeTo(row.recoveryTime, expected.at("recoveryTime")));
        EXPECT_TRUE(closeTo(row.recoveryDist, expected.at("recoveryDist")));
        EXPECT_TRUE(closeTo(val(row.fastPoints), expected.at("fastPoints")));
        EXPECT_TRUE(closeTo(val(row.recoveryPoints), expected.at("recoveryPoints")));
    }

    void expectPlan(const WorkoutPlan& plan, const json& expected)
    {
        for (std::size_t i = 0; i < plan.rows.size(); ++i)
        {
            SCOPED_TRACE("row " + std::to_string(i));
            expectRow(plan.rows[i], expected.at("rows")[i]);
        }
        EXPECT_TRUE(closeTo(plan.fastDist, expected.at("fastDist")));
        EXPECT_TRUE(closeTo(plan.totalDist, expected.at("totalDist")));
        EXPECT_TRUE(closeTo(plan.fastTime, expected.at("fastTime")));
        EXPECT_TRUE(closeTo(plan.recoveryTotalTime, expected.at("recoveryTotalTime")));
        EXPECT_TRUE(closeTo(plan.repeatCount, expected.at("repeatCount")));
        EXPECT_TRUE(closeTo(plan.totalPoints, expected.at("totalPoints")));
        EXPECT_TRUE(closeTo(plan.effectiveIntensity, expected.at("effectiveIntensity")));
        EXPECT_TRUE(closeTo(plan.standardPoints, expected.at("standardPoints")));
    }

    void expectHeartRates(const ModelState& state, WorkoutPlan plan, const WorkoutSettings& settings,
                          const json& expected)
    {
        (void)formatTime(plan.fastTime);   // they are told of the times as shown
        (void)formatTime(plan.recoveryTotalTime);
        const WorkoutHeartRates rates = workoutHeartRates(state, plan, settings);
        EXPECT_TRUE(closeTo(rates.effortHr, expected.at("effortHr")));
        EXPECT_TRUE(closeTo(rates.recoveryHr, expected.at("recoveryHr")));
        EXPECT_TRUE(closeTo(rates.meanHr, expected.at("meanHr")));
        EXPECT_TRUE(closeTo(rates.hrPercentMax, expected.at("hrPercentMax")));
        EXPECT_TRUE(closeTo(rates.hrPercentReserve, expected.at("hrPercentReserve")));
    }

    class Plan : public testing::TestWithParam<PlanCase>
    {};

    TEST_P(Plan, LeavesItsNumbers)
    {
        const json& data = GetParam().data;
        ModelState state = stateOf(data);
        WorkoutEntries entries = entriesOf(data.at("entries"));
        const WorkoutSettings settings = settingsOf(data);
        Messages messages;
        std::optional<WorkoutPlan> plan;
        const std::string fault = faultOf([&] { plan = planWorkout(state, entries, settings, {}, messages); });
        ASSERT_EQ(plan.has_value(), data.contains("plan")) << fault;
        const Messages expected = data.contains("message") ? Messages{{data.at("message")}} : Messages{};
        EXPECT_EQ(messages, expected);
        if (!plan)
            EXPECT_EQ(!fault.empty(), data.contains("fault"));
        else
        {
            expectPlan(*plan, data.at("plan"));
            for (std::size_t i = 0; i < entries.size(); ++i)
                EXPECT_EQ(entries[i].wrp, data.at("plan").at("ratios")[i].get<std::string>());
            if (data.contains("hearts"))
                expectHeartRates(state, *plan, settings, data.at("hearts"));
            else
                EXPECT_FALSE(faultOf([&] { (void)workoutHeartRates(state, *plan, settings); }).empty());
        }
    }

    INSTANTIATE_TEST_SUITE_P(InFile, Plan, testing::ValuesIn(readCases()), byName);

    const WorkoutEntries designEntries{
        {{"400", "0", "83"}, {"600", "0", "100"}, {"800", "5", "114"}, {"1200", "0", "137"}, {"1609.3", "0", "155"}}};

    WorkoutPlan planned(const WorkoutEntries& rows, const WorkoutSettings& settings)
    {
        ModelState state;
        setUsualCurve(state);
        setUsualTraining(state);
        WorkoutEntries entries = rows;
        Messages messages;
        const auto plan = planWorkout(state, entries, settings, {}, messages);
        EXPECT_TRUE(plan.has_value());
        return plan.value_or(WorkoutPlan{});
    }

    TEST(Purpose, OfRepeatsIgnoresTheSpeedAtVo2max)
    {
        WorkoutSettings settings;
        settings.purpose = 100;
        ModelState state;
        setUsualCurve(state);
        setUsualTraining(state);
        WorkoutEntries entries = designEntries;
        Messages messages;
        const double before = planWorkout(state, entries, settings, {}, messages)->fastTime;
        state.training.vo2maxSpeed = 6;
        EXPECT_EQ(planWorkout(state, entries, settings, {}, messages)->fastTime, before);
        settings.purpose = 0;
        const double vo2max = planWorkout(state, entries, settings, {}, messages)->fastTime;
        state.curve.aerobicPower = 900;
        EXPECT_EQ(planWorkout(state, entries, settings, {}, messages)->fastTime, vo2max);
    }

    TEST(OneRepetition, AtVo2maxTakesItsTimeAtThatSpeed)
    {
        WorkoutSettings settings;
        settings.purpose = 0;
        settings.intensityPct = 100;
        WorkoutEntries entries = designEntries;
        entries[2] = {"900", "1", "114"};
        EXPECT_TRUE(closeTo(planned(entries, settings).fastTime, 900 / 4.5));   // f = 1: no fatigue
    }

    TEST(Intensity, OfThirtyMinutesIsAsEntered)
    {
        // 0.8 of the speed at VO2 max for 1800 s; below 80 the intensity is adjusted in full
        WorkoutSettings settings;
        settings.purpose = 0;
        settings.intensityPct = 80;
        settings.recovPct = 100;
        WorkoutEntries entries = designEntries;
        entries[2] = {"3240", "2", "114"};   // 900 s each
        const WorkoutPlan plan = planned(entries, settings);
        EXPECT_TRUE(closeTo(plan.fastTime, 1800));
        EXPECT_TRUE(closeTo(plan.effectiveIntensity, 80));
    }

    TEST(Level, RaisesPointsTwiceOver)
    {
        WorkoutSettings settings;
        settings.purpose = 0;
        const WorkoutPlan usual = planned(designEntries, settings);
        settings.perfAdjust = 220;
        const WorkoutPlan raised = planned(designEntries, settings);
        EXPECT_TRUE(closeTo(raised.fastTime, usual.fastTime / 1.1));
        // speed ^ 4 grows by 1.1 ^ 4, and once more by the level's 1.1 ^ 4; the time shrinks by 1.1
        EXPECT_NEAR(val(raised.rows[2].fastPoints), val(usual.rows[2].fastPoints) * std::pow(1.1, 7), 0.2);
    }

    TEST(StandardLoad, FollowsTheMileage)
    {
        EXPECT_EQ(standardLoad(0), 0);
        EXPECT_TRUE(closeTo(standardLoad(1), 0.078));
        EXPECT_TRUE(closeTo(standardLoad(30), 0.078 * std::exp(0.67 * std::log(30.0))));
    }

    TEST(AutomaticRatio, IsAWholePercentage)
    {
        // (d / 600) ^ 0.45: 0.8332, 1, 1.1382, 1.3660, 1.5590
        EXPECT_EQ(automaticRatio(400), 83);
        EXPECT_EQ(automaticRatio(600), 100);
        EXPECT_EQ(automaticRatio(800), 114);
        EXPECT_EQ(automaticRatio(1200), 137);
        EXPECT_EQ(automaticRatio(1609.3), 156);
        EXPECT_EQ(automaticRatio(0), 0);
    }

    TEST(HeartRateOfEfforts, MayPassTheMaximum)
    {
        ModelState state;
        setUsualCurve(state);
        setUsualTraining(state);
        WorkoutSettings settings;
        settings.intensityPct = 87.5;   // a drift of 2 ^ (0.031 + 0.053) for an hour
        settings.recovPct = 100;        // the mean takes nothing of the efforts' rate
        WorkoutPlan plan;
        plan.fastTime = 3600;
        plan.fastDist = 12240;   // 3.4 m/s: 141 beats, 149.5 with the drift
        plan.recoveryTotalTime = 900;
        plan.totalDist = 20700;   // 4.6 m/s: 185 beats, 196.1 with the drift
        plan.repeatCount = 600;   // 6 s each: 1 - 6 / 120 = 0.95
        const WorkoutHeartRates rates = workoutHeartRates(state, plan, settings);
        const double d = std::exp2(0.084);
        const double effortHr = 141 * d + (185 - 141) * d * 0.857375;   // 0.95 ^ 3; 189.44
        EXPECT_TRUE(closeTo(rates.effortHr, effortHr));
        EXPECT_TRUE(closeTo(rates.recoveryHr, effortHr)) << "416 held down to the mean";
        EXPECT_TRUE(closeTo(rates.meanHr, effortHr)) << "235 held down to the efforts";
        EXPECT_TRUE(closeTo(rates.hrPercentMax, effortHr / 1.85));
        EXPECT_TRUE(closeTo(rates.hrPercentReserve, (effortHr - 50) / 1.35));
        EXPECT_GT(rates.effortHr, 189);
    }

    TEST(Fault, NamesTheRowAndItsRatio)
    {
        ModelState state;
        setUsualCurve(state);
        setUsualTraining(state);
        WorkoutEntries entries = designEntries;
        entries[1].wrp = "0";
        Messages messages;
        EXPECT_EQ(faultOf([&] { (void)planWorkout(state, entries, {}, {}, messages); }), "division by zero");
        EXPECT_EQ(state.activity, "adding up the distances of row 2, whose work/recovery ratio is 0");
    }

    RC_GTEST_PROP(PlanOfAnything, HoldsNumbers, ())
    {
        WorkoutEntries entries = designEntries;
        for (WorkoutEntry& entry : entries)
            if (*rc::gen::inRange(0, 2) == 0)
                entry = {plainText(*drawnInLogSteps(50, 40000)), plainText(*rc::gen::inRange(0, 30)),
                         plainText(*rc::gen::inRange(5, 400))};
        entries[4].num = "1";
        WorkoutSettings settings;
        settings.recovPct = *rc::gen::inRange(10, 101);
        settings.intensityPct = *rc::gen::inRange(120, 201) / 2.0;
        settings.purpose = *rc::gen::inRange(0, 101);
        settings.perfAdjust = *rc::gen::inRange(160, 241);
        settings.autoRatio = *rc::gen::arbitrary<bool>();
        ModelState state;
        setUsualCurve(state);
        setUsualTraining(state);
        Messages messages;
        const auto plan = planWorkout(state, entries, settings, {}, messages);
        RC_ASSERT(plan.has_value());
        RC_ASSERT(plan->fastTime > 0 && std::isfinite(plan->fastTime));
        RC_ASSERT(plan->totalDist >= plan->fastDist * (1 - 1e-12));
        RC_ASSERT(plan->recoveryTotalTime >= 0);
        const WorkoutHeartRates rates = workoutHeartRates(state, *plan, settings);
        RC_ASSERT(rates.recoveryHr <= rates.meanHr && rates.meanHr <= rates.effortHr);
    }
}
