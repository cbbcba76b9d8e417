#include "desktop/paste_filter.h"

#include <utility>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

PasteFilter::PasteFilter(QLineEdit& lineEdit, std::function<bool(const QString&)> takesText, QObject* parent)
    : QObject(parent), edit(lineEdit), takes(std::move(takesText))
{
    edit.installEventFilter(this);
}

bool PasteFilter::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste))
    {
        paste();
        return true;
    }
    if (event->type() == QEvent::ContextMenu)
    {
        showMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    return false;
}

void PasteFilter::paste()
{
    const QString text = QApplication::clipboard()->text();
    if (!takes(text))
        edit.insert(text);
}

/// The menu that the line edit has by itself, with its Paste led here.
void PasteFilter::showMenu(const QPoint& place)
{
    QMenu* const menu = edit.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* action : menu->actions())
        if (action->text().startsWith(QLineEdit::tr("&Paste")))
        {
            action->disconnect();
            connect(action, &QAction::triggered, this, &PasteFilter::paste);
        }
    menu->popup(place);
}
