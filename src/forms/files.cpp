#include "forms/files.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
    constexpr mode_t readableByAll = 0644;

    std::string lastError()
    {
        return std::generic_category().message(errno);
    }

    bool writeAll(int file, std::string_view bytes)
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
        return fchmod(file, readableByAll) == 0 && fsync(file) == 0;
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
    std::string bytes(limit, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(limit));
    if (file.bad())
        return {};
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

std::optional<std::string> replaceFile(const std::filesystem::path& path, std::string_view bytes)
{
    std::string beside = path.string() + ".XXXXXX";
    const int file = mkstemp(beside.data());
    if (file < 0)
        return lastError();
    std::optional<std::string> failure;
    if (!writeAll(file, bytes))
        failure = lastError();
    if (close(file) != 0 && !failure)
        failure = lastError();
    if (!failure && std::rename(beside.c_str(), path.c_str()) != 0)
        failure = lastError();
    if (failure)
        unlink(beside.c_str());
    return failure;
}
