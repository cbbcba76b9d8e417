#include "tables/own_levels.h"

#include "model/arithmetic.h"
#include "model/record_curve.h"
#include "model/text.h"
#include "prediction/calculate.h"
#include "tables/table_distances.h"

namespace
{
    /// tableMode, for as long as it lives.
    class TableMode
    {
    public:
        explicit TableMode(Flags& modelFlags) : flags(modelFlags) { flags.tableMode = 1; }
        TableMode(const TableMode&) = delete;
        TableMode& operator=(const TableMode&) = delete;
        ~TableMode() { flags.tableMode = 0; }

    private:
        Flags& flags;
    };

    /// Brings a time nearer to a level of the state's age.
    void correct(ModelState& state, double& time, double distance, double level)
    {
        const char sex = state.runner.sex;
        const double record = recordTime(state, sex, RecordMode::record, distance, 1);
        time = quotient(time * performanceLevel(quotient(record, time), distance, sex), level);
    }
}

OwnLevels ownLevels(ModelState& state)
{
    const double time800 = state.results.time800;
    const double time5000 = state.results.time5000;
    state.activity = "rating the runner's times at 800 m and 5000 m";
    if (time800 == 0 || time5000 == 0)
        state.activity += "; enter a race on the main form and press Re-Calculate first";
    const double level800 = levelOf(state, 800, time800);
    return {level800, levelOf(state, 5000, time5000)};
}

double indexForLevel(double L, char sex)
{
    double index = 0;
    if (sex == 'f')
        index = power(-naturalLog(power(L, 1.8)) / 0.3625, 1 / 0.2);
    else if (L < 1)
        index = power(-naturalLog(power(L, 1.413)) / 0.3106, 1 / 0.24);
    if (index > 50)
        index = 50 + 50 * (index - 50) / index;
    return index;
}

void fillColumnAtAge(ModelState& state, const OwnLevels& levels, int corrections, int column, CalculationInput& input,
                     Messages& said)
{
    TableRun& table = state.table;
    const char sex = state.runner.sex;
    state.flags.tableMode = 0;
    state.activity = "finding the runner's times at 800 m and 5000 m at the age of " + plainText(state.runner.age);
    table.tableTime800 = recordTime(state, sex, RecordMode::timeOfLevel, 800, levels.level800);
    table.tableTime5000 = recordTime(state, sex, RecordMode::timeOfLevel, 5000, levels.level5000);
    for (int round = 1; round <= corrections; ++round)
    {
        correct(state, table.tableTime800, 800, levels.level800);
        correct(state, table.tableTime5000, 5000, levels.level5000);
    }
    setTableDistances(table);
    table.tableRow = column;
    const TableMode mode(state.flags);
    CalculationResults notShown;
    calculate(state, input, notShown, said);
}
