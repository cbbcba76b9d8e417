// What a person's eyes and keyboard meet in the main window: sizes, tab order, mnemonics, tips, names read aloud.

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/binder.h"
#include "desktop/text_surface_widget.h"
#include "open_window.h"

namespace
{
    class Layout : public testing::Test
    {
    protected:
        ScratchDirectory folder;
        OpenWindow open{(writeSample(folder.path()), folder.path())};

        void resize(int width, int height)
        {
            open.asWidget().resize(width, height);
            QApplication::processEvents();
        }
        QRect placeOf(const QWidget& widget) { return {widget.mapTo(&open.window, QPoint()), widget.size()}; }
    };

    char mnemonicOf(const QString& text)
    {
        const qsizetype at = QString(text).replace("&&", "  ").indexOf('&');
        return at < 0 ? '\0' : text[at + 1].toLower().toLatin1();
    }

    // --- keyboard

    TEST_F(Layout, TabVisitsEverythingThatCanBeUsedInReadingOrder)
    {
        std::vector<std::string> expected{"txtname", "txtage",   "optmale", "HScroll1", "wtscrl",
                                          "htscrl",  "HScroll2", "agecomp", "actmhrtx", "resthrtx"};
        const char* const units[] = {"Option3_0", "Option3_1", "Option6_2", "Option4_3", "Option4_4"};   // those chosen
        for (int row = 0; row < maxRaces; ++row)
        {
            for (const char* column : {"Check1", "Text1", "Text2", "Text3", "Text4"})
                expected.push_back(std::string(column) + "_" + std::to_string(row));
            expected.emplace_back(units[row]);
        }
        for (const char* name : {"Option8", "Option9", "Command1", "Command7", "Command2", "Command3", "Command4",
                                 "Command5", "Command8", "Command6", "Picture1"})
            if (open.find<QWidget>(name).isEnabled())
                expected.emplace_back(name);

        open.find<QLineEdit>("txtname").setFocus();
        std::vector<std::string> visited;
        for (std::size_t i = 0; i < expected.size(); ++i)
        {
            visited.push_back(QApplication::focusWidget()->objectName().toStdString());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(visited, expected);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtname");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "Picture1");
    }

    TEST_F(Layout, BeginsInTheFirstField)
    {
        ASSERT_TRUE(QApplication::focusWidget());
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtname");
    }

    TEST_F(Layout, EveryEntryHasACaptionWithAMnemonic)
    {
        for (const char* name :
             {"txtname", "txtage", "HScroll1", "wtscrl", "htscrl", "HScroll2", "emhrtx", "actmhrtx", "resthrtx"})
        {
            const auto& label = open.find<QLabel>(QString("caption_%1").arg(name));
            EXPECT_EQ(label.buddy(), &open.find<QWidget>(name)) << name;
            EXPECT_NE(mnemonicOf(label.text()), '\0') << name;
        }
        for (const QLabel* label : open.window.findChildren<QLabel*>())
        {
            if (label->buddy())
            {
                EXPECT_NE(mnemonicOf(label->text()), '\0') << label->objectName().toStdString();
            }
        }
    }

    TEST_F(Layout, EveryButtonMenuAndItemHasAMnemonic)
    {
        for (const QPushButton* button : open.window.findChildren<QPushButton*>())
            EXPECT_NE(mnemonicOf(button->text()), '\0') << button->objectName().toStdString();
        for (const QMenu* menu : open.window.findChildren<QMenu*>())
        {
            if (menu->objectName().isEmpty())
                continue;   // what the menu bar makes for itself
            std::set<char> used;
            EXPECT_NE(mnemonicOf(menu->title()), '\0') << menu->objectName().toStdString();
            for (const QAction* action : menu->actions())
            {
                if (!action->isSeparator())
                {
                    EXPECT_TRUE(used.insert(mnemonicOf(action->text())).second)
                        << action->text().toStdString() << " in " << menu->objectName().toStdString();
                }
            }
            EXPECT_EQ(used.count('\0'), 0U) << menu->objectName().toStdString();
        }
    }

    TEST_F(Layout, AButtonsMnemonicIsNobodyElses)
    {
        std::map<char, std::vector<std::string>> owners;
        const auto add = [&owners](const QString& text, const QString& name) {
            if (const char letter = mnemonicOf(text))
                owners[letter].push_back(name.toStdString());
        };
        for (const QLabel* label : open.window.findChildren<QLabel*>())
            if (label->buddy())
                add(label->text(), label->objectName());
        for (const QAbstractButton* button : open.window.findChildren<QAbstractButton*>())
            add(button->text(), button->objectName());
        for (const QAction* action : open.window.menuBar()->actions())
            add(action->text(), action->menu()->objectName());
        for (const auto& [letter, names] : owners)
        {
            const auto isButton = [](const std::string& name) { return name.rfind("Command", 0) == 0; };
            if (std::any_of(names.begin(), names.end(), isButton))
            {
                EXPECT_EQ(names.size(), 1U) << "Alt+" << letter << ": " << testing::PrintToString(names);
            }
        }
    }

    TEST_F(Layout, EnterHasItsButton)
    {
        EXPECT_TRUE(open.find<QPushButton>("Command1").isDefault());
    }

    // --- what is told of each control

    TEST_F(Layout, EveryEntryTellsWhatItMeans)
    {
        for (const ControlRef& control : open.form().form.controls)
        {
            if (std::holds_alternative<MenuItem*>(control) || std::holds_alternative<Label*>(control))
                continue;
            const auto& widget = open.find<QWidget>(widgetName(common(control).name));
            EXPECT_FALSE(widget.toolTip().isEmpty()) << common(control).name;
            EXPECT_EQ(widget.toolTip(), widget.accessibleDescription()) << common(control).name;
        }
    }

    TEST_F(Layout, EveryEntryHasANameToBeReadAloud)
    {
        for (const ControlRef& control : open.form().form.controls)
        {
            if (std::holds_alternative<MenuItem*>(control) || std::holds_alternative<Label*>(control))
                continue;
            auto& widget = open.find<QWidget>(widgetName(common(control).name));
            QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(&widget);
            ASSERT_TRUE(read);
            EXPECT_FALSE(read->text(QAccessible::Name).isEmpty()) << common(control).name;
        }
    }

    // --- sizes

    TEST_F(Layout, FitsASmallScreen)
    {
        EXPECT_LE(open.window.minimumSizeHint().width(), 1280);
        EXPECT_LE(open.window.minimumSizeHint().height(), 720);
        EXPECT_LE(open.asWidget().minimumWidth(), 1280);
        EXPECT_LE(open.asWidget().minimumHeight(), 720);
        resize(1280, 720);
        EXPECT_EQ(open.asWidget().size(), QSize(1280, 720));
    }

    TEST_F(Layout, CutsOffNoCaption)
    {
        for (const QSize& size : {QSize(1280, 720), open.window.minimumSizeHint()})
        {
            resize(size.width(), size.height());
            for (const QWidget* widget : open.window.findChildren<QWidget*>())
            {
                if (!widget->isVisible() ||
                    (!qobject_cast<const QLabel*>(widget) && !qobject_cast<const QAbstractButton*>(widget)))
                    continue;
                if (widget->objectName().startsWith("qt_"))
                    continue;   // what menus and bars make for themselves
                EXPECT_GE(widget->width(), widget->sizeHint().width()) << widget->objectName().toStdString();
                EXPECT_GE(widget->height(), widget->sizeHint().height()) << widget->objectName().toStdString();
            }
            for (const QGroupBox* box : open.window.findChildren<QGroupBox*>())
                EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(box->title()))
                    << box->title().toStdString();
        }
    }

