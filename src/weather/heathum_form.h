#pragma once

#include <array>

#include "forms/controls.h"
#include "forms/outside.h"
#include "model/model_state.h"
#include "weather/heat_table.h"

/// One race in near-ideal weather: r1use, rhr1, rmin1, rsec1, rmeters1, rmi1.
struct HeatRaceControls
{
    CheckBox use;
    TextBox hours, minutes, seconds, meters, miles;
};

/// The temperature and humidity form: weather, a runner, one or two races, and what the weather does to race times.
///
/// When it is built it takes the main form's values, and then works on its own: nothing typed here goes back. It refers
/// to the model state and the outside, so that it stays where it was built.
struct HeathumForm
{
    HeathumForm(ModelState& modelState, Outside& formOutside);
    HeathumForm(const HeathumForm&) = delete;
    HeathumForm& operator=(const HeathumForm&) = delete;

    ModelState& state;
    Outside& outside;
    HeatTable table;

    Label Label53{{.name = "Label53",
                   .caption = "This tool lets you estimate the effect of temperature, humidity, and sunshine on race "
                              "performances of various distances.  The default data are from the main form, but you "
                              "can experiment with those values independently here."}};

    Label Label52{{.name = "Label52", .caption = "Weather Conditions:"}};
    ScrollBar tscrl{
        {.name = "tscrl", .caption = "Temperature", .tip = "Air temperature in degrees Fahrenheit, -20 to 130"},
        0,
        -20,
        130,
        1,
        10};
    TextBox tfar{{.name = "tfar", .caption = "F", .tip = "Air temperature in degrees Fahrenheit"}};
    TextBox tcel{{.name = "tcel", .caption = "C", .tip = "Air temperature in degrees Celsius"}};
    ScrollBar rhscrl{{.name = "rhscrl", .caption = "Relative Humidity (%)", .tip = "Relative humidity, 0 to 100 %"},
                     0,
                     0,
                     100,
                     1,
                     10};
    TextBox rhtx{{.name = "rhtx", .caption = "%", .tip = "Relative humidity in percent, 0 to 100"}};
    ScrollBar sunscrl{
        {.name = "sunscrl", .caption = "Sunshine", .tip = "Sunshine, from 0 at night to 10 under a high, clear sun"},
        0,
        0,
        10,
        1,
        1};
    TextBox suntx{{.name = "suntx", .caption = "Sunshine", .tip = "Sunshine, 0 to 10"}};
    TextBox sundesc{{.name = "sundesc", .tip = "What this sunshine looks like"}};
    TextBox dpf{{.name = "dpf", .caption = "Dew Point", .tip = "Dew point in degrees Fahrenheit"}};
    TextBox dpc{{.name = "dpc", .caption = "C", .tip = "Dew point in degrees Celsius"}};
    TextBox wbf{{.name = "wbf", .caption = "Wet Bulb", .tip = "Wet bulb temperature in degrees Fahrenheit"}};
    TextBox wbc{{.name = "wbc", .caption = "C", .tip = "Wet bulb temperature in degrees Celsius"}};
    TextBox wbgtf{{.name = "wbgtf",
                   .caption = "Approximate Wet Bulb Globe Temperature",
                   .tip = "Wet bulb globe temperature in degrees Fahrenheit, which the predictions go by"}};
    TextBox wbgtc{{.name = "wbgtc", .caption = "C", .tip = "Wet bulb globe temperature in degrees Celsius"}};
    TextBox hind{{.name = "hind", .caption = "U.S NWS Heat Index", .tip = "Heat index in degrees Fahrenheit"}};
    TextBox humidex{{.name = "humidex", .caption = "Canadian Humidex", .tip = "Humidex in degrees Celsius"}};

    Label Label51{{.name = "Label51", .caption = "Runner's Physical and Training Data:"}};
    ScrollBar htscrl2{{.name = "htscrl2", .caption = "Height", .tip = "Height in inches, 36 to 90"}, 36, 36, 90, 1, 1};
    TextBox htin{{.name = "htin", .caption = "in", .tip = "Height in inches"}};
    TextBox htcm{{.name = "htcm", .caption = "cm", .tip = "Height in centimeters, above 0"}};
    ScrollBar wtscrl2{
        {.name = "wtscrl2", .caption = "Weight", .tip = "Weight in pounds, 30 to 330"}, 30, 30, 330, 1, 1};
    TextBox wtlb{{.name = "wtlb", .caption = "lb", .tip = "Weight in pounds"}};
    TextBox wtkg{{.name = "wtkg", .caption = "kg", .tip = "Weight in kilograms, above 0"}};
    OptionButton mop{{.name = "mop", .caption = "Male", .tip = "A man's response to heat and training"}};
    OptionButton fop{{.name = "fop", .caption = "Female", .tip = "A woman's response to heat and training"}};
    OptionGroup sexes{{&mop, &fop}};
    TextBox agetx{{.name = "agetx", .caption = "Age", .tip = "Age in years"}};
    ScrollBar weekmi{{.name = "weekmi",
                      .caption = "Weekly Mileage",
                      .tip = "Miles run in a usual week, 0 to 150; move it after a change of sex"},
                     0,
                     0,
                     150,
                     1,
                     10};
    TextBox wmi{{.name = "wmi", .caption = "mi", .tip = "Weekly mileage in miles"}};
    TextBox wkm{{.name = "wkm", .caption = "km", .tip = "Weekly mileage in kilometers"}};

    Label Label50{
        {.name = "Label50", .caption = "Enter one or two race performances in near-ideal weather conditions:"}};
    Label raceHeading{{.name = "raceHeading",   // not shown: each entry has its own word of it
                       .caption = "Use     Hours     Min       Sec          Meters             Miles",
                       .visible = false}};
    HeatRaceControls race1, race2;
    Label Label49{{.name = "Label49", .caption = "(marathon = 42195 meters, half = 21097.5 meters)"}};
    TextBox dispred{{.name = "dispred",
                     .caption = "Distance to predict",
                     .tip = "Distance of the table's first row in meters, 400 or more"}};
    TextBox dispredmi{{.name = "dispredmi", .caption = "mi", .tip = "The same in miles"}};

    Label idealHeading{{.name = "idealHeading", .caption = "In Ideal Conditions "}};
    Label givenHeading{{.name = "givenHeading", .caption = "With Given Conditrions"}};
    Label decrementHeading{{.name = "decrementHeading", .caption = "Percent Decrement"}};
    Label dtopred{{.name = "dtopred", .tip = "The distance to predict, as of the latest calculation"}};
    std::array<Label, heatRows> rowNames;   // of the rows from 1 up; the first is `dtopred`
    std::array<Label, heatRows> idealt, givent, pdec;

    Button Command2{{.name = "Command2", .caption = "Calculate", .tip = "Predict times for this weather"}};
    Label Label54{{.name = "Label54", .caption = "Press 'Calculate' to see results of changes"}};
    Button Command3{{.name = "Command3", .caption = "Help", .tip = "What this form does"}, {}, "helpform"};
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close this form"}};

    Form form{"heathum", "Temperature and Humidity Effects"};
};

/// Command2: fills the table.
/// Faults: as `calculateHeatTable`; the rows before stay, and are shown.
void calculateHeat(HeathumForm& form);
