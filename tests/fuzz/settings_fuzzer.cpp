#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "program/program.h"

// Bytes as a settings file: a start with them must end, and what is then saved must be read back as the same.

namespace
{
    std::vector<std::string> linesOf(const std::string& text)
    {
        std::vector<std::string> lines;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);)
            lines.push_back(line);
        return lines;
    }

    Dialogs silentDialogs()
    {
        Dialogs dialogs;
        dialogs.message = [](const Message&) {};
        dialogs.ask = [](const Message&) { return false; };
        dialogs.beep = [] {};
        dialogs.fault = [](const FaultReport&) {};
        return dialogs;
    }

    void check(bool good, const std::string& what)
    {
        if (good)
            return;
        std::cerr << what << '\n';
        std::abort();
    }

    void expectSameSettings(const std::string& saved, const std::string& again)
    {
        const std::vector<std::string> lines = linesOf(saved);
        const std::vector<std::string> linesAgain = linesOf(again);
        check(lines.size() == static_cast<std::size_t>(settingsFieldCount), "a field was written over several lines");
        check(linesAgain.size() == lines.size(), "a field was lost");
        constexpr std::size_t maxHr = 66;
        constexpr std::size_t restHr = 67;   // a field that shows a number holds 15 digits of it
        for (std::size_t i = 0; i < lines.size(); ++i)
            check(lines[i] == linesAgain[i] || i == maxHr || i == restHr,
                  lines[i] + " was read back as " + linesAgain[i]);
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Program program(silentDialogs(), {}, "");
    int asked = 0;
    program.state.goOn = [&asked] { return ++asked < 5; };
    enter(program, "vantstart", false,
          [&] { load(*program.vantstart, program.stored, std::string(data, data + size)); });
    const std::string saved = settingsOf(*program.vantstart, program.stored);

    Program other(silentDialogs(), {}, "");
    readSettings(*other.vantstart, other.stored, saved);
    expectSameSettings(saved, settingsOf(*other.vantstart, other.stored));
    return 0;
}
