// What stands around the curves of the pace graph on each of its scales: every text and every straight line, in grid
// units, for the runner of `OpenAnalysis`.

#include <algorithm>
#include <array>
#include <cstddef>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "open_analysis.h"
#include "support/case_name.h"
#include "support/close_to.h"

namespace
{
    constexpr Colour black{0, 0, 0};              // colour 0
    constexpr Colour cyan{0, 128, 128};           // colour 3
    constexpr Colour red{128, 0, 0};              // colour 4
    constexpr Colour grey{192, 192, 192};         // colour 7
    constexpr Colour darkGrey{128, 128, 128};     // colour 8
    constexpr Colour lightBlue{0, 0, 255};        // colour 9
    constexpr Colour lightCyan{0, 255, 255};      // colour 11
    constexpr Colour lightRed{255, 0, 0};         // colour 12
    constexpr Colour lightMagenta{255, 0, 255};   // colour 13
    constexpr Colour faintGrey{224, 224, 224};    // of the lines between

    struct Text
    {
        std::string words;
        double x, y;
        Colour colour;
    };

    struct Line
    {
        double x, y, toX, toY;
        Colour colour;
    };

    /// A line down the plot with a text centred below it, a digit being 6 wide; row is the text's y.
    struct Column
    {
        double x;
        const char* label;
        Colour colour;
        double row;
        Colour textColour;
    };

    constexpr Column plain(double x, const char* label)
    {
        return {x, label, grey, 308, black};
    }

    constexpr Column mark(double x, const char* label, Colour colour, double row)
    {
        return {x, label, colour, row, colour};
    }

    const std::vector<Column> to800{plain(28, "100 m "),  plain(108, "200 m "), plain(188, "300 m "),
                                    plain(268, "400 m "), plain(348, "500 m "), plain(428, "600 m "),
                                    plain(508, "700 m "), plain(588, "800 m ")};

    const std::vector<Column> to3200{plain(28, "400 m "),
                                     plain(108, "800 m "),
                                     plain(188, "1200 m "),
                                     plain(268, "1600 m "),
                                     plain(348, "2000 m "),
                                     plain(428, "2400 m "),
                                     plain(508, "2800 m "),
                                     plain(588, "3200 m "),
                                     mark(248, "1500m", lightCyan, 320),
                                     mark(269.8688, "1mi", cyan, 332),
                                     mark(548, "3000m", lightCyan, 320),
                                     mark(591.7376, "2mi", cyan, 332)};

    const std::vector<Column> toMarathon{plain(28, "5 km"),
                                         plain(108, "10 km"),
                                         plain(188, "15 km"),
                                         plain(268, "20 km"),
                                         plain(348, "25 km"),
                                         plain(428, "30 km"),
                                         plain(508, "35 km"),
                                         plain(588, "40 km"),
                                         mark(205.49504, "10mi", cyan, 332),
                                         mark(285.56, "H.M.", cyan, 320),
                                         mark(623.12, "M.", cyan, 320)};

    const std::vector<Column> to100km{plain(28, "100m"),
                                      plain(224, "1000m"),
                                      plain(420, "10k"),
                                      plain(616, "100k"),
                                      mark(87.00187915014033, "200m", darkGrey, 320),
                                      mark(146.00375830028065, "400m", darkGrey, 320),
                                      mark(205.00563745042098, "800m", darkGrey, 320),
                                      mark(258.51388677491354, "1500m", darkGrey, 320),
                                      mark(264.5031814994695, "1mi", cyan, 332),
                                      mark(317.51576592505387, "3000m", darkGrey, 320),
                                      mark(323.5050606496099, "2mi", cyan, 332),
                                      mark(360.9981208498597, "5000m", darkGrey, 320),
                                      mark(460.50318149946946, "10mi", cyan, 332),
                                      mark(483.5492751291526, "H.M.", darkGrey, 320),
                                      mark(542.5511542792929, "M.", darkGrey, 320)};

    struct TableCase
    {
        std::string name;
        const char *scale, *units;
        std::size_t curveLines;
        std::array<const char*, 6> seconds;   // for 400 m, to the left, from the top down
        std::array<const char*, 6> minutes;   // for a km or a mile, to the right
        std::vector<Column> columns;
    };

    std::ostream& operator<<(std::ostream& out, const TableCase& row)
    {
        return out << row.name;
    }

