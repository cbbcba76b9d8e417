#pragma once

#include "forms/controls.h"
#include "forms/outside.h"
#include "model/model_state.h"

inline constexpr Point paceGraphPicture{9000, 5850};   // picture units

/// Pace, percentage of the record and performance level against distance.
///
/// Whenever it is asked for the graph is drawn anew.
struct GraphformForm
{
    /// comparisonBar: the main form's comparison level, tenths of a percent.
    GraphformForm(ModelState& modelState, Outside& formOutside, const ScrollBar& comparisonBar);
    GraphformForm(const GraphformForm&) = delete;
    GraphformForm& operator=(const GraphformForm&) = delete;

    ModelState& state;
    Outside& outside;
    const ScrollBar& comparisonLevel;

    Picture Surface{{.name = "Surface", .tip = "Pace against distance"}, {}, paceGraphPicture};
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close the graph"}};
    Button Command2{{.name = "Command2", .caption = "Print", .tip = "Print the graph"}};

    Form form{"graphform", "Pace versus distance"};
};

/// Draws the graph on one of the four distance scales of graphScale, in the units of unitsMode.
/// Writes curDistance, level and ageCompareOn.
/// Faults: a curve without a time at a distance of the scale, a comparison level of 0, ages without an age factor. What
/// was drawn before stays.
void paceGraph(GraphformForm& form);
