#include "course/profile_graph_form.h"

#include "course/course_curve.h"
#include "course/course_profile.h"
#include "forms/colours.h"
#include "forms/drawing.h"
#include "forms/on_leaving.h"
#include "model/arithmetic.h"
#include "model/text.h"

namespace
{
    constexpr double gridStep = 1200;
    constexpr double letters = 150;        // size of the text; its lines are 200 apart
    constexpr double curveSlack = 1.001;   // of the course's length, for the rounding of the chords

    Point graphPoint(const Course& course, double x, double y)
    {
        return {checked(graphLeft + quotient(x, course.xScale)),
                checked(graphBottom - quotient(y - course.minElev, course.yScale))};
    }

    void drawSegments(const Course& course, const Drawing& draw)
    {
        for (int i = 0; i < course.pointCount - 1; ++i)
            draw.line(graphPoint(course, placeAt(course.pointX, i), placeAt(course.pointY, i)),
                      graphPoint(course, placeAt(course.pointX, i + 1), placeAt(course.pointY, i + 1)));
    }

    void drawCurve(const Course& course, const Drawing& draw)
    {
        walkCourse(course, curveSlack, [&](double from, double to) {
            draw.line(graphPoint(course, from, courseElevationAt(course, from)),
                      graphPoint(course, to, courseElevationAt(course, to)));
        });
    }
}

bool isOnGraph(Point at)
{
    return !(at.x < graphLeft || at.x > graphRight || at.y < graphTop || at.y > graphBottom);
}

Point courseAt(const Course& course, Point at)
{
    return {checked((at.x - graphLeft) * course.xScale), checked(course.maxElev - (at.y - graphTop) * course.yScale)};
}

void drawGrid(Picture& picture)
{
    const OnLeaving showIt([&picture] { notifyShown(picture); });
    picture.primitives.clear();
    const Drawing draw{picture, letters, classic::grey};
    for (int i = 0; i <= 10; ++i)
        draw.line({graphLeft + gridStep * i, graphTop}, {graphLeft + gridStep * i, graphBottom});
    for (int i = 0; i <= 5; ++i)
        draw.line({graphLeft, graphTop + gridStep * i}, {graphRight, graphTop + gridStep * i});
}

void drawCourse(ModelState& state, Picture& picture)
{
    const OnLeaving showIt([&picture] { notifyShown(picture); });
    state.activity = "drawing the course";
    drawGrid(picture);
    Drawing draw{picture, letters, classic::lightRed};
    drawSegments(state.course, draw);
    if (!isSmooth(state.course))
        return;
    fitCourseCurve(state.course);
    draw.colour = classic::lightBlue;
    drawCurve(state.course, draw);
}

void drawSplits(ModelState& state, bool miles, Picture& picture)
{
    const OnLeaving showIt([&picture] { notifyShown(picture); });
    state.activity = "showing the splits";
    CourseMarks& marks = state.course.marks;
    const auto& places = miles ? marks.mileX : marks.kmX;
    auto& times = miles ? marks.mileTime : marks.kmTime;
    Drawing draw{picture, letters, classic::black};
    double before = 0;
    for (int j = 1; j <= courseMarks && places[j] != 0; ++j)
    {
        const double v = j % 2 == 0 ? 0 : 400;   // neighbours stand in turn higher and lower
        const double gx = checked(quotient(places[j], state.course.xScale) + graphLeft);
        draw.colour = classic::green;
        draw.line({gx, graphBottom}, {gx, 600 + v});
        draw.colour = classic::black;
        draw.text({gx - 350, 200 + v}, formatTime(times[j]));
        draw.text({gx - 350, 400 + v}, formatTime(times[j] - before));
        before = times[j];
    }
}
