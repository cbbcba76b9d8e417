#include "tables/perfgraph_form.h"

#include <algorithm>
#include <string>

#include "forms/colours.h"
#include "forms/drawing.h"
#include "forms/on_leaving.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "tables/table_distances.h"

namespace
{
    // picture units
    constexpr double plotLeft = 600, plotRight = 9600, plotTop = 200, plotBottom = 6200;
    constexpr double yearWidth = 100;
    constexpr double plotHeight = plotBottom - plotTop;
    constexpr double letters = 150;

    constexpr int firstRow = 15;   // what the graph opens with: 5 km

    struct DistanceButton
    {
        const char* name;
        const char* caption;
    };
    constexpr std::array<DistanceButton, tableDistances> distanceButtons{
        {{"Command2", "100 m"},   {"Command3", "200 m"},          {"Command4", "400 m"},   {"Command22", "440 yd"},
         {"Command5", "800 m"},   {"Command12", "880 yd"},        {"Command23", "1000 m"}, {"Command6", "1500 m"},
         {"Command7", "1600 m"},  {"Command8", "1 mile"},         {"Command9", "3 K"},     {"Command10", "3200 m"},
         {"Command11", "2 mile"}, {"Command24", "3 mile"},        {"Com5k", "5 K"},        {"Command13", "8 K"},
         {"Command14", "5 mile"}, {"Command15", "10 K"},          {"Command16", "15 K"},   {"Command18", "10 mile"},
         {"Command17", "20 K"},   {"Command19", "half marathon"}, {"Command21", "30 K"},   {"Command20", "marathon"}}};

    void drawGrid(Drawing& draw)
    {
        for (int a = firstAge; a <= lastAge; a += 5)
        {
            const double x = plotLeft + (a - 5) * yearWidth;
            draw.colour = classic::grey;
            draw.line({x, plotTop}, {x, plotBottom});
            draw.colour = classic::black;
            if (a % 10 == 0)
                draw.text({450 + (a - 5) * yearWidth, 6260}, signedText(a));
        }
        draw.colour = classic::grey;
        for (int k = 0; k <= 60; k += 5)
            draw.line({plotLeft, plotTop + k * 100}, {plotRight, plotTop + k * 100});
        draw.colour = classic::black;
    }

    void drawTimes(const Drawing& draw, double axisTop)
    {
        for (int k = 0; k <= 60; k += 5)
            draw.text({0, 110.0 + k * 100}, formatTime((axisTop / 12) * (60 - k) / 5));
    }

    /// Where a time t at age a stands.
    Point placeOf(const AgeGraph& graph, int a, double t)
    {
        return {plotLeft + (a - 5) * yearWidth, plotBottom - t * plotHeight / graph.axisTop};
    }

    void drawLevelCurves(Drawing& draw, AgeGraph& graph)
    {
        for (int j = 0; j < levelCurves; ++j)
            for (int a = firstAge + 1; a <= lastAge; ++a)
            {
                const double before = levelTimeAt(graph, a - 1, j);
                draw.colour = classic::darkGrey;
                draw.line(placeOf(graph, a, levelTimeAt(graph, a, j)), placeOf(graph, a - 1, before));
                if (a == 80 - 3 * j)
                    draw.text({plotLeft + (a - 6) * yearWidth, 6080 - before * plotHeight / graph.axisTop},
                              signedText(percentOf(j)));
            }
        draw.colour = classic::black;
    }

    void drawIndividualCurve(Drawing& draw, AgeGraph& graph)
    {
        draw.width = 2;
        draw.colour = classic::lightRed;
        for (int a = firstAge + 1; a <= lastAge; ++a)
            draw.line(placeOf(graph, a, individualTimeAt(graph, a)),
                      placeOf(graph, a - 1, individualTimeAt(graph, a - 1)));
        draw.width = 1;
    }

    void load(PerfgraphForm& form)
    {
        const bool female = form.main.state.runner.sex == 'f';
        setTitle(form.form, std::string("Performance by Age (") + (female ? "female" : "male") +
                                ", entered age = " + form.main.txtage.text + ")");
        drawAgeGraph(form, firstRow);
    }

