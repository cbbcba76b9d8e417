#pragma once

#include <functional>

#include <QLineEdit>
#include <QObject>
#include <QString>

/// Offers what is pasted into a line edit to somebody else first, by key or by menu.
class PasteFilter : public QObject
{
    Q_OBJECT

public:
    /// takes: whether it has taken the text; what it has not goes into the line edit.
    PasteFilter(QLineEdit& lineEdit, std::function<bool(const QString&)> takesText, QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void paste();
    void showMenu(const QPoint& place);

    QLineEdit& edit;
    std::function<bool(const QString&)> takes;
};
