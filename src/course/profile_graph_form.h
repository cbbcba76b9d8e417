#pragma once

#include "forms/controls.h"
#include "model/model_state.h"

// The graph of a course: its elevations over its length, in graph units.

inline constexpr double graphLeft = 150, graphTop = 100;   // of the plotting area
inline constexpr double graphRight = graphLeft + graphWidth, graphBottom = graphTop + graphHeight;
inline constexpr Point graphPicture{12300, 6200};   // holds the plotting area and a margin around it

/// Whether a point is in the plotting area.
[[nodiscard]] bool isOnGraph(Point at);

/// x and elevation (m) of a point of the graph.
///   Faults: beyond the range of a double.
[[nodiscard]] Point courseAt(const Course& course, Point at);

/// Clears the picture and draws the grid.
void drawGrid(Picture& picture);

/// Draws the grid, the segments between the points, and for a smooth course the curve, which is fitted for it.
/// Faults: top and bottom of the scale at one elevation, a course without length; what was drawn before stays.
void drawCourse(ModelState& state, Picture& picture);

/// Draws the marks of miles or kilometers with the time at each and the time since the mark before, up to the first that
/// is not reached. Times are without perfScale.
/// Faults: a course whose scale has no width.
void drawSplits(ModelState& state, bool miles, Picture& picture);
