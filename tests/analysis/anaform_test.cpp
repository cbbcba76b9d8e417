#include "analysis/anaform_form.h"

#include <cmath>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "analysed_runner.h"
#include "analysis/heart_rates.h"
#include "analysis/training_analysis.h"
#include "forms/colours.h"
#include "model/race_time.h"
#include "open_analysis.h"
#include "support/close_to.h"
#include "support/faults.h"

namespace
{
    /// Training results of round numbers: a plot from 1.5 to 6 m/s and from 60 to 200 beats.
    ModelState roundNumbers()
    {
        ModelState state;
        state.runner.maxHr = 185;
        state.runner.restHr = 50;
        Training& t = state.training;
        t.aerobicTrainSpeed = 3;
        t.aerobicSpeedLow = 2.75;
        t.aerobicSpeedHigh = 3.25;
        t.thresholdSpeed = 4;
        t.thresholdSpeedLow = 3.875;
        t.thresholdSpeedHigh = 4.125;
        t.vo2maxSpeed = 5;
        t.intervalSpeed = 4.8;
        t.repSlowTime = 80;
        t.repSlowSpeed = 5;
        t.repFastSpeed = 5.5;
        t.aerobicHr = 130;
        t.thresholdHr = 160;
        return state;
    }

    constexpr double xStep = 8000.0 / 9;   // half a m/s
    constexpr double yStep = 4000.0 / 7;   // 20 beats

    double xOf(double speed)
    {
        return 550 + (speed - 1.5) * xStep * 2;
    }

    void expectAt(Point place, double x, double y)
    {
        EXPECT_TRUE(closeTo(place.x, x));
        EXPECT_TRUE(closeTo(place.y, y));
    }

    void expectLine(const Primitive& drawn, Point from, Point to, Colour colour, double width)
    {
        const auto& line = std::get<LinePrimitive>(drawn.shape);
        expectAt(line.from, from.x, from.y);
        expectAt(line.to, to.x, to.y);
        EXPECT_EQ(drawn.colour, colour);
        EXPECT_EQ(drawn.width, width);
    }

    struct DrawnGraph
    {
        ModelState state = roundNumbers();
        Picture pic;

        DrawnGraph() { drawHeartRateGraph(state, pic); }
    };

    TEST(HeartRateGraph, HasItsGrid)
    {
        const DrawnGraph graph;
        const std::vector<Primitive> lines = shapesOf<LinePrimitive>(graph.pic);
        ASSERT_EQ(lines.size(), 8U + 10U + 10U);
        for (int i = 0; i <= 7; ++i)
            expectLine(lines[static_cast<std::size_t>(i)], {550, 600 + i * yStep}, {8550, 600 + i * yStep},
                       i == 0 || i == 7 ? classic::black : classic::grey, 1);
        for (int j = 0; j <= 9; ++j)
            expectLine(lines[static_cast<std::size_t>(8 + j)], {550 + j * xStep, 600}, {550 + j * xStep, 4600},
                       j == 0 || j == 9 ? classic::black : classic::grey, 1);
    }

    TEST(HeartRateGraph, LabelsHeartRatesAsPrintedNumbers)
    {
        const DrawnGraph graph;
        const std::string labels[] = {" 200", " 180", " 160", " 140", " 120", " 100", " 80", " 60"};
        for (std::size_t i = 0; i < std::size(labels); ++i)
        {
            ASSERT_EQ(textsLike(graph.pic, labels[i]).size(), 1U) << labels[i];
            expectAt(placeOf(graph.pic, labels[i]), i < 6 ? 120 : 200, 510 + static_cast<double>(i) * yStep);
        }
    }

