#include "desktop/form_window.h"

#include <algorithm>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>

#include "desktop/binder.h"
#include "desktop/fixed_font.h"
#include "desktop/picture_widget.h"
#include "forms/files.h"
#include "forms/text_table.h"
#include "program/help_forms.h"

namespace
{
    /// For what stands over or under the columns of a table. A heading whose words have to reach its columns tells how
    /// much wider the gaps between them are, in pixels, or how wide all of it is, in percent.
    QFont columnFont(const QWidget& widget)
    {
        QFont font = fixedFont();
        font.setWordSpacing(widget.property("wordSpacing").toDouble());
        if (const int percent = widget.property("stretch").toInt(); percent > 0)
            font.setStretch(percent);
        return font;
    }

    /// Styles give a button more room than a short text needs. One that has to stand at a place of its own is as wide as
    /// its text, in whatever font.
    int widthOfText(const QPushButton& button)
    {
        constexpr int besideText = 16;   // frame and margins
        const int text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width();
        return std::max(button.minimumWidth(), text + besideText);
    }
}

FormWindow::FormWindow(Layout layOut)
{
    layOut(*this);
    for (QWidget* widget : findChildren<QWidget*>())
        if (widget->property("fixedPitch").toBool())
            widget->setFont(columnFont(*widget));
    for (QPushButton* button : findChildren<QPushButton*>())
        if (button->property("asWideAsText").toBool())
            button->setFixedWidth(widthOfText(*button));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &FormWindow::pressWithEnter);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, &FormWindow::askForHelp);
}

QStringList FormWindow::connectWith(Program& program, Form& form)
{
    shownProgram = &program;
    formName = form.name;
    table = form.table;
    lifetime = std::make_unique<QObject>();
    return bindForm(program, form, *this, *lifetime);
}

void FormWindow::leave()
{
    lifetime.reset();
    table = {};
    shownProgram = nullptr;
    close();
}

void FormWindow::comeToTheFront()
{
    if (isMinimized())
        showNormal();
    else
        show();
    raise();
    activateWindow();
}

void FormWindow::pressWithEnter()
{
    if (auto* const focused = qobject_cast<QPushButton*>(focusWidget()))
        return focused->click();
    if (auto* const picture = qobject_cast<PictureWidget*>(focusWidget()); picture && picture->isButton())
        return picture->press();
    auto* const list = qobject_cast<QListWidget*>(focusWidget());
    if (list && list->property(takesEnter).toBool())
    {
        if (list->currentItem())
            emit list->itemActivated(list->currentItem());
        return;
    }
    const QList<QPushButton*> buttons = findChildren<QPushButton*>();
    const auto byDefault =
        std::find_if(buttons.begin(), buttons.end(), [](auto* button) { return button->isDefault(); });
    if (byDefault != buttons.end())
        (*byDefault)->click();
}

void FormWindow::askForHelp()
{
    if (Program* const program = shownProgram)
        enter(*program, formName, false, [program, name = formName] { openHelpOn(*program, name); });
}

/// While an event is under way its form has to stay; it is unloaded at the event's end.
void FormWindow::closeEvent(QCloseEvent* event)
{
    Program* const program = shownProgram;
    event->setAccepted(!program || !program->underWay);
    if (!program)
        return;
    if (program->underWay)
        closeForm(*program, formName);
    else
        enter(*program, formName, false, [program, name = formName] { closeForm(*program, name); });
}

/// Where nothing under the mouse has a menu of its own, the form's table can be copied and saved.
void FormWindow::contextMenuEvent(QContextMenuEvent* event)
{
    if (!table)
        return;
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(tr("&Copy table")), &QAction::triggered, this, [this] { copyTable(); });
    connect(menu->addAction(tr("&Save as CSV...")), &QAction::triggered, this, &FormWindow::saveTable);
    menu->popup(event->globalPos());
}

void FormWindow::saveTable()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save as"), QString::fromStdString(formName) + ".csv", tr("CSV (*.csv)"));
    if (path.isEmpty() || !table)
        return;
    const std::optional<TextTable> rows = tableNow();
    if (!rows)
        return;
    if (const auto failure = replaceFile(path.toStdString(), csvOf(*rows)))
        QMessageBox::warning(this, tr("Not saved"),
                             tr("%1 could not be written: %2").arg(path, QString::fromStdString(*failure)));
}

void FormWindow::copyTable()
{
    if (const std::optional<TextTable> rows = tableNow())
        QApplication::clipboard()->setText(QString::fromStdString(textOf(*rows)));
}

/// Nothing where a fault stops it, which is told like that of any event.
std::optional<TextTable> FormWindow::tableNow()
{
    std::optional<TextTable> rows;
    if (shownProgram && table)
        enter(*shownProgram, formName, false, [&] { rows = table(); });
    return rows;
}
