#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>

#include "console/drive.h"
#include "forms/files.h"

// Bytes as a form script: whatever it says, it ends with status 0 or 2 and with whole lines of JSON.

/// In this program no file can be made, so that a script can't leave its settings anywhere: every file that is
/// replaced is first made beside its target by this function.
extern "C" int mkstemp(char* /*path*/)
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
