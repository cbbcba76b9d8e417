// Takes a picture of a form's window for the documentation, in a light or a dark palette. QT_SCALE_FACTOR scales it.

#include <iostream>
#include <string>
#include <vector>

#include <QApplication>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>

#include "desktop/windows.h"
#include "program/program.h"

namespace
{
    constexpr QSize windowSize(1280, 720);

    QPalette lightPalette()
    {
        QPalette light(QColor(239, 239, 239));
        light.setColor(QPalette::Highlight, QColor(48, 140, 198));
        light.setColor(QPalette::HighlightedText, Qt::white);
        return light;
    }

    /// As desktops set it in the dark.
    QPalette darkPalette()
    {
        QPalette dark(QColor(70, 70, 70), QColor(56, 56, 56));
        dark.setColor(QPalette::Base, QColor(34, 34, 34));
        dark.setColor(QPalette::Highlight, QColor(48, 140, 198));
        dark.setColor(QPalette::HighlightedText, Qt::white);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        {
            dark.setColor(role, Qt::white);
            dark.setColor(QPalette::Disabled, role, QColor(140, 140, 140));
        }
        return dark;
    }

    /// Opens the program and forms, one after the other, on the settings in a folder, which it leaves as they are, and
    /// saves a picture of the last one's window.
    bool takePicture(const std::string& folder, const QString& path, const std::vector<std::string>& forms)
    {
        bool asExpected = true;
        Windows windows;
        Dialogs dialogs;
        dialogs.message = [&asExpected](const Message& message) {
            std::cerr << message.text << '\n';
            asExpected = false;
        };
        dialogs.fault = [&asExpected](const FaultReport& fault) {
            std::cerr << fault.text << '\n';
            asExpected = false;
        };
        Program program(dialogs, {}, folder);
        windows.windowOf("vantstart")->resize(windowSize);
        windows.show(program);
        start(program);
        for (const std::string& form : forms)
            enter(program, "vantstart", false, [&] { openForm(program, form); });
        FormWindow* const window = windows.windowOf(forms.back());
        if (!window)
            return false;
        QApplication::processEvents();
        return asExpected && windows.mismatches.isEmpty() && window->grab().save(path);
    }
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const std::string palette = argc >= 5 ? argv[2] : "";
    if (palette != "light" && palette != "dark")
    {
        std::cerr << "Usage: vantelos-screenshots SETTINGS-FOLDER light|dark PNG-FILE FORM...\n";
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(palette == "dark" ? darkPalette() : lightPalette());
    QApplication::setCursorFlashTime(0);   // the same picture every time
    return takePicture(argv[1], argv[3], {argv + 4, argv + argc}) ? 0 : 1;
}