    TEST(HeartRateGraph, HasItsLabelsInTheirPlaces)
    {
        const DrawnGraph graph;
        expectAt(placeOf(graph.pic, " 200"), 120, 600 - 90);
        expectAt(placeOf(graph.pic, " 100"), 120, 600 + 5 * yStep - 90);
        expectAt(placeOf(graph.pic, " 80"), 200, 600 + 6 * yStep - 90);
        expectAt(placeOf(graph.pic, " 60"), 200, 4600 - 90);
        expectAt(placeOf(graph.pic, "Heart"), 60, 600 + 2 * yStep + 80);
        expectAt(placeOf(graph.pic, "Rate"), 80, 600 + 2 * yStep + 260);
        expectAt(placeOf(graph.pic, "1.5"), 550 - 100, 4640);
        expectAt(placeOf(graph.pic, " 3.4"), 550 - 140, 4820);   // 1.5 * 3600 / 1609.344 = 3.355
        expectAt(placeOf(graph.pic, " 5.4"), 550 - 140, 5000);
        expectAt(placeOf(graph.pic, "21.6"), 8550 - 140, 5000);   // 6 m/s
        expectAt(placeOf(graph.pic, "   17:53  "), 550 - 330, 20);
        expectAt(placeOf(graph.pic, "   11:07  "), 550 - 330, 200);
        expectAt(placeOf(graph.pic, "    4:27  "), 550 - 330, 380);
        expectAt(placeOf(graph.pic, "m/s"), 710, 4640);
        expectAt(placeOf(graph.pic, "mph"), 710, 4820);
        expectAt(placeOf(graph.pic, "kph"), 710, 5000);
        expectAt(placeOf(graph.pic, "mi"), 830, 20);
        expectAt(placeOf(graph.pic, "km"), 830, 200);
        expectAt(placeOf(graph.pic, "lap"), 790, 380);
        expectAt(placeOf(graph.pic, "Pace"), 550 + 4 * xStep + 180, 400);
        expectAt(placeOf(graph.pic, "Speed"), 550 + 4 * xStep + 140, 4620);
        EXPECT_EQ(shapesOf<TextPrimitive>(graph.pic).size(), 8U + 2U + 60U + 6U + 2U);
        for (const char* blue : {"Heart", "Rate", "Pace", "Speed"})
            EXPECT_EQ(textsLike(graph.pic, blue).at(0).colour, classic::lightBlue) << blue;
        for (const char* black : {" 200", "m/s", "6.0", " 3.4"})
            EXPECT_EQ(textsLike(graph.pic, black).at(0).colour, classic::black) << black;
    }

    TEST(HeartRateGraph, DrawsASampleEvery2Thousandths)
    {
        const DrawnGraph graph;
        const std::vector<Primitive> points = shapesOf<PointPrimitive>(graph.pic);
        const std::vector<Primitive> circles = shapesOf<CirclePrimitive>(graph.pic);
        const HeartRateSamples& samples = graph.state.heartRateSamples;
        ASSERT_EQ(points.size(), 2251U);
        ASSERT_EQ(circles.size(), 2251U);
        ASSERT_EQ(samples.curveX.size(), 2251U);
        double s = 1.5;
        for (std::size_t i = 0; i < points.size(); ++i, s += 0.002)
        {
            ASSERT_EQ(samples.curveSpeed[i], s);
            ASSERT_EQ(samples.curveHr[i], hrAtSpeed(graph.state, s));
            ASSERT_TRUE(closeTo(samples.curveX[i], xOf(s)));
            const Point at = std::get<PointPrimitive>(points[i].shape).at;
            ASSERT_EQ(at.x, samples.curveX[i]);
            ASSERT_TRUE(closeTo(at.y, 600 + (200 - samples.curveHr[i]) * yStep / 20));
            ASSERT_EQ(std::get<CirclePrimitive>(circles[i].shape).centre, at);
            ASSERT_EQ(std::get<CirclePrimitive>(circles[i].shape).radius, 8);
            ASSERT_EQ(points[i].width, 2);
            ASSERT_EQ(circles[i].width, 1);
            ASSERT_EQ(points[i].colour, classic::lightBlue);
            ASSERT_EQ(circles[i].colour, classic::lightBlue);
        }
    }

