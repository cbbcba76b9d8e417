#include "analysis/graphform_form.h"

#include <array>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <string>

#include "analysis/curve_time.h"
#include "forms/colours.h"
#include "forms/drawing.h"
#include "forms/on_leaving.h"
#include "model/arithmetic.h"
#include "model/record_curve.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    // Grid units. The curves' axis spans 588 of them from 28 to 616.
    constexpr double unitAcross = 14, unitDown = 17;   // picture units
    constexpr double plotLeft = 28, plotRight = 616, plotWidth = 588;
    constexpr double plotTop = 5, plotBottom = 305;
    constexpr double columnWidth = 80;    // of the linear scales
    constexpr double decadeWidth = 196;   // of the logarithmic one

    constexpr double letters = 150;     // size of the text, picture units: the letters of the axis titles are 170 apart
    constexpr double letterWidth = 6;   // of a digit, grid units
    constexpr double firstLabels = 308, secondLabels = 320, thirdLabels = 332;   // rows below the plot

    constexpr Colour faintGrey{224, 224, 224};   // so that the values on the lines stay readable

    constexpr double paceOrigin = 180;   // s over 1600 m or a mile: 45 s for 400 m
    constexpr int logarithmic = 4;

    struct Scale
    {
        double left, right;   // axis values at the ends: metres, or grid units on the logarithmic scale
        double reference;     // m, where the paces shown are settled
        double column;        // metres of a column; 0 on the logarithmic scale
    };

    Scale scaleOf(int graphScale)
    {
        switch (graphScale)
        {
        case 1: return {100, 835, 300, 100};
        case 2: return {400, 3340, 800, 400};
        case 3: return {5000, 42500, 10000, 5000};
        default: return {0, plotWidth, 2000, 0};
        }
    }

    struct Graph
    {
        ModelState& state;
        Drawing draw;
        Scale scale;
        bool metric;
        double comparisonLevel;   // fraction
        double shift = 0;         // s for 400 m: the paces shown
        double verticalZero = plotBottom;
    };

    Point at(double x, double y)
    {
        return {x * unitAcross, y * unitDown};
    }

    void drawLine(Graph& graph, Colour colour, Point from, Point to)
    {
        graph.draw.colour = colour;
        graph.draw.line(at(from.x, from.y), at(to.x, to.y));
    }

    void drawText(Graph& graph, Colour colour, double x, double y, const std::string& words)
    {
        graph.draw.colour = colour;
        graph.draw.text(at(x, y), words);
    }

    /// Below the plot, centred about x.
    void drawLabel(Graph& graph, Colour colour, double x, double row, const std::string& words)
    {
        drawText(graph, colour, x - letterWidth / 2 * static_cast<double>(words.size()), row, words);
    }

    void settlePaces(Graph& graph)
    {
        const double speed = quotient(graph.scale.reference, timeOver(graph.state, graph.scale.reference));
        const double p = quotient(metresPerTrackLap, speed);
        graph.shift = roundHalfEven((p - 82.5) / 15);
        graph.verticalZero = plotBottom + 4 * graph.shift;
    }

    void drawLevels(Graph& graph)
    {
        for (int k = 0; k <= 15; ++k)
        {
            const double y = 20 * k + 5;
            drawLine(graph, k % 3 == 0 ? classic::grey : faintGrey, {plotLeft, y}, {plotRight, y});
        }
        constexpr std::array percents{"100", " 85", " 70", " 55"};
        for (int i = 1; i <= 6; ++i)
        {
            const double y = 59 * (i - 1);
            if (i >= 2 && i <= 5)
            {
                drawText(graph, classic::lightMagenta, 32, y, percents[static_cast<std::size_t>(i - 2)]);
                drawText(graph, classic::red, 50, y, "%");
            }
            const double value = 135 - 15 * i + graph.shift;   // s for 400 m
            drawText(graph, classic::black, 8, y, signedText(value));
            double longPace = graph.metric ? 4 * value / 1.6 : 4 * value;
            drawText(graph, classic::black, 592, y, formatTime(longPace).substr(0, 8));
        }
    }

    void drawAxisTitles(Graph& graph)
    {
        const std::string leftTitle = graph.metric ? "seconds per 400 m " : "seconds per 440 yd";
        const std::string rightTitle = graph.metric ? "minutes per km    " : "minutes per mile  ";
        for (std::size_t i = 1; i <= leftTitle.size(); ++i)
        {
            const double y = 10 * static_cast<double>(i);
            drawText(graph, classic::black, 1, y + 60, leftTitle.substr(i - 1, 1));
            drawText(graph, classic::black, 630, y + 66, rightTitle.substr(i - 1, 1));
        }
    }

    /// A distance with a line of its own.
    struct Mark
    {
        double metres;
        const char* name;
        bool ofMiles;
    };
    constexpr Mark mark200{200, "200m", false}, mark400{400, "400m", false}, mark800{800, "800m", false},
        mark1500{1500, "1500m", false}, markMile{metresPerMile, "1mi", true}, mark3000{3000, "3000m", false},
        markTwoMiles{2 * metresPerMile, "2mi", true}, mark5000{5000, "5000m", false},
        markTenMiles{10 * metresPerMile, "10mi", true}, markHalf{halfMarathonMetres, "H.M.", false},
        markMarathon{marathonMetres, "M.", false};

    void drawMark(Graph& graph, const Mark& mark, double x, Colour metricColour)
    {
        const Colour colour = mark.ofMiles ? classic::cyan : metricColour;
        drawLine(graph, colour, {x, plotTop}, {x, plotBottom});
        drawLabel(graph, colour, x, mark.ofMiles ? thirdLabels : secondLabels, mark.name);
    }

    void drawLinearColumns(Graph& graph)
    {
        const double column = graph.scale.column;
        const bool kilometres = column == 5000;
        for (int k = 1; k <= 8; ++k)
        {
            const double x = plotLeft + (8 - k) * columnWidth;
            const int i = 9 - k;
            drawLine(graph, classic::grey, {x, plotTop}, {x, plotBottom});
            const std::string label = kilometres ? plainText(5 * i) + " km" : plainText(column * i) + " m ";
            drawLabel(graph, classic::black, x, firstLabels, label);
        }
        const auto drawAll = [&](std::initializer_list<Mark> marks, Colour metricColour) {
            for (const Mark& mark : marks)
                drawMark(graph, mark, plotLeft + columnWidth * (mark.metres / column - 1), metricColour);
        };
        if (column == 400)
            drawAll({mark1500, markMile, mark3000, markTwoMiles}, classic::lightCyan);
        if (kilometres)
            drawAll({markTenMiles, markHalf, markMarathon}, classic::cyan);
    }

    void drawDecades(Graph& graph)
    {
        constexpr std::array decades{"100m", "1000m", "10k", "100k"};
        for (int k = 1; k <= 4; ++k)
        {
            const double x = plotLeft + (k - 1) * decadeWidth;
            drawLine(graph, classic::grey, {x, plotTop}, {x, plotBottom});
            drawLabel(graph, classic::black, x, firstLabels, decades[static_cast<std::size_t>(k - 1)]);
        }
        for (const Mark& mark : {mark200, mark400, mark800, mark1500, markMile, mark3000, markTwoMiles, mark5000,
                                 markTenMiles, markHalf, markMarathon})
            drawMark(graph, mark, plotLeft + (std::log10(mark.metres) - 2) * decadeWidth, classic::darkGrey);
    }

    void drawKey(Graph& graph)
    {
        drawText(graph, classic::lightBlue, 530, 250, "race pace");
        drawText(graph, classic::lightRed, 520, 262, "record pace");
        drawText(graph, classic::red, 505, 274, "% of rec. pace");
        drawText(graph, classic::lightMagenta, 483, 286, "performance level");
    }

    /// Where a pace in s/m stands; u is the place on the axis.
    double xOf(const Graph& graph, double u)
    {
        const Scale& scale = graph.scale;
        return roundHalfEven(plotLeft + (u - scale.left) * plotWidth / (scale.right - scale.left));
    }

    double yOfPace(const Graph& graph, double paceTime)
    {
        return roundHalfEven(graph.verticalZero - (paceTime - paceOrigin));
    }

    /// The time, s, over a mile or 1600 m at the pace of a time over a distance.
    double paceTime(const Graph& graph, double time, double distance)
    {
        return quotient(time, distance) * (graph.metric ? 1600 : metresPerMile);
    }

    void drawRaces(Graph& graph)
    {
        const Races& races = graph.state.races;
        for (int n = 1; n <= races.rowsUsed; ++n)
        {
            const double d = races.rowDist[n];
            const double u = graph.scale.column == 0 ? naturalLog(d / 100) * decadeWidth / 2.30259 : d;
            if (!(u < graph.scale.right))
                continue;
            const Point race = at(xOf(graph, u), yOfPace(graph, paceTime(graph, races.rowTime[n], d)));
            graph.draw.colour = classic::black;
            graph.draw.circle(race, 10);
            graph.draw.circle(race, 40);
        }
    }

    /// The heights of the four curves at a distance, in the order in which they are drawn.
    std::array<double, 4> heightsAt(Graph& graph, double d)
    {
        ModelState& state = graph.state;
        const double t = timeOver(state, d);
        const double v = quotient(d, t);
        const double modelTime = graph.metric ? 4 * quotient(metresPerTrackLap, v) : quotient(metresPerMile, v);
        const double c = recordTime(state, state.runner.sex, RecordMode::timeOfLevel, d, graph.comparisonLevel);
        state.results.level = levelOf(state, d, t);
        return {yOfPace(graph, modelTime), yOfPace(graph, paceTime(graph, c, d)), 465 - 4 * quotient(100 * c, t),
                465 - 4 * (100 * state.results.level)};
    }

    void drawCurves(Graph& graph)
    {
        constexpr std::array colours{classic::lightBlue, classic::lightRed, classic::red, classic::lightMagenta};
        const Scale& scale = graph.scale;
        const double step = (scale.right - scale.left) / plotWidth * 10;
        std::optional<std::array<Point, 4>> last;
        for (double u = scale.left; u <= 1.02 * scale.right; u = u + step)
        {
            const double d = scale.column == 0 ? power(10, 2 + u / decadeWidth) : u;
            graph.state.activity = "drawing the curves at " + plainText(roundHalfEven(d)) + " m";
            const double x = xOf(graph, u);
            const std::array<double, 4> heights = heightsAt(graph, d);
            std::array<Point, 4> points;
            for (std::size_t i = 0; i < points.size(); ++i)
            {
                points[i] = {x, heights[i]};
                if (last)
                    drawLine(graph, colours[i], (*last)[i], points[i]);
            }
            last = points;
        }
    }
}

