// The text surface: columns that line up, copies and files of what is shown.

#include "desktop/text_surface_widget.h"

#include <cmath>
#include <string>
#include <vector>

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QMenu>
#include <QTextBlock>
#include <QTextLayout>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "boxes_to_come.h"
#include "open_window.h"

namespace
{
    TextPage sampleTable()
    {
        TextPage page;
        printLine(page, "   Distance       Time      Per mile");
        printLine(page, "");
        printLine(page, "     400 m        1:06        4:25");
        printLine(page, "  marathon     4:14:17        9:42");
        printLine(page, " \"half\", m    1:43:30        7:54");
        return page;
    }

    struct Surface
    {
        TextSurfaceWidget widget;

        explicit Surface(const TextPage& page)
        {
            widget.showPage(page);
            widget.resize(600, 200);
            widget.show();
            if (!QTest::qWaitForWindowActive(&widget))
                throw std::runtime_error("the window does not become active");
        }
    };

    TEST(SurfaceFont, IsCourierNewOrOneOfItsWidth)
    {
        const TextSurfaceWidget widget;
        const QFontInfo used(widget.font());
        EXPECT_TRUE(used.fixedPitch()) << used.family().toStdString();
        EXPECT_TRUE(used.family() == "Courier New" || used.family() == "Liberation Mono")
            << used.family().toStdString();
        const QFontMetricsF metrics(widget.font());
        // Courier's letters are 0.6 of their height wide, to the pixel that the screen makes of it
        EXPECT_NEAR(metrics.horizontalAdvance('0'), 0.6 * used.pixelSize(), 0.7);
    }

    TEST(SurfaceColumns, HaveTheSameWidthForEachCharacter)
    {
        const TextSurfaceWidget widget;
        const QFontMetricsF metrics(widget.font());
        const double width = metrics.horizontalAdvance(' ');
        for (char16_t character = 32; character < 127; ++character)
            EXPECT_EQ(metrics.horizontalAdvance(QChar(character)), width) << static_cast<char>(character);
        for (const char16_t character : {u'é', u'ß', u'Ä', u'½'})
            EXPECT_EQ(metrics.horizontalAdvance(QChar(character)), width);
    }

    TEST(SurfaceColumns, StandInOneLineOverAllRows)
    {
        TextPage page;
        printLine(page, std::string(100, 'i'));
        printLine(page, std::string(100, 'W'));
        printLine(page, std::string(100, ' '));
        printLine(page, std::string(50, '1') + std::string(50, ':'));
        std::string mixed;
        while (mixed.size() < 100)
            mixed += "fi AV To 4:07.5 ";   // pairs that other fonts draw closer
        printLine(page, mixed.substr(0, 100));
        const Surface surface(page);
        const QTextDocument* const text = surface.widget.document();
        const double width = QFontMetricsF(surface.widget.font()).horizontalAdvance('0');
        for (QTextBlock block = text->begin(); block.isValid(); block = block.next())
        {
            ASSERT_EQ(block.layout()->lineCount(), 1);
            const QTextLine line = block.layout()->lineAt(0);
            for (int column = 0; column <= 100; ++column)
                ASSERT_NEAR(line.cursorToX(column) - line.cursorToX(0), column * width, 0.02)
                    << block.text().toStdString();
        }
    }

    TEST(Surface, WrapsNoLine)
    {
        TextPage page;
        printLine(page, std::string(500, 'x') + " " + std::string(500, 'y'));
        const Surface surface(page);
        EXPECT_EQ(surface.widget.document()->begin().layout()->lineCount(), 1);
        EXPECT_GT(surface.widget.horizontalScrollBar()->maximum(), 0);
    }

    TEST(Surface, IsCopiedAsItIsShown)
    {
        Surface surface(sampleTable());
        QTest::keyClick(&surface.widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&surface.widget, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
                  "   Distance       Time      Per mile\n\n     400 m        1:06        4:25\n"
                  "  marathon     4:14:17        9:42\n \"half\", m    1:43:30        7:54");
    }

