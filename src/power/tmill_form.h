#pragma once

#include "forms/controls.h"
#include "forms/outside.h"
#include "model/model_state.h"

/// The treadmill table. What it shows, paces or speeds, flat or on the incline, outlives it; units and place are miles
/// and outdoors whenever it is built.
///
/// It refers to the model state and the outside, so that it stays where it was built.
struct TmillForm
{
    TmillForm(ModelState& modelState, Outside& formOutside);
    TmillForm(const TmillForm&) = delete;
    TmillForm& operator=(const TmillForm&) = delete;

    ModelState& state;
    Outside& outside;

    Label Label4{{.name = "Label4"}};   // title of the table
    Label Label1{{.name = "Label1"}};   // what it shows
    Label Label2{{.name = "Label2"}};   // an example
    Label Label3{{.name = "Label3"}};   // above the columns
    TextSurface table{{.name = "table", .tip = "Paces or speeds of equal effort on a treadmill and flat"}};
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close this form"}};
    Button Command2{{.name = "Command2", .tip = "Paces per mile or per kilometer"}};
    Button Command3{{.name = "Command3", .caption = "Print", .tip = "Print this form"}};
    Button Command4{{.name = "Command4", .tip = "Compare with running outdoors or with the treadmill at 0 percent"}};
    Button Command5{
        {.name = "Command5", .tip = "Flat pace equal to a treadmill setting, or treadmill pace equal to a flat pace"}};
    Button Command6{{.name = "Command6", .tip = "Paces or speeds"}};

    Form form{"tmill", "Treadmill Equivalent Paces"};
};
