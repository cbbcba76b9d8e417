#include "console/predict_command.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>
#include <system_error>

#include <CLI/CLI.hpp>

#include "console/prediction_text.h"
#include "console/roster.h"
#include "console/runner_entries.h"
#include "console/runner_prediction.h"
#include "console/words.h"

namespace
{
    int predictOne(const RunnerEntries& entries, const PredictOptions& options, std::ostream& out, std::ostream& errors)
    {
        const Prediction prediction = predictRunner(entries, options.limitSeconds);
        for (const Message& message : prediction.messages)
            errors << messageLine(message) << '\n';
        if (options.format == PredictFormat::csv)
            out << csvTable(prediction);
        else if (options.format == PredictFormat::json)
            out << jsonOf(entries, prediction);
        else
            for (const std::string& line : linesOf(prediction))
                out << line << '\n';
        if (!prediction.fault.empty())
            errors << prediction.fault << '\n';
        return isRefused(prediction) || !prediction.fault.empty() ? exitRefused : 0;
    }

    int predictMany(const RunnerEntries& entries, const PredictOptions& options, std::istream& in, std::ostream& out,
                    std::ostream& errors)
    {
        if (!entries.races.empty() || !options.from.empty() || options.format != PredictFormat::text)
        {
            errors << "--roster goes without --race, --from and --format.\n";
            return exitWrongUsage;
        }
        RosterRun run{.name = options.roster, .defaults = entries, .limitSeconds = options.limitSeconds};
        if (options.roster == "-")
            return predictRoster(in, run, out, errors);
        std::ifstream file(options.roster, std::ios::binary);
        std::error_code ignored;
        if (!file || std::filesystem::is_directory(options.roster, ignored))
        {
            errors << "The roster " << inQuotes(options.roster) << " can't be read.\n";
            return exitWrongUsage;
        }
        return predictRoster(file, run, out, errors);
    }

    void setFormat(PredictOptions& options, const std::string& text)
    {
        if (text == "text")
            options.format = PredictFormat::text;
        else if (text == "csv")
            options.format = PredictFormat::csv;
        else if (text == "json")
            options.format = PredictFormat::json;
        else
            throw CLI::ValidationError("--format", inQuotes(text) + " is neither text nor csv nor json");
    }
}

int predict(const PredictOptions& options, std::istream& in, std::ostream& out, std::ostream& errors)
{
    std::string wrong;
    const auto entries = entriesOf(options, wrong);
    if (!entries)
    {
        errors << wrong << '\n';
        return exitWrongUsage;
    }
    const int status = options.roster.empty() ? predictOne(*entries, options, out, errors)
                                              : predictMany(*entries, options, in, out, errors);
    return written(status, out, errors);
}

int predict(const PredictOptions& options, std::ostream& out, std::ostream& errors)
{
    std::istringstream nothing;
    return predict(options, nothing, out, errors);
}

void addPredict(CLI::App& app, int& status)
{
    const auto options = std::make_shared<PredictOptions>();
    CLI::App* command = app.add_subcommand("predict", "Predict times from races, for one runner or a whole roster");
    addRunnerOptions(*command, *options);
    command->add_option("--roster", options->roster, "Predict each runner of a CSV file; - is standard input")
        ->type_name("FILE");
    command
        ->add_option_function<std::string>(
            "--format", [options](const std::string& text) { setFormat(*options, text); },
            "text (the default), csv or json")
        ->type_name("FORMAT");
    command->footer(
        "Example: vantelos-console predict --race \"10 km 40:00\" --race \"half 1:29:30\" --age 40 --miles 30");
    command->callback([options, &status] { status = predict(*options, std::cin, std::cout, std::cerr); });
}
