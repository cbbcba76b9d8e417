#pragma once

#include <functional>

#include <QKeyEvent>
#include <QListWidget>
#include <QObject>

/// Tells of a press, or of the space bar, on the item of a list that is selected already: a click of a person, although
/// the selection stays.
class ListPresses : public QObject
{
    Q_OBJECT

public:
    ListPresses(QListWidget& listWidget, QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void pressedAgain();

private:
    bool takesKey(const QKeyEvent& key);

    QListWidget& list;
    bool again = false;   // the press under way began on the selected item
};
