#pragma once

#include "forms/controls.h"
#include "forms/outside.h"
#include "model/model_state.h"

/// The hill table. Its range and its definition of a grade outlive it; units are miles whenever it is built.
///
/// It refers to the model state and the outside, so that it stays where it was built.
struct EqpaceForm
{
    EqpaceForm(ModelState& modelState, Outside& formOutside);
    EqpaceForm(const EqpaceForm&) = delete;
    EqpaceForm& operator=(const EqpaceForm&) = delete;

    ModelState& state;
    Outside& outside;

    Label Label1{{.name = "Label1"}};   // units
    Label Label2{{.name = "Label2"}};   // an example
    Label Label5{{.name = "Label5",
                  .caption = "Data specific to runners weight and height on main form, so may not fit this example."}};
    Label Label4{{.name = "Label4"}};   // above the columns
    TextSurface table{{.name = "table", .tip = "Paces of equal effort on the level and on hills"}};
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close this form"}};
    Button Command2{{.name = "Command2", .tip = "Paces per mile or per kilometer"}};
    Button Command3{{.name = "Command3", .caption = "Print", .tip = "Print this form"}};
    Button Command4{{.name = "Command4",
                     .caption = "Switch grade defnition",
                     .tip = "Rise over distance along the surface or over horizontal distance"}};
    Label rangeLabel{{.name = "rangeLabel", .caption = "Range:"}};
    Button sclminus{{.name = "sclminus", .caption = "-", .tip = "Gentler grades"}};
    Button sclplus{{.name = "sclplus", .caption = "+", .tip = "Steeper grades"}};

    Form form{"eqpace", "Equivalent Paces on Different Slopes"};
};
