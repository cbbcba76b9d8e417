#pragma once

#ifdef VANTELOS_CONSOLE

#include <cstdlib>
#include <string>

#include <sys/wait.h>

#include "support/scratch_folder.h"

/// How vantelos-console ends and what it prints.
struct ConsoleRun
{
    int status = -1;
    std::string out, errors;
};

/// Runs the program itself, in the shell's words.
[[nodiscard]] inline ConsoleRun console(const std::string& arguments)
{
    const ScratchFolder folder;
    const std::string command = "'" VANTELOS_CONSOLE "' " + arguments + " >'" + (folder.path / "out").string() +
                                "' 2>'" + (folder.path / "errors").string() + "' </dev/null";
    const int ended = std::system(command.c_str());
    return {WEXITSTATUS(ended), readBytes(folder.path / "out"), readBytes(folder.path / "errors")};
}

#endif
