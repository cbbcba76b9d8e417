#include "desktop/list_presses.h"

#include <QKeyEvent>
#include <QListWidgetItem>
#include <QMouseEvent>

ListPresses::ListPresses(QListWidget& listWidget, QObject* parent) : QObject(parent), list(listWidget)
{
    list.installEventFilter(this);
    list.viewport()->installEventFilter(this);
    // after the list has done what a press does
    connect(&list, &QListWidget::itemPressed, this, [this] {
        if (again)
            emit pressedAgain();
        again = false;
    });
}

bool ListPresses::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &list)
        return event->type() == QEvent::KeyPress && takesKey(*static_cast<QKeyEvent*>(event));
    if (event->type() != QEvent::MouseButtonPress)
        return false;
    const auto* const press = static_cast<QMouseEvent*>(event);
    const QListWidgetItem* const item = list.itemAt(press->pos());
    again = press->button() == Qt::LeftButton && item && item->isSelected();
    return false;
}

bool ListPresses::takesKey(const QKeyEvent& key)
{
    const QListWidgetItem* const item = list.currentItem();
    const bool isAgain = key.key() == Qt::Key_Space && key.modifiers() == Qt::NoModifier && item && item->isSelected();
    if (isAgain)
        emit pressedAgain();
    return isAgain;
}
