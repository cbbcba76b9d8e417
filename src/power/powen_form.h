#pragma once

#include "forms/controls.h"
#include "forms/outside.h"
#include "model/model_state.h"

/// The table of power and energy by pace.
///
/// It is built with its design values and refers to the model state and the outside, so that it stays where it was
/// built.
struct PowenForm
{
    PowenForm(ModelState& modelState, Outside& formOutside);
    PowenForm(const PowenForm&) = delete;
    PowenForm& operator=(const PowenForm&) = delete;

    ModelState& state;
    Outside& outside;

    Label Label1{{.name = "Label1",
                  .caption = "Pace  Speed   Power Ouput -------------Power Used--------------  Energy Used per "
                             "Distance"}};
    Label Label3{{.name = "Label3", .caption = "Gross   Net     Gross   Net                 Gross     Net"}};
    Label Label2{{.name = "Label2"}};
    Label Label4{{.name = "Label4", .caption = "'Gross' means including base metabolic rate."}};
    TextSurface table{{.name = "table", .tip = "Power and energy by pace, on the level outdoors"}};
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close this form"}};
    Button Command2{{.name = "Command2", .tip = "Paces per mile and kcal, or per kilometer and kJ"}};
    Button Command3{{.name = "Command3", .caption = "Print", .tip = "Print this form"}};

    Form form{"powen", "Power and Energy Usage and Output"};
};
