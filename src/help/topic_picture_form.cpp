#include "help/topic_picture_form.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include "forms/drawing.h"

namespace
{
    constexpr Point pictureSize{960, 720};

    constexpr Colour ink{60, 60, 60};
    constexpr Colour faint{190, 190, 190};
    constexpr Colour blue{30, 90, 170};
    constexpr Colour green{30, 140, 60};
    constexpr Colour orange{220, 130, 20};
    constexpr Colour red{200, 40, 40};

    /// One pen on the picture.
    Drawing pen(Picture& picture, Colour colour, double width = 2)
    {
        return {picture, 150, colour, width};
    }

    void lines(const Drawing& drawing, const std::vector<Point>& points)
    {
        for (std::size_t i = 1; i < points.size(); ++i)
            drawing.line(points[i - 1], points[i]);
    }

    void box(const Drawing& drawing, Point leftTop, Point rightBottom)
    {
        lines(drawing, {leftTop, {rightBottom.x, leftTop.y}, rightBottom, {leftTop.x, rightBottom.y}, leftTop});
    }

    void axes(Picture& picture)
    {
        lines(pen(picture, ink), {{120, 80}, {120, 620}, {880, 620}});
    }

    void arrow(const Drawing& drawing, Point from, Point to)
    {
        constexpr double head = 50;
        drawing.line(from, to);
        const double side = to.x < from.x ? head : -head;
        drawing.line(to, {to.x + side, to.y - head});
        drawing.line(to, {to.x + side, to.y + head});
    }

    // heart rate against speed, with the bounds of the training zones
    void drawTrainingAnalysis(Picture& picture)
    {
        axes(picture);
        pen(picture, green).line({380, 120}, {380, 620});
        pen(picture, orange).line({570, 120}, {570, 620});
        pen(picture, red, 3).line({720, 120}, {720, 620});
        lines(pen(picture, blue, 3), {{140, 560}, {250, 500}, {380, 410}, {570, 260}, {720, 170}, {860, 140}});
    }

    // the steps of a winners' stand
    void drawPerformanceLevels(Picture& picture)
    {
        lines(pen(picture, ink), {{120, 620}, {120, 430}, {360, 430}, {360, 620}});
        lines(pen(picture, ink), {{360, 430}, {360, 250}, {600, 250}, {600, 620}});
        lines(pen(picture, ink), {{600, 500}, {840, 500}, {840, 620}});
        pen(picture, ink).line({80, 620}, {880, 620});
        const Drawing numbers{picture, 170, blue};
        numbers.text({440, 290}, "1");
        numbers.text({200, 450}, "2");
        numbers.text({680, 510}, "3");
        lines(pen(picture, orange), {{440, 200}, {480, 90}, {520, 200}, {425, 130}, {535, 130}, {440, 200}});
    }

    // a folder with a sheet in it
    void drawSavedFiles(Picture& picture)
    {
        lines(pen(picture, orange),
              {{140, 620}, {140, 200}, {330, 200}, {390, 270}, {820, 270}, {820, 620}, {140, 620}});
        lines(pen(picture, ink), {{270, 270}, {270, 100}, {690, 100}, {690, 270}});
        for (const double y : {150.0, 210.0})
            pen(picture, blue).line({320, y}, {640, y});
        for (const double y : {360.0, 440.0, 520.0})
            pen(picture, faint).line({220, y}, {740, y});
    }

    // a window with rows to be ticked
    void drawMainEntryForm(Picture& picture)
    {
        box(pen(picture, ink), {120, 100}, {840, 620});
        pen(picture, ink).line({120, 190}, {840, 190});
        for (const double y : {260.0, 380.0, 500.0})
        {
            box(pen(picture, ink), {190, y}, {260, y + 70});
            box(pen(picture, faint), {330, y}, {520, y + 70});
            box(pen(picture, faint), {570, y}, {760, y + 70});
        }
        for (const double y : {260.0, 380.0})
            lines(pen(picture, green, 3), {{200, y + 35}, {222, y + 60}, {285, y - 15}});
    }

    // rows and columns
    void drawPredictedTable(Picture& picture)
    {
        box(pen(picture, ink), {120, 100}, {840, 620});
        pen(picture, ink).line({120, 210}, {840, 210});
        pen(picture, ink).line({340, 100}, {340, 620});
        for (const double x : {510.0, 680.0})
            pen(picture, faint).line({x, 100}, {x, 620});
        for (const double y : {290.0, 370.0, 450.0, 530.0})
        {
            pen(picture, faint).line({150, y + 40}, {810, y + 40});
            pen(picture, blue).line({170, y - 10}, {300, y - 10});
        }
    }

    // a slope against the wind
    void drawSpecialInformation(Picture& picture)
    {
        lines(pen(picture, ink, 3), {{100, 600}, {860, 330}, {860, 600}, {100, 600}});
        for (const double y : {110.0, 190.0, 270.0})
            arrow(pen(picture, blue), {800, y}, {800 - 450 + y, y});
    }

    void drawProgramOverview(Picture& picture)
    {
        axes(picture);
        drawCurve(picture, {170, 120}, {860, 560});
    }

