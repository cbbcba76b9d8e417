#include <algorithm>
#include <string_view>
#include <vector>

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include "desktop/windows.h"
#include "program/program.h"

namespace
{
    /// Help and version are printed without a display.
    bool asksForWords(int argc, char** argv)
    {
        const std::vector<std::string_view> words(argv + 1, argv + argc);
        return std::any_of(words.begin(), words.end(), [](std::string_view word) {
            return word == "-h" || word == "--help" || word == "-v" || word == "--version";
        });
    }

    void readOptions(const QCoreApplication& application)
    {
        QCommandLineParser parser;
        parser.setApplicationDescription("Predicts a runner's times from races that the runner has run.");
        parser.addHelpOption();
        parser.addVersionOption();
        parser.process(application);
    }

    int runDesktop(QApplication& application)
    {
        Windows windows;
        Program program(windows.dialogs(), windows.printer(), ".");
        windows.show(program);
        if (!windows.mismatches.isEmpty())
            qFatal("The main window is incomplete: %s", qUtf8Printable(windows.mismatches.join(", ")));
        start(program);
        return application.exec();
    }
}

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName("Vantelos");
    QCoreApplication::setApplicationVersion(VANTELOS_VERSION);
    if (asksForWords(argc, argv))
    {
        const QCoreApplication application(argc, argv);
        readOptions(application);
        return 0;
    }
    QApplication application(argc, argv);
    QApplication::setDesktopFileName("vantelos");
    QApplication::setWindowIcon(QIcon(":/vantelos.svg"));
    readOptions(application);
    return runDesktop(application);
}
