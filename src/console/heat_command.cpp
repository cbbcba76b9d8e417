#include "console/heat_command.h"

#include <array>
#include <iostream>
#include <memory>
#include <optional>

#include <CLI/CLI.hpp>

#include "console/json_text.h"
#include "console/prediction_text.h"
#include "console/runner_prediction.h"
#include "console/words.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "program/program.h"
#include "weather/heat_table.h"
#include "weather/humidity.h"

namespace
{
    using Json = nlohmann::ordered_json;

    constexpr double standardDistance = 10000;   // m, of the free row

    struct Weather
    {
        double dewPointK = 0, wetBulbK = 0;
        double heatIndexF = 0, humidexC = 0;
    };

    /// "85F" or "29.4C" in kelvin.
    std::optional<double> readTemperature(const std::string& text, std::string& wrong)
    {
        const std::string_view whole = trimmed(text);
        const std::string unit = whole.empty() ? "" : lowerCase(whole.substr(whole.size() - 1));
        const auto degrees = unit == "f" || unit == "c" ? numberOf(whole.substr(0, whole.size() - 1)) : std::nullopt;
        if (!degrees)
        {
            wrong = "--temperature: " + inQuotes(text) + " is not a temperature such as 85F or 29C";
            return std::nullopt;
        }
        const double kelvin = (unit == "f" ? (*degrees - 32) / 1.8 : *degrees) + freezingPointK;
        if (fahrenheitOf(kelvin) < -20.000001 || fahrenheitOf(kelvin) > 130.000001)
        {
            wrong = "--temperature: " + inQuotes(text) + " is not between -20F and 130F";
            return std::nullopt;
        }
        return kelvin;
    }

    std::optional<HeatRace> raceOf(const RaceEntry& entry, std::string& wrong)
    {
        const auto distance = readDistance(entry.text.substr(0, entry.text.rfind(' ')), wrong);
        if (!distance)
            return std::nullopt;
        const RaceRow& row = entry.row;
        return HeatRace{true, 3600 * val(row.hours) + 60 * val(row.minutes) + val(row.seconds), distance->distance};
    }

    /// What the entries say of races and runner; nothing for wrong usage.
    std::optional<HeatEntries> heatEntriesOf(const RunnerEntries& entries, std::string& wrong)
    {
        if (entries.races.size() > 2)
        {
            wrong = "heat takes one or two races.";
            return std::nullopt;
        }
        HeatEntries heat;
        for (std::size_t i = 0; i < entries.races.size(); ++i)
        {
            const auto race = raceOf(entries.races[i], wrong);
            if (!race)
                return std::nullopt;
            (i == 0 ? heat.race1 : heat.race2) = *race;
        }
        if (entries.races.size() < 2)
            heat.race2 = {false, 0, heat.race1.metres};
        heat.dispred = entries.distances.empty() ? standardDistance : entries.distances.front().distance.distance;
        heat.wtkg = plainText(entries.kgWeight.value_or(standardWeightKg));
        heat.htcm = plainText(entries.cmHeight.value_or(standardHeightCm));
        heat.agetx = entries.age.value_or("");
        heat.weekmi = inputOf(entries).weeklyMiles;
        heat.fop = entries.sex == 'f';
        return heat;
    }

    Weather weatherOf(ModelState& state, double humidity, double sun)
    {
        state.activity = "working out the indices of the weather";
        const double T = state.heat.airTempK;
        state.heat.wbgtC = shownWbgt(sun, T, humidity);
        return {dewPoint(T, humidity), wetBulb(T, humidity), heatIndex(T, humidity), humidexOf(T, humidity)};
    }

    std::string padded(std::string text, std::size_t width)
    {
        text.resize(std::max(text.size(), width), ' ');
        return text;
    }

    std::string indexLine(const char* name, double celsius)
    {
        return padded(name, 34) + formatNumber(celsius * 1.8 + 32, 6, 1) + " F" + formatNumber(celsius, 7, 1) + " C\n";
    }

    std::string textOf(const ModelState& state, const Weather& weather)
    {
        return indexLine("Temperature", celsiusOf(state.heat.airTempK)) +
               indexLine("Dew point", celsiusOf(weather.dewPointK)) +
               indexLine("Wet bulb", celsiusOf(weather.wetBulbK)) +
               indexLine("Wet bulb globe, approximate", state.heat.wbgtC) + padded("U.S. heat index", 34) +
               formatNumber(weather.heatIndexF, 6, 1) + " F\n" + padded("Canadian humidex", 34) +
               formatNumber(weather.humidexC, 15, 1) + " C\n";
    }

