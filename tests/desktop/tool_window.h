#pragma once

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>

#include <gtest/gtest.h>

#include "boxes_to_come.h"
#include "open_window.h"

/// The window of a tool form over the sample runner's program, used with mouse and keyboard.
struct ToolWindow : testing::Test
{
    ScratchDirectory folder;
    OpenWindow open{(writeSample(folder.path()), folder.path())};
    FormWindow* window = nullptr;

    void show(const std::string& form)
    {
        enter(open.program, "vantstart", false, [&] { openForm(open.program, form); });
        window = open.windows.windowOf(form);
        ASSERT_TRUE(window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    }
    template <class Widget>
    [[nodiscard]] Widget& find(const char* name)
    {
        auto* const widget = window->findChild<Widget*>(name);
        if (!widget)
            throw std::runtime_error(std::string("no widget ") + name);
        return *widget;
    }
    [[nodiscard]] std::string box(const char* name) { return find<QLineEdit>(name).text().toStdString(); }
    [[nodiscard]] std::string label(const char* name) { return find<QLabel>(name).text().trimmed().toStdString(); }
    void paste(const char* name, const QString& text)
    {
        QApplication::clipboard()->setText(text);
        auto& edit = find<QLineEdit>(name);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    }
    /// An item of the menu that is open, by the beginning of its words.
    static void choose(const QString& words)
    {
        QWidget* const menu = QApplication::activePopupWidget();
        ASSERT_TRUE(menu);
        for (QAction* action : menu->actions())
            if (action->text().remove('&').startsWith(words))
                return clickItem(*menu, *action);
        FAIL() << "no item " << words.toStdString();
    }
    /// An answer to the box that asks for a file.
    static std::function<void(QWidget&)> giving(const std::filesystem::path& path)
    {
        return [path](QWidget& dialog) {
            auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
            ASSERT_TRUE(name);
            name->setText(QString::fromStdString(path));
            QMetaObject::invokeMethod(&dialog, "accept");
        };
    }
    void press(const char* button) { QTest::mouseClick(&find<QAbstractButton>(button), Qt::LeftButton); }
    /// Straight to the widget: on a screen in memory the main window lies in front.
    static void moveOver(QWidget& widget, QPointF at)
    {
        QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &move);
    }
    void rightClick(QWidget& widget)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, widget.mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(&widget, &event);
    }
};
