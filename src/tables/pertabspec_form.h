#pragma once

#include <functional>

#include "forms/controls.h"
#include "forms/outside.h"
#include "prediction/vantstart_form.h"
#include "tables/performance_table.h"

/// Asks which performance table to build. When it goes, the main form calculates its own results again.
///
/// It refers to the main form, so that it stays where it was built.
struct PertabspecForm
{
    /// showTable: shows the table's form and builds the table that this form asks for.
    /// stopping: whether the program ends, so that the main form needs no results any more.
    PertabspecForm(VantstartForm& mainForm, Event showTable, const bool& stopping);
    PertabspecForm(const PertabspecForm&) = delete;
    PertabspecForm& operator=(const PertabspecForm&) = delete;

    VantstartForm& main;
    Event show;
    const bool& programStops;

    OptionButton opper{{.name = "opper", .caption = "General performance levels", .tip = "A column for each level"},
                       true};
    OptionButton oplev{
        {.name = "oplev", .caption = "Times by age for level", .tip = "A column for each age, all of one level"}};
    TextBox lev{{.name = "lev", .caption = "%", .tip = "The level of times by age, percent; above 0"}, "100"};
    OptionButton opage{
        {.name = "opage", .caption = "Individual performance by age", .tip = "A column for each age of this runner"}};
    OptionGroup kinds{{&opper, &oplev, &opage}};
    Label Label1{{.name = "Label1", .caption = "(requires earlier calculation on main form)"}};
    Label rangeLabel{{.name = "rangeLabel", .caption = "Performance or age (in years) range:"}};
    TextBox Text1{
        {.name = "Text1", .caption = "Minimum", .tip = "First column: a level in percent, above 0, or an age in years"},
        "60"};
    TextBox Text2{{.name = "Text2", .caption = "Interval", .tip = "From one column to the next, percent or years"},
                  "5"};
    TextBox Text3{{.name = "Text3", .caption = "Maximum", .tip = "Last column, from the other two"}, "100"};
    OptionButton Option1{{.name = "Option1", .caption = "Male", .tip = "Men's records and age table"}};
    OptionButton Option2{{.name = "Option2", .caption = "Female", .tip = "Women's records and age table"}};
    OptionGroup sexes{{&Option1, &Option2}};
    Button Command1{{.name = "Command1", .caption = "Calculate", .tip = "Build the table"}, {}, "perflevform"};
    Button Command2{{.name = "Command2", .caption = "Help", .tip = "What the tables show"}, {}, "helpform"};
    Button Command3{{.name = "Command3", .caption = "Close", .tip = "Close this form and calculate again"}};

    Form form{"pertabspec", "Performance table specifications"};
};

/// What the form asks for.
[[nodiscard]] TableSpecification specificationOf(const PertabspecForm& form);
