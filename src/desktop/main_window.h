#pragma once

#include <memory>

#include <QMainWindow>
#include <QObject>

#include "desktop/stop_offer.h"
#include "program/program.h"

namespace Ui
{
    class vantstart;
}

/// The main form's window. It shows the program that it is given, and closing it by any way is the program's end.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    using QMainWindow::show;

    /// Connects the window with a program's main form. Returns what does not fit; nothing when all does.
    [[nodiscard]] QStringList show(Program& program);

    /// What a program needs of the outside, over this window.
    [[nodiscard]] Dialogs dialogs();

    /// The form has gone: nothing of it is shown any more, and the window closes.
    void unload();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void pressWithEnter();

    std::unique_ptr<Ui::vantstart> ui;
    Program* shownProgram = nullptr;
    std::unique_ptr<QObject> lifetime;
    StopOffer stopOffer;
};
