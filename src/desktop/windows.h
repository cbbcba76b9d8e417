#pragma once

#include <map>
#include <memory>
#include <string>

#include <QStringList>

#include "desktop/form_window.h"
#include "desktop/stop_offer.h"
#include "program/program.h"

/// All windows of the program, one a form that is open. A tool form's window is built when the form is opened and goes
/// with it; the main form's is there from the start.
class Windows
{
public:
    Windows();
    ~Windows();
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    /// What a program needs of the outside, over these windows.
    [[nodiscard]] Dialogs dialogs();
    [[nodiscard]] Printer printer();

    /// Shows a program's main form, and from then on every form that it opens.
    void show(Program& program);

    /// A form's window, or nothing while it is not open.
    [[nodiscard]] FormWindow* windowOf(const std::string& form) const;

    QStringList mismatches;   // controls without a widget of their kind, and forms without a window

private:
    void showForm(Form& form);
    void unload(const Form& form);

    Program* program = nullptr;
    std::map<std::string, std::unique_ptr<FormWindow>> windows;
    StopOffer stopOffer;
};
