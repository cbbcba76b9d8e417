#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "forms/controls.h"
#include "forms/outside.h"
#include "model/model_state.h"
#include "prediction/settings_file.h"
#include "workouts/workout_plan.h"

/// One row of the planner.
struct WorkoutRowControls
{
    TextBox dist, num;
    Label Label3, rptslbl;   // stress points of the efforts and of the recoveries
    TextBox wrp;
    Label split, sec400, sec100, minmi;   // an effort
    Label restd, rest, rsec100, rminmi;   // a recovery
};

/// The workout planner: repeated distances or one continuous run, replanned at every change.
///
/// It is built with its design values. It refers to the model state, the outside and the stored entries, and its
/// controls to each other, so that it stays where it was built.
struct WorkoutsForm
{
    WorkoutsForm(ModelState& modelState, Outside& formOutside, StoredPlanner& storedPlanner);
    WorkoutsForm(const WorkoutsForm&) = delete;
    WorkoutsForm& operator=(const WorkoutsForm&) = delete;

    ModelState& state;
    Outside& outside;
    StoredPlanner& stored;   // what is kept between openings; all but acwr goes to the settings, too
    bool loading = false;
    bool worthKeeping = false;   // not when a fault stopped the opening and nothing was entered since

    OptionButton ints{{.name = "ints", .caption = "Intervals", .tip = "Repetitions with recoveries between them"},
                      true};
    OptionButton scrun{{.name = "scrun",
                        .caption = "Single Continuous Run (use last row)",
                        .tip = "One run without recovery, entered in the last row"}};
    OptionGroup modes{{&ints, &scrun}};
    CheckBox acwr{{.name = "acwr",
                   .caption = "Automatically  choose work:recovery ratio",
                   .tip = "Longer repetitions get less recovery"}};
    Label scrdesclbl{{.name = "scrdesclbl"}};

    Label rowHeading{{.name = "rowHeading",
                      .caption = "  Distance (m)   Number   Points   Points   Work/Rec (%)   Split   sec/400   "
                                 "sec/100  min/mi    Distance   Time    sec/100   min/mi",
                      .visible = false}};   // each column of the rows has its own word of it
    std::array<WorkoutRowControls, plannerRows> rows;

    ScrollBar pctmax{{.name = "pctmax",
                      .caption = "Intensity as % of max",
                      .tip = "Intensity in percent of the maximum, 60 to 100 in halves"},
                     194,
                     120,
                     200,
                     1,
                     2};
    TextBox pctmaxtxt{{.name = "pctmaxtxt", .caption = "%", .tip = "Intensity in percent of the maximum"}, "97"};
    ScrollBar repvoscrl{{.name = "repvoscrl",
                         .caption = "Purpose of Workout (applies only to intensity >= 94%)",
                         .tip = "From 0, VO2 max, to 100, repeats at race pace"},
                        85,
                        0,
                        100,
                        1,
                        10};
    TextBox vrtext{{.name = "vrtext", .caption = "%", .tip = "Purpose of the workout, 0 to 100"}, "85"};
    ScrollBar recovpace{{.name = "recovpace",
                         .caption = "Recovery pace as % effort pace",
                         .tip = "Speed of the recoveries in percent of the efforts', 10 to 100"},
                        50,
                        10,
                        100,
                        1,
                        10};
    TextBox recovpacetxt{
        {.name = "recovpacetxt", .caption = "%", .tip = "Speed of the recoveries in percent of the efforts'"}, "50"};
    ScrollBar perfadj{{.name = "perfadj",
                       .caption = "Performance Adjustment",
                       .tip = "Level to plan for in percent of the runner's own, 80 to 120 in halves"},
                      200,
                      160,
                      240,
                      1,
                      10};
    TextBox perfadjtxt{
        {.name = "perfadjtxt", .caption = "%", .tip = "Level to plan for in percent of the runner's own"}, "100"};

    Label raceHeading{{.name = "raceHeading",
                       .caption = "400      800      1500    1600      mile      3000      3200        5000      10000",
                       .visible = false}};   // likewise
    Label p400{{.name = "p400", .tip = "Race time over 400 m at the adjusted level"}, {}, "400"};
    Label p800{{.name = "p800", .tip = "Race time over 800 m at the adjusted level"}, {}, "800"};
    Label p1500{{.name = "p1500", .tip = "Race time over 1500 m at the adjusted level"}, {}, "1500"};
    Label p1600{{.name = "p1600", .tip = "Race time over 1600 m at the adjusted level"}, {}, "1600"};
    Label pmile{{.name = "pmile", .tip = "Race time over one mile at the adjusted level"}, {}, "mile"};
    Label p3000{{.name = "p3000", .tip = "Race time over 3000 m at the adjusted level"}, {}, "3000"};
    Label p3200{{.name = "p3200", .tip = "Race time over 3200 m at the adjusted level"}, {}, "3200"};
    Label p5000{{.name = "p5000", .tip = "Race time over 5000 m at the adjusted level"}, {}, "5000"};
    Label p10000{{.name = "p10000", .tip = "Race time over 10000 m at the adjusted level"}, {}, "10000"};

