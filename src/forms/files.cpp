#include "forms/files.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
    /// What a file at that place may be used for: as the old one, or as any new file.
    mode_t permissionsOf(const std::filesystem::path& path)
    {
        struct stat old = {};
        if (stat(path.c_str(), &old) == 0)
            return old.st_mode & 07777;
        const mode_t mask = umask(0);
        umask(mask);
        return 0666 & ~mask;
    }

    std::string errorText(int error = errno)
    {
        return std::generic_category().message(error);
    }

    constexpr int quietly = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;   // what is no file must not keep anybody waiting
    constexpr const char* noFile = "It is no file";

    /// Writes bytes at a place. Returns whether all of them could be written.
    bool writeAt(int file, std::uint64_t offset, std::string_view bytes)
    {
        while (!bytes.empty())
        {
            const ssize_t written = pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(offset));
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
            offset += static_cast<std::uint64_t>(written);
        }
        return true;
    }

    bool writeAll(int file, std::string_view bytes, mode_t permissions)
    {
        while (!bytes.empty())
        {
            const ssize_t written = write(file, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return fchmod(file, permissions) == 0 && fsync(file) == 0;
    }
}

std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t limit)
{
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored))
        return {};
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return {};
    const std::uintmax_t size = std::filesystem::file_size(path, ignored);
    std::string bytes(ignored ? limit : static_cast<std::size_t>(std::min<std::uintmax_t>(size, limit)), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (file.bad())
        return {};
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

std::optional<std::string> whyUnread(const std::filesystem::path& path)
{
    const int file = ::open(path.c_str(), O_RDONLY | quietly);
    if (file < 0)
        return errorText();
    struct stat about = {};
    const bool known = fstat(file, &about) == 0;
    ::close(file);
    if (known && S_ISDIR(about.st_mode))
        return errorText(EISDIR);
    if (!known || !S_ISREG(about.st_mode))
        return noFile;
    return std::nullopt;
}

std::optional<std::string> replaceFile(const std::filesystem::path& path, std::string_view bytes)
{
    std::error_code ignored;
    const std::filesystem::path whole = std::filesystem::weakly_canonical(path, ignored);   // where a link leads
    const std::filesystem::path target = ignored ? path : whole;
    if (std::filesystem::exists(target, ignored) && access(target.c_str(), W_OK) != 0)
        return errorText();
    std::string beside = target.string() + ".XXXXXX";
    const int file = mkstemp(beside.data());
    if (file < 0)
        return errorText();
    std::optional<std::string> failure;
    if (!writeAll(file, bytes, permissionsOf(target)))
        failure = errorText();
    if (close(file) != 0 && !failure)
        failure = errorText();
    if (!failure && std::rename(beside.c_str(), target.c_str()) != 0)
        failure = errorText();
    if (failure)
        unlink(beside.c_str());
    return failure;
}

std::optional<std::string> HeldFile::open(const std::filesystem::path& path)
{
    close();
    place = path;
    file = openToWrite(path.c_str(), O_RDWR | O_CREAT | quietly);
    writable = file >= 0;
    const int refused = errno;
    if (file < 0 && (refused == EACCES || refused == EPERM || refused == EROFS))
        file = ::open(path.c_str(), O_RDONLY | quietly);
    if (file < 0)
        return errorText(refused);
    struct stat about = {};
    if (fstat(file, &about) == 0 && S_ISREG(about.st_mode))
        return std::nullopt;
    close();
    return noFile;
}

void HeldFile::close()
{
    if (file >= 0)
        ::close(file);
    file = -1;
    writable = false;
}

std::uint64_t HeldFile::size() const
{
    struct stat about = {};
    return file >= 0 && fstat(file, &about) == 0 ? static_cast<std::uint64_t>(about.st_size) : 0;
}

std::optional<std::string> HeldFile::read(std::uint64_t offset, std::size_t length) const
{
    std::string bytes(length, '\0');
    std::size_t have = 0;
    while (have < length)
    {
        const ssize_t got = pread(file, bytes.data() + have, length - have, static_cast<off_t>(offset + have));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        have += static_cast<std::size_t>(got);
    }
    bytes.resize(have);
    return bytes;
}

std::optional<std::string> HeldFile::write(std::uint64_t offset, std::string_view bytes)
{
    struct stat before = {};
    if (file < 0 || fstat(file, &before) != 0)
        return errorText(EBADF);
    if (!writable)
        return errorText(EACCES);
    struct stat there = {};
    if (stat(place.c_str(), &there) != 0 || there.st_dev != before.st_dev || there.st_ino != before.st_ino)
        return "the file has been removed or replaced since it was opened; open it again";   // else it would be lost
    const std::optional<std::string> old = read(offset, bytes.size());
    if (!old)
        return errorText();
    if (writeAt(file, offset, bytes) && fsync(file) == 0)
        return std::nullopt;
    const std::string failure = errorText();
    (void)writeAt(file, offset, *old);
    (void)!ftruncate(file, before.st_size);
    return failure;
}
