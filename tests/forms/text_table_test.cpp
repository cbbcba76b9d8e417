#include "forms/text_table.h"

#include <gtest/gtest.h>

namespace
{
    const TextTable table{
        {{"Split", "Distance", "Note"}, {"1", " 400", ""}, {"12", "", "a, b"}, {}, {"a \"word\"", "x"}, {"", "y\nz"}}};

    TEST(TextTable, LinesUpTheColumnsOfABlock)
    {
        EXPECT_EQ(textOf(table), "Split  Distance  Note\n"
                                 "1      400\n"
                                 "12               a, b\n"
                                 "\n"
                                 "a \"word\"  x\n"
                                 "          y\nz\n");
    }

    TEST(TextTable, KeepsEmptyCellsAsFields)
    {
        EXPECT_EQ(csvOf(table), "Split,Distance,Note\n1,400,\n12,,\"a, b\"\n\n\"a \"\"word\"\"\",x\n,\"y\nz\"\n");
    }

    TEST(TextTable, OfNothingIsEmpty)
    {
        EXPECT_EQ(textOf(TextTable{}), "");
        EXPECT_EQ(csvOf(TextTable{}), "");
    }
}