    Label summaryHeading{{.name = "summaryHeading", .caption = "Workout Summary:"}};
    Label fastHeading{{.name = "fastHeading", .caption = "Total Fast "}};
    Label fastm{{.name = "fastm", .tip = "Distance of the efforts, meters"}, {}, "meters = "};
    Label fastmi{{.name = "fastmi", .tip = "Distance of the efforts, miles"}, {}, "miles in"};
    Label fasttime{{.name = "fasttime", .tip = "Time of the efforts"}, {}, ""};
    Label recoveryHeading{{.name = "recoveryHeading", .caption = "Recovery (stopping after last fast)"}};
    Label recm{{.name = "recm", .tip = "Distance of the recoveries, meters"}, {}, "meters = "};
    Label recmi{{.name = "recmi", .tip = "Distance of the recoveries, miles"}, {}, "miles in"};
    Label rectime{{.name = "rectime", .tip = "Time of the recoveries"}, {}, ""};
    Label totalHeading{{.name = "totalHeading", .caption = "Total Workout"}};
    Label totm{{.name = "totm", .tip = "Distance of the workout, meters"}, {}, "meters = "};
    Label totmi{{.name = "totmi", .tip = "Distance of the workout, miles"}, {}, "miles in"};
    Label tottime{{.name = "tottime", .tip = "Time of the workout"}, {}, ""};
    Label effectiveIntensity{
        {.name = "effectiveIntensity", .tip = "Intensity adjusted to the time of the efforts, percent"},
        {},
        "time adj int"};

    Label stressHeading{
        {.name = "stressHeading", .caption = "Stress evaluation (similar to JackDaniels' point system)"}};
    Label totload{{.name = "totload", .tip = "Stress points of efforts and recoveries; one is 58.3 s at VO2 max pace"},
                  {},
                  "Total Workout Points"};
    Label totldst{{.name = "totldst", .tip = "Stress points in percent of those of the weekly mileage"},
                  {},
                  "Percent of Standard"};
    Label stload{{.name = "stload", .tip = "Stress points that the weekly mileage stands for"},
                 {},
                 "Standard Points for Weekly Mileage"};

    Label heartHeading{{.name = "heartHeading", .caption = "Heart Rate:"}};
    Label effortHeading{{.name = "effortHeading", .caption = "Effort"}};
    Label meanHeading{{.name = "meanHeading", .caption = "Mean"}};
    Label recovHeading{{.name = "recovHeading", .caption = "Recov"}};
    Label approxhr{
        {.name = "approxhr", .tip = "Highest heart rate of the efforts, beats a minute"}, {}, "Effort HR = "};
    Label newmeanhr{{.name = "newmeanhr", .tip = "Mean heart rate, beats a minute"}, {}, ""};
    Label apminhr{{.name = "apminhr", .tip = "Lowest heart rate of the recoveries, beats a minute"}, {}, ""};
    Label hrpctmax{
        {.name = "hrpctmax", .tip = "Heart rate of the efforts in percent of the maximum"}, {}, "% of max ="};
    Label hrrlbl{{.name = "hrrlbl", .tip = "Heart rate of the efforts in percent of the way from resting to maximum"},
                 {},
                 "% Heart Rate Reserve"};
    Label zonelbl{{.name = "zonelbl", .tip = "What kind of training this is"}};

    Button Command3{{.name = "Command3", .tip = "Plan the workout again"}};
    Button Command2{{.name = "Command2", .caption = "Help", .tip = "How to plan a workout"}, {}, "helpform"};
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Keep the entries and close the window"}};

    Form form{"workouts", "Workout Planner"};
};

/// Command3, and every change: plans the workout and shows the plan.
/// Faults: as `planWorkout`, `workoutHeartRates` and what the plan can't be shown as; outputs shown before stay.
void planWorkout(WorkoutsForm& form);

/// The plan as it is copied and saved.
[[nodiscard]] TextTable tableOf(const WorkoutsForm& form);