    TEST(Surface, IsSelectedByTheMouse)
    {
        Surface surface(sampleTable());
        QWidget* const inside = surface.widget.viewport();
        const auto at = [&](int block, int column) {
            QTextCursor cursor(surface.widget.document()->findBlockByNumber(block));
            cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, column);
            return surface.widget.cursorRect(cursor).center();
        };
        QTest::mousePress(inside, Qt::LeftButton, Qt::NoModifier, at(2, 5));
        QTest::mouseMove(inside, at(2, 10));
        QTest::mouseRelease(inside, Qt::LeftButton, Qt::NoModifier, at(2, 10));
        QTest::keyClick(&surface.widget, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "400 m");
    }

    TEST(Surface, IsNotWrittenInto)
    {
        Surface surface(sampleTable());
        const QString before = surface.widget.toPlainText();
        QTest::keyClicks(&surface.widget, "x");
        QTest::keyClick(&surface.widget, Qt::Key_Delete);
        QTest::keyClick(&surface.widget, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(surface.widget.toPlainText(), before);
    }

    TEST(Surface, KeepsItsPlaceWhenItsLinesAreRenewed)
    {
        TextPage page;
        for (int i = 0; i < 200; ++i)
            printLine(page, std::string(200, 'x') + std::to_string(i));
        Surface surface(page);
        surface.widget.verticalScrollBar()->setValue(50);
        surface.widget.horizontalScrollBar()->setValue(40);
        page.lines.front() = "other";
        surface.widget.showPage(page);
        EXPECT_EQ(surface.widget.verticalScrollBar()->value(), 50);
        EXPECT_EQ(surface.widget.horizontalScrollBar()->value(), 40);
    }

    TEST(SurfaceFiles, HoldTheLinesAsText)
    {
        const ScratchDirectory folder;
        const Surface surface(sampleTable());
        QString wrong;
        ASSERT_TRUE(surface.widget.saveText(QString::fromStdString(folder.path() / "table.txt"), wrong));
        EXPECT_EQ(wrong, "");
        EXPECT_EQ(bytesOf(folder.path() / "table.txt"),
                  "   Distance       Time      Per mile\n\n     400 m        1:06        4:25\n"
                  "  marathon     4:14:17        9:42\n \"half\", m    1:43:30        7:54\n");
    }

    TEST(SurfaceFiles, HoldTheFieldsAsCsv)
    {
        const ScratchDirectory folder;
        const Surface surface(sampleTable());
        QString wrong;
        ASSERT_TRUE(surface.widget.saveCsv(QString::fromStdString(folder.path() / "table.csv"), wrong));
        EXPECT_EQ(bytesOf(folder.path() / "table.csv"),
                  "Distance,Time,Per mile\n400 m,1:06,4:25\nmarathon,4:14:17,9:42\n"
                  "\"\"\"half\"\", m\",1:43:30,7:54\n");
    }

    TEST(SurfaceFiles, TellWhyTheyCanNotBeWritten)
    {
        const ScratchDirectory folder;
        const Surface surface(sampleTable());
        QString wrong;
        EXPECT_FALSE(surface.widget.saveText(QString::fromStdString(folder.path() / "none" / "table.txt"), wrong));
        EXPECT_FALSE(wrong.isEmpty());
        wrong.clear();
        EXPECT_FALSE(surface.widget.saveCsv(QString::fromStdString(folder.path() / "none" / "table.csv"), wrong));
        EXPECT_FALSE(wrong.isEmpty());
    }

    QAction* actionWith(const QWidget& menu, const QString& words)
    {
        for (QAction* action : menu.actions())
            if (action->text().remove('&').startsWith(words))
                return action;
        return nullptr;
    }

    /// The menu that the right button opens.
    QWidget& menuOf(TextSurfaceWidget& widget)
    {
        const QPoint at(20, 20);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, widget.mapToGlobal(at));
        QApplication::sendEvent(widget.viewport(), &event);
        QWidget* const menu = QApplication::activePopupWidget();
        if (!menu)
            throw std::runtime_error("no menu");
        return *menu;
    }

    void answerFileDialog(QWidget& box, const std::filesystem::path& path)
    {
        auto* const dialog = qobject_cast<QFileDialog*>(&box);
        ASSERT_TRUE(dialog);
        auto* const name = dialog->findChild<QLineEdit*>("fileNameEdit");
        ASSERT_TRUE(name);
        name->setText(QString::fromStdString(path));
        QMetaObject::invokeMethod(dialog, "accept");
    }

    class SurfaceMenu : public testing::TestWithParam<std::pair<const char*, const char*>>
    {};

    TEST_P(SurfaceMenu, SavesWhereAPersonSays)
    {
        const ScratchDirectory folder;
        Surface surface(sampleTable());
        BoxesToCome boxes({[&](QWidget& box) { answerFileDialog(box, folder.path() / GetParam().second); }});
        QWidget& menu = menuOf(surface.widget);
        EXPECT_TRUE(actionWith(menu, "Copy"));
        EXPECT_TRUE(actionWith(menu, "Select All"));
        QAction* const action = actionWith(menu, GetParam().first);
        ASSERT_TRUE(action);
        EXPECT_TRUE(action->isEnabled());
        clickItem(menu, *action);
        EXPECT_TRUE(boxes.allMet());
        EXPECT_THAT(bytesOf(folder.path() / GetParam().second), testing::HasSubstr("4:14:17"));
    }

    INSTANTIATE_TEST_SUITE_P(BothWays, SurfaceMenu,
                             testing::Values(std::pair("Save as text", "mine.txt"),
                                             std::pair("Save as CSV", "mine.csv")),
                             [](const auto& row) { return std::string(row.param.second).substr(5); });

    TEST(EmptySurface, HasNothingToSaveWhileItIsEmpty)
    {
        Surface surface({});
        QWidget& menu = menuOf(surface.widget);
        ASSERT_TRUE(actionWith(menu, "Save as text"));
        EXPECT_FALSE(actionWith(menu, "Save as text")->isEnabled());
        EXPECT_FALSE(actionWith(menu, "Save as CSV")->isEnabled());
        menu.close();
    }
}
