#pragma once

#include <string>

#include "console/drive.h"

/// What a script gives and how it ends.
struct ScriptRun
{
    std::string output;
    int status = 0;
};

/// Runs a script in a fresh folder, which is gone afterwards; its path stands in the output as FOLDER.
[[nodiscard]] ScriptRun runScript(const std::string& script, double limitSeconds = defaultLimitSeconds);
