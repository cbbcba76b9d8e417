#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <QMainWindow>
#include <QObject>

#include "program/program.h"

/// Puts a form's widgets into an empty window.
using Layout = void (*)(QMainWindow&);

/// The window of one form. Closing it by any way unloads the form; Esc closes, and Enter presses the button that has
/// the focus, from everywhere else the form's default button; F1 opens the help on the form.
class FormWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit FormWindow(Layout layOut);

    /// Connects the window with a program's form. Returns what does not fit; nothing when all does.
    [[nodiscard]] QStringList connectWith(Program& program, Form& form);

    /// The form goes: nothing of it is shown any more, and the window closes.
    void leave();

    void comeToTheFront();

protected:
    void closeEvent(QCloseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void pressWithEnter();
    void askForHelp();
    void saveTable();
    void copyTable();
    [[nodiscard]] std::optional<TextTable> tableNow();

    Program* shownProgram = nullptr;
    std::string formName;
    std::function<TextTable()> table;    // what is shown as a table, if the form has one
    std::unique_ptr<QObject> lifetime;   // of the connections
};
