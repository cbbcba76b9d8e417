#include "analysis/graphform_form.h"

#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "forms/colours.h"
#include "open_analysis.h"
#include "support/case_name.h"
#include "support/close_to.h"

namespace
{
    /// Grid units to picture units.
    Point at(double x, double y)
    {
        return {x * 14, y * 17};
    }

    void expectAt(Point place, double x, double y)
    {
        EXPECT_TRUE(closeTo(place.x, x * 14)) << place.x / 14;
        EXPECT_TRUE(closeTo(place.y, y * 17)) << place.y / 17;
    }

    std::vector<LinePrimitive> linesOf(const Picture& picture, Colour colour)
    {
        std::vector<LinePrimitive> lines;
        for (const Primitive& drawn : shapesOf<LinePrimitive>(picture))
            if (drawn.colour == colour)
                lines.push_back(std::get<LinePrimitive>(drawn.shape));
        return lines;
    }

    /// What a second computation has for the runner of `OpenAnalysis` and a comparison level of 100 %: the ends of the
    /// four curves, in grid units.
    struct PaceCase
    {
        std::string name;
        const char *scale, *units;
        std::size_t points;
        double shift;
        double firstX, firstPace, firstRecord, firstPercent, firstLevel;
        double lastX, lastPace, lastRecord, lastPercent, lastLevel;
    };

    std::ostream& operator<<(std::ostream& out, const PaceCase& row)
    {
        return out << row.name;
    }

    class PaceGraph : public testing::TestWithParam<PaceCase>
    {
    protected:
        PaceGraph()
        {
            program.person.click(GetParam().scale);
            program.person.click(GetParam().units);
            program.person.click("Command2");
        }

        OpenAnalysis program;
    };

    TEST_P(PaceGraph, DrawsFourCurves)
    {
        const PaceCase& c = GetParam();
        EXPECT_TRUE(program.outside.events.empty());
        const std::vector<Primitive> lines = shapesOf<LinePrimitive>(program.graph());
        const std::size_t segments = 4 * (c.points - 1);
        ASSERT_GT(lines.size(), segments);
        const auto segment = [&](std::size_t i) { return lines[lines.size() - segments + i]; };
        const double first[] = {c.firstPace, c.firstRecord, c.firstPercent, c.firstLevel};
        const double last[] = {c.lastPace, c.lastRecord, c.lastPercent, c.lastLevel};
        const Colour colours[] = {{0, 0, 255}, {255, 0, 0}, {128, 0, 0}, {255, 0, 255}};
        for (std::size_t curve = 0; curve < 4; ++curve)
        {
            expectAt(std::get<LinePrimitive>(segment(curve).shape).from, c.firstX, first[curve]);
            expectAt(std::get<LinePrimitive>(segment(segments - 4 + curve).shape).to, c.lastX, last[curve]);
            EXPECT_EQ(segment(curve).colour, colours[curve]);
        }
        for (std::size_t i = 4; i < segments; ++i)   // each from its last point
            ASSERT_EQ(std::get<LinePrimitive>(segment(i).shape).from, std::get<LinePrimitive>(segment(i - 4).shape).to);
    }

    TEST_P(PaceGraph, LabelsThePaces)
    {
        const Picture& graph = program.graph();
        for (int i = 1; i <= 6; ++i)
        {
            const int value = static_cast<int>(135 - 15 * i + GetParam().shift);
            expectAt(placeOf(graph, " " + std::to_string(value)), 8, 59 * (i - 1));
        }
        const bool metric = std::string(GetParam().units) == "metric";
        std::string left, right;
        for (const Primitive& drawn : shapesOf<TextPrimitive>(graph))
        {
            const auto& text = std::get<TextPrimitive>(drawn.shape);
            if (text.text.size() == 1 && text.text != "%")
                (text.at.x < at(100, 0).x ? left : right) += text.text;
        }
        EXPECT_EQ(left, metric ? "seconds per 400 m " : "seconds per 440 yd");
        EXPECT_EQ(right, metric ? "minutes per km    " : "minutes per mile  ");
    }

    TEST_P(PaceGraph, HoldsItsGridAndTexts)
    {
        const Picture& graph = program.graph();
        EXPECT_EQ(graph.size, (Point{9000, 5850}));
        for (const Primitive& drawn : shapesOf<TextPrimitive>(graph))
        {
            const auto& text = std::get<TextPrimitive>(drawn.shape);
            EXPECT_GE(text.at.x, 0) << text.text;
            EXPECT_GE(text.at.y, 0) << text.text;
            EXPECT_LE(text.at.y + 1.12 * text.size, graph.size.y) << text.text;
            EXPECT_LE(text.at.x + 0.5 * text.size, graph.size.x) << text.text;
        }
        for (int k = 0; k <= 15; ++k)
        {
            const auto line =
                std::get<LinePrimitive>(shapesOf<LinePrimitive>(graph)[static_cast<std::size_t>(k)].shape);
            expectAt(line.from, 28, 20 * k + 5);
            expectAt(line.to, 616, 20 * k + 5);
        }
    }