    TEST(HeartRateGraph, MarksTheTrainingSpeeds)
    {
        const DrawnGraph graph;
        const Colour green{0, 200, 0};
        const Colour orange{250, 150, 0};
        const Colour purple{250, 0, 250};
        struct Mark
        {
            double speed;
            Colour colour;
            double width;
        };
        const Mark marks[] = {{3, green, 2},      {2.75, green, 1},   {3.25, green, 1},    {4, orange, 2},
                              {3.875, orange, 1}, {4.125, orange, 1}, {5, {255, 0, 0}, 2}, {4.8, {255, 0, 0}, 1},
                              {5, purple, 1},     {5.5, purple, 1}};
        const std::vector<Primitive> lines = shapesOf<LinePrimitive>(graph.pic);
        for (std::size_t i = 0; i < std::size(marks); ++i)
            expectLine(lines[18 + i], {xOf(marks[i].speed), 600}, {xOf(marks[i].speed), 4600}, marks[i].colour,
                       marks[i].width);
    }

    TEST(HeartRateGraph, ReachesAsFarAsTheRepetitionsThatVo2maxSpeedHasMadeFaster)
    {
        ModelState state = stateOfRunner("ultra");
        (void)trainingAnalysis(state);
        EXPECT_TRUE(closeTo(raceTimeAt(state, 1500) * 400 / 1500, 89.43119598688597));   // 880 / 89.4 + 1 = 10.8: 5 m/s
        EXPECT_TRUE(closeTo(state.training.repSlowTime, 86.88987337134299));             // 880 / 86.9 + 1 = 11.1: 5.5
        Picture pic;
        drawHeartRateGraph(state, pic);
        EXPECT_EQ(textsLike(pic, "5.5").size(), 1U);
        EXPECT_TRUE(textsLike(pic, "6.0").empty());
        EXPECT_EQ(shapesOf<LinePrimitive>(pic).size(), 7U + 9U + 10U);                     // from 60 to 180 beats
        EXPECT_TRUE(closeTo(state.heartRateSamples.curveX[1000], 550 + 2 * 1000 * 2.0));   // 3.5 m/s, 1000 for 0.5 m/s
    }

    TEST(HeartRateGraph, TakesThePlaceOfTheOneBefore)
    {
        DrawnGraph graph;
        const std::size_t drawn = graph.pic.primitives.size();
        drawHeartRateGraph(graph.state, graph.pic);
        EXPECT_EQ(graph.pic.primitives.size(), drawn);
    }

    TEST(HeartRateGraph, KeepsTheSamplesOfALongerOneBefore)
    {
        DrawnGraph graph;
        const double old = graph.state.heartRateSamples.curveX[2250];
        graph.state.training.repSlowTime = 100;   // to 4.5 m/s
        drawHeartRateGraph(graph.state, graph.pic);
        ASSERT_EQ(graph.state.heartRateSamples.curveX.size(), 2251U);
        EXPECT_EQ(graph.state.heartRateSamples.curveX[2250], old);
        EXPECT_TRUE(closeTo(graph.state.heartRateSamples.curveX[1000], 550 + 2 * 8000.0 / 6 * 2));   // 3.5 m/s
    }

    std::string faultWith(double repSlowTime, double maxHr)
    {
        ModelState state = roundNumbers();
        state.training.repSlowTime = repSlowTime;
        state.runner.maxHr = maxHr;
        Picture pic;
        return faultOf([&] { drawHeartRateGraph(state, pic); });
    }

    TEST(HeartRateGraph, FaultsWhereAScaleHasNoStep)
    {
        EXPECT_EQ(faultWith(293.4, 185), "division by zero") << "the axis ends at 1.5 m/s";
        EXPECT_EQ(faultWith(293.3, 185), "");
        EXPECT_EQ(faultWith(440.1, 185), "") << "it ends at 1 m/s: nothing to draw but the marks";
        EXPECT_EQ(faultWith(80, 59.9), "division by zero");
        EXPECT_EQ(faultWith(80, 40), "division by zero");
        EXPECT_EQ(faultWith(80, 39.9), "");
        EXPECT_EQ(faultWith(80, 1000), "");
        EXPECT_EQ(faultWith(80, 1e9), "a scale that is too fine to be drawn");
        EXPECT_EQ(faultWith(0, 185), "division by zero");
    }

