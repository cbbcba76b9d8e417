#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Small files that people keep for years.

/// The first `limit` bytes of a file, or nothing if it can't be read.
[[nodiscard]] std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t limit);

/// Writes a whole file beside its target and puts it in place, so that a power cut leaves the old file or the new one.
/// Returns nothing, or why it failed in the system's words; the old file then stands.
[[nodiscard]] std::optional<std::string> replaceFile(const std::filesystem::path& path, std::string_view bytes);
