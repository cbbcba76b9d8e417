// Takes a picture of a form's window for the documentation, in a light or a dark palette. QT_SCALE_FACTOR scales it.

#include <algorithm>
#include <iostream>
#include <string>
#include <variant>
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

    /// Types into a box, chooses an option, ticks, slides, or presses a button or a picture.
    struct Work
    {
        const std::string& text;

        void operator()(TextBox* box) const { setText(*box, text); }
        void operator()(OptionButton* option) const { setChosen(*option, true); }
        void operator()(CheckBox* box) const { setTicked(*box, !box->ticked); }
        void operator()(ScrollBar* bar) const { setValue(*bar, std::stoll(text)); }
        void operator()(Button* button) const { Event(button->clicked)(); }
        void operator()(Picture* picture) const
        {
            if (const auto pressed = picture->pressed)
                pressed({});
        }
        template <class Other>
        void operator()(Other*) const
        {}
    };

    /// One step on the way to a picture: opens the form of that name, or works a control of an open form.
    ///   step  "profile", "profile.retname=hills.cpf" or "profile.Command5"
    /// Returns whether there is such a control.
    bool take(Program& program, const std::string& step)
    {
        const std::size_t dot = step.find('.');
        const std::string name = step.substr(0, dot);
        if (dot == std::string::npos)
        {
            enter(program, "vantstart", false, [&] { openForm(program, name); });
            return true;
        }
        const std::size_t sign = std::min(step.find('='), step.size());
        const std::string text = step.substr(std::min(sign + 1, step.size()));
        Form* const form = findForm(program, name);
        const ControlRef* const control = form ? findControl(*form, step.substr(dot + 1, sign - dot - 1)) : nullptr;
        if (control)
            enter(program, step, false, [&] { std::visit(Work{text}, *control); });
        return control != nullptr;
    }

    /// Opens the program on the settings in a folder, which it leaves as they are, takes the steps, and saves a picture
    /// of the window of the last step's form.
    bool takePicture(const std::string& folder, const QString& path, const std::vector<std::string>& steps)
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
        for (const std::string& step : steps)
            asExpected = take(program, step) && asExpected;
        FormWindow* const window = windows.windowOf(steps.back().substr(0, steps.back().find('.')));
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
        std::cerr << "Usage: vantelos-screenshots SETTINGS-FOLDER light|dark PNG-FILE STEP...\n";
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(palette == "dark" ? darkPalette() : lightPalette());
    QApplication::setCursorFlashTime(0);   // the same picture every time
    return takePicture(argv[1], argv[3], {argv + 4, argv + argc}) ? 0 : 1;
}
