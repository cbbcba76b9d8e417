#include "desktop/stop_offer.h"

#include <QCoreApplication>

namespace
{
    constexpr int patienceMilliseconds = 1000;
}

StopOffer::StopOffer(QPointer<QWidget> parentWindow) : window(std::move(parentWindow))
{
    sinceBegin.start();
}

void StopOffer::restart()
{
    delete offer;
    sinceBegin.restart();
}

bool StopOffer::goOn()
{
    if (sinceBegin.elapsed() < patienceMilliseconds)
        return true;
    if (!offer)
    {
        offer = new QProgressDialog(QObject::tr("Still calculating..."), QObject::tr("&Stop"), 0, 0, window);
        offer->setWindowModality(Qt::ApplicationModal);
        offer->setMinimumDuration(0);
        offer->show();
    }
    QCoreApplication::processEvents();
    const bool stopped = offer && offer->wasCanceled();
    if (stopped)
        delete offer;
    return !stopped;
}
