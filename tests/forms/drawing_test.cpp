#include "forms/drawing.h"

#include <variant>

#include <gtest/gtest.h>

#include "forms/colours.h"

namespace
{
    TEST(Drawing, PutsEachShapeBehindTheOneBeforeInTheColourAtHand)
    {
        Picture picture;
        Drawing draw{picture, 150};
        draw.line({1, 2}, {3, 4});
        draw.colour = classic::lightBlue;
        draw.width = 2;
        draw.circle({5, 6}, 7);
        draw.point({8, 9});
        draw.colour = classic::cyan;
        draw.text({10, 11}, " 12 km");
        ASSERT_EQ(picture.primitives.size(), 4U);
        const auto& line = std::get<LinePrimitive>(picture.primitives[0].shape);
        EXPECT_EQ(line.from, (Point{1, 2}));
        EXPECT_EQ(line.to, (Point{3, 4}));
        EXPECT_EQ(picture.primitives[0].colour, classic::black);
        EXPECT_EQ(picture.primitives[0].width, 1);
        const auto& circle = std::get<CirclePrimitive>(picture.primitives[1].shape);
        EXPECT_EQ(circle.centre, (Point{5, 6}));
        EXPECT_EQ(circle.radius, 7);
        EXPECT_EQ(picture.primitives[1].width, 2);
        EXPECT_EQ(std::get<PointPrimitive>(picture.primitives[2].shape).at, (Point{8, 9}));
        EXPECT_EQ(picture.primitives[2].colour, (Colour{0, 0, 255}));
        const auto& text = std::get<TextPrimitive>(picture.primitives[3].shape);
        EXPECT_EQ(text.text, " 12 km");
        EXPECT_EQ(text.at, (Point{10, 11}));
        EXPECT_EQ(text.size, 150);
        EXPECT_EQ(picture.primitives[3].colour, (Colour{0, 128, 128}));
    }
}
