#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/controls.h"
#include "model/messages.h"

// What forms need of the outside. Windows, the console and tests each fill these in their own way.

/// A calculation that stopped.
struct FaultReport
{
    std::string text;         // "The calculation stopped: division by zero while ..."
    std::string where;        // the control whose event it was: "vantstart.Command1"
    bool keystroke = false;   // an entry under way: to be told without a box
};

/// Which file is wanted.
struct FileQuestion
{
    std::string title;                   // "Import laps"
    std::string kind;                    // "Laps and tracks"
    std::vector<std::string> patterns;   // "*.tcx"
};

struct Dialogs
{
    std::function<void(const Message&)> message = {};
    std::function<bool(const Message&)> ask = {};   // a yes/no question; true for yes
    std::function<void()> beep = {};
    std::function<void(const FaultReport&)> fault = {};
    std::function<std::optional<std::string>(const FileQuestion&)> chooseFile = {};   // its path, or nothing
};

/// A form printed as an image: on that background, without the hidden controls.
struct FormImage
{
    std::string form;
    Colour background = {255, 255, 255};
    std::vector<std::string> hidden;
};

struct Printer
{
    std::function<void(const std::vector<std::string>&)> printText = {};
    std::function<void(const FormImage&)> printForm = {};
};

struct Outside
{
    Dialogs dialogs;
    Printer printer;
    std::function<void(const std::string&)> openForm = {};    // shows it; one that is open comes to the front
    std::function<void(const std::string&)> closeForm = {};   // unloads it

    Messages said = {};   // in order; shown when the event under way has ended, a fault included, or a question comes
};

/// Shows what has been said so far.
void showSaid(Outside& outside);

/// Shows what has been said, then asks.
[[nodiscard]] bool ask(Outside& outside, const Message& question);

/// Shows what has been said, then lets a file be chosen. Returns its path, or nothing.
[[nodiscard]] std::optional<std::string> chooseFile(Outside& outside, const FileQuestion& question);
