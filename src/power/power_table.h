#pragma once

#include "model/model_state.h"
#include "model/text_page.h"

// Power and energy by pace, on the level outdoors.

/// Prints the table: five empty lines, 28 paces, and for whom it is. Reads weightKg, bodyDrag.
///   kilometers  paces from about 1:45 to 8:30 per kilometer and energy in kJ, instead of 3:00 to 12:00 per mile and
///               kcal
/// Rows printed before a fault stay.  Faults: a weightKg or bodyDrag of 0.
void printPowerTable(ModelState& state, bool kilometers, TextPage& page);
