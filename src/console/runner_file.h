#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "console/runner_entries.h"

// A runner in a JSON file: one object whose keys are those of `entryNames`, as in
// {"races": ["10 km 40:00"], "age": 40, "miles": 30}.

/// A runner from the bytes of a runner file: at most 1 MiB, nested at most three deep.
///   wrong  gets what is wrong with the bytes, with the key if it lies in one
/// Returns nothing if anything is wrong.
[[nodiscard]] std::optional<RunnerEntries> runnerOfJson(std::string_view bytes, std::string& wrong);

/// The same from a file; `wrong` then begins with the file's name.
[[nodiscard]] std::optional<RunnerEntries> readRunnerFile(const std::filesystem::path& path, std::string& wrong);
