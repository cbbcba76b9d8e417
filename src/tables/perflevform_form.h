#pragma once

#include <functional>
#include <optional>

#include "forms/controls.h"
#include "forms/outside.h"
#include "prediction/vantstart_form.h"
#include "tables/performance_table.h"

/// The printed performance table.
///
/// It refers to the main form, so that it stays where it was built.
struct PerflevformForm
{
    /// specification: what `pertabspec` asks for, nothing while that is closed.
    PerflevformForm(VantstartForm& mainForm, std::function<std::optional<TableSpecification>()> specification);
    PerflevformForm(const PerflevformForm&) = delete;
    PerflevformForm& operator=(const PerflevformForm&) = delete;

    VantstartForm& main;
    std::function<std::optional<TableSpecification>()> asked;
    TableSpecification latest;   // what the table was last built from
    PerformanceTable built;

    TextSurface table{{.name = "table", .tip = "Times by distance, and by level or age"}};
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close this form"}};
    Button Command2{{.name = "Command2", .caption = "Print", .tip = "Print this form"}};
    Button Command3{
        {.name = "Command3", .caption = "Graph", .tip = "Time against age over one distance"}, {}, "perfgraph"};

    Form form{"perflevform", "Performance levels"};
};

/// Builds the table anew from what is asked for. For this runner the ages count in all records; a fault leaves that so
/// until the next table.
/// Faults: as `printPerformanceTable`; the lines before stay.
void buildTable(PerflevformForm& form);
