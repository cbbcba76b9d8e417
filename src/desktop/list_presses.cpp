#include "desktop/list_presses.h"

#include <QListWidgetItem>
#include <QMouseEvent>

ListPresses::ListPresses(QListWidget& listWidget, QObject* parent) : QObject(parent), list(listWidget)
{
    list.viewport()->installEventFilter(this);
    // after the list has done what a press does
    connect(&list, &QListWidget::itemPressed, this, [this] {
        if (again)
            emit pressedAgain();
        again = false;
    });
}

bool ListPresses::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() != QEvent::MouseButtonPress)
        return false;
    const auto* const press = static_cast<QMouseEvent*>(event);
    const QListWidgetItem* const item = list.itemAt(press->pos());
    again = press->button() == Qt::LeftButton && item && item->isSelected();
    return false;
}
