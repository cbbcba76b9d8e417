// The real boxes: messages in their order, questions, and faults that tell what to try.

#include "desktop/boxes.h"

#include <string>
#include <vector>

#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QStatusBar>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "boxes_to_come.h"
#include "model/arithmetic.h"
#include "open_window.h"

namespace
{
    using testing::HasSubstr;

    QMessageBox& asMessageBox(QWidget& box)
    {
        auto* const message = qobject_cast<QMessageBox*>(&box);
        if (!message)
            throw std::runtime_error("not a message box");
        return *message;
    }

    struct Boxes : testing::Test
    {
        QMainWindow window;
        Dialogs dialogs;
        std::vector<std::string> seen;

        Boxes()
        {
            window.show();
            dialogs = boxesOver([this](const std::string&) { return &window; });
        }
        BoxesToCome::Action readAnd(QMessageBox::StandardButton button)
        {
            return [this, button](QWidget& box) {
                auto& message = asMessageBox(box);
                seen.push_back(message.text().toStdString());
                ASSERT_TRUE(message.button(button));
                QTest::mouseClick(message.button(button), Qt::LeftButton);
            };
        }
    };

    TEST_F(Boxes, ShowAMessageWithItsTitleAndAnOk)
    {
        BoxesToCome boxes({[](QWidget& box) {
            auto& message = asMessageBox(box);
            EXPECT_EQ(message.text(), "No rows checked!");
            EXPECT_EQ(message.windowTitle(), "Questionable extrapolation");
            EXPECT_EQ(message.standardButtons(), QMessageBox::Ok);
            EXPECT_TRUE(message.isModal());
            QTest::keyClick(&message, Qt::Key_Return);
        }});
        dialogs.message({"No rows checked!", "Questionable extrapolation"});
        EXPECT_EQ(boxes.seen(), 1);
    }

    TEST_F(Boxes, ShowMarkupAsItWasTyped)
    {
        const char* const typed = "Omitting 20:00 5 <b>km</b> &amp; <img src=\"x\">\nsecond line";
        BoxesToCome boxes({[&](QWidget& box) {
            auto& message = asMessageBox(box);
            EXPECT_EQ(message.text(), typed);
            auto* const label = message.findChild<QLabel*>("qt_msgbox_label");
            ASSERT_TRUE(label);
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
            // the letters take at least their own width on screen
            EXPECT_GE(label->sizeHint().width(), label->fontMetrics().horizontalAdvance("<b>km</b> &amp;"));
            message.accept();
        }});
        dialogs.message({typed, "<i>Title</i>"});
        EXPECT_EQ(boxes.seen(), 1);
    }

