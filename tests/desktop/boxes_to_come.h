#pragma once

#include <deque>
#include <functional>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QWidget>

/// Meets the modal boxes and dialogs that open while an event is under way, each with the next of its actions.
/// One that comes without an action left is closed, and counted.
class BoxesToCome
{
public:
    using Action = std::function<void(QWidget&)>;

    explicit BoxesToCome(std::deque<Action> nextActions = {}) : actions(std::move(nextActions))
    {
        QObject::connect(&timer, &QTimer::timeout, [this] { look(); });
        timer.start(1);
    }

    [[nodiscard]] int seen() const { return count; }
    [[nodiscard]] bool allMet() const { return actions.empty(); }

private:
    void look()
    {
        QWidget* const box = QApplication::activeModalWidget();
        if (!box || box == met)
            return;
        met = box;
        ++count;
        QObject::connect(box, &QObject::destroyed, &timer, [this] { met = nullptr; });
        Action action = [](QWidget& unexpected) { unexpected.close(); };
        if (!actions.empty())
        {
            action = actions.front();
            actions.pop_front();
        }
        // not from within the timer, which would stand still while another box opens
        QMetaObject::invokeMethod(
            box, [box, action] { action(*box); }, Qt::QueuedConnection);
    }

    std::deque<Action> actions;
    QTimer timer;
    QWidget* met = nullptr;
    int count = 0;
};

/// Clicks an item of an open menu.
inline void clickItem(QWidget& menu, QAction& item)
{
    const QRect place = dynamic_cast<QMenu&>(menu).actionGeometry(&item);
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, place.center());
}
