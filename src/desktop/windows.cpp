#include "desktop/windows.h"

#include <QApplication>
#include <QStatusBar>

#include "desktop/boxes.h"
#include "desktop/layouts.h"
#include "desktop/printing.h"

namespace
{
    constexpr const char* mainForm = "vantstart";
}

Windows::Windows() : stopOffer([] { return QApplication::activeWindow(); })
{
    windows[mainForm] = std::make_unique<FormWindow>(layoutOf(mainForm));
}

Windows::~Windows() = default;

Dialogs Windows::dialogs()
{
    return boxesOver([this](const std::string& form) { return windowOf(form); });
}

Printer Windows::printer()
{
    return printerWithPreview([this](const std::string& form) { return windowOf(form); });
}

void Windows::show(Program& shownProgram)
{
    program = &shownProgram;
    program->state.goOn = [this] { return stopOffer.goOn(); };
    program->beginning = [this] {
        stopOffer.restart();
        for (const auto& [name, window] : windows)
            if (auto* const bar = window->findChild<QStatusBar*>())
                bar->clearMessage();
    };
    program->ending = [this] { stopOffer.takeAway(); };
    program->shown = [this](Form& form) { showForm(form); };
    program->unloading = [this](Form& form) { unload(form); };
    FormWindow& mainWindow = *windows.at(mainForm);
    mismatches = mainWindow.connectWith(*program, program->vantstart->form);
    mainWindow.show();
}

FormWindow* Windows::windowOf(const std::string& form) const
{
    const auto window = windows.find(form);
    return window == windows.end() ? nullptr : window->second.get();
}

void Windows::showForm(Form& form)
{
    if (!windowOf(form.name))
    {
        const Layout layOut = layoutOf(form.name);
        if (!layOut)
        {
            mismatches << "no window for the form " + QString::fromStdString(form.name);
            return;
        }
        auto window = std::make_unique<FormWindow>(layOut);
        mismatches << window->connectWith(*program, form);
        windows[form.name] = std::move(window);
    }
    windowOf(form.name)->comeToTheFront();
}

/// A window goes once the event that came through it is over; the main window stays as long as all of them.
void Windows::unload(const Form& form)
{
    const auto window = windows.find(form.name);
    if (window == windows.end())
        return;
    window->second->leave();
    if (form.name == mainForm)
        return;
    window->second.release()->deleteLater();
    windows.erase(window);
}