    TEST(HeartRateGraph, FaultsBeyondItsLastSample)
    {
        EXPECT_EQ(faultWith(44, 185), "") << "the axis ends at 10.5 m/s";
        EXPECT_EQ(faultWith(42, 185), "");
        EXPECT_EQ(faultWith(41.9, 185), "an index out of range") << "at 11 m/s";
    }

    TEST(Anaform, ShowsTextAndGraph)
    {
        OpenAnalysis program;
        program.person.click("Command3");
        EXPECT_TRUE(program.outside.events.empty());
        ASSERT_EQ(program.lines().size(), 22U);
        EXPECT_EQ(program.lines()[2],
                  " Fully aerobic training pace =  8:00  ( range 8:52 to 7:19 ) min/mi =  4:58  ( range "
                  "5:31 to 4:33 ) min/km.");
        EXPECT_EQ(shapesOf<PointPrimitive>(program.pic()).size(), 2251U);
        EXPECT_EQ(findForm(program.program, "anaform")->title, "Analysis");
    }

    TEST(Anaform, IsClearedAndComesAnewWhenItIsAskedForAgain)
    {
        OpenAnalysis program;
        program.person.click("Command3");
        int toFront = 0;
        program.program.shown = [&](Form& form) { toFront += form.name == "anaform" ? 1 : 0; };
        program.run({"", "30", "", "10", 3});
        program.person.click("Command3");
        EXPECT_EQ(toFront, 1);
        EXPECT_EQ(program.lines().size(), 22U);
        EXPECT_EQ(program.lines()[2].find("8:00"), std::string::npos);
    }

    TEST(Anaform, HasItsKey)
    {
        OpenAnalysis program;
        program.person.click("Command3");
        struct Key
        {
            const char *name, *caption;
            Colour colour;
        };
        for (const Key& key :
             {Key{"falbl", "Fully Aerobic", {0, 200, 0}}, Key{"ltlbl", "Lactate Threshold", {250, 150, 0}},
              Key{"vomlbl", "VO2 Max", {250, 0, 0}}, Key{"frlbl", "Fast Repeats", {250, 0, 250}}})
        {
            const Label& label = program.control<Label>("anaform", key.name);
            EXPECT_EQ(label.caption, key.caption);
            EXPECT_EQ(label.colour, key.colour);
        }
    }

    void move(OpenAnalysis& program, double x)
    {
        enter(program.program, "anaform.pic", false, [&] { program.pic().moved({x, 0}); });
    }

    std::string read(OpenAnalysis& program, const char* label)
    {
        return program.control<Label>("anaform", label).caption;
    }

    TEST(MouseTracker, ReadsTheFirstSampleThatIsNotLeftOfIt)
    {
        OpenAnalysis program;
        program.person.click("Command3");
        EXPECT_EQ(read(program, "hrlbl"), "");
        move(program, 3000);   // 2.878 m/s, so the sample of 2.88 m/s
        const double hr = hrAtSpeed(program.program.state, program.program.state.heartRateSamples.curveSpeed[690]);
        EXPECT_EQ(read(program, "hrlbl"), "HR =  " + std::to_string(std::lround(hr)));
        EXPECT_EQ(read(program, "mpslbl"), "  2.88 m/s");
        EXPECT_EQ(read(program, "kphlbl"), " 10.37 kph");
        EXPECT_EQ(read(program, "mphlbl"), "  6.44 mph");
        EXPECT_EQ(read(program, "mpklbl"), "    5:47  /km");
        EXPECT_EQ(read(program, "mpmlbl"), "    9:19  /mi");
        EXPECT_EQ(read(program, "mpllbl"), "    2:19  /400");
    }