    // time against age at three levels
    void drawPerformanceTables(Picture& picture)
    {
        axes(picture);
        for (const double lift : {0.0, 110.0, 220.0})
            lines(pen(picture, lift > 0 ? faint : red, lift > 0 ? 2 : 3), {{170, 330 - lift},
                                                                           {250, 470 - lift},
                                                                           {350, 530 - lift},
                                                                           {500, 530 - lift},
                                                                           {680, 450 - lift},
                                                                           {800, 360 - lift},
                                                                           {860, 270 - lift}});
    }

    // effort and recovery by turns
    void drawWorkoutPlanner(Picture& picture)
    {
        axes(picture);
        lines(pen(picture, red, 3), {{170, 560},
                                     {220, 560},
                                     {220, 180},
                                     {340, 180},
                                     {340, 480},
                                     {430, 480},
                                     {430, 180},
                                     {550, 180},
                                     {550, 480},
                                     {640, 480},
                                     {640, 180},
                                     {760, 180},
                                     {760, 560},
                                     {860, 560}});
    }

    // a stop watch
    void drawSplitsAnalysis(Picture& picture)
    {
        const Drawing watch = pen(picture, ink, 3);
        constexpr Point centre{480, 410};
        constexpr double radius = 240;
        constexpr int marks = 12;
        watch.circle(centre, radius);
        box(watch, {440, 90}, {520, 165});
        watch.line({640, 190}, {700, 130});
        for (int i = 0; i < marks; ++i)
        {
            const double turn = i * 2 * 3.1415926 / marks;
            const Point out{std::sin(turn), -std::cos(turn)};
            pen(picture, faint)
                .line({centre.x + 195 * out.x, centre.y + 195 * out.y},
                      {centre.x + 225 * out.x, centre.y + 225 * out.y});
        }
        pen(picture, red, 3).line(centre, {480, 230});
        pen(picture, blue, 3).line(centre, {590, 470});
    }

    // hills, and a flag at the finish
    void drawCourseProfile(Picture& picture)
    {
        pen(picture, ink).line({80, 620}, {900, 620});
        lines(pen(picture, green, 3),
              {{80, 560}, {200, 500}, {310, 290}, {400, 400}, {470, 360}, {600, 520}, {720, 430}, {800, 330}});
        pen(picture, ink).line({800, 330}, {800, 110});
        lines(pen(picture, red), {{800, 110}, {910, 155}, {800, 200}});
    }

    // the sun, and a thermometer
    void drawHeatAndHumidity(Picture& picture)
    {
        constexpr Point sun{340, 330};
        constexpr int rays = 12;
        pen(picture, orange, 3).circle(sun, 130);
        for (int i = 0; i < rays; ++i)
        {
            const double turn = i * 2 * 3.1415926 / rays;
            const Point out{std::sin(turn), -std::cos(turn)};
            pen(picture, orange)
                .line({sun.x + 170 * out.x, sun.y + 170 * out.y}, {sun.x + 240 * out.x, sun.y + 240 * out.y});
        }
        lines(pen(picture, ink), {{690, 500}, {690, 130}, {710, 100}, {750, 100}, {770, 130}, {770, 500}});
        pen(picture, ink).circle({730, 560}, 72);
        pen(picture, red, 3).line({730, 560}, {730, 240});
        for (const double y : {180.0, 270.0, 360.0, 450.0})
            pen(picture, faint).line({790, y}, {840, y});
    }
}

void drawCurve(Picture& picture, Point leftTop, Point rightBottom)
{
    constexpr double flattening = 3;
    constexpr int steps = 24;
    const auto at = [&](double share) {
        const double fall = (1 - std::exp(-flattening * share)) / (1 - std::exp(-flattening));
        return Point{leftTop.x + share * (rightBottom.x - leftTop.x), leftTop.y + fall * (rightBottom.y - leftTop.y)};
    };
    const Drawing curve{picture, 0, blue, 3};
    for (int i = 0; i < steps; ++i)
        curve.line(at(static_cast<double>(i) / steps), at(static_cast<double>(i + 1) / steps));
    const double radius = (rightBottom.x - leftTop.x) / 24;
    for (const double race : {0.15, 0.4, 0.75})
        Drawing{picture, 0, red, 3}.circle(at(race), radius);
}

void drawTopic(Picture& picture, HelpTopicName topic)
{
    picture.size = pictureSize;
    picture.isButton = true;
    picture.primitives.clear();
    switch (topic)
    {
    case HelpTopicName::trainingAnalysis: return drawTrainingAnalysis(picture);
    case HelpTopicName::performanceLevels: return drawPerformanceLevels(picture);
    case HelpTopicName::savedFiles: return drawSavedFiles(picture);
    case HelpTopicName::mainEntryForm: return drawMainEntryForm(picture);
    case HelpTopicName::predictedTable: return drawPredictedTable(picture);
    case HelpTopicName::specialInformation: return drawSpecialInformation(picture);
    case HelpTopicName::programOverview: return drawProgramOverview(picture);
    case HelpTopicName::performanceTables: return drawPerformanceTables(picture);
    case HelpTopicName::workoutPlanner: return drawWorkoutPlanner(picture);
    case HelpTopicName::splitsAnalysis: return drawSplitsAnalysis(picture);
    case HelpTopicName::courseProfile: return drawCourseProfile(picture);
    case HelpTopicName::heatAndHumidity: return drawHeatAndHumidity(picture);
    }
}
