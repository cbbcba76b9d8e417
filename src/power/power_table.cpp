#include "power/power_table.h"

#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"
#include "power/pace_and_weight_text.h"
#include "power/running_power.h"

namespace
{
    constexpr int rows = 28;
    constexpr double firstKilometerRow = -4.6667;   // four decimals on purpose: no pace is a whole second

    void printPowerRow(ModelState& state, bool kilometers, int i, TextPage& page)
    {
        const double f = kilometers ? kilometresPerMile : 1;
        const double k = kilometers ? joulesPerKcal / 1000 : 1;   // kJ a kcal
        const double weight = state.runner.weightKg;
        const double pace = kilometers ? 160 + 15 * (i + firstKilometerRow) : 160 + 20 * i;
        const double v = (metresPerMile / pace) / f;
        const double speed = ((v * 3.6) / kilometresPerMile) * f;   // miles or km per hour
        const double output = powerOutput(state, v, weight, 0, 1);
        const double gross = grossPower(state, v, weight, 0, 1);
        const double net = netPower(state, v, weight, 0, 1, 0);
        const double grossEnergy = ((k * 3600) / joulesPerKcal) * gross;   // kcal or kJ per hour
        const double netEnergy = ((k * 3600) / joulesPerKcal) * net;
        const double mets = quotient((3600 / joulesPerKcal) * gross, weight);

        print(page, "  ");
        print(page, paceText((metresPerMile / v) / f));
        print(page, formatNumber(speed, 5, 1));
        print(page, formatNumber(output, 8, 0));
        print(page, formatNumber(gross, 11, 0));
        print(page, formatNumber(net, 7, 0));
        print(page, formatNumber(grossEnergy, 9, 0));
        print(page, formatNumber(netEnergy, 7, 0));
        print(page, formatNumber(mets, 9, 1));
        print(page, formatNumber(quotient(grossEnergy, speed), 12, 0));
        print(page, formatNumber(quotient(netEnergy, speed), 9, 0));
        newLine(page);
    }
}

void printPowerTable(ModelState& state, bool kilometers, TextPage& page)
{
    state.activity = "printing the power table";
    clear(page);
    for (int line = 0; line < 5; ++line)
        newLine(page);
    for (int i = 1; i <= rows; ++i)
        printPowerRow(state, kilometers, i, page);
    newLine(page);
    print(page, "  Values for a");
    print(page, static_cast<double>(wholePounds(state.runner.weightKg)));
    print(page, "pound (");
    print(page, plainText(state.runner.weightKg));
    printLine(page, " kilogram) person.");
}
