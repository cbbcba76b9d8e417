#include "script_files.h"

#include <algorithm>

std::vector<std::filesystem::path> scriptFiles()
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(VANTELOS_SOURCE_DIR "/tests/scripts"))
        if (entry.path().extension() == ".drive")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}
