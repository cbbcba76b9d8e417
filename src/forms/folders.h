#pragma once

#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What the lists of drives, folders and files show. Names are in the order of their bytes.

inline constexpr std::size_t mostNamesListed = 10000;

/// A folder as it is named from the root, or as it is where the current one is gone.
[[nodiscard]] std::filesystem::path fromRoot(const std::filesystem::path& folder);

/// The places where a list of mounts, as the kernel writes it, has file systems that a person may keep files on, by name.
/// None of them is looked into: one whose server is gone would not answer.
[[nodiscard]] std::vector<std::string> placesOf(std::istream& mounts);

/// The root, where file systems are mounted that a person may keep files on, and the home folder.
[[nodiscard]] std::vector<std::string> drives();

/// The one of some places that a folder lies in: the longest; -1 for none.
[[nodiscard]] int driveOf(const std::filesystem::path& folder, const std::vector<std::string>& places);

/// Names of the folders in a folder, at most `mostNamesListed`; those that begin with "." stand behind the others.
[[nodiscard]] std::vector<std::string> foldersIn(const std::filesystem::path& folder);

/// Names of the files in a folder that hold a text, capitals or not, at most `mostNamesListed`.
[[nodiscard]] std::vector<std::string> filesIn(const std::filesystem::path& folder, std::string_view part);

/// Why a folder can't be entered, in the system's words; nothing if it can.
[[nodiscard]] std::optional<std::string> whyNoFolder(const std::filesystem::path& folder);