    std::vector<Text> expectedTexts(const TableCase& c)
    {
        std::vector<Text> texts{{"100", 32, 59, lightMagenta},      {"%", 50, 59, red},
                                {" 85", 32, 118, lightMagenta},     {"%", 50, 118, red},
                                {" 70", 32, 177, lightMagenta},     {"%", 50, 177, red},
                                {" 55", 32, 236, lightMagenta},     {"%", 50, 236, red},
                                {"race pace", 530, 250, lightBlue}, {"record pace", 520, 262, lightRed},
                                {"% of rec. pace", 505, 274, red},  {"performance level", 483, 286, lightMagenta}};
        for (std::size_t i = 0; i < 6; ++i)
        {
            texts.push_back({c.seconds[i], 8, 59.0 * static_cast<double>(i), black});
            texts.push_back({c.minutes[i], 592, 59.0 * static_cast<double>(i), black});
        }
        const bool metric = std::string(c.units) == "metric";
        const std::string left = metric ? "seconds per 400 m " : "seconds per 440 yd";
        const std::string right = metric ? "minutes per km    " : "minutes per mile  ";
        for (std::size_t i = 0; i < 18; ++i)
        {
            texts.push_back({left.substr(i, 1), 1, 70 + 10 * static_cast<double>(i), black});
            texts.push_back({right.substr(i, 1), 630, 76 + 10 * static_cast<double>(i), black});
        }
        for (const Column& column : c.columns)
        {
            const double half = 3 * static_cast<double>(std::string(column.label).size());
            texts.push_back({column.label, column.x - half, column.row, column.textColour});
        }
        return texts;
    }

    std::vector<Line> expectedLines(const TableCase& c)
    {
        std::vector<Line> lines;
        for (int k = 0; k <= 15; ++k)   // 115, 100, 85, 70, 55 and 40 % are on every third
            lines.push_back({28, 20.0 * k + 5, 616, 20.0 * k + 5, k % 3 == 0 ? grey : faintGrey});
        for (const Column& column : c.columns)
            lines.push_back({column.x, 5, column.x, 305, column.colour});
        return lines;
    }

    bool stands(Point at, double x, double y)
    {
        return closeTo(at.x, x * 14) && closeTo(at.y, y * 17);
    }

    class PaceGraphTable : public testing::TestWithParam<TableCase>
    {
    protected:
        PaceGraphTable()
        {
            program.person.click(GetParam().scale);
            program.person.click(GetParam().units);
            program.person.click("Command2");
        }

        OpenAnalysis program;
    };

    TEST_P(PaceGraphTable, HasItsTextsAndNoOther)
    {
        std::vector<Primitive> drawn = shapesOf<TextPrimitive>(program.graph());
        for (const Text& text : expectedTexts(GetParam()))
        {
            const auto found = std::ranges::find_if(drawn, [&](const Primitive& one) {
                const auto& shape = std::get<TextPrimitive>(one.shape);
                return shape.text == text.words && one.colour == text.colour && stands(shape.at, text.x, text.y);
            });
            ASSERT_NE(found, drawn.end()) << '[' << text.words << "] at " << text.x << ", " << text.y;
            drawn.erase(found);
        }
        EXPECT_TRUE(drawn.empty()) << std::get<TextPrimitive>(drawn[0].shape).text;
    }

    TEST_P(PaceGraphTable, HasItsLinesAndNoOther)
    {
        std::vector<Primitive> drawn = shapesOf<LinePrimitive>(program.graph());
        ASSERT_GT(drawn.size(), GetParam().curveLines);
        drawn.resize(drawn.size() - GetParam().curveLines);   // the curves come last
        for (const Line& line : expectedLines(GetParam()))
        {
            const auto found = std::ranges::find_if(drawn, [&](const Primitive& one) {
                const auto& shape = std::get<LinePrimitive>(one.shape);
                return one.colour == line.colour && stands(shape.from, line.x, line.y) &&
                       stands(shape.to, line.toX, line.toY);
            });
            ASSERT_NE(found, drawn.end()) << line.x << ", " << line.y << " to " << line.toX << ", " << line.toY;
            drawn.erase(found);
        }
        EXPECT_TRUE(drawn.empty());
    }

