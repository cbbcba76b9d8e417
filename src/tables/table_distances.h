#pragma once

#include <array>

#include "model/model_state.h"
#include "model/units.h"

struct LabelledDistance
{
    double metres;
    const char* label;   // as it is printed
};

/// The rows of the performance tables, and the distances of the graph by age. English distances are rounded on purpose:
/// a mile is 1609.34 m here.
inline constexpr OneBased<LabelledDistance, tableDistances> tableLabels{
    {{{100, "   100 m "},     {200, "   200 m "},
      {400, "   400 m "},     {402.34, "   440 yd"},
      {800, "   800 m "},     {804.67, "   880 yd"},
      {1000, "  1000 m "},    {1500, "  1500 m "},
      {1600, "  1600 m "},    {1609.34, "  1 mile "},
      {3000, "  3000 m "},    {3200, "  3200 m "},
      {3218.69, "  2 miles"}, {4828.03, "  3 miles"},
      {5000, "    5 km "},    {8000, "    8 km "},
      {8046.72, "  5 miles"}, {10000, "   10 km "},
      {15000, "   15 km "},   {16093.44, " 10 miles"},
      {20000, "   20 km "},   {halfMarathonMetres, " half mara"},
      {30000, "   30 km "},   {marathonMetres, " marathon"}}}};

/// Sets tableDist, the distances at which `calculate` fills a column.
inline void setTableDistances(TableRun& table)
{
    for (int row = 1; row <= tableDistances; ++row)
        table.tableDist[row] = tableLabels[row].metres;
}