    TEST(MouseTracker, ReadsTheSecondSampleAtEitherEdge)
    {
        OpenAnalysis program;
        program.person.click("Command3");
        for (const double x : {-500.0, 0.0, 550.0, 8550.1, 20000.0})
        {
            move(program, 3000);
            move(program, x);
            EXPECT_EQ(read(program, "mpslbl"), "  1.50 m/s") << x;
            EXPECT_EQ(read(program, "mpmlbl"), "   17:51  /mi") << x << ": of 1.502 m/s";
        }
    }

    TEST(MouseTracker, LeavesTheLabelsWhereThereIsNoSample)
    {
        OpenAnalysis program;
        program.person.click("Command3");
        move(program, 3000);
        HeartRateSamples& samples = program.program.state.heartRateSamples;
        const double last = samples.curveX.back();
        ASSERT_LT(last, 8550);
        move(program, (last + 8550) / 2);
        EXPECT_EQ(read(program, "mpslbl"), "  2.88 m/s");
        samples = {};
        for (const double x : {-1.0, 3000.0, 9000.0})
            move(program, x);
        EXPECT_EQ(read(program, "mpslbl"), "  2.88 m/s");
        EXPECT_TRUE(program.outside.events.empty());
    }

    TEST(MouseTracker, ReadsOnInALongerOldGraph)
    {
        OpenAnalysis program;
        program.person.click("Command3");
        program.program.state.heartRateSamples = {{1.5, 2, 3, 9}, {80, 90, 100, 170}, {550, 600, 700, 800}};
        move(program, 750);
        EXPECT_EQ(read(program, "hrlbl"), "HR =  170");
        move(program, 801);
        EXPECT_EQ(read(program, "hrlbl"), "HR =  170");
    }

    TEST(Anaform, OpensAndCloses)
    {
        OpenAnalysis program;
        program.person.click("Command3");
        move(program, 3000);
        std::vector<std::string> opened;
        const auto openForm = program.program.outside.openForm;
        program.program.outside.openForm = [&](const std::string& name) { opened.push_back(name); };
        program.press("anaform", "Command1");
        program.press("anaform", "Command2");
        EXPECT_EQ(opened, (std::vector<std::string>{"workouts", "helpform"}));
        program.program.outside.openForm = openForm;
        program.press("anaform", "Command3");
        EXPECT_EQ(findForm(program.program, "anaform"), nullptr);
        program.person.click("Command3");
        EXPECT_EQ(read(program, "hrlbl"), "") << "its design values are back";
    }

    TEST(Anaform, StaysUsableAfterAFault)
    {
        OpenAnalysis program;
        program.person.click("Command3");
        program.person.type("actmhrtx", "18");
        program.person.click("Command3");
        ASSERT_EQ(program.outside.faults.size(), 1U);
        EXPECT_EQ(program.outside.faults[0].text,
                  "The calculation stopped: a search that cannot end, because no speed reaches the heart rate while "
                  "searching the fast end of the aerobic zone.");
        EXPECT_TRUE(program.lines().empty()) << "it was cleared";
        EXPECT_TRUE(program.pic().primitives.empty());
        program.person.type("actmhrtx", "185");
        program.person.click("Command3");
        EXPECT_EQ(program.lines().size(), 22U);
    }

    TEST(Anaform, HasItsTextWhereTheGraphFaults)
    {
        OpenAnalysis program;
        program.run({"", "78", "", "5", 3});
        program.person.click("Command3");
        ASSERT_EQ(program.outside.faults.size(), 1U);
        EXPECT_EQ(program.outside.faults[0].text,
                  "The calculation stopped: division by zero while drawing the heart rate graph.");
        EXPECT_EQ(program.lines().size(), 22U);
        EXPECT_TRUE(program.pic().primitives.empty());
    }
}
