#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>

#include "desktop/binder.h"
#include "desktop/boxes.h"
#include "ui_vantstart.h"

MainWindow::MainWindow() : ui(std::make_unique<Ui::vantstart>()), stopOffer(this)
{
    ui->setupUi(this);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &MainWindow::pressWithEnter);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

MainWindow::~MainWindow() = default;

QStringList MainWindow::show(Program& program)
{
    shownProgram = &program;
    lifetime = std::make_unique<QObject>();
    program.state.goOn = [this] { return stopOffer.goOn(); };
    program.beginning = [this] {
        stopOffer.restart();
        statusBar()->clearMessage();
    };
    program.shown = [this](Form&) {
        if (isMinimized())
            showNormal();
        raise();
        activateWindow();
    };
    program.unloading = [this](Form&) { unload(); };
    return bindForm(program, program.vantstart->form, *this, *lifetime);
}

Dialogs MainWindow::dialogs()
{
    return boxesOver(this, statusBar());
}

void MainWindow::unload()
{
    lifetime.reset();
    shownProgram = nullptr;
    close();
}

/// Enter presses the button that has the focus, and Re-Calculate from everywhere else.
void MainWindow::pressWithEnter()
{
    auto* const focused = qobject_cast<QPushButton*>(focusWidget());
    (focused ? focused : ui->Command1)->click();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    if (Program* const program = shownProgram)
        enter(*program, "vantstart", false, [program] { closeForm(*program, "vantstart"); });
}