    TEST_F(Boxes, TakeAYesAndANo)
    {
        BoxesToCome boxes({readAnd(QMessageBox::Yes), readAnd(QMessageBox::No),
                           [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); }});
        EXPECT_TRUE(dialogs.ask({"Try again?"}));
        EXPECT_FALSE(dialogs.ask({"Try again?"}));
        EXPECT_FALSE(dialogs.ask({"Try again?"}));
        EXPECT_EQ(boxes.seen(), 3);
    }

    TEST_F(Boxes, TellAFaultOfAnEntryInTheStatusBar)
    {
        const BoxesToCome boxes;
        dialogs.fault({"The calculation stopped: an overflow while reading the age.", "vantstart.txtage", true});
        EXPECT_EQ(window.statusBar()->currentMessage(),
                  "The calculation stopped: an overflow while reading the age. All entries are kept. Check the age, "
                  "correct it and press Re-Calculate.");
        EXPECT_EQ(boxes.seen(), 0);
    }

    TEST_F(Boxes, TellAFaultOfAButtonAndWhatToTry)
    {
        BoxesToCome boxes({[](QWidget& box) {
            auto& message = asMessageBox(box);
            EXPECT_EQ(message.icon(), QMessageBox::Warning);
            EXPECT_EQ(message.windowTitle(), "Calculation stopped");
            EXPECT_THAT(message.text().toStdString(), HasSubstr("division by zero while rating the time"));
            EXPECT_THAT(message.informativeText().toStdString(), HasSubstr("comparison level"));
            message.accept();
        }});
        dialogs.fault({"The calculation stopped: division by zero while rating the time over 400 m.",
                       "vantstart.Command1", false});
        EXPECT_EQ(boxes.seen(), 1);
    }

    TEST(Advice, FitsWhatStopped)
    {
        const auto advice = [](const char* while_) {
            return adviceFor(
                       {std::string("The calculation stopped: x while ") + while_ + ".", "vantstart.Command1", false})
                .toStdString();
        };
        EXPECT_THAT(advice("reading the age"), HasSubstr("age"));
        EXPECT_THAT(advice("estimating the maximum heart rate"), HasSubstr("age"));
        EXPECT_THAT(advice("rating the time over 400 m"), HasSubstr("comparison level"));
        EXPECT_THAT(advice("reading a heart rate"), HasSubstr("heart rate"));
        EXPECT_THAT(advice("reading line 2 of the personal data file"),
                    HasSubstr("The values before that line are on the main form"));
        EXPECT_THAT(advice("adding a race to the race file"), HasSubstr("A race number is 1 to 32767"));
        EXPECT_THAT(advice("adding a race to the race file"), HasSubstr("times and distances go up to 3.4E+38"));
        EXPECT_THAT(advice("listing race 100 of the race file"), HasSubstr("room for 99 races"));
        EXPECT_THAT(advice("replacing a race of the race file"), HasSubstr("What the file held before is still there"));
        EXPECT_THAT(advice("fitting the race over 5000 m"), HasSubstr("race"));
        EXPECT_THAT(advice("putting the curve together from the races"), HasSubstr("Try fewer races"));
    }

    // --- the same through the whole window

    TEST(MainWindowsBoxes, ComeInTheOrderOfTheMessagesAndThenTheFault)
    {
        const ScratchDirectory folder;
        writeSample(folder.path());
        Windows windows;
        FormWindow& window = *windows.windowOf("vantstart");
        Program program(windows.dialogs(), {}, folder.path());
        windows.show(program);
        start(program);
        VantstartForm& form = *program.vantstart;
        setTicked(form.races[1].Check1, false);
        setTicked(form.races[2].Check1, false);
        setText(form.races[0].Text2, "1");
        setText(form.races[0].Text3, "");
        setText(form.races[0].Text4, ".5");
        setValue(form.HScroll2, 0);
        std::vector<std::string> seen;
        const auto read = [&](QWidget& box) {
            seen.push_back(asMessageBox(box).text().toStdString());
            asMessageBox(box).accept();
        };
        BoxesToCome boxes({read, read, read});
        QTest::mouseClick(window.findChild<QAbstractButton*>("Command1"), Qt::LeftButton);
        ASSERT_EQ(seen.size(), 2U);
        EXPECT_THAT(seen[0], HasSubstr("LONGEST RACE UNDER 800 METERS"));
        EXPECT_THAT(seen[1], HasSubstr("The calculation stopped: division by zero"));
        stop(program);
    }

    TEST(MainWindowsBoxes, LeaveAnEntryAloneAndClearTheStatusBarWithTheNext)
    {
        const ScratchDirectory folder;
        writeSample(folder.path());
        Windows windows;
        FormWindow& window = *windows.windowOf("vantstart");
        Program program(windows.dialogs(), {}, folder.path());
        windows.show(program);
        start(program);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        auto& age = *window.findChild<QLineEdit*>("txtage");
        const BoxesToCome boxes;
        age.selectAll();
        QTest::keyClicks(&age, "1e400");
        EXPECT_EQ(boxes.seen(), 0);
        EXPECT_THAT(window.statusBar()->currentMessage().toStdString(), HasSubstr("an overflow"));
        EXPECT_EQ(age.text(), "1e400");
        QTest::keyClick(&age, Qt::Key_Backspace);
        EXPECT_EQ(window.statusBar()->currentMessage(), "");
        stop(program);
    }
}