    TEST_F(Layout, CutsOffNoEntry)
    {
        const std::map<QString, QStringList> contents{{"txtname", {"Wilhelmina Featherstonehaugh"}},
                                                      {"txtage", {"100.25"}},
                                                      {"txtmi", {"150"}},
                                                      {"txtkm", {"241"}},
                                                      {"txlb", {"300"}},
                                                      {"txkg", {"136.1", " 72.6"}},
                                                      {"txin", {"90"}},
                                                      {"txcm", {"  229"}},
                                                      {"Text5", {"99.9", "110", "100"}},
                                                      {"emhrtx", {"200"}},
                                                      {"actmhrtx", {"182.5"}},
                                                      {"resthrtx", {"62.5"}},
                                                      {"Text1", {"10"}},
                                                      {"Text2", {"59"}},
                                                      {"Text3", {"59.99"}},
                                                      {"Text4", {"21097.5", "26.21875"}}};
        for (const QSize& size : {QSize(1280, 720), open.window.minimumSizeHint()})
        {
            resize(size.width(), size.height());
            for (const QLineEdit* edit : open.window.findChildren<QLineEdit*>())
            {
                const QString name = edit->objectName();
                const auto found = contents.find(contents.count(name) ? name : name.section('_', 0, 0));
                ASSERT_NE(found, contents.end()) << name.toStdString();
                QStyleOptionFrame option;
                option.initFrom(edit);
                option.lineWidth = edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit);
                const QRect inside = edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit);
                constexpr int beside = 2 * 2 + 1;   // a line edit's own margins and its cursor
                for (const QString& text : found->second)
                {
                    EXPECT_GE(inside.width() - beside, edit->fontMetrics().horizontalAdvance(text))
                        << name.toStdString() << " with " << text.toStdString();
                    EXPECT_GE(inside.height(), edit->fontMetrics().height()) << name.toStdString();
                }
            }
        }
    }

    TEST_F(Layout, ShowsTheWholeTableWithoutScrolling)
    {
        auto& table = open.find<TextSurfaceWidget>("Picture1");
        for (const char* output : {"Option9", "Option10"})
        {
            open.click(output);
            open.click("Command1");
            resize(1280, 720);
            EXPECT_EQ(table.horizontalScrollBar()->maximum(), 0) << output;
            EXPECT_EQ(table.verticalScrollBar()->maximum(), 0) << output;
        }
    }

    TEST(WindowAtItsFirstOpening, ShowsTheWholeTableWithoutScrolling)
    {
        const ScratchDirectory folder;
        writeSample(folder.path());
        Told told;
        Windows windows;
        FormWindow& window = *windows.windowOf("vantstart");
        Program program(told.dialogs(), {}, folder.path());
        windows.show(program);
        ASSERT_TRUE(windows.mismatches.isEmpty());
        start(program);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        const auto* const table = window.findChild<TextSurfaceWidget*>("Picture1");
        EXPECT_EQ(table->verticalScrollBar()->maximum(), 0);
        EXPECT_EQ(table->horizontalScrollBar()->maximum(), 0);
        EXPECT_LE(window.width(), 1280);
        EXPECT_LE(window.height(), 720);
    }

    TEST_F(Layout, KeepsThingsApart)
    {
        for (const QSize& size :
             {QSize(1280, 720), QSize(1920, 1080), QSize(3840, 2160), open.window.minimumSizeHint()})
        {
            resize(size.width(), size.height());
            std::vector<const QWidget*> leaves;
            for (const ControlRef& control : open.form().form.controls)
                if (auto* const widget = open.window.findChild<QWidget*>(widgetName(common(control).name));
                    widget && widget->isVisible() && !qobject_cast<QMenu*>(widget))
                    leaves.push_back(widget);
            for (const QLabel* label : open.window.findChildren<QLabel*>())
                if (label->objectName().startsWith("caption_"))
                    leaves.push_back(label);
            for (std::size_t i = 0; i < leaves.size(); ++i)
            {
                EXPECT_TRUE(open.asWidget().rect().contains(placeOf(*leaves[i])))
                    << leaves[i]->objectName().toStdString();
                for (std::size_t k = i + 1; k < leaves.size(); ++k)
                    EXPECT_FALSE(placeOf(*leaves[i]).intersects(placeOf(*leaves[k])))
                        << leaves[i]->objectName().toStdString() << " and " << leaves[k]->objectName().toStdString()
                        << " at " << size.width();
            }
        }
    }

    TEST_F(Layout, StaysTogetherOnAVeryLargeScreen)
    {
        resize(3840, 2160);
        EXPECT_EQ(open.asWidget().size(), QSize(3840, 2160));
        for (const char* name :
             {"txtage", "HScroll1", "wtscrl", "htscrl", "HScroll2", "emhrtx", "actmhrtx", "resthrtx"})
        {
            const QRect label = placeOf(open.find<QLabel>(QString("caption_%1").arg(name)));
            const QRect entry = placeOf(open.find<QWidget>(name));
            EXPECT_LE(entry.left() - label.right(), 24) << name;
            EXPECT_LE(std::abs(entry.center().y() - label.center().y()), 4) << name;
        }
        const QRect lastRow = placeOf(open.find<QLineEdit>("Text1_4"));
        const QRect firstRow = placeOf(open.find<QLineEdit>("Text1_0"));
        EXPECT_LE(lastRow.bottom() - firstRow.top(), 8 * firstRow.height());
        // the table takes what is left
        EXPECT_GE(open.find<TextSurfaceWidget>("Picture1").height(), 1400);
        EXPECT_GE(open.find<TextSurfaceWidget>("Picture1").width(), 3700);
    }

    TEST_F(Layout, AlignsTheRaceRows)
    {
        for (const char* column : {"Check1", "Text1", "Text2", "Text3", "Text4", "Option1", "Option2", "Option3",
                                   "Option4", "Option5", "Option6"})
        {
            const QRect first = placeOf(open.find<QWidget>(QString("%1_0").arg(column)));
            for (int row = 1; row < maxRaces; ++row)
            {
                const QRect place = placeOf(open.find<QWidget>(QString("%1_%2").arg(column).arg(row)));
                EXPECT_EQ(place.left(), first.left()) << column;
                EXPECT_EQ(place.width(), first.width()) << column;
            }
        }
        for (int row = 0; row < maxRaces; ++row)
        {
            const int middle = placeOf(open.find<QLineEdit>(QString("Text1_%1").arg(row))).center().y();
            for (const char* column : {"Check1", "Text4", "Option1", "Option6"})
                EXPECT_LE(
                    std::abs(placeOf(open.find<QWidget>(QString("%1_%2").arg(column).arg(row))).center().y() - middle),
                    1);
        }
        // each heading stands above its column
        for (const auto& [heading, column] : {std::pair("caption_race1", "Text1_0"),
                                              {"caption_race2", "Text2_0"},
                                              {"caption_race3", "Text3_0"},
                                              {"caption_race4", "Text4_0"}})
            EXPECT_LE(std::abs(placeOf(open.find<QLabel>(heading)).center().x() -
                               placeOf(open.find<QWidget>(column)).center().x()),
                      4)
                << heading;
    }

    // A palette in the dark, as desktops set it.
    TEST(DarkPalette, LeavesEveryTextReadable)
    {
        const QPalette light = QApplication::palette();
        QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
        dark.setColor(QPalette::Base, QColor(30, 30, 30));
        dark.setColor(QPalette::Text, Qt::white);
        QApplication::setPalette(dark);
        {
            const ScratchDirectory folder;
            writeSample(folder.path());
            OpenWindow open(folder.path());
            for (QWidget* widget : open.window.findChildren<QWidget*>())
            {
                const bool entry = widget->inherits("QLineEdit") || widget->inherits("QPlainTextEdit");
                const auto& palette = widget->palette();
                const int ground = palette.color(entry ? QPalette::Base : QPalette::Window).lightness();
                const int letters = palette.color(entry ? QPalette::Text : QPalette::WindowText).lightness();
                if (widget->isEnabled())
                {
                    EXPECT_GE(std::abs(ground - letters), 100) << widget->objectName().toStdString();
                }
            }
        }
        QApplication::setPalette(light);
    }

    // The same sizes where a screen shows two dots for each of ours, in a process of its own.
    TEST(Scaling, KeepsTheLayoutAtTwoHundredPercent)
    {
        if (qEnvironmentVariableIsSet("QT_SCALE_FACTOR"))
            GTEST_SKIP() << "this is the scaled process";
        QProcess scaled;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_SCALE_FACTOR", "2");
        scaled.setProcessEnvironment(environment);
        scaled.setProcessChannelMode(QProcess::MergedChannels);
        scaled.start(QApplication::applicationFilePath(),
                     {"--gtest_filter=Layout.*:Pictures.*:PictureScales/*:SurfaceColumns.*"});
        ASSERT_TRUE(scaled.waitForFinished(300000));
        EXPECT_EQ(scaled.exitCode(), 0) << scaled.readAll().toStdString();
    }
}
