#include "running.h"

#include <filesystem>
#include <sstream>

#include "forms/on_leaving.h"
#include "support/scratch_folder.h"

ScriptRun runScript(const std::string& script, double limitSeconds)
{
    const ScratchFolder folder;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path);
    const OnLeaving goBack([&] { std::filesystem::current_path(before); });
    std::istringstream in(script);
    std::ostringstream out;
    const int status = drive(in, out, limitSeconds);
    return {out.str(), status};
}