    void print(PerfgraphForm& form)
    {
        FormImage image{.form = form.form.name, .hidden = {}};
        for (const Button& button : form.distances)
            image.hidden.push_back(button.name);
        image.hidden.push_back(form.Command25.name);
        image.hidden.push_back(form.Command1.name);
        if (form.main.outside.printer.printForm)
            form.main.outside.printer.printForm(image);
    }

    void nameControls(PerfgraphForm& form)
    {
        for (std::size_t i = 0; i < form.distances.size(); ++i)
        {
            const auto& [name, caption] = distanceButtons[i];
            const int row = static_cast<int>(i) + 1;
            form.distances[i] = {{.name = name, .caption = caption, .tip = std::string("Times over ") + caption}};
            form.distances[i].clicked = [&form, row] { drawAgeGraph(form, row); };
        }
        for (int j = 0; j < levelCurves; ++j)
            form.pvelage[static_cast<std::size_t>(j)] = {
                {.name = arrayName("pvelage", j),
                 .tip = "Time of the level of " + std::to_string(percentOf(j)) + " %"}};
    }

    /// Every control once, in reading order.
    std::vector<ControlRef> controlsOf(PerfgraphForm& f)
    {
        std::vector<ControlRef> list{&f.graph};
        for (Button& button : f.distances)
            list.emplace_back(&button);
        const std::vector<ControlRef> tracker{&f.trackerTitle,    &f.trackerHint, &f.Label1,
                                              &f.individualTitle, &f.Label2,      &f.levelsTitle};
        list.insert(list.end(), tracker.begin(), tracker.end());
        for (Label& level : f.pvelage)
            list.emplace_back(&level);
        list.emplace_back(&f.Command25);
        list.emplace_back(&f.Command1);
        return list;
    }
}

PerfgraphForm::PerfgraphForm(VantstartForm& mainForm) : main(mainForm)
{
    nameControls(*this);
    graph.moved = [this](Point at) { readAgeGraph(*this, at.x); };
    Command1.clicked = [this] { main.outside.closeForm(form.name); };
    Command25.clicked = [this] { print(*this); };
    form.load = [this] { load(*this); };
    form.controls = controlsOf(*this);
}

void drawAgeGraph(PerfgraphForm& form, int row)
{
    ModelState& state = form.main.state;
    CalculationInput input = entriesOf(form.main);
    state.ageGraph.chosenRow = row;
    makeRoom(state.ageGraph);
    form.graph.primitives.clear();
    const OnLeaving showIt([&form] { notifyShown(form.graph); });
    state.activity = "reading the runner's age";
    state.runner.age = val(input.age);
    const double age = state.runner.age;
    const int ageCompareOn = state.flags.ageCompareOn;
    Drawing draw{form.graph, letters};
    drawGrid(draw);
    state.flags.ageCompareLocal = 1;   // age counts here, whatever the main form has
    fillLevelCurves(state);
    drawTimes(draw, state.ageGraph.axisTop);
    drawLevelCurves(draw, state.ageGraph);
    fillIndividualCurve(state, input, form.main.outside.said);
    drawIndividualCurve(draw, state.ageGraph);
    state.flags.ageCompareLocal = 0;
    state.runner.age = age;
    state.flags.ageCompareOn = ageCompareOn;
}

void readAgeGraph(PerfgraphForm& form, double x)
{
    AgeGraph& graph = form.main.state.ageGraph;
    if (graph.individualTimes.empty())
        return;
    const double nearest = roundHalfEven((x - plotLeft) / yearWidth + 5);
    const int a = static_cast<int>(std::clamp<double>(nearest, firstAge, lastAge));
    setCaption(form.Label1, "Age: " + plainText(a));
    setCaption(form.Label2, tableLabels[graph.chosenRow].label + formatTime(individualTimeAt(graph, a)));
    for (int j = 0; j < levelCurves; ++j)
        setCaption(form.pvelage[static_cast<std::size_t>(j)],
                   plainText(percentOf(j)) + "  " + formatTime(levelTimeAt(graph, a, j)));
}
