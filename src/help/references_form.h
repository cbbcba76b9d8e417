#pragma once

#include "forms/controls.h"
#include "forms/outside.h"

/// The literature that the formulas come from.
///
/// It refers to the outside, so that it stays where it was built.
struct ReferencesForm
{
    explicit ReferencesForm(Outside& formOutside);
    ReferencesForm(const ReferencesForm&) = delete;
    ReferencesForm& operator=(const ReferencesForm&) = delete;

    Outside& outside;
    TextSurface references{{.name = "references", .tip = "The literature that the formulas come from"}};
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close this form"}};

    Form form{"refform", "References"};
};
