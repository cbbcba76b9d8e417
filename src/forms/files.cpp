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

    std::string lastError()
    {
        return std::generic_category().message(errno);
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

std::optional<std::string> replaceFile(const std::filesystem::path& path, std::string_view bytes)
{
    std::error_code ignored;
    const std::filesystem::path whole = std::filesystem::weakly_canonical(path, ignored);   // where a link leads
    const std::filesystem::path target = ignored ? path : whole;
    if (std::filesystem::exists(target, ignored) && access(target.c_str(), W_OK) != 0)
        return lastError();
    std::string beside = target.string() + ".XXXXXX";
    const int file = mkstemp(beside.data());
    if (file < 0)
        return lastError();
    std::optional<std::string> failure;
    if (!writeAll(file, bytes, permissionsOf(target)))
        failure = lastError();
    if (close(file) != 0 && !failure)
        failure = lastError();
    if (!failure && std::rename(beside.c_str(), target.c_str()) != 0)
        failure = lastError();
    if (failure)
        unlink(beside.c_str());
    return failure;
}
