#pragma once

#include <functional>

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>
#include <QWidget>

/// Offers to stop a calculation once it has gone on for a second.
class StopOffer
{
public:
    explicit StopOffer(QPointer<QWidget> parentWindow);

    /// To be called when an event begins.
    void restart();

    /// Whether to go on; shows the offer after a second, and then looks for an answer.
    [[nodiscard]] bool goOn();

private:
    QPointer<QWidget> window;
    QElapsedTimer sinceBegin;
    QPointer<QProgressDialog> offer;
};
