#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>

#include "console/drive.h"
#include "forms/files.h"
#include "support/scratch_folder.h"

// Bytes as a form script: whatever it says, it ends with status 0 or 2 and with whole lines of JSON.

// In this program no file can be made or written, so that a script can leave neither settings nor races anywhere. Every
// file that is replaced is first made beside its target by the first function, and every file that is written in place is
// opened by the second.

extern "C" int mkstemp(char* /*path*/)
{
    errno = EROFS;
    return -1;
}

int openToWrite(const char* /*path*/, int /*flags*/)
{
    errno = EROFS;
    return -1;
}

namespace
{
    constexpr double limitSeconds = 0.05;   // many operations fit into one input

    void check(bool good, const char* what)
    {
        if (good)
            return;
        std::cerr << what << '\n';
        std::abort();
    }
}

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    check(replaceFile("vantini.txt", "").has_value(), "scripts could write files");
    const ScratchFolder folder;
    writeBytes(folder.path / "races.vtc", "races");
    HeldFile file;
    check(file.open(folder.path / "none.vtc").has_value(), "scripts could make race files");
    check(!file.open(folder.path / "races.vtc").has_value(), "scripts could not read race files");
    check(file.write(0, "x").has_value() && readBytes(folder.path / "races.vtc") == "races",
          "scripts could write race files");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::istringstream script(std::string(data, data + size));
    std::ostringstream out;
    const int status = drive(script, out, limitSeconds);
    check(status == 0 || status == 2, "another status");
    const std::string lines = out.str();
    check(lines.empty() || (lines.front() == '{' && lines.back() == '\n'), "not whole lines of JSON");
    check((status == 2) == (lines.find("{\"error\":\"line ") != std::string::npos), "status and error do not agree");
    return 0;
}
