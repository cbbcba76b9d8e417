#include "desktop/windows.h"

#include <optional>

#include <QApplication>
#include <QStatusBar>

#include "desktop/boxes.h"
#include "desktop/printing.h"

namespace
{
    constexpr const char* mainForm = "vantstart";
}

Windows::Windows(LayoutFinder layoutFinder)
    : layoutOf(layoutFinder), stopOffer([this] {
          QWidget* const active = QApplication::activeWindow();
          return active ? active : windowOf(mainForm);
      })
{
    windows[mainForm] = std::make_unique<FormWindow>(layoutOf(mainForm));
}

Windows::~Windows() = default;

/// The time that a person takes for an answer is not the calculation's.
void Windows::withoutStopOffer(const std::function<void()>& action)
{
    stopOffer.takeAway();
    action();
    stopOffer.restart();
}

Dialogs Windows::dialogs()
{
    Dialogs dialogs = boxesOver([this](const std::string& form) { return windowOf(form); });
    dialogs.ask = [this, ask = dialogs.ask](const Message& question) {
        bool answer = false;
        withoutStopOffer([&] { answer = ask(question); });
        return answer;
    };
    dialogs.chooseFile = [this, choose = dialogs.chooseFile](const FileQuestion& question) {
        std::optional<std::string> file;
        withoutStopOffer([&] { file = choose(question); });
        return file;
    };
    return dialogs;
}

Printer Windows::printer()
{
    Printer printer = printerWithPreview([this](const std::string& form) { return windowOf(form); });
    printer.printText = [this, print = printer.printText](const std::vector<std::string>& lines) {
        withoutStopOffer([&] { print(lines); });
    };
    printer.printForm = [this, print = printer.printForm](const FormImage& form) {
        withoutStopOffer([&] { print(form); });
    };
    return printer;
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