    INSTANTIATE_TEST_SUITE_P(
        Scales, PaceGraph,
        testing::Values(PaceCase{"to_800_m", "lin1", "metric", 61, -1, 28, 236, 325, 210.03892641823683,
                                 263.24348977736275, 628, 187, 278, 188.94359865176028, 192.4718826824029},
                        PaceCase{"to_800_m_english", "lin1", "english", 61, -1, 28, 234, 324, 210.03892641823683,
                                 263.24348977736275, 628, 185, 277, 188.94359865176028, 192.4718826824029},
                        PaceCase{"to_3200_m", "lin2", "metric", 61, -1, 28, 213, 308, 207.62542203922146,
                                 229.74637647274776, 628, 133, 244, 192.5772603185842, 166.4692652140937},
                        PaceCase{"to_3200_m_english", "lin2", "english", 61, -1, 28, 211, 307, 207.62542203922146,
                                 229.74637647274776, 628, 131, 243, 192.5772603185842, 166.4692652140937},
                        PaceCase{"to_marathon", "lin3", "metric", 61, 1, 28, 127, 246, 196.03500972786617,
                                 162.95316236726575, 628, -9, 202, 234.33605998989168, 194.2605435885012},
                        PaceCase{"to_marathon_english", "lin3", "english", 61, 1, 28, 125, 244, 196.03500972786617,
                                 162.95316236726575, 628, -12, 200, 234.33605998989168, 194.2605435885012},
                        PaceCase{"to_100_km", "logg", "metric", 60, 0, 28, 240, 329, 210.03892641823683,
                                 263.24348977736275, 618, -334, 129, 291.11279577261234, 256.21060299516296},
                        PaceCase{"to_100_km_english", "logg", "english", 60, 0, 28, 238, 328, 210.03892641823683,
                                 263.24348977736275, 618, -339, 127, 291.11279577261234, 256.21060299516296}),
        byName);

    TEST(PaceGraphColumns, OfEachScale)
    {
        OpenAnalysis program;
        struct Scale
        {
            const char* item;
            std::vector<std::string> labels;
        };
        const Scale scales[] = {
            {"lin1", {"100 m ", "200 m ", "300 m ", "400 m ", "500 m ", "600 m ", "700 m ", "800 m "}},
            {"lin2", {"400 m ", "800 m ", "1200 m ", "1600 m ", "2000 m ", "2400 m ", "2800 m ", "3200 m "}},
            {"lin3", {"5 km", "10 km", "15 km", "20 km", "25 km", "30 km", "35 km", "40 km"}}};
        for (const Scale& scale : scales)
        {
            program.person.click(scale.item);
            program.person.click("Command2");
            for (std::size_t i = 0; i < 8; ++i)
            {
                const double middle =
                    placeOf(program.graph(), scale.labels[i]).x / 14 + 3 * static_cast<double>(scale.labels[i].size());
                EXPECT_NEAR(middle, 28 + 80 * static_cast<double>(i), 1e-9) << scale.labels[i];
            }
        }
        program.person.click("logg");
        program.person.click("Command2");
        const char* decades[] = {"100m", "1000m", "10k", "100k"};
        for (std::size_t k = 0; k < 4; ++k)
            EXPECT_EQ(textsLike(program.graph(), decades[k]).size(), 1U) << decades[k];
    }

    double lineX(const Picture& graph, Colour colour, std::size_t n)
    {
        return linesOf(graph, colour).at(n).from.x / 14;
    }

