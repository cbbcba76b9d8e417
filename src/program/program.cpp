#include "program/program.h"

#include <utility>

#include "forms/files.h"

namespace
{
    constexpr const char* mainForm = "vantstart";

    /// Writes the settings, as often as the runner asks for. Returns when they are written or given up.
    void saveSettings(Program& program)
    {
        const std::filesystem::path path = program.folder / settingsFileName;
        const std::string text = settingsOf(*program.vantstart, program.stored);
        while (const std::optional<std::string> failure = replaceFile(path, text))
        {
            const Message question{"The settings could not be saved to " + path.string() + ": " + *failure +
                                       ".\nTry again? With No the program ends without saving.",
                                   "Settings not saved"};
            if (!ask(program.outside, question))
                return;
        }
    }
}

Program::Program(Dialogs dialogs, Printer printer, std::filesystem::path settingsFolder)
    : folder(std::move(settingsFolder))
{
    outside.dialogs = std::move(dialogs);
    outside.printer = std::move(printer);
    outside.openForm = [this](const std::string& name) { openForm(*this, name); };
    outside.closeForm = [this](const std::string& name) { closeForm(*this, name); };
    vantstart = std::make_unique<VantstartForm>(state, outside);
    setLoadDefaults(*vantstart);
}

void start(Program& program)
{
    enter(program, mainForm, false, [&] {
        load(*program.vantstart, program.stored, readFile(program.folder / settingsFileName, settingsFileLimit));
    });
}

void stop(Program& program)
{
    if (!program.vantstart)
        return;
    saveSettings(program);
    showSaid(program.outside);
    if (program.unloading)
        program.unloading(program.vantstart->form);
    program.vantstart.reset();
}

Form* findForm(Program& program, std::string_view name)
{
    return program.vantstart && name == mainForm ? &program.vantstart->form : nullptr;
}

bool hasForm(std::string_view name)
{
    return name == mainForm;
}

void openForm(Program& program, const std::string& name)
{
    if (Form* const form = findForm(program, name); form && program.shown)
        program.shown(*form);
    else if (!hasForm(name))
        program.outside.said.push_back({"This version of Vantelos has no form \"" + name + "\"."});
}

void closeForm(Program& program, const std::string& name)
{
    program.closing.push_back(name);
}

void endEvent(Program& program)
{
    showSaid(program.outside);
    for (const std::string& name : std::exchange(program.closing, {}))
        if (name == mainForm)
            stop(program);
}

std::string faultText(const ArithmeticFault& fault, const std::string& activity)
{
    std::string text = std::string("The calculation stopped: ") + fault.what();
    if (!activity.empty())
        text += " while " + activity;
    return text + ".";
}
