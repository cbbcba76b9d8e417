#include "forms/drawing.h"

namespace
{
    Primitive& stroke(const Drawing& drawing)
    {
        Primitive& drawn = drawing.picture.primitives.emplace_back();
        drawn.colour = drawing.colour;
        drawn.width = drawing.width;
        return drawn;
    }
}

void Drawing::line(Point from, Point to) const
{
    stroke(*this).shape = LinePrimitive{from, to};
}

void Drawing::circle(Point centre, double radius) const
{
    stroke(*this).shape = CirclePrimitive{centre, radius};
}

void Drawing::point(Point at) const
{
    stroke(*this).shape = PointPrimitive{at};
}

void Drawing::text(Point at, const std::string& words) const
{
    stroke(*this).shape = TextPrimitive{words, at, textSize};
}
