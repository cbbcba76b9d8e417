#pragma once

#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <unistd.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/windows.h"
#include "forms/outside.h"
#include "program/program.h"

/// What the program has told and asked, in order. Questions take the answers laid ready; one without gets No.
struct Told
{
    std::vector<std::string> events;   // "message: No rows checked!", "question: ...", "fault: ...", "status: ..."
    std::deque<std::function<bool()>> answers;

    [[nodiscard]] Dialogs dialogs()
    {
        Dialogs dialogs;
        dialogs.message = [this](const Message& message) { events.push_back("message: " + message.text); };
        dialogs.ask = [this](const Message& question) {
            events.push_back("question: " + question.text);
            if (answers.empty())
                return false;
            const std::function<bool()> answer = answers.front();
            answers.pop_front();
            return answer();
        };
        dialogs.beep = [this] { events.emplace_back("beep"); };
        dialogs.fault = [this](const FaultReport& fault) {
            events.push_back((fault.keystroke ? "status: " : "fault: ") + fault.text);
        };
        return dialogs;
    }
};

/// A folder for one test; in memory where that can be had, for a file that is written for good takes its time on disks.
struct ScratchDirectory
{
    QTemporaryDir kept{(access("/dev/shm", W_OK) == 0 ? QString("/dev/shm") : QDir::tempPath()) + "/vantelos-XXXXXX"};
    [[nodiscard]] std::filesystem::path path() const { return kept.path().toStdString(); }
    [[nodiscard]] std::filesystem::path settings() const { return path() / "vantini.txt"; }
};

[[nodiscard]] inline std::string bytesOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void writeFile(const std::filesystem::path& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

/// A race into row i of a form's record.
inline void enterRace(VantstartForm& form, std::size_t row, const char* hours, const char* minutes, const char* seconds,
                      const char* number, OptionButton RaceControls::*unit)
{
    RaceControls& race = form.races.at(row);
    setTicked(race.Check1, true);
    setText(race.Text1, hours);
    setText(race.Text2, minutes);
    setText(race.Text3, seconds);
    setText(race.Text4, number);
    setChosen(race.*unit, true);
}

/// A man of 40 on 30 miles a week with three races: 5 km in 19:20, 10 km in 40:00, a half marathon in 1:29:30.
inline void enterSample(VantstartForm& form)
{
    setText(form.txtage, "40");
    setChosen(form.optmale, true);
    setValue(form.HScroll1, 30);
    setText(form.actmhrtx, "183");
    setText(form.resthrtx, "55");
    enterRace(form, 0, "", "19", "20", "5", &RaceControls::Option3);
    enterRace(form, 1, "", "40", "00", "10", &RaceControls::Option3);
    enterRace(form, 2, "1", "29", "30", "", &RaceControls::Option6);
    setChosen(form.races[3].Option4, true);
    setChosen(form.races[4].Option4, true);
    setChosen(form.Option8, true);
    setChosen(form.Option9, true);
}

/// Leaves the sample's settings in a folder.
inline void writeSample(const std::filesystem::path& folder)
{
    Told told;
    Program program(told.dialogs(), {}, folder);
    enterSample(*program.vantstart);
    stop(program);
}

/// The program as a person meets it: started in a folder, its window open.
struct OpenWindow
{
    explicit OpenWindow(const std::filesystem::path& folder) : program(told.dialogs(), {}, folder) { open(); }

    void open()
    {
        window.resize(1280, 720);
        windows.show(program);
        start(program);
        if (!QTest::qWaitForWindowActive(&window))
            throw std::runtime_error("the window does not become active");
    }

    Told told;
    Windows windows;
    FormWindow& window = *windows.windowOf("vantstart");
    Program program;

    [[nodiscard]] QWidget& asWidget() { return window; }
    [[nodiscard]] VantstartForm& form() { return *program.vantstart; }

    /// A widget, or for menu items an action, by the name in the form file.
    template <class Widget>
    [[nodiscard]] Widget& find(const QString& name)
    {
        auto* const widget = window.findChild<Widget*>(name);
        if (!widget)
            throw std::runtime_error("no widget " + name.toStdString());
        return *widget;
    }

    /// Replaces what a box holds, key by key.
    void type(const QString& name, const QString& text)
    {
        auto& edit = find<QLineEdit>(name);
        QTest::mouseClick(&edit, Qt::LeftButton);
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        if (text.isEmpty())
            QTest::keyClick(&edit, Qt::Key_Delete);
        else
            QTest::keyClicks(&edit, text);
    }

    void paste(const QString& name, const QString& text)
    {
        auto& edit = find<QLineEdit>(name);
        QApplication::clipboard()->setText(text);
        QTest::mouseClick(&edit, Qt::LeftButton);
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    }

    void click(const QString& name)
    {
        auto& button = find<QAbstractButton>(name);
        // the indicator of an option, the middle of a push button
        const QPoint at = button.isCheckable() ? QPoint(8, button.height() / 2) : button.rect().center();
        QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, at);
    }

    /// Opens menus one in the other and clicks the last name, an item.
    void choose(const QStringList& names)
    {
        QMenu* menu = &find<QMenu>(names.front());
        auto& bar = *window.menuBar();
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.actionGeometry(menu->menuAction()).center());
        for (int i = 1; i < names.size(); ++i)
        {
            QMenu* const inner = window.findChild<QMenu*>(names[i]);
            QAction* const action = inner ? inner->menuAction() : &find<QAction>(names[i]);
            if (!menu->isVisible() || !menu->actions().contains(action))
                throw std::runtime_error("no item " + names[i].toStdString() + " in an open menu");
            const QPoint at = menu->actionGeometry(action).center();
            QTest::mouseMove(menu, at);
            QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, at);
            if (inner)
                menu = inner;
        }
        while (QWidget* const popup = QApplication::activePopupWidget())   // what a disabled item leaves open
            popup->close();
    }

    void forgetEvents() { told.events.clear(); }
};

/// Where a bar's handle is.
[[nodiscard]] inline QPoint handleOf(const QScrollBar& bar)
{
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.state.setFlag(QStyle::State_Horizontal, bar.orientation() == Qt::Horizontal);
    option.orientation = bar.orientation();
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.sliderPosition = bar.sliderPosition();
    option.sliderValue = bar.value();
    option.singleStep = bar.singleStep();
    option.pageStep = bar.pageStep();
    option.subControls = QStyle::SC_All;
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar).center();
}

/// Presses a bar's handle and moves it across, one move a step of that many pixels.
inline void pullBar(QScrollBar& bar, int steps, int pixels)
{
    QPoint at = handleOf(bar);
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, at);
    for (int i = 0; i < steps; ++i)
    {
        at.rx() += pixels;
        QTest::mouseMove(&bar, at);
    }
}

inline void letGo(QScrollBar& bar)
{
    QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, handleOf(bar));
}
