#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

/// An empty folder for one test, gone with everything in it when the test ends.
class ScratchFolder
{
public:
    ScratchFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "vantelos-test.XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr)
            throw std::runtime_error("no folder for a test can be made at " + name);
        path = name;
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    [[nodiscard]] std::size_t entryCount() const
    {
        using Entries = std::filesystem::directory_iterator;
        return static_cast<std::size_t>(std::distance(Entries(path), Entries()));
    }

    std::filesystem::path path;
};

inline void writeBytes(const std::filesystem::path& path, std::string_view bytes)
{
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush())
        throw std::runtime_error("a test can't write " + path.string());
}

/// The whole file. Throws std::runtime_error if it can't be read.
[[nodiscard]] inline std::string readBytes(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("a test can't read " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}
