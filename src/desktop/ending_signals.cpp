#include "desktop/ending_signals.h"

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QSocketNotifier>

namespace
{
    int pipeEnds[2] = {-1, -1};   // a signal may only write here; the application reads in its own time

    extern "C" void noteSignal(int /*number*/)
    {
        const char note = 0;
        static_cast<void>(!write(pipeEnds[1], &note, sizeof note));
    }
}

void closeWindowsOnSignals(QObject& lifetime)
{
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return;   // the signals then end the process, as they do by themselves
    auto* const notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, &lifetime);
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [] {
        char note = 0;
        while (read(pipeEnds[0], &note, sizeof note) > 0) {}
        QApplication::closeAllWindows();
    });
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, noteSignal);
}
