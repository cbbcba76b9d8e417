#pragma once

#include <filesystem>
#include <vector>

/// The scripts of tests/scripts, by name.
[[nodiscard]] std::vector<std::filesystem::path> scriptFiles();
