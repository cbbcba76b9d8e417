#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/controls.h"
#include "forms/outside.h"
#include "help/help_topics.h"
#include "model/arithmetic.h"
#include "model/model_state.h"
#include "prediction/settings_form.h"
#include "prediction/vantstart_form.h"

/// A form that is built when it is asked for: where it stands, and how it comes and goes.
struct FormPlace
{
    std::string_view name;
    std::function<Form*()> find;   // nothing while it is not open
    Event build;                   // with its design values
    Event drop;
};

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
    std::filesystem::path startFolder;          // the same, from the root: how messages name it
    std::filesystem::path currentFolder;        // where the report is written: the folder, until another is chosen
    std::unique_ptr<VantstartForm> vantstart;   // absent once the program has ended
    std::vector<FormPlace> forms;               // all others by name
    std::vector<std::string> closing;           // forms to be unloaded when the event under way has ended
    bool underWay = false;                      // an event that came from outside
    std::string atWork;                         // the form of that event
    HelpTopicName helpTopic = HelpTopicName::programOverview;   // what helpform prints when it is asked for next
    bool stopping = false;   // every form goes: nothing is worked out to be shown any more

    Event beginning = {};                        // an event comes from outside
    Event ending = {};                           // it has ended, and nothing that was said has been shown yet
    std::function<void(Form&)> shown = {};       // a form was opened, or is to come to the front
    std::function<void(Form&)> unloading = {};   // a form is about to go
};

/// Loads the main form from the settings in the program's folder and calculates.
void start(Program& program);

/// Unloads every tool form, writes the settings with what those stored, and unloads the main form. Where they can't be written the old file stands
/// and a question comes: try again, or leave without saving. Does nothing once the program has ended.
void stop(Program& program);

/// An open form by its name, or nothing.
[[nodiscard]] Form* findForm(Program& program, std::string_view name);

/// Whether the program has a form of that name, open or not.
[[nodiscard]] bool hasForm(const Program& program, std::string_view name);

/// Shows a form: builds and loads one that is not open, brings one that is open to the front. A name that the program
/// has no form for gets a message.
/// Faults: as the form's load and opened events; it is shown all the same.
void openForm(Program& program, const std::string& name);

/// Unloads a form once the event under way has ended; the main form ends the program.
void closeForm(Program& program, const std::string& name);

/// What is told of a fault: what stopped, and while what.
[[nodiscard]] std::string faultText(const ArithmeticFault& fault, const std::string& activity);

/// Runs an event that comes from outside, to its end or to its fault, then shows what was said and unloads the forms
/// that it closed. This is where faults are caught. An event that comes while another is under way, from a screen that
/// has to stay alive meanwhile, is not taken.
///   where      the control whose event it is, "vantstart.Command1"
///   keystroke  whether an entry is under way, so that a fault must not interrupt it
void enter(Program& program, const std::string& where, bool keystroke, const Event& event);
