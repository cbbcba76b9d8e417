#pragma once

#include "forms/controls.h"
#include "forms/outside.h"
#include "model/model_state.h"
#include "special/special_analysis.h"

/// The special information form: a distance, with hills, wind or uneven pacing.
///
/// It is built with its design values; what its latest analysis was made from comes back when it is opened. It refers
/// to the model state, the outside and the main form's comparison level, so that it stays where it was built.
struct SpecinfoForm
{
    SpecinfoForm(ModelState& modelState, Outside& formOutside, const ScrollBar& comparisonLevel);
    SpecinfoForm(const SpecinfoForm&) = delete;
    SpecinfoForm& operator=(const SpecinfoForm&) = delete;

    ModelState& state;
    Outside& outside;
    const ScrollBar& comparison;   // tenths of a percent
    SpecialResults results;

    Label Label1{
        {.name = "Label1",
         .caption = "Choose a distance to analyze.  You can get a predicted time for this distance on a level surface "
                    "(with the optional effect of uneven pacing) or on hills (up, down, or half-of-each slopes), with "
                    "or without wind."}};
    Label distanceLabel{{.name = "distanceLabel", .caption = "Your distance:"}};
    Label distanceHeading{{.name = "distanceHeading",   // not shown: each entry has its own word of it
                           .caption = "Number:                   Units:",
                           .visible = false}};
    TextBox Text1{{.name = "Text1", .caption = "Number:", .tip = "How many of the units; up to 500 km"}, "5"};
    OptionButton optmi{{.name = "optmi", .caption = "mi", .tip = "Miles"}};
    OptionButton optyd{{.name = "optyd", .caption = "yd", .tip = "Yards"}};
    OptionButton optkm{{.name = "optkm", .caption = "km", .tip = "Kilometers"}, true};
    OptionButton optm{{.name = "optm", .caption = "m", .tip = "Meters"}};
    OptionButton optmara{{.name = "optmara", .caption = "mara", .tip = "A marathon; the number is not read"}};
    OptionButton opthmara{
        {.name = "opthmara", .caption = "half mara", .tip = "A half marathon; the number is not read"}};
    OptionGroup units{{&optmi, &optyd, &optkm, &optm, &optmara, &opthmara}};

    OptionButton Option1{{.name = "Option1",
                          .caption = "Uneven splits effect (no wind or hills)",
                          .tip = "What happens if the halves are run at different speeds"}};
    OptionButton Option2{
        {.name = "Option2", .caption = "Hills and wind - constant", .tip = "One slope and one wind all the way"}};
    OptionButton Option3{{.name = "Option3",
                          .caption = "Hills and wind - out and back (plus track and cross wind estimates; make slope "
                                     "zero for accurate track data)",
                          .tip = "Slope and wind of the first half, their opposites in the second"}};
    OptionButton Option5{
        {.name = "Option5", .caption = "Level time only (no wind)", .tip = "Nothing but the predicted time"}};
    OptionGroup modes{{&Option1, &Option2, &Option3, &Option5}};

    TextBox Text3{{.name = "Text3",
                   .caption = "Slope (rise/distance along surface).  Use negative for downhill. ",
                   .tip = "A fraction between -1 and 1: 0.03 is 3 percent"},
                  "0.00"};
    TextBox Text2{{.name = "Text2",
                   .caption = "Same incline defined as vertical/horizontal",
                   .tip = "The slope as rise over horizontal distance"},
                  "0.00",
                  {},
                  true};
    Label windHeading{{.name = "windHeading",   // not shown: each box has its own word of it
                       .caption = "Wind speed    m/s    km/h   mi/h    knots",
                       .visible = false}};
    ScrollBar wsscr{{.name = "wsscr", .caption = "Wind speed", .tip = "Wind in tenths of a meter per second, 0 to 200"},
                    0,
                    0,
                    200,
                    1,
                    10};
    TextBox wsmps{{.name = "wsmps", .caption = "m/s", .tip = "Wind in meters per second"}, "0", {}, true};
    TextBox wskph{{.name = "wskph", .caption = "km/h", .tip = "Wind in kilometers per hour"}, "0", {}, true};
    TextBox wsmph{{.name = "wsmph", .caption = "mi/h", .tip = "Wind in miles per hour"}, "0", {}, true};
    TextBox wsknt{{.name = "wsknt", .caption = "knots", .tip = "Wind in knots"}, "0", {}, true};
    OptionButton headw{{.name = "headw", .caption = "head", .tip = "Head wind, in the first half at least"}, true};
    OptionButton tailw{{.name = "tailw", .caption = "tail", .tip = "Tail wind, in the first half at least"}};
    OptionGroup directions{{&headw, &tailw}};
    Label windwarn{
        {.name = "windwarn",
         .caption = "Wind speed  measured at 1 meter above the ground (about waist level for a 6 foot tall runner).  "
                    "This is about half the official 10 meter speed given in weather reports, or about 80% that "
                    "measured at 2 meters."}};

    Label Label4{{.name = "Label4", .caption = "Predicted level time:"}};
    Label Label5{{.name = "Label5", .caption = specialHeading}};
    TextBox Text4{{.name = "Text4", .tip = "Predicted level time, paces, record time and levels"}};
    Label Label10{{.name = "Label10", .caption = "Values for constant hills or wind::"}};
    TextBox Text5{{.name = "Text5", .tip = "Time and paces on the slope and in the wind, and record time"}};
    Label Label8{{.name = "Label8", .visible = false}};
    TextSurface winds{{.name = "winds", .tip = "Best times on the level with wind from several directions"}};
    TextSurface table{{.name = "table", .tip = "Pacing strategies"}};

    Button Command1{{.name = "Command1", .caption = "Calculate", .tip = "Analyze the distance"}};
    Button Command2{{.name = "Command2", .caption = "Help", .tip = "What this form does"}, {}, "helpform"};
    Button Command3{{.name = "Command3", .caption = "Close", .tip = "Close this form"}};
    Button Command4{{.name = "Command4", .tip = "Paces of the tables per mile or per kilometer", .enabled = false}};
    Button Command5{{.name = "Command5", .caption = "Print", .tip = "Analyze, and print this form"}};
    Label Label11{{.name = "Label11",
                   .caption = "Additional, related tools are available on other forms, accessible via the buttons "
                              "below:"}};
    Button Command6{
        {.name = "Command6", .caption = "Uneven Splits Analysis", .tip = "A race from its splits"}, {}, "splitform"};
    Button Command7{
        {.name = "Command7", .caption = "Course Elevation Profile Analysis", .tip = "A course of many slopes"},
        {},
        "profile"};
    Button Command8{
        {.name = "Command8", .caption = "Temperature and Humidity Effects", .tip = "What heat does to a race time"},
        {},
        "heathum"};

    Form form{"specinfo", "Special Information"};
};

/// Command1: the analysis of the form's entries.
/// Faults: as `specialAnalysis`; what was done before is shown.
void analyze(SpecinfoForm& form);
