#pragma once

#include <vector>

#include "forms/controls.h"
#include "forms/outside.h"

/// Prints a form as an image: its buttons hidden, on white, drawn anew for the paper and again for the screen. The
/// buttons come back even where a fault stops the drawing; then nothing is printed.
void printForm(Outside& outside, const Form& form, const std::vector<Button*>& buttons, const Event& redraw);
