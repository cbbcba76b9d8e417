#include "workouts/workouts_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/planning.h"

namespace
{
    /// A planner that was used before, with repetitions in its first and last row.
    struct StoredPlan : PlanningProgram
    {
        StoredPlan() : PlanningProgram("workouts")
        {
            StoredPlanner& stored = program.stored.planner;
            stored.workoutMode = 1;
            stored.rows[0] = {"400", "6", "83"};
            stored.rows[1] = {"600", "0", "100"};
            stored.rows[2] = {"0", "0", "114"};
            stored.rows[3] = {"1200", "0", "137"};
            stored.rows[4] = {"2000", "3", "155"};
        }
        [[nodiscard]] const StoredPlanner::Row& keptRow(std::size_t i) { return program.stored.planner.rows[i]; }
    };

    TEST(StoredPlanWithAnEmptyRow, ComesBackWhole)
    {
        StoredPlan planner;
        planner.open();
        ASSERT_EQ(planner.outside.faults.size(), 1U) << "no distance, as long as the 4 of the opening stand beside it";
        EXPECT_THAT(planner.outside.faults.front().text,
                    testing::HasSubstr("while planning row 3, whose work/recovery ratio is 114"));
        EXPECT_EQ(planner.text("num(0)"), "6");
        EXPECT_EQ(planner.text("dist(2)"), "0");
        EXPECT_EQ(planner.text("num(2)"), "0");
        EXPECT_EQ(planner.text("dist(4)"), "2000");
        EXPECT_EQ(planner.text("num(4)"), "3");
        EXPECT_EQ(planner.label("fastm"), "8400");
        planner.close();
        EXPECT_EQ(planner.keptRow(0).num, "6");
        EXPECT_EQ(planner.keptRow(4).num, "3");
    }

    TEST(OpeningThatWasStopped, KeepsTheStoredPlanUntilSomethingIsEntered)
    {
        using Act = void (*)(StoredPlan&);
        struct Case
        {
            const char* name;
            Act act;
            bool enters;
        };
        for (const auto& [name, act, enters] : {
                 Case{"nothing", [](StoredPlan&) {}, false},
                 Case{"planning again", [](StoredPlan& p) { p.click("Command3"); }, false},
                 Case{"a box", [](StoredPlan& p) { p.type("num(1)", "2"); }, true},
                 Case{"the tick", [](StoredPlan& p) { p.tick("acwr", true); }, true},
                 Case{"an option", [](StoredPlan& p) { p.choose("scrun"); }, true},
                 Case{"a bar", [](StoredPlan& p) { p.slide("recovpace", 60); }, true},
                 Case{"a dragged bar", [](StoredPlan& p) { p.pull("pctmax", 180); }, true},
                 Case{"purpose", [](StoredPlan& p) { p.slide("repvoscrl", 60); }, true},
                 Case{"intensity", [](StoredPlan& p) { p.slide("pctmax", 192); }, true},
                 Case{"level", [](StoredPlan& p) { p.slide("perfadj", 210); }, true},
             })
        {
            StoredPlan planner;
            planner.state().runner.weeklyMiles = 0;   // stops before anything is put back
            planner.open();
            ASSERT_EQ(planner.text("dist(4)"), "1609.3");
            planner.state().runner.weeklyMiles = 30;
            act(planner);
            planner.close();
            EXPECT_EQ(planner.keptRow(4).dist, enters ? "1609.3" : "2000") << name;
        }
    }

    TEST(OpeningThatWasStopped, KeepsTheStoredPlanThroughAnAutomaticRatio)
    {
        StoredPlan planner;
        planner.program.stored.planner.acwr = true;
        planner.program.stored.planner.rows[4].wrp = "155";
        planner.open();
        planner.click("Command3");
        EXPECT_EQ(planner.text("wrp(4)"), "172");   // (2000 / 600) ^ 0.45 = 1.7191
        planner.close();
        EXPECT_EQ(planner.keptRow(4).wrp, "155") << "nobody entered the other";
    }
}
