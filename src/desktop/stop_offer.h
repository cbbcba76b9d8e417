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
    /// windowInFront: over which the offer comes; it may give nothing.
    explicit StopOffer(std::function<QWidget*()> windowInFront);
    ~StopOffer();
    StopOffer(const StopOffer&) = delete;
    StopOffer& operator=(const StopOffer&) = delete;

    /// To be called when an event begins.
    void restart();

    /// Whether to go on; shows the offer after a second, and then looks for an answer.
    [[nodiscard]] bool goOn();

    /// To be called when an event ends, before anything else is shown.
    void takeAway();

private:
    std::function<QWidget*()> window;
    QElapsedTimer sinceBegin;
    QPointer<QProgressDialog> offer;
};
