#include "desktop/stop_offer.h"

#include <QCoreApplication>

namespace
{
    constexpr int patienceMilliseconds = 1000;
}

StopOffer::StopOffer(std::function<QWidget*()> windowInFront) : window(std::move(windowInFront))
{
    sinceBegin.start();
}

StopOffer::~StopOffer()
{
    takeAway();
}

void StopOffer::restart()
{
    takeAway();
    sinceBegin.restart();
}

bool StopOffer::goOn()
{
    if (sinceBegin.elapsed() < patienceMilliseconds)
    {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);   // paints what says that there is work
        return true;
    }
    if (!offer)
    {
        offer = new QProgressDialog(QObject::tr("Still calculating..."), QObject::tr("&Stop"), 0, 0, window());
        offer->setWindowModality(Qt::ApplicationModal);
        offer->setMinimumDuration(0);
        offer->show();
    }
    QCoreApplication::processEvents();
    const bool stopped = offer && offer->wasCanceled();
    if (stopped)
        takeAway();
    return !stopped;
}

void StopOffer::takeAway()
{
    delete offer;
}
