#pragma once

#include "forms/controls.h"
#include "forms/outside.h"

/// A small companion of the special information form, whose tables hold the strategies: it switches the unit of its own
/// label and asks for the analysis again. No command opens it.
///
/// It refers to the outside, so that it stays where it was built.
struct PstratForm
{
    /// analyzeAgain: runs the special information form's analysis.
    PstratForm(Outside& formOutside, Event analyzeAgain);
    PstratForm(const PstratForm&) = delete;
    PstratForm& operator=(const PstratForm&) = delete;

    Outside& outside;
    Event rerun;

    Label Label1{{.name = "Label1"}};
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close this form"}};
    Button Command2{{.name = "Command2", .tip = "Paces per mile or per kilometer"}};

    Form form{"pstrat", "Results of Various Pacing Strategies"};
};
