#include "model/text_page.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace
{
    using Lines = std::vector<std::string>;

    TEST(TextPage, IsEmptyAtFirst)
    {
        const TextPage page;
        EXPECT_EQ(page.lines, Lines{});
        EXPECT_FALSE(page.lineOpen);
    }

    TEST(TextPage, PrintsItemsOnOneLine)
    {
        TextPage page;
        print(page, "Time");
        print(page, ":");
        EXPECT_EQ(page.lines, Lines{"Time:"});
        EXPECT_TRUE(page.lineOpen);
    }

    TEST(TextPage, PrintsANumberBetweenBlanks)
    {
        TextPage page;
        print(page, 3.0);
        print(page, -0.5);
        print(page, " = ");
        print(page, 150.0);
        print(page, "x");
        EXPECT_EQ(page.lines, Lines{" 3  -.5  =  150 x"});
    }

    TEST(TextPage, EndsLines)
    {
        TextPage page;
        print(page, "a");
        newLine(page);
        newLine(page);
        print(page, "b");
        newLine(page);
        printLine(page, "c");
        printLine(page, "");
        EXPECT_EQ(page.lines, (Lines{"a", "", "b", "c", ""}));
        EXPECT_FALSE(page.lineOpen);
    }

    TEST(TextPage, PrintLineGoesOnWithTheLineUnderWay)
    {
        TextPage page;
        print(page, "a");
        printLine(page, "b");
        print(page, "c");
        EXPECT_EQ(page.lines, (Lines{"ab", "c"}));
    }

    TEST(TextPage, GoesToAColumnCountedFromOne)
    {
        TextPage page;
        goToColumn(page, 1);
        print(page, "a");
        goToColumn(page, 5);
        print(page, "b");
        EXPECT_EQ(page.lines, Lines{"a   b"});
    }

    TEST(TextPage, StaysWhereTheColumnIsPassed)
    {
        TextPage page;
        print(page, "abcdef");
        goToColumn(page, 3);
        print(page, "g");
        goToColumn(page, 0);
        goToColumn(page, -7);
        print(page, "h");
        goToColumn(page, 9);
        print(page, "i");
        EXPECT_EQ(page.lines, Lines{"abcdefghi"});
    }

    TEST(TextPage, GoesToZonesOfFourteen)
    {
        TextPage page;
        goToZone(page);
        print(page, "a");
        goToZone(page);
        print(page, "b");
        EXPECT_EQ(page.lines, Lines{std::string(14, ' ') + "a" + std::string(13, ' ') + "b"});
    }

    TEST(TextPage, AFullZoneLeavesTheNextOneEmpty)
    {
        TextPage page;
        print(page, std::string(13, 'a'));
        goToZone(page);
        print(page, "b");
        newLine(page);
        print(page, std::string(14, 'a'));
        goToZone(page);
        print(page, "b");
        EXPECT_EQ(page.lines, (Lines{std::string(13, 'a') + " b", std::string(14, 'a') + std::string(14, ' ') + "b"}));
    }

    TEST(TextPage, IsCleared)
    {
        TextPage page;
        printLine(page, "a");
        print(page, "b");
        clear(page);
        EXPECT_EQ(page, TextPage{});
        print(page, "c");
        EXPECT_EQ(page.lines, Lines{"c"});
    }
}