    TEST(PaceGraphMarks, OfEachScale)
    {
        OpenAnalysis program;
        program.person.click("lin2");
        program.person.click("Command2");
        EXPECT_NEAR(lineX(program.graph(), classic::lightCyan, 0), 248, 1e-9);   // 1500 m
        EXPECT_NEAR(lineX(program.graph(), classic::cyan, 0), 269.8688, 1e-9);   // 1 mile
        EXPECT_NEAR(lineX(program.graph(), classic::lightCyan, 1), 548, 1e-9);   // 3000 m
        EXPECT_NEAR(lineX(program.graph(), classic::cyan, 1), 591.7376, 1e-9);   // 2 miles
        EXPECT_EQ(textsLike(program.graph(), "2mi").at(0).colour, classic::cyan);
        EXPECT_EQ(textsLike(program.graph(), "1500m").at(0).colour, classic::lightCyan);
        program.person.click("lin3");
        program.person.click("Command2");
        EXPECT_NEAR(lineX(program.graph(), classic::cyan, 0), 205.49504, 1e-9);   // 10 miles
        EXPECT_NEAR(lineX(program.graph(), classic::cyan, 1), 285.56, 1e-9);      // half marathon
        EXPECT_NEAR(lineX(program.graph(), classic::cyan, 2), 623.12, 1e-9);      // marathon
        for (const char* name : {"10mi", "H.M.", "M."})
            EXPECT_EQ(textsLike(program.graph(), name).size(), 1U) << name;
        program.person.click("logg");
        program.person.click("Command2");
        EXPECT_EQ(linesOf(program.graph(), classic::darkGrey).size(), 8U);
        EXPECT_EQ(linesOf(program.graph(), classic::cyan).size(), 3U);
        EXPECT_NEAR(lineX(program.graph(), classic::darkGrey, 0), 28 + 0.3010299956639812 * 196, 1e-9);   // 200 m
        EXPECT_EQ(textsLike(program.graph(), "M.").at(0).colour, classic::darkGrey);
        EXPECT_EQ(textsLike(program.graph(), "10mi").at(0).colour, classic::cyan);
    }

    TEST(PaceGraphKey, StandsAtTheRight)
    {
        OpenAnalysis program;
        program.person.click("Command2");
        expectAt(placeOf(program.graph(), "race pace"), 530, 250);
        expectAt(placeOf(program.graph(), "record pace"), 520, 262);
        expectAt(placeOf(program.graph(), "% of rec. pace"), 505, 274);
        expectAt(placeOf(program.graph(), "performance level"), 483, 286);
        expectAt(placeOf(program.graph(), "100"), 32, 59);
        expectAt(placeOf(program.graph(), " 55"), 32, 236);
        EXPECT_EQ(textsLike(program.graph(), "%").size(), 4U);
        expectAt(placeOf(program.graph(), "    5:00"), 592, 0);   // 120 s for 400 m, per km
    }

    TEST(PaceGraphRaces, AreCircledBelowTheRightEnd)
    {
        OpenAnalysis program;
        program.person.click("Command2");
        std::vector<Primitive> circles = shapesOf<CirclePrimitive>(program.graph());
        ASSERT_EQ(circles.size(), 2U);
        expectAt(std::get<CirclePrimitive>(circles[0].shape).centre, 420, 101);   // 305 - (2400 / 10000 * 1600 - 180)
        EXPECT_EQ(std::get<CirclePrimitive>(circles[0].shape).radius, 10);
        EXPECT_EQ(std::get<CirclePrimitive>(circles[1].shape).radius, 40);
        EXPECT_EQ(circles[1].colour, classic::black);
        program.person.click("lin2");
        program.person.click("Command2");
        EXPECT_TRUE(shapesOf<CirclePrimitive>(program.graph()).empty()) << "10 km is beyond 3340 m";
    }

    TEST(Graphform, PrintsWithoutItsButtonsAndCloses)
    {
        OpenAnalysis program;
        program.person.click("Command2");
        EXPECT_EQ(findForm(program.program, "graphform")->title, "Pace versus distance");
        program.press("graphform", "Command2");
        ASSERT_EQ(program.outside.printedForms.size(), 1U);
        EXPECT_EQ(program.outside.printedForms[0].form, "graphform");
        EXPECT_EQ(program.outside.printedForms[0].background, (Colour{255, 255, 255}));
        EXPECT_EQ(program.outside.printedForms[0].hidden, (std::vector<std::string>{"Command1", "Command2"}));
        program.press("graphform", "Command1");
        EXPECT_EQ(findForm(program.program, "graphform"), nullptr);
    }

    TEST(Graphform, StaysAsItIsWithoutAPrinter)
    {
        OpenAnalysis program;
        program.person.click("Command2");
        const std::size_t drawn = program.graph().primitives.size();
        program.program.outside.printer = {};
        program.outside.forget();
        program.press("graphform", "Command2");
        EXPECT_TRUE(program.outside.events.empty());
        EXPECT_EQ(program.graph().primitives.size(), drawn);
        program.person.click("pfull");
        EXPECT_TRUE(program.outside.events.empty()) << "nor does the full report";
    }

    TEST(Graphform, KeepsWhatWasDrawnBeforeAFault)
    {
        OpenAnalysis program;
        program.person.slide("HScroll2", 0);
        program.person.click("Command2");
        ASSERT_EQ(program.outside.faults.size(), 1U);
        EXPECT_EQ(program.outside.faults[0].text,
                  "The calculation stopped: division by zero while drawing the curves at 100 m.");
        EXPECT_EQ(shapesOf<CirclePrimitive>(program.graph()).size(), 2U);
        program.person.slide("HScroll2", 900);
        program.person.click("Command2");
        EXPECT_EQ(program.outside.faults.size(), 1U);
    }
}
