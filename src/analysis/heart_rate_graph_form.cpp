#include "analysis/heart_rate_graph_form.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "analysis/heart_rates.h"
#include "forms/colours.h"
#include "forms/drawing.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    constexpr double left = 550, top = 600;   // of the plot
    constexpr double plotWidth = 8000, plotHeight = 4000;
    constexpr double firstSpeed = 1.5;     // m/s, at the left edge
    constexpr double lowestHr = 60;        // beats a minute, at the lower edge
    constexpr double sampleStep = 0.002;   // m/s

    struct Axes
    {
        double topSpeed = 0;   // m/s: 2.2 times the speed of 400 m repetitions, up to the next half
        double topHr = 0;      // beats a minute
        double xSteps = 0, ySteps = 0;
        double xStep = 0, yStep = 0;   // picture units: half a m/s, 20 beats

        [[nodiscard]] double xOf(double speed) const { return checked(left + (speed - firstSpeed) * xStep * 2); }
        [[nodiscard]] double yOf(double hr) const { return checked(top + (topHr - hr) * yStep / 20); }
        [[nodiscard]] double right() const { return left + xSteps * xStep; }
        [[nodiscard]] double bottom() const { return top + ySteps * yStep; }
    };

    /// Size of the text, picture units: the rows of the scales are 180 apart, and the row names and words stand between
    /// two columns' values.
    double letters(const Axes& axes)
    {
        return std::clamp(0.2 * axes.xStep, 100.0, 160.0);
    }

    /// A step that can be told from its neighbours.
    double visibleStep(double length, double steps)
    {
        const double step = quotient(length, steps);
        if (step > 0 && step < 1)
            stopWith("a scale that is too fine to be drawn");
        return step;
    }

    Axes axesOf(const ModelState& state)
    {
        Axes axes;
        axes.topSpeed = std::floor(quotient(880, state.training.repSlowTime) + 1) / 2;
        axes.topHr = std::floor(state.runner.maxHr / 20) * 20 + 20;
        axes.xSteps = (axes.topSpeed - firstSpeed) * 2;
        axes.ySteps = (axes.topHr - lowestHr) / 20;
        axes.xStep = visibleStep(plotWidth, axes.xSteps);
        axes.yStep = visibleStep(plotHeight, axes.ySteps);
        return axes;
    }

    /// Lines of the heart rates, with their values to the left.
    void drawHeartRates(Drawing& draw, const Axes& axes)
    {
        for (int i = 0; i <= axes.ySteps; ++i)
        {
            const double y = top + i * axes.yStep;
            draw.colour = i == 0 || i == axes.ySteps ? classic::black : classic::grey;
            draw.line({left, y}, {axes.right(), y});
            draw.colour = classic::black;
            const double value = axes.topHr - i * 20;
            draw.text({value < 100 ? 200.0 : 120.0, y - 90}, signedText(value));
            if (i == 2)
            {
                draw.colour = classic::lightBlue;
                draw.text({60, y + 80}, "Heart");
                draw.text({80, y + 260}, "Rate");
                draw.colour = classic::black;
            }
        }
    }

    /// A speed in m/s, mph and kph below the plot, its paces above.
    void drawSpeedTexts(const Drawing& draw, double x, double s)
    {
        draw.text({x - 100, top + 4040}, formatNumber(s, 3, 1));
        draw.text({x - 140, top + 4220}, formatNumber(s * 3600 / metresPerMile, 4, 1));
        draw.text({x - 140, top + 4400}, formatNumber(s * 3600 / metresPerKilometre, 4, 1));
        draw.text({x - 330, top - 580}, formatTime(metresPerMile / s));
        draw.text({x - 330, top - 400}, formatTime(metresPerKilometre / s));
        draw.text({x - 330, top - 220}, formatTime(metresPerTrackLap / s));
    }

    void drawRowNames(const Drawing& draw, double x)
    {
        draw.text({x + 160, top + 4040}, "m/s");
        draw.text({x + 160, top + 4220}, "mph");
        draw.text({x + 160, top + 4400}, "kph");
        draw.text({x + 280, top - 580}, "mi");
        draw.text({x + 280, top - 400}, "km");
        draw.text({x + 240, top - 220}, "lap");
    }

    /// Lines of the speeds, with their values around the plot.
    void drawSpeeds(Drawing& draw, const Axes& axes)
    {
        for (int j = 0; j <= axes.xSteps; ++j)
        {
            const double x = left + j * axes.xStep;
            draw.colour = j == 0 || j == axes.xSteps ? classic::black : classic::grey;
            draw.line({x, top}, {x, axes.bottom()});
            draw.colour = classic::black;
            drawSpeedTexts(draw, x, firstSpeed + j * 0.5);
            if (j == 0)
                drawRowNames(draw, x);
            if (j == 4)
            {
                draw.colour = classic::lightBlue;
                draw.text({x + 180, top - 200}, "Pace");
                draw.text({x + 140, top + 4020}, "Speed");
                draw.colour = classic::black;
            }
        }
    }

    void keepAt(std::vector<double>& array, std::size_t index, double value)
    {
        if (index < array.size())
            array[index] = value;
        else
            array.push_back(value);
    }

    void drawCurve(Drawing& draw, const Axes& axes, ModelState& state)
    {
        HeartRateSamples& samples = state.heartRateSamples;
        draw.colour = classic::lightBlue;
        std::size_t index = 0;
        for (double s = firstSpeed; s <= axes.topSpeed; s = s + sampleStep)   // adds up as it falls
        {
            const double h = hrAtSpeed(state, s);
            const Point at{axes.xOf(s), axes.yOf(h)};
            draw.width = 2;
            draw.point(at);
            draw.width = 1;
            draw.circle(at, 8);
            if (index >= mostHeartRateSamples)
                stopWith("an index out of range");
            keepAt(samples.curveSpeed, index, s);
            keepAt(samples.curveHr, index, h);
            keepAt(samples.curveX, index, at.x);
            ++index;
        }
    }

    void drawMarks(Drawing& draw, const Axes& axes, const Training& t)
    {
        struct Mark
        {
            double speed;
            Colour colour;
            double width;
        };
        for (const Mark& mark :
             {Mark{t.aerobicTrainSpeed, aerobicColour, 2}, Mark{t.aerobicSpeedLow, aerobicColour, 1},
              Mark{t.aerobicSpeedHigh, aerobicColour, 1}, Mark{t.thresholdSpeed, thresholdColour, 2},
              Mark{t.thresholdSpeedLow, thresholdColour, 1}, Mark{t.thresholdSpeedHigh, thresholdColour, 1},
              Mark{t.vo2maxSpeed, classic::lightRed, 2}, Mark{t.intervalSpeed, classic::lightRed, 1},
              Mark{t.repSlowSpeed, repetitionColour, 1}, Mark{t.repFastSpeed, repetitionColour, 1}})
        {
            const double x = axes.xOf(mark.speed);
            draw.colour = mark.colour;
            draw.width = mark.width;
            draw.line({x, top}, {x, axes.bottom()});
        }
    }
}

void drawHeartRateGraph(ModelState& state, Picture& pic)
{
    state.activity = "drawing the heart rate graph";
    pic.primitives.clear();
    const Axes axes = axesOf(state);
    Drawing draw{pic, letters(axes)};
    drawHeartRates(draw, axes);
    drawSpeeds(draw, axes);
    drawCurve(draw, axes, state);
    drawMarks(draw, axes, state.training);
}
