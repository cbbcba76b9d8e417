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
#include "console/runner_file.h"
#include "console/runner_prediction.h"
#include "console/words.h"

namespace
{
    constexpr int refused = 1;
    constexpr int wrongUsage = 2;

    /// The entries as typed, over those of the runner file if there is one.
    std::optional<RunnerEntries> entriesOf(const PredictOptions& options, std::string& wrong)
    {
        RunnerEntries typed;
        for (const auto& [key, text] : options.entries)
        {
            if (const auto said = setEntry(typed, key, text))
            {
                wrong = "--" + key + ": " + *said;
                return std::nullopt;
            }
        }
        if (const auto said = contradictionIn(typed))
        {
            wrong = *said;
            return std::nullopt;
        }
        if (options.from.empty())
            return typed;
        const auto file = readRunnerFile(options.from, wrong);
        if (!file)
            return std::nullopt;
        return overlaid(*file, typed);
    }

    int written(int status, std::ostream& out, std::ostream& errors)
    {
        out.flush();
        if (out)
            return status;
        errors << "The output can't be written.\n";
        return refused;
    }

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
        return isRefused(prediction) || !prediction.fault.empty() ? refused : 0;
    }

    int predictMany(const RunnerEntries& entries, const PredictOptions& options, std::istream& in, std::ostream& out,
                    std::ostream& errors)
    {
        if (!entries.races.empty() || !options.from.empty() || options.format != PredictFormat::text)
        {
            errors << "--roster goes without --race, --from and --format.\n";
            return wrongUsage;
        }
        RosterRun run{.name = options.roster, .defaults = entries, .limitSeconds = options.limitSeconds};
        if (options.roster == "-")
            return predictRoster(in, run, out, errors);
        std::ifstream file(options.roster, std::ios::binary);
        std::error_code ignored;
        if (!file || std::filesystem::is_directory(options.roster, ignored))
        {
            errors << "The roster " << inQuotes(options.roster) << " can't be read.\n";
            return wrongUsage;
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

    void setLimit(PredictOptions& options, const std::string& text)
    {
        const auto seconds = numberOf(text);
        if (!seconds || *seconds <= 0)
            throw CLI::ValidationError("--limit", inQuotes(text) + " is not a number above 0");
        options.limitSeconds = *seconds;
    }

    void addEntry(CLI::App& command, const EntryName& name, PredictOptions& options)
    {
        const std::string option = "--" + std::string(name.key);
        const std::string key(name.key);
        if (name.kind == EntryKind::yesNo)
        {
            command.add_flag_function(
                option,
                [&options, key](std::int64_t count) { options.entries.emplace_back(key, count > 0 ? "yes" : "no"); },
                name.help);
            return;
        }
        const auto take = [&options, key](const std::vector<std::string>& texts) {
            for (const std::string& text : texts)
                options.entries.emplace_back(key, text);
        };
        CLI::Option* added = command.add_option_function<std::vector<std::string>>(option, take, name.help);
        added->type_name(name.value)->allow_extra_args(false)->expected(1);
        if (name.repeated)
            added->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    }
}

int predict(const PredictOptions& options, std::istream& in, std::ostream& out, std::ostream& errors)
{
    std::string wrong;
    const auto entries = entriesOf(options, wrong);
    if (!entries)
    {
        errors << wrong << '\n';
        return wrongUsage;
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
    for (const EntryName& name : entryNames)
        addEntry(*command, name, *options);
    command->add_option("--from", options->from, "Read the runner from a JSON file; options override what it says")
        ->type_name("FILE");
    command->add_option("--roster", options->roster, "Predict each runner of a CSV file; - is standard input")
        ->type_name("FILE");
    command
        ->add_option_function<std::string>(
            "--format", [options](const std::string& text) { setFormat(*options, text); },
            "text (the default), csv or json")
        ->type_name("FORMAT");
    command
        ->add_option_function<std::string>(
            "--limit", [options](const std::string& text) { setLimit(*options, text); },
            "Seconds after which a search without an end is stopped; 10 unless given")
        ->type_name("SECONDS");
    command->footer(
        "Example: vantelos-console predict --race \"10 km 40:00\" --race \"half 1:29:30\" --age 40 --miles 30");
    command->callback([options, &status] { status = predict(*options, std::cin, std::cout, std::cerr); });
}
