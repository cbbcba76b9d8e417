#pragma once

#include <array>
#include <cstddef>

#include "forms/controls.h"
#include "forms/outside.h"
#include "model/model_state.h"
#include "prediction/calculation.h"

/// One row of the race grid: Check1(i), Text1(i) to Text4(i), Option1(i) to Option6(i).
struct RaceControls
{
    CheckBox Check1;
    TextBox Text1, Text2, Text3;   // hours, minutes, seconds
    TextBox Text4;                 // number
    OptionButton Option1, Option2, Option3, Option4, Option5, Option6;
    OptionGroup units;
};

/// The main form: who the runner is, which races were run, and the predicted table.
///
/// It is built with its design values. It refers to the model state and to the outside, and its controls to each
/// other, so that it stays where it was built.
struct VantstartForm
{
    VantstartForm(ModelState& modelState, Outside& formOutside);
    VantstartForm(const VantstartForm&) = delete;
    VantstartForm& operator=(const VantstartForm&) = delete;

    ModelState& state;
    Outside& outside;
    CalculationResults results;   // what the latest runs left to be shown
    Event fullReport = {};        // pfull and tfile: the report to where reportToFile says

    TextBox txtname{{.name = "txtname", .caption = "Runner's Name:", .tip = "Printed on reports"}, "Joe Runner"};
    TextBox txtage{{.name = "txtage", .caption = "Age:", .tip = "Age in years, 5 to 100 as a rule; fractions allowed"}};
    OptionButton optmale{{.name = "optmale", .caption = "Male", .tip = "Men's record curve and age table"}, true};
    OptionButton optfemale{{.name = "optfemale", .caption = "Female", .tip = "Women's record curve and age table"}};
    OptionGroup sexes{{&optmale, &optfemale}};

    ScrollBar HScroll1{
        {.name = "HScroll1", .caption = "Weekly training volume:", .tip = "Miles run in a usual week, 0 to 150"},
        20,
        0,
        150,
        1,
        10};
    TextBox txtmi{{.name = "txtmi", .caption = "miles =", .tip = "Weekly training volume in miles"}, "20"};
    TextBox txtkm{{.name = "txtkm", .caption = "kilometers", .tip = "The same in kilometers"}, "32"};
    ScrollBar HScroll2{{.name = "HScroll2",
                        .caption = "Comparison level:",
                        .tip = "Performance level of the Record column, 0 to 110 % (100 % is the record)"},
                       fullComparisonLevel,
                       0,
                       1100,
                       1,
                       10};
    TextBox Text5{{.name = "Text5", .caption = "%", .tip = "Comparison level in percent"}, "100"};
    CheckBox agecomp{{.name = "agecomp",
                      .caption = "Use age-based comparisons",
                      .tip = "Compare with records of the runner's age instead of open records"}};

    ScrollBar wtscrl{
        {.name = "wtscrl", .caption = "Weight:", .tip = "Weight in pounds, 30 to 300"}, 160, 30, 300, 1, 10};
    TextBox txlb{{.name = "txlb", .caption = "lb =", .tip = "Weight in pounds"}, "160"};
    TextBox txkg{{.name = "txkg", .caption = "kg", .tip = "Weight in kilograms"}, "72.7"};
    ScrollBar htscrl{{.name = "htscrl", .caption = "Height:", .tip = "Height in inches, 36 to 90"}, 70, 36, 90, 1, 10};
    TextBox txin{{.name = "txin", .caption = "in =", .tip = "Height in inches"}, "70"};
    TextBox txcm{{.name = "txcm", .caption = "cm", .tip = "Height in centimeters"}, "178"};

    TextBox actmhrtx{{.name = "actmhrtx",
                      .caption = "Actual Max HR:",
                      .tip = "Highest heart rate measured, beats a minute; 150 to 220 as a rule"},
                     "182"};
    TextBox resthrtx{{.name = "resthrtx",
                      .caption = "Resting HR:",
                      .tip = "Heart rate at rest, beats a minute; 40 to 70 as a rule"}};
    TextBox emhrtx{{.name = "emhrtx",
                    .caption = "Estimated max HR (beats/min):",
                    .tip = "Estimated from age and sex; use it if the actual value is not known"},
                   "185"};

    Label raceHeading{{.name = "raceHeading",   // not shown: each column of the grid has its own word of it
                       .caption = "    Use?        Hours     Minutes     Seconds      Number            Units",
                       .visible = false}};
    std::array<RaceControls, static_cast<std::size_t>(maxRaces)> races;

    OptionButton Option7{{.name = "Option7",
                          .caption = "Fit best two",
                          .tip = "Curve through the first two races that no other race beats"}};
    OptionButton Option8{
        {.name = "Option8", .caption = "Use all data", .tip = "Curve from all races and the training volume"}};
    OptionGroup fitModes{{&Option7, &Option8}};
    OptionButton Option9{{.name = "Option9", .caption = "Metric output", .tip = "Table from 400 m to 10000 m"}};
    OptionButton Option10{
        {.name = "Option10", .caption = "English output", .tip = "Table from 440 yards to the marathon"}};
    OptionGroup outputs{{&Option9, &Option10}};
    TextSurface Picture1{{.name = "Picture1", .tip = "Predicted times, paces and levels"}};

