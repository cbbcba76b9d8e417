#pragma once

#include <string>

#include "forms/controls.h"

/// Draws on a picture with one pen at a time, as on a screen that keeps its colour between strokes.
struct Drawing
{
    Picture& picture;
    double textSize;   // picture units
    Colour colour = {};
    double width = 1;

    void line(Point from, Point to) const;
    void circle(Point centre, double radius) const;
    void point(Point at) const;
    void text(Point at, const std::string& words) const;
};
