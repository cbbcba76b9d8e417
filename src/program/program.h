#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/controls.h"
#include "forms/outside.h"
#include "model/arithmetic.h"
#include "model/model_state.h"
#include "prediction/settings_form.h"
#include "prediction/vantstart_form.h"

/// The program: one model state and every form, put together.
///
/// It refers to itself through its forms, so that it stays where it was built.
struct Program
{
    /// folder: where the settings are kept, the current directory as a rule.
    Program(Dialogs dialogs, Printer printer, std::filesystem::path settingsFolder);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    ModelState state;
    StoredState stored;
    Outside outside;
    std::filesystem::path folder;
    std::unique_ptr<VantstartForm> vantstart;   // absent once the program has ended
    std::vector<std::string> closing;           // forms to be unloaded when the event under way has ended

    std::function<void()> beginning = {};        // an event comes from outside
    std::function<void(Form&)> shown = {};       // a form was opened, or is to come to the front
    std::function<void(Form&)> unloading = {};   // a form is about to go
};

/// Loads the main form from the settings in the program's folder and calculates.
void start(Program& program);

/// Unloads the main form and writes the settings. Where they can't be written the old file stands and a question
/// comes: try again, or leave without saving. Does nothing once the program has ended.
void stop(Program& program);

/// An open form by its name, or nothing.
[[nodiscard]] Form* findForm(Program& program, std::string_view name);

/// Whether the program has a form of that name, open or not.
[[nodiscard]] bool hasForm(std::string_view name);

/// Shows a form; one that is open comes to the front. A name that the program has no form for gets a message.
void openForm(Program& program, const std::string& name);

/// Unloads a form once the event under way has ended; the main form ends the program.
void closeForm(Program& program, const std::string& name);

/// Shows what was said in an event and unloads the forms that it closed.
void endEvent(Program& program);

/// What is told of a fault: what stopped, and while what.
[[nodiscard]] std::string faultText(const ArithmeticFault& fault, const std::string& activity);

/// Runs an event that comes from outside, to its end or to its fault, then shows what was said. This is where
/// faults are caught.
///   where      the control whose event it is, "vantstart.Command1"
///   keystroke  whether an entry is under way, so that a fault must not interrupt it
template <class EventAction>
void enter(Program& program, const std::string& where, bool keystroke, EventAction event)
{
    program.state.activity.clear();
    if (program.beginning)
        program.beginning();
    try
    {
        event();
        endEvent(program);
    }
    catch (const ArithmeticFault& fault)
    {
        const FaultReport report{faultText(fault, program.state.activity), where, keystroke};
        endEvent(program);
        program.outside.dialogs.fault(report);
    }
}
