#pragma once

#include "forms/controls.h"

// A button whose caption records the units of its form: it names what a click switches to.

inline constexpr const char* toKilometers = "Switch to minutes/kilometer";
inline constexpr const char* toMiles = "Switch to minutes/mile";

[[nodiscard]] inline bool showsKilometers(const Button& units)
{
    return units.caption == toMiles;
}

inline void flipUnits(Button& units)
{
    setCaption(units, showsKilometers(units) ? toKilometers : toMiles);
}
