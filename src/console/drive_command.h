#pragma once

namespace CLI
{
    class App;
}

/// Adds the command `drive [FILE]`. Its exit status goes to `status`.
void addDrive(CLI::App& app, int& status);
