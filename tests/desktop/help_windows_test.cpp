// The help on the screen: F1 everywhere, the index by mouse and keyboard, a window that takes the size of its topic.

#include <string>
#include <vector>

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/picture_widget.h"
#include "desktop/text_surface_widget.h"
#include "help/help_topics.h"
#include "open_window.h"

namespace
{
    struct Help : testing::Test
    {
        ScratchDirectory folder;
        OpenWindow open{(writeSample(folder.path()), folder.path())};

        FormWindow& show(const std::string& form)
        {
            enter(open.program, "vantstart", false, [&] { openForm(open.program, form); });
            return shown(form);
        }
        FormWindow& shown(const std::string& form)
        {
            FormWindow* const window = open.windows.windowOf(form);
            if (!window || !QTest::qWaitForWindowActive(window))
                throw std::runtime_error("no window " + form);
            return *window;
        }
        void close(const std::string& form)
        {
            enter(open.program, form, false, [&] { closeForm(open.program, form); });
        }
        [[nodiscard]] std::string topic()
        {
            FormWindow* const window = open.windows.windowOf("helpform");
            return window ? window->windowTitle().toStdString() : "none";
        }
        template <class Widget>
        [[nodiscard]] static Widget& find(FormWindow& window, const QString& name)
        {
            auto* const widget = window.findChild<Widget*>(name);
            if (!widget)
                throw std::runtime_error("no widget " + name.toStdString());
            return *widget;
        }
    };

    TEST_F(Help, ComesAtF1OnTheFormInFront)
    {
        QTest::keyClick(open.window.focusWidget(), Qt::Key_F1);
        EXPECT_EQ(topic(), "Main entry form");
        for (const FormPlace& place : open.program.forms)
        {
            const std::string name(place.name);
            if (name == "helpform" || name == "vanthelp" || name == "frmabout" || name == "refform")
                continue;
            close("helpform");
            FormWindow& window = show(name);
            QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_F1);
            ASSERT_TRUE(open.windows.windowOf("helpform")) << name;
            EXPECT_TRUE(QTest::qWaitForWindowActive(open.windows.windowOf("helpform"))) << name;
            EXPECT_EQ(topic(), helpTopic(open.program.helpTopic).title) << name;
            close(name);
        }
        EXPECT_EQ(open.windows.mismatches.join(", "), "");
    }

    TEST_F(Help, IsTheIndexAtF1OnItself)
    {
        FormWindow& help = show("helpform");
        QTest::keyClick(help.focusWidget(), Qt::Key_F1);
        EXPECT_EQ(shown("vanthelp").windowTitle(), "Vantelos Help");
    }

    TEST_F(Help, HasAnIndexForTheMouse)
    {
        FormWindow& index = show("vanthelp");
        for (int i = 1; i <= helpTopicCount; ++i)
        {
            QTest::mouseClick(&find<PictureWidget>(index, QString("Picture%1").arg(i)), Qt::LeftButton);
            EXPECT_EQ(topic(), helpTopics()[static_cast<std::size_t>(i - 1)].title);
        }
    }

    TEST_F(Help, HasAnIndexForTheKeyboard)
    {
        for (int i = 1; i <= helpTopicCount; ++i)
        {
            FormWindow& index = show("vanthelp");
            auto& picture = find<PictureWidget>(index, QString("Picture%1").arg(i));
            auto& caption = find<QLabel>(index, QString("caption_Picture%1").arg(i));
            const std::string title(helpTopics()[static_cast<std::size_t>(i - 1)].title);
            EXPECT_EQ(caption.text().remove('&').toStdString(), title);
            EXPECT_EQ(caption.buddy(), &picture);
            EXPECT_EQ(picture.accessibleName().toStdString(), title);
            picture.setFocus(Qt::TabFocusReason);
            QTest::keyClick(&picture, i % 2 == 0 ? Qt::Key_Space : Qt::Key_Return);
            EXPECT_EQ(topic(), title);
        }
    }

    TEST_F(Help, GoesFromOnePictureToTheNextWithTheTabKey)
    {
        FormWindow& index = show("vanthelp");
        find<PictureWidget>(index, "Picture1").setFocus();
        for (int i = 2; i <= helpTopicCount; ++i)
        {
            QTest::keyClick(index.focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(index.focusWidget()->objectName(), QString("Picture%1").arg(i));
        }
        QTest::keyClick(index.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(index.focusWidget()->objectName(), "Command1");
    }

    TEST_F(Help, TakesTheSizeOfEachTopicAndClosesInItsCorner)
    {
        for (const HelpTopic& expected : helpTopics())
        {
            open.program.helpTopic = expected.name;
            FormWindow& help = show("helpform");
            QApplication::processEvents();
            EXPECT_EQ(help.width(), static_cast<int>(expected.width / 15)) << expected.title;
            EXPECT_EQ(help.height(), static_cast<int>(expected.height / 15)) << expected.title;
            auto& close = find<QPushButton>(help, "Command1");
            const QPoint at = close.mapTo(&help, QPoint());
            EXPECT_NEAR(at.x(), (expected.width - 890) / 15, 3) << expected.title;
            EXPECT_NEAR(at.y(), (expected.height - 920) / 15, 3) << expected.title;
        }
    }

    TEST_F(Help, HasRoomForTheTextOfItsButtonInALargerFont)
    {
        const QFont usual = QApplication::font();
        QFont large = usual;
        large.setPointSizeF(2 * usual.pointSizeF());
        QApplication::setFont(large);
        FormWindow& help = show("helpform");
        QApplication::processEvents();
        const auto& close = find<QPushButton>(help, "Command1");
        EXPECT_GT(close.fontMetrics().height(), 1.5 * QFontMetrics(usual).height());
        EXPECT_GE(close.width(), close.fontMetrics().size(Qt::TextShowMnemonic, close.text()).width() + 12);
        EXPECT_LE(close.mapTo(&help, QPoint(close.width(), 0)).x(), help.width());
        QApplication::setFont(usual);
    }

    TEST_F(Help, ShowsEachTopicFromItsBeginningAndCutsNoLineOff)
    {
        for (const HelpTopic& expected : helpTopics())
        {
            open.program.helpTopic = expected.name;
            FormWindow& help = show("helpform");
            QApplication::processEvents();
            auto& text = find<TextSurfaceWidget>(help, "topic");
            EXPECT_EQ(text.verticalScrollBar()->value(), 0) << expected.title;
            EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0) << expected.title;
            text.verticalScrollBar()->setValue(text.verticalScrollBar()->maximum());
        }
    }

    TEST_F(Help, LeadsFromTheTablesToPerformanceLevels)
    {
        open.program.helpTopic = HelpTopicName::performanceTables;
        FormWindow& help = show("helpform");
        auto& picture = find<PictureWidget>(help, "Picture1");
        ASSERT_TRUE(picture.isVisible());
        picture.setFocus();
        QTest::keyClick(&picture, Qt::Key_Space);
        EXPECT_EQ(topic(), "Performance levels");
        EXPECT_FALSE(picture.isVisible());
    }
}
