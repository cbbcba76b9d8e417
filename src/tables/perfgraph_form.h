#pragma once

#include <array>

#include "forms/controls.h"
#include "forms/outside.h"
#include "prediction/vantstart_form.h"
#include "tables/age_curves.h"

inline constexpr Point ageGraphPicture{9800, 6500};   // picture units

/// Time against age over one of 24 distances: curves of fixed levels and this runner's, with a read-out that follows
/// the mouse.
///
/// It refers to the main form, so that it stays where it was built.
struct PerfgraphForm
{
    explicit PerfgraphForm(VantstartForm& mainForm);
    PerfgraphForm(const PerfgraphForm&) = delete;
    PerfgraphForm& operator=(const PerfgraphForm&) = delete;

    VantstartForm& main;

    Picture graph{{.name = "graph", .tip = "Time against age; move the mouse to read the curves"}, {}, ageGraphPicture};
    std::array<Button, tableDistances> distances;   // in the order of their rows

    Label trackerTitle{{.name = "trackerTitle", .caption = "Mouse Tracker:"}};
    Label trackerHint{{.name = "trackerHint", .caption = "(move mouse on graph)"}};
    Label Label1{{.name = "Label1", .tip = "Age in years"}};
    Label individualTitle{{.name = "individualTitle", .caption = "Individual:"}};
    Label Label2{{.name = "Label2", .tip = "This runner's time at that age"}};
    Label levelsTitle{{.name = "levelsTitle", .caption = "Performance Levels:"}};
    std::array<Label, levelCurves> pvelage;

    Button Command25{{.name = "Command25", .caption = "Print", .tip = "Print the graph"}};
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close the graph"}};

    Form form{"perfgraph", "Performance by Age"};
};

/// Draws the graph for the distance of a row, 1 to 24. Age counts in all records meanwhile; a fault leaves that so
/// until the next calculation of the main form has ended.
/// Writes chosenRow, axisTop, levelTimes, individualTimes, and what their computation writes; puts age, as entered, and
/// ageCompareOn back.
/// Faults: as `fillLevelCurves` and `fillIndividualCurve`; what was drawn before stays.
void drawAgeGraph(PerfgraphForm& form, int row);

/// Shows age and times at a place across the picture; beyond the ages of 5 and 95 those at the end.
void readAgeGraph(PerfgraphForm& form, double x);
