#include "console/call_command.h"

#include <iostream>
#include <memory>
#include <optional>

#include <CLI/CLI.hpp>

#include "console/json_text.h"
#include "console/pure_functions.h"
#include "console/runner_file.h"
#include "console/runner_prediction.h"
#include "model/arithmetic.h"
#include "program/program.h"

namespace
{
    constexpr int refused = 1;
    constexpr int wrongUsage = 2;

    /// The state that a runner's races lead to. Returns the exit status, 0 if it stands.
    int fitRunner(const CallOptions& options, ModelState& state, std::ostream& errors)
    {
        std::string wrong;
        const std::optional<RunnerEntries> entries = readRunnerFile(options.runner, wrong);
        if (!entries)
        {
            errors << wrong << '\n';
            return wrongUsage;
        }
        const Prediction prediction = predictRunner(*entries, options.limitSeconds);
        for (const Message& message : prediction.messages)
            errors << messageLine(message) << '\n';
        if (!prediction.fault.empty())
            errors << prediction.fault << '\n';
        if (!prediction.fault.empty() || isRefused(prediction))
            return refused;
        state = prediction.runs.front().state;
        return 0;
    }

    std::string functionList()
    {
        std::string list = "Functions:\n";
        for (const PureFunction& function : pureFunctions())
            list += "  " + std::string(function.name) + " " + std::string(function.arguments) + "\n";
        return list;
    }
}

int callByName(const CallOptions& options, std::ostream& out, std::ostream& errors)
{
    ModelState state;
    if (!options.runner.empty())
        if (const int status = fitRunner(options, state, errors); status != 0)
            return status;
    try
    {
        const nlohmann::ordered_json value = callFunction(state, options.name, options.arguments);
        out << jsonText({{"call", options.name}, {"value", value}}) << '\n';
        return 0;
    }
    catch (const CallMistake& mistake)
    {
        errors << "Not called: " << mistake.what() << ".\n";
        return wrongUsage;
    }
    catch (const ArithmeticFault& fault)
    {
        errors << faultText(fault, "calling " + options.name) << '\n';
        return refused;
    }
}

void addCall(CLI::App& app, int& status)
{
    const auto options = std::make_shared<CallOptions>();
    CLI::App* command = app.add_subcommand("call", "Call one function of the model by its name");
    command->add_option("NAME", options->name, "The function")->required();
    command->add_option("ARGS", options->arguments, "Its arguments, numbers or words");
    command->add_option("--runner", options->runner, "Runner file whose fitted curve the function reads")
        ->type_name("FILE");
    command->add_option("--limit", options->limitSeconds, "Seconds that the fit of the curve may take")
        ->check(CLI::Range(0.001, 1e6))
        ->capture_default_str();
    command->footer(functionList());
    command->callback([options, &status] { status = callByName(*options, std::cout, std::cerr); });
}
