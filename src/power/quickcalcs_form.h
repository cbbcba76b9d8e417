#pragma once

#include "forms/controls.h"
#include "forms/outside.h"
#include "model/model_state.h"

/// One speed as a runner reads it: miles and kilometers per hour, pace per mile and per kilometer.
struct SpeedFields
{
    TextBox mph, kph, mpm, mpk;
};

/// The quick calculator: power, energy and speeds of equal effort at a level speed, a slope and a weight.
///
/// It is built with its design values and refers to the model state and the outside, so that it stays where it was
/// built.
struct QuickcalcsForm
{
    QuickcalcsForm(ModelState& modelState, Outside& formOutside);
    QuickcalcsForm(const QuickcalcsForm&) = delete;
    QuickcalcsForm& operator=(const QuickcalcsForm&) = delete;

    ModelState& state;
    Outside& outside;

    Label Label1{{.name = "Label1", .caption = "Select level speed (outdoors, with air resistance)"}};
    ScrollBar speedscrl{{.name = "speedscrl", .tip = "Level speed in hundredths of a mile per hour, 400 to 2500"},
                        750,
                        400,
                        2500,
                        1,
                        50};
    Label Label6{{.name = "Label6", .caption = "Select slope (incline of treadmill or road)"}};
    ScrollBar slopescrl{
        {.name = "slopescrl", .tip = "Slope in thousandths, vertical rise divided by horizontal distance, -200 to 300"},
        0,
        -200,
        300,
        1,
        10};
    TextBox tantheta{{.name = "tantheta",
                      .caption = "Slope 1 (%)",
                      .tip = "Vertical rise divided by horizontal distance, in percent"}};
    TextBox sintheta{{.name = "sintheta",
                      .caption = "Slope 2 (%)",
                      .tip = "Vertical rise divided by distance along the slope, in percent"}};
    TextBox theta{{.name = "theta", .caption = "Degrees", .tip = "Angle of the slope in degrees"}};
    Label Label25{{.name = "Label25",
                   .caption =
                       "At right, Slope 1 refers to vertical rise divided by horizontal distance (commonly used with "
                       "treadmills) and Slope 2 refers to vertical rise divided by distance along slope."}};
    ScrollBar weightscrl{{.name = "weightscrl", .tip = "Weight in pounds, 50 to 300"}, 150, 50, 300, 1, 10};
    TextBox wtlb{{.name = "wtlb", .caption = "lb", .tip = "Weight in pounds"}, "150"};
    TextBox wtkg{{.name = "wtkg", .caption = "kg", .tip = "Weight in kilograms, which the powers go by"}, " 68.0"};

    SpeedFields levout, levin, slopeout, slopein;

    TextBox netpowout{{.name = "netpowout", .caption = "Watts", .tip = "Net power output in Watts"}};
    TextBox grosspowwatts{{.name = "grosspowwatts",
                           .caption = "Watts",
                           .tip = "Gross power used, base metabolic rate included, in Watts"}};
    TextBox grosspowkchr{{.name = "grosspowkchr", .caption = "kcal/hour", .tip = "Gross power used in kcal per hour"}};
    TextBox netpowwatts{{.name = "netpowwatts", .caption = "Watts", .tip = "Net power used in Watts"}};
    TextBox netpowkchr{{.name = "netpowkchr", .caption = "kcal/hour", .tip = "Net power used in kcal per hour"}};
    TextBox mets{{.name = "mets", .caption = "MET", .tip = "Metabolic equivalent: kcal per kg and hour"}};
    TextBox vo2{
        {.name = "vo2", .caption = "mlO2/kg/min", .tip = "Metabolic equivalent in ml of oxygen per kg and minute"}};
    TextBox grosscostkcmi{
        {.name = "grosscostkcmi", .caption = "kcal/mile", .tip = "Gross energy cost in kcal per mile"}};
    TextBox grosscostkjkm{
        {.name = "grosscostkjkm", .caption = "kJ/km", .tip = "Gross energy cost in kJ per kilometer"}};
    TextBox netcostkcmi{{.name = "netcostkcmi", .caption = "kcal/mile", .tip = "Net energy cost in kcal per mile"}};
    TextBox netcostkjkm{{.name = "netcostkjkm", .caption = "kJ/km", .tip = "Net energy cost in kJ per kilometer"}};

    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close this form"}};

    Form form{"quickcalcs", "Quick Calculations Involving Power, Energy, and Slope"};
};