    Button Command1{{.name = "Command1", .caption = "Re-Calculate", .tip = "Predict times from the checked races"}};
    Button Command2{
        {.name = "Command2", .caption = "Graph", .tip = "Pace against distance", .enabled = false}, {}, "graphform"};
    Button Command3{{.name = "Command3",
                     .caption = "Analysis/  Workouts",
                     .tip = "Training paces, heart rates and the workout planner",
                     .enabled = false},
                    {},
                    "anaform"};
    Button Command4{
        {.name = "Command4", .caption = "Special", .tip = "Hills, wind and uneven pacing", .enabled = false},
        {},
        "specinfo"};
    Button Command5{{.name = "Command5", .caption = "Help", .tip = "What each entry means"}, {}, "helpform"};
    Button Command6{{.name = "Command6", .caption = "Close", .tip = "Save the entries and end the program"}};
    Button Command7{{.name = "Command7", .caption = "Clear", .tip = "Empty the race rows and the table"}};
    Button Command8{
        {.name = "Command8", .caption = "Explanation", .tip = "What a performance level is"}, {}, "helpform"};

    MenuItem fileMenu{{.name = "file", .caption = "File"}};
    MenuItem datafiles{{.name = "datafiles", .caption = "Data File Access"}, "file", false, {}, "fileacc"};
    MenuItem exit{{.name = "exit", .caption = "Exit"}, "file"};
    MenuItem tables{{.name = "tables", .caption = "Tables and Tools"}};
    MenuItem hillpaces{{.name = "hillpaces", .caption = "Hill Paces"}, "tables", false, {}, "eqpace"};
    MenuItem tread{{.name = "tread", .caption = "Treadmill Equivalents"}, "tables", false, {}, "tmill"};
    MenuItem power{{.name = "power", .caption = "Power and Energy"}, "tables", false, {}, "powen"};
    MenuItem quickcalcsshow{
        {.name = "quickcalcsshow", .caption = "Quick Calculations for Above Items"}, "tables", false, {}, "quickcalcs"};
    MenuItem performance{
        {.name = "performance", .caption = "Performance Tables and Age Effects"}, "tables", false, {}, "pertabspec"};
    MenuItem unevpa{
        {.name = "unevpa", .caption = "Uneven Splits Analysis", .enabled = false}, "tables", false, {}, "splitform"};
    MenuItem cpa{{.name = "cpa", .caption = "Course Elevation Profile Analysis", .enabled = false},
                 "tables",
                 false,
                 {},
                 "profile"};
    MenuItem hhe{{.name = "hhe", .caption = "Temperature and Humidity Effects", .enabled = false},
                 "tables",
                 false,
                 {},
                 "heathum"};
    MenuItem graphs{{.name = "graphs", .caption = "Graph options"}};
    MenuItem scale{{.name = "scale", .caption = "Scale"}, "graphs"};
    MenuItem logg{{.name = "logg", .caption = "100 m - 100 km Log"}, "scale", true};
    MenuItem lin1{{.name = "lin1", .caption = "100 m - 800 m Linear"}, "scale"};
    MenuItem lin2{{.name = "lin2", .caption = "400 m - 3200 m Linear"}, "scale"};
    MenuItem lin3{{.name = "lin3", .caption = "5 km - Marathon Linear"}, "scale"};
    MenuItem units{{.name = "units", .caption = "Units"}, "graphs"};
    MenuItem metric{{.name = "metric", .caption = "Metric"}, "units", true};
    MenuItem english{{.name = "english", .caption = "English"}, "units"};
    MenuItem printMenu{{.name = "print", .caption = "Print"}};
    MenuItem ppinfo{{.name = "ppinfo", .caption = "Information on printing"}, "print", false, {}, "helpform"};
    MenuItem pfull{{.name = "pfull", .caption = "Full report", .enabled = false}, "print"};
    MenuItem tfile{{.name = "tfile", .caption = "Text file of full report", .enabled = false}, "print"};
    MenuItem helpMenu{{.name = "help", .caption = "Help"}};
    MenuItem proghelp{{.name = "proghelp", .caption = "Help"}, "help", false, {}, "vanthelp"};
    MenuItem refs{{.name = "refs", .caption = "References"}, "help", false, {}, "refform"};
    MenuItem about{{.name = "about", .caption = "About"}, "help", false, {}, "frmabout"};

    Form form{"vantstart", "Vantelos 9.3"};
};

/// The form's entries as `calculate` takes them.
[[nodiscard]] CalculationInput entriesOf(const VantstartForm& form);

/// Re-Calculate: what Command1 does, and the program's start.
/// Faults: as `recalculate`; what was done before is shown.
void recalculate(VantstartForm& form);

/// One calculation of the entries, with curve constants and warnings as they stand.
/// Faults: as `calculate`; what was done before is shown.
void calculate(VantstartForm& form);

/// Command7: empties the race rows and the table; the curve stays.
void clearRaces(VantstartForm& form);
