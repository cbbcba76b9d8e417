#include "running.h"

#include <filesystem>
#include <sstream>

#include "forms/on_leaving.h"
#include "support/scratch_folder.h"

namespace
{
    /// The output with the folder's path, which no two runs share, as FOLDER.
    std::string withoutPath(std::string output, const std::string& path)
    {
        for (std::size_t at = output.find(path); at != std::string::npos; at = output.find(path, at))
            output.replace(at, path.size(), "FOLDER");
        return output;
    }
}

ScriptRun runScript(const std::string& script, double limitSeconds)
{
    const ScratchFolder folder;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path);
    const OnLeaving goBack([&] { std::filesystem::current_path(before); });
    std::istringstream in(script);
    std::ostringstream out;
    const int status = drive(in, out, limitSeconds);
    return {withoutPath(out.str(), folder.path.string()), status};
}
