#include "console/levels_command.h"

#include <array>
#include <iostream>
#include <memory>
#include <string_view>
#include <utility>

#include <CLI/CLI.hpp>

#include "console/json_text.h"
#include "console/prediction_text.h"
#include "console/runner_prediction.h"
#include "console/time_limit.h"
#include "console/words.h"
#include "model/arithmetic.h"
#include "program/program.h"
#include "tables/table_distances.h"

namespace
{
    using Json = nlohmann::ordered_json;

    constexpr std::array<std::pair<std::string_view, TableKind>, 3> kinds{
        {{"levels", TableKind::levels}, {"ages", TableKind::agesAtLevel}, {"runner", TableKind::runnerByAge}}};

    void setKind(LevelsOptions& options, const std::string& text)
    {
        for (const auto& [word, kind] : kinds)
            if (word == text)
            {
                options.kind = kind;
                return;
            }
        throw CLI::ValidationError("--kind", inQuotes(text) + " is neither levels, ages nor runner");
    }

    void setNumber(std::string& number, const char* option, const std::string& text)
    {
        if (!numberOf(text))
            throw CLI::ValidationError(option, inQuotes(text) + " is not a number");
        number = text;
    }

    TableSpecification specificationOf(const LevelsOptions& options)
    {
        const char* const first = options.kind == TableKind::levels ? "60" : "25";
        return {options.kind, options.minimum.empty() ? first : options.minimum, options.interval, options.lev};
    }

    /// The state and the entries that a table starts from.
    Prediction preparedFor(const RunnerEntries& entries, double limitSeconds)
    {
        RunnerEntries oneTable = entries;
        oneTable.allDistances.reset();
        oneTable.distances.clear();
        if (!entries.races.empty())
            return predictRunner(oneTable, limitSeconds);
        Prediction prediction;
        PredictionRun& run = prediction.runs.emplace_back();
        run.input = inputOf(oneTable);
        try
        {
            describeRunner(run.state, oneTable);
        }
        catch (const ArithmeticFault& fault)
        {
            prediction.fault = faultText(fault, "reading the runner");
        }
        return prediction;
    }

    Json jsonOf(const PerformanceTable& table)
    {
        Json columns = Json::array();
        for (const double q : table.fractions)
            columns.push_back(100 * q);
        Json rows = Json::array();
        for (int row = 1; row <= tableDistances; ++row)
        {
            Json times = Json::array();
            for (const auto& column : table.times)
                times.push_back(column[row]);
            rows.push_back({{"label", std::string(trimmed(tableLabels[row].label))},
                            {"distance", tableLabels[row].metres},
                            {"times", times}});
        }
        return {{"title", table.title}, {"columns", columns}, {"rows", rows}};
    }

    void printTable(const LevelsOptions& options, const PerformanceTable& table, std::ostream& out)
    {
        if (options.json)
        {
            out << jsonText(jsonOf(table)) << '\n';
            return;
        }
        out << table.title << "\n\n";
        for (const std::string& line : table.page.lines)
            out << line << '\n';
    }

    /// Builds and prints the table. Returns the exit status.
    int tell(const LevelsOptions& options, PredictionRun& run, std::ostream& out, std::ostream& errors)
    {
        ModelState& state = run.state;
        const TableSpecification asked = specificationOf(options);
        const TimeLimit limit(options.limitSeconds);
        state.goOn = [&limit] { return !limit.reached(); };
        state.runner.sex = run.input.sex == SexChoice::female ? 'f' : 'm';
        state.flags.oplev = asked.kind == TableKind::agesAtLevel ? 1 : 0;
        state.flags.ageCompareForced = asked.kind == TableKind::runnerByAge ? 1 : 0;
        PerformanceTable table;
        Messages said;
        std::string fault;
        try
        {
            if (!isTableRefused(state, asked.kind, said))
                printPerformanceTable(state, asked, run.input, table, said);
        }
        catch (const ArithmeticFault& stopped)
        {
            fault = faultText(stopped, state.activity);
        }
        for (const Message& message : said)
            errors << messageLine(message) << '\n';
        const bool whole = fault.empty() && !table.title.empty();
        if (whole || (!options.json && !table.title.empty()))
            printTable(options, table, out);
        if (!fault.empty())
            errors << fault << '\n';
        return written(whole ? 0 : exitRefused, out, errors);
    }

    void addNumber(CLI::App& command, const char* option, std::string& number, const char* help, const char* type)
    {
        command
            .add_option_function<std::string>(
                option, [&number, option](const std::string& text) { setNumber(number, option, text); }, help)
            ->type_name(type);
    }
}

int tellLevels(const LevelsOptions& options, std::ostream& out, std::ostream& errors)
{
    std::string wrong;
    if (const auto useless = uselessOption(options, "levels", {"english", "all-distances", "level", "distance"}))
    {
        errors << *useless << '\n';
        return exitWrongUsage;
    }
    const auto entries = entriesOf(options, wrong);
    if (!entries)
    {
        errors << wrong << '\n';
        return exitWrongUsage;
    }
    Prediction prediction = preparedFor(*entries, options.limitSeconds);
    for (const Message& message : prediction.messages)
        errors << messageLine(message) << '\n';
    if (!prediction.fault.empty())
    {
        errors << prediction.fault << '\n';
        return exitRefused;
    }
    if (!entries->races.empty() && isRefused(prediction))
        return exitRefused;
    return tell(options, prediction.runs.front(), out, errors);
}

void addLevels(CLI::App& app, int& status)
{
    const auto options = std::make_shared<LevelsOptions>();
    CLI::App* command = app.add_subcommand("levels", "Print a table of times over 24 distances by level or by age");
    command
        ->add_option_function<std::string>(
            "--kind", [options](const std::string& text) { setKind(*options, text); },
            "levels (the default), ages at one level, or runner: these races at other ages")
        ->type_name("KIND");
    addNumber(*command, "--minimum", options->minimum,
              "First column, a level in percent or an age; 60 or, for ages, 25 unless given", "NUMBER");
    addNumber(*command, "--interval", options->interval, "From one column to the next; 5 unless given", "NUMBER");
    addNumber(*command, "--at", options->lev, "Level of the ages in percent; 100 unless given", "PERCENT");
    command->add_flag("--json", options->json, "Print one JSON object, times in s");
    addRunnerOptions(*command, *options);
    command->footer("Example: vantelos-console levels --kind runner --race \"10 km 40:00\" --age 40 --miles 30");
    command->callback([options, &status] { status = tellLevels(*options, std::cout, std::cerr); });
}
