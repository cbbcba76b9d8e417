#include "forms/folders.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <system_error>

namespace
{
    namespace fs = std::filesystem;

    /// Whether a file system holds files of people, and not what the system makes up. Layers of containers are left out, and
    /// so is what programs mount for themselves; a disk that such a program reads is not.
    bool isForFiles(const std::string& place, const std::string& type)
    {
        if (type == "overlay")
            return place == "/";
        if (type.starts_with("fuse"))
            return type == "fuseblk";
        constexpr std::array<std::string_view, 23> others{
            "proc",     "sysfs",       "devtmpfs", "devpts",     "tmpfs",     "cgroup",   "cgroup2",  "pstore",
            "bpf",      "tracefs",     "debugfs",  "mqueue",     "hugetlbfs", "configfs", "ramfs",    "securityfs",
            "efivarfs", "binfmt_misc", "autofs",   "rpc_pipefs", "squashfs",  "nsfs",     "selinuxfs"};
        return std::find(others.begin(), others.end(), type) == others.end();
    }

    /// A path in which blanks and the like stand as "\040".
    std::string unescaped(const std::string& text)
    {
        std::string plain;
        for (std::size_t i = 0; i < text.size(); ++i)
        {
            const auto isOctal = [&text](std::size_t at) {
                return at < text.size() && text[at] >= '0' && text[at] <= '7';
            };
            if (text[i] == '\\' && isOctal(i + 1) && isOctal(i + 2) && isOctal(i + 3))
            {
                plain += static_cast<char>((text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 + (text[i + 3] - '0'));
                i += 3;
            }
            else
                plain += text[i];
        }
        return plain;
    }

    std::string lowerCase(std::string text)
    {
        std::transform(text.begin(), text.end(), text.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
        return text;
    }

    template <class Wanted>
    std::vector<std::string> namesIn(const fs::path& folder, Wanted wanted)
    {
        std::vector<std::string> names;
        std::error_code error;
        fs::directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
        for (; !error && entry != fs::directory_iterator() && names.size() < mostNamesListed; entry.increment(error))
            if (wanted(*entry))
                names.push_back(entry->path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
}

fs::path fromRoot(const fs::path& folder)
{
    std::error_code ignored;
    return (fs::current_path(ignored) / folder / "").lexically_normal().parent_path();
}

std::vector<std::string> placesOf(std::istream& mounts)
{
    std::vector<std::string> places;
    for (std::string line; std::getline(mounts, line);)
    {
        std::istringstream words(line);
        std::string device;
        std::string place;
        std::string type;
        if (words >> device >> place >> type && isForFiles(place, type))
            places.push_back(unescaped(place));
    }
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

std::vector<std::string> drives()
{
    std::ifstream mounts("/proc/self/mounts");
    std::vector<std::string> places = placesOf(mounts);
    const auto add = [&places](auto at, const std::string& place) {
        if (std::find(places.begin(), places.end(), place) == places.end())
            places.insert(at, place);
    };
    add(places.begin(), "/");
    if (const char* home = std::getenv("HOME"); home && *home == '/')
        add(places.end(), fromRoot(home).string());
    return places;
}

int driveOf(const fs::path& folder, const std::vector<std::string>& places)
{
    const std::string path = fromRoot(folder).string();
    int found = -1;
    for (std::size_t i = 0; i < places.size(); ++i)
    {
        const std::string& place = places[i];
        const bool within = path == place || path.starts_with(place.ends_with('/') ? place : place + '/');
        if (within && (found < 0 || place.size() > places[static_cast<std::size_t>(found)].size()))
            found = static_cast<int>(i);
    }
    return found;
}

std::vector<std::string> foldersIn(const fs::path& folder)
{
    std::vector<std::string> names = namesIn(folder, [](const fs::directory_entry& entry) {
        std::error_code ignored;
        return entry.is_directory(ignored);
    });
    std::stable_partition(names.begin(), names.end(), [](const std::string& name) { return !name.starts_with('.'); });
    return names;
}

std::vector<std::string> filesIn(const fs::path& folder, std::string_view part)
{
    return namesIn(folder, [wanted = lowerCase(std::string(part))](const fs::directory_entry& entry) {
        std::error_code ignored;
        return lowerCase(entry.path().filename().string()).find(wanted) != std::string::npos &&
               entry.is_regular_file(ignored);
    });
}

std::optional<std::string> whyNoFolder(const fs::path& folder)
{
    std::error_code error;
    const fs::directory_iterator entries(folder, error);
    if (error)
        return error.message();
    return std::nullopt;
}
