// Starts as the program with windows does, up to the first table on screen, then says how many bytes of memory it
// holds, and ends on the spot.

#include <cstdio>
#include <fstream>

#include <unistd.h>

#include <QApplication>
#include <QIcon>
#include <QWidget>

#include "desktop/windows.h"
#include "program/program.h"

namespace
{
    long residentBytes()
    {
        long all = 0;
        long resident = 0;
        std::ifstream("/proc/self/statm") >> all >> resident;
        return resident * sysconf(_SC_PAGESIZE);
    }
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(":/vantelos.svg"));
    Windows windows;
    Program program(windows.dialogs(), windows.printer(), ".");
    windows.show(program);
    start(program);
    while (!windows.windowOf("vantstart")->isActiveWindow())
        QApplication::processEvents();
    QApplication::processEvents();
    std::printf("%ld\n", residentBytes());
    std::fflush(stdout);
    _exit(program.vantstart->Picture1.page.lines.empty() ? 1 : 0);
}