GraphformForm::GraphformForm(ModelState& modelState, Outside& formOutside, const ScrollBar& comparisonBar)
    : state(modelState), outside(formOutside), comparisonLevel(comparisonBar)
{
    form.opened = [this] { paceGraph(*this); };
    Command1.clicked = [this] { outside.closeForm(form.name); };
    Command2.clicked = [this] {
        if (outside.printer.printForm)
            outside.printer.printForm({.form = form.name, .hidden = {Command1.name, Command2.name}});
    };
    form.controls = {&Surface, &Command1, &Command2};
}

void paceGraph(GraphformForm& form)
{
    ModelState& state = form.state;
    state.activity = "drawing the pace graph";
    form.Surface.primitives.clear();
    const OnLeaving showIt([&form] { notifyShown(form.Surface); });
    Graph graph{state,
                {form.Surface, letters},
                scaleOf(state.flags.graphScale),
                state.flags.unitsMode == 'm',
                form.comparisonLevel.value / 1000.0};
    settlePaces(graph);
    drawLevels(graph);
    drawAxisTitles(graph);
    if (state.flags.graphScale >= 1 && state.flags.graphScale < logarithmic)
        drawLinearColumns(graph);
    else
        drawDecades(graph);
    drawKey(graph);
    drawRaces(graph);
    drawCurves(graph);
}