    std::string textOf(const HeatTable& table, double dispred)
    {
        std::string lines = "\n             In ideal weather  In this weather   Percent longer\n";
        for (std::size_t row = 0; row < heatRows; ++row)
        {
            const std::string name = row == 0 ? plainText(dispred) + " m" : heatRowNames[row];
            lines += padded(name, 14) + table[row].idealt + "        " + table[row].givent + "       " +
                     table[row].pdec + '\n';
        }
        return lines;
    }

    Json jsonOf(const ModelState& state, const Weather& weather)
    {
        return {{"airTempC", celsiusOf(state.heat.airTempK)}, {"dewPointC", celsiusOf(weather.dewPointK)},
                {"wetBulbC", celsiusOf(weather.wetBulbK)},    {"wbgtC", state.heat.wbgtC},
                {"heatIndexF", weather.heatIndexF},           {"humidexC", weather.humidexC}};
    }

    Json jsonOf(const HeatTable& table, double dispred)
    {
        Json rows = Json::array();
        for (std::size_t row = 0; row < heatRows; ++row)
            rows.push_back({{"distance", row == 0 ? dispred : heatDistances[row]},
                            {"ideal", table[row].ideal},
                            {"decrement", table[row].decrement},
                            {"given", table[row].given}});
        return rows;
    }

    /// Prints indices and, if there is a race, the table. Returns the exit status.
    int tell(ModelState& state, const HeatOptions& options, const HeatEntries& heat, bool races, std::ostream& out,
             std::ostream& errors)
    {
        const Weather weather = weatherOf(state, options.humidity, options.sun);
        HeatTable table;
        Messages said;
        state.runner.sex = heat.fop ? 'f' : 'm';
        state.heat.heatFatigueCoef = heatFatigueCoefOf(heat.weekmi, heat.fop);
        if (races)
            calculateHeatTable(state, heat, table, said);
        for (const Message& message : said)
            errors << messageLine(message) << '\n';
        if (!said.empty())
            return exitRefused;
        if (options.json)
        {
            Json json = jsonOf(state, weather);
            if (races)
                json["rows"] = jsonOf(table, heat.dispred);
            out << jsonText(json) << '\n';
        }
        else
            out << textOf(state, weather) << (races ? textOf(table, heat.dispred) : "");
        return written(0, out, errors);
    }
}

int tellHeat(const HeatOptions& options, std::ostream& out, std::ostream& errors)
{
    std::string wrong;
    if (const auto useless =
            uselessOption(options, "heat", {"best-two", "english", "all-distances", "level", "age-compare"}))
    {
        errors << *useless << '\n';
        return exitWrongUsage;
    }
    const auto kelvin = readTemperature(options.temperature, wrong);
    const auto entries = kelvin ? entriesOf(options, wrong) : std::nullopt;
    const auto heat = entries ? heatEntriesOf(*entries, wrong) : std::nullopt;
    if (!heat)
    {
        errors << wrong << '\n';
        return exitWrongUsage;
    }
    ModelState state;
    state.heat.airTempK = *kelvin;
    try
    {
        return tell(state, options, *heat, !entries->races.empty(), out, errors);
    }
    catch (const ArithmeticFault& fault)
    {
        errors << faultText(fault, state.activity) << '\n';
        return exitRefused;
    }
}

void addHeat(CLI::App& app, int& status)
{
    const auto options = std::make_shared<HeatOptions>();
    CLI::App* command =
        app.add_subcommand("heat", "Tell what temperature, humidity and sunshine do to a runner's times");
    command->add_option("--temperature", options->temperature, "Air temperature, such as 85F or 29C")
        ->required()
        ->type_name("TEMPERATURE");
    command->add_option("--humidity", options->humidity, "Relative humidity in percent, 0 to 100")
        ->required()
        ->check(CLI::Range(0.0, 100.0))
        ->type_name("PERCENT");
    command->add_option("--sun", options->sun, "Sunshine, from 0 at night to 10 under a high, clear sun")
        ->check(CLI::Range(0.0, 10.0))
        ->type_name("SCALE")
        ->capture_default_str();
    command->add_flag("--json", options->json, "Print one JSON object, times in s");
    addRunnerOptions(*command, *options);
    command->footer("Each race was run in near-ideal weather; heat takes one or two, or none for the weather alone.\n"
                    "Example: vantelos-console heat --temperature 85F --humidity 65 --race \"10 km 40:00\" --age 40");
    command->callback([options, &status] { status = tellHeat(*options, std::cout, std::cerr); });
}
