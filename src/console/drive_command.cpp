#include "console/drive_command.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "console/drive.h"

namespace
{
    struct DriveOptions
    {
        std::string file;
        double limit = defaultLimitSeconds;
    };

    int runDrive(const DriveOptions& options)
    {
        if (options.file.empty() || options.file == "-")
            return drive(std::cin, std::cout, options.limit);
        std::ifstream script(options.file);
        if (!script || std::filesystem::is_directory(options.file))
        {
            std::cerr << "The script " << options.file << " can't be read.\n";
            return 2;
        }
        return drive(script, std::cout, options.limit);
    }
}

void addDrive(CLI::App& app, int& status)
{
    const auto options = std::make_shared<DriveOptions>();
    CLI::App* command = app.add_subcommand("drive", "Run a script of form operations, one a line");
    command->add_option("FILE", options->file, "The script; standard input if there is none, or for -");
    command->add_option("--limit", options->limit, "Seconds that one operation may take in a search without an end")
        ->check(CLI::Range(0.001, 1e6))
        ->capture_default_str();
    command->callback([options, &status] { status = runDrive(*options); });
}
