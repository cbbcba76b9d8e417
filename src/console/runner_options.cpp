#include "console/runner_options.h"

#include <algorithm>
#include <cstdint>
#include <ostream>

#include <CLI/CLI.hpp>

#include "console/runner_file.h"
#include "console/words.h"

namespace
{
    void setLimit(RunnerOptions& options, const std::string& text)
    {
        const auto seconds = numberOf(text);
        if (!seconds || *seconds <= 0)
            throw CLI::ValidationError("--limit", inQuotes(text) + " is not a number above 0");
        options.limitSeconds = *seconds;
    }

    void addEntry(CLI::App& command, const EntryName& name, RunnerOptions& options)
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

void addRunnerOptions(CLI::App& command, RunnerOptions& options)
{
    for (const EntryName& name : entryNames)
        addEntry(command, name, options);
    command.add_option("--from", options.from, "Read the runner from a JSON file; options override what it says")
        ->type_name("FILE");
    command
        .add_option_function<std::string>(
            "--limit", [&options](const std::string& text) { setLimit(options, text); },
            "Seconds after which a search without an end is stopped; 10 unless given")
        ->type_name("SECONDS");
}

std::optional<RunnerEntries> entriesOf(const RunnerOptions& options, std::string& wrong)
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

std::optional<std::string> uselessOption(const RunnerOptions& options, std::string_view command,
                                         std::initializer_list<std::string_view> keys)
{
    for (const auto& [key, text] : options.entries)
        if (std::find(keys.begin(), keys.end(), key) != keys.end())
            return "--" + key + ": " + std::string(command) + " has no use for it";
    return std::nullopt;
}

int written(int status, std::ostream& out, std::ostream& errors)
{
    out.flush();
    if (out)
        return status;
    errors << "The output can't be written.\n";
    return exitRefused;
}
