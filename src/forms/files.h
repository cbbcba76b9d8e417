#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Small files that people keep for years.

/// The first `limit` bytes of a file, or nothing if it can't be read.
[[nodiscard]] std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t limit);

/// Why a file can't be read, in the system's words; nothing if it can.
[[nodiscard]] std::optional<std::string> whyUnread(const std::filesystem::path& path);

/// Writes a whole file beside its target and puts it in place, so that a power cut leaves the old file or the new one.
/// Returns nothing, or why it failed in the system's words; the old file then stands.
[[nodiscard]] std::optional<std::string> replaceFile(const std::filesystem::path& path, std::string_view bytes);

/// Opens a file to be written in place, as the system does, and makes it if `flags` say so. Every file that is held open
/// to be written comes from here; it stands alone in its source, so that a program that must not write can put another in
/// its place.
[[nodiscard]] int openToWrite(const char* path, int flags);

/// A file that stays open while it is read and written in place.
class HeldFile
{
public:
    HeldFile() = default;
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    ~HeldFile() { close(); }

    /// Closes what was open and opens a file, an empty one where there is none. One that may not be written is opened to be
    /// read. Returns nothing, or why it failed in the system's words; then none is open.
    [[nodiscard]] std::optional<std::string> open(const std::filesystem::path& path);

    void close();

    [[nodiscard]] bool isOpen() const { return file >= 0; }

    /// Length of the open file, bytes; 0 if there is none.
    [[nodiscard]] std::uint64_t size() const;

    /// Up to `length` bytes from `offset` on; fewer at the file's end. Nothing if they can't be read.
    [[nodiscard]] std::optional<std::string> read(std::uint64_t offset, std::size_t length) const;

    /// Writes bytes from `offset` on; a gap before them holds zeros. Returns nothing once they are on the disk, or why it
    /// failed; then the file is as it was. It fails where another file, or none, is at the path by now.
    [[nodiscard]] std::optional<std::string> write(std::uint64_t offset, std::string_view bytes);

private:
    int file = -1;
    std::filesystem::path place;
    bool writable = false;
};
