#include "console/report_command.h"

#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "console/prediction_text.h"
#include "console/words.h"

namespace
{
    void setFormat(ReportOptions& options, const std::string& text)
    {
        if (text != "text" && text != "json")
            throw CLI::ValidationError("--format", inQuotes(text) + " is neither text nor json");
        options.json = text == "json";
    }

    void addReport(CLI::App& app, int& status, ReportKind kind, const char* name, const char* help)
    {
        const auto options = std::make_shared<ReportOptions>();
        CLI::App* command = app.add_subcommand(name, help);
        addRunnerOptions(*command, *options);
        command
            ->add_option_function<std::string>(
                "--format", [options](const std::string& text) { setFormat(*options, text); },
                "text (the default) or json")
            ->type_name("FORMAT");
        command->footer("Example: vantelos-console " + std::string(name) +
                        " --race \"10 km 40:00\" --age 40 --miles 30 --max-hr 185 --rest-hr 50");
        command->callback([options, kind, &status] { status = report(*options, kind, std::cout, std::cerr); });
    }
}

int report(const ReportOptions& options, ReportKind kind, std::ostream& out, std::ostream& errors)
{
    std::string wrong;
    const auto entries = entriesOf(options, wrong);
    if (!entries)
    {
        errors << wrong << '\n';
        return exitWrongUsage;
    }
    const RunnerReport told = reportOn(*entries, kind, options.limitSeconds);
    for (const Message& message : told.prediction.messages)
        errors << messageLine(message) << '\n';
    if (options.json)
        out << jsonOf(*entries, told);
    else
        for (const std::string& line : told.lines)
            out << line << '\n';
    if (!told.fault.empty())
        errors << told.fault << '\n';
    return written(isRefused(told.prediction) || !told.fault.empty() ? exitRefused : 0, out, errors);
}

void addReports(CLI::App& app, int& status)
{
    addReport(app, status, ReportKind::full, "report", "Print the full report on one runner");
    addReport(app, status, ReportKind::analysis, "analysis",
              "Print one runner's training paces, heart rates and best distances");
}
