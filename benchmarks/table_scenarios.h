#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "prediction/calculate.h"
#include "prediction/vantstart_form.h"
#include "scenarios.h"
#include "tables/perfgraph_form.h"
#include "tables/performance_table.h"
#include "weather/heathum_form.h"

/// One action of the weather and table forms that is timed, and whose calls of elementary functions are counted.
struct TableScenario
{
    std::string name;
    double targetMilliseconds = 0;
    std::function<void()> act;
};

/// A main form with two races, calculated, and the forms that build on it.
struct TabledRunner
{
    TabledRunner()
    {
        main.txtage.text = "40";
        main.HScroll1.value = 30;
        setRace(main.races[0], "40", "10", RaceUnit::kilometers);
        setRace(main.races[1], "195", "", RaceUnit::marathon);
        setChosen(main.Option9, true);
        setChosen(main.Option8, true);
        recalculate(main);
    }

    static void setRace(RaceControls& race, const char* minutes, const char* number, RaceUnit unit)
    {
        race.Check1.ticked = true;
        race.Text2.text = minutes;
        race.Text4.text = number;
        setChosen(unit == RaceUnit::marathon ? race.Option5 : race.Option3, true);
    }

    ModelState state;
    Outside outside;
    VantstartForm main{state, outside};
    PerfgraphForm perfgraph{main};
    HeathumForm heathum{state, outside};
};

/// The three kinds of tables, the graph by age over a short and a long distance, and the heat table.
[[nodiscard]] inline std::vector<TableScenario> tableActions()
{
    const auto table = [](const char* name, TableKind kind, const char* minimum) {
        const auto runner = std::make_shared<TabledRunner>();
        runner->state.flags.oplev = kind == TableKind::agesAtLevel ? 1 : 0;
        runner->state.flags.ageCompareForced = kind == TableKind::runnerByAge ? 1 : 0;
        return TableScenario{name, 10, [runner, kind, minimum] {
                                 CalculationInput input = entriesOf(runner->main);
                                 PerformanceTable built;
                                 Messages said;
                                 printPerformanceTable(runner->state, {kind, minimum, "5", "80"}, input, built, said);
                             }};
    };
    const auto graph = [](const char* name, int row) {
        const auto runner = std::make_shared<TabledRunner>();
        return TableScenario{name, 16, [runner, row] { drawAgeGraph(runner->perfgraph, row); }};
    };
    const auto runner = std::make_shared<TabledRunner>();
    runner->heathum.form.load();
    return {table("Performance table, levels", TableKind::levels, "60"),
            table("Performance table, ages at a level", TableKind::agesAtLevel, "25"),
            table("Performance table, runner by age", TableKind::runnerByAge, "25"),
            graph("Performance by age, 100 m", 1),
            graph("Performance by age, 5 km", 15),
            graph("Performance by age, marathon", 24),
            {"Heat table", 0.2, [runner] { calculateHeat(runner->heathum); }}};
}
