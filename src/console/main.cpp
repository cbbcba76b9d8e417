#include <exception>
#include <iostream>

#include <CLI/CLI.hpp>

#include "console/call_command.h"
#include "console/course_command.h"
#include "console/drive_command.h"
#include "console/effort_command.h"
#include "console/heat_command.h"
#include "console/levels_command.h"
#include "console/predict_command.h"
#include "console/races_command.h"
#include "console/report_command.h"

namespace
{
    constexpr int wrongUsage = 2;

    int runConsole(int argc, char** argv)
    {
        int status = 0;
        CLI::App app("Vantelos predicts a runner's times from races that the runner has run.", "vantelos-console");
        app.set_version_flag("--version", "Vantelos " VANTELOS_VERSION);
        app.require_subcommand(1);
        addPredict(app, status);
        addReports(app, status);
        addCall(app, status);
        addDrive(app, status);
        addEffort(app, status);
        addCourse(app, status);
        addHeat(app, status);
        addLevels(app, status);
        addRaces(app, status);
        try
        {
            app.parse(argc, argv);
        }
        catch (const CLI::ParseError& error)
        {
            return app.exit(error) == 0 ? 0 : wrongUsage;
        }
        return status;
    }
}

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    try
    {
        return runConsole(argc, argv);
    }
    catch (const std::exception& error)
    {
        std::cerr << "Vantelos has to stop: " << error.what() << '\n';
        return 1;
    }
}