    // Shifts of -1, -1, 1 and 0 s for 400 m; to the right 4 times that, over 1.6 in metric units.
    constexpr std::array<const char*, 6> down{" 119", " 104", " 89", " 74", " 59", " 44"};
    constexpr std::array<const char*, 6> up{" 121", " 106", " 91", " 76", " 61", " 46"};
    constexpr std::array<const char*, 6> usual{" 120", " 105", " 90", " 75", " 60", " 45"};
    constexpr std::array<const char*, 6> downKm{"    4:57", "    4:20", "    3:43", "    3:05", "    2:28", "    1:50"};
    constexpr std::array<const char*, 6> upKm{"    5:03", "    4:25", "    3:47", "    3:10", "    2:33", "    1:55"};
    constexpr std::array<const char*, 6> usualKm{"    5:00", "    4:22", "    3:45",
                                                 "    3:08", "    2:30", "    1:52"};
    constexpr std::array<const char*, 6> downMile{"    7:56", "    6:56", "    5:56",
                                                  "    4:56", "    3:56", "    2:56"};
    constexpr std::array<const char*, 6> upMile{"    8:04", "    7:04", "    6:04", "    5:04", "    4:04", "    3:04"};
    constexpr std::array<const char*, 6> usualMile{"    8:00", "    7:00", "    6:00",
                                                   "    5:00", "    4:00", "    3:00"};

    INSTANTIATE_TEST_SUITE_P(
        Scales, PaceGraphTable,
        testing::Values(TableCase{"to_800_m", "lin1", "metric", 240, down, downKm, to800},
                        TableCase{"to_800_m_english", "lin1", "english", 240, down, downMile, to800},
                        TableCase{"to_3200_m", "lin2", "metric", 240, down, downKm, to3200},
                        TableCase{"to_3200_m_english", "lin2", "english", 240, down, downMile, to3200},
                        TableCase{"to_marathon", "lin3", "metric", 240, up, upKm, toMarathon},
                        TableCase{"to_marathon_english", "lin3", "english", 240, up, upMile, toMarathon},
                        TableCase{"to_100_km", "logg", "metric", 236, usual, usualKm, to100km},
                        TableCase{"to_100_km_english", "logg", "english", 236, usual, usualMile, to100km}),
        byName);

    struct RaceCase
    {
        std::string name;
        const char *scale, *units;
        double x, y;
    };

    std::ostream& operator<<(std::ostream& out, const RaceCase& row)
    {
        return out << row.name;
    }

    class PaceGraphRace : public testing::TestWithParam<RaceCase>
    {};

    TEST_P(PaceGraphRace, OfTenKilometersIn40MinutesIsCircledTwice)
    {
        OpenAnalysis program;
        program.person.click(GetParam().scale);
        program.person.click(GetParam().units);
        program.person.click("Command2");
        const std::vector<Primitive> circles = shapesOf<CirclePrimitive>(program.graph());
        ASSERT_EQ(circles.size(), 2U);
        for (const Primitive& circle : circles)
        {
            EXPECT_TRUE(stands(std::get<CirclePrimitive>(circle.shape).centre, GetParam().x, GetParam().y));
            EXPECT_EQ(circle.colour, black);
        }
        EXPECT_EQ(std::get<CirclePrimitive>(circles[0].shape).radius, 10);
        EXPECT_EQ(std::get<CirclePrimitive>(circles[1].shape).radius, 40);
    }

    // 384 s over 1600 m, 386.24256 s over a mile; the zero at 305 + 4 * shift. 28 + 5000 * 588 / 37500 = 106.4.
    INSTANTIATE_TEST_SUITE_P(ByHand, PaceGraphRace,
                             testing::Values(RaceCase{"linear", "lin3", "metric", 106, 309 - 204},
                                             RaceCase{"linear_english", "lin3", "english", 106, 103},
                                             RaceCase{"logarithmic", "logg", "metric", 420, 305 - 204},
                                             RaceCase{"logarithmic_english", "logg", "english", 420, 99}),
                             byName);

    TEST(PaceGraphRaces, EndBelowTheRightEnd)
    {
        OpenAnalysis program;
        program.person.click("lin2");
        program.run({"", "12", "", "3339.9", 4});
        program.person.click("Command2");
        EXPECT_EQ(shapesOf<CirclePrimitive>(program.graph()).size(), 2U);
        program.run({"", "12", "", "3340", 4});
        program.person.click("Command2");
        EXPECT_TRUE(shapesOf<CirclePrimitive>(program.graph()).empty());
        EXPECT_TRUE(program.outside.events.empty());
    }
}
