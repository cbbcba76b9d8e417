// A calculation that goes on for more than a second can be stopped, and one that ends leaves no offer behind.

#include "desktop/stop_offer.h"

#include <string>

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QProgressDialog>
#include <QPushButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "boxes_to_come.h"
#include "model/arithmetic.h"
#include "open_window.h"

namespace
{
    constexpr int longerThanPatience = 1100;   // ms

    QProgressDialog* offerOnScreen()
    {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* const offer = qobject_cast<QProgressDialog*>(widget); offer && offer->isVisible())
                return offer;
        return nullptr;
    }

    QPushButton& stopButton(const QProgressDialog& offer)
    {
        auto* const button = offer.findChild<QPushButton*>();
        if (!button)
            throw std::runtime_error("the offer has no button");
        return *button;
    }

    /// Goes on as a search does, asking again and again; returns how long it took until a No, in milliseconds.
    qint64 searchUntilStopped(const std::function<bool()>& goOn, int limit)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < limit && goOn()) {}
        return timer.elapsed();
    }

    TEST(StopOffer, ComesAfterASecondAndIsTaken)
    {
        QWidget window;
        window.show();
        StopOffer offer([&] { return &window; });
        offer.restart();
        EXPECT_TRUE(offer.goOn());
        EXPECT_EQ(offerOnScreen(), nullptr);
        QTest::qWait(longerThanPatience);
        EXPECT_TRUE(offer.goOn());
        QProgressDialog* const shown = offerOnScreen();
        ASSERT_TRUE(shown);
        EXPECT_TRUE(shown->isModal());
        EXPECT_EQ(stopButton(*shown).text().remove('&'), "Stop");
        EXPECT_TRUE(offer.goOn());   // no answer yet
        QTest::mouseClick(&stopButton(*shown), Qt::LeftButton);
        EXPECT_FALSE(offer.goOn());
        EXPECT_EQ(offerOnScreen(), nullptr);
        offer.restart();
        EXPECT_TRUE(offer.goOn());
        EXPECT_EQ(offerOnScreen(), nullptr);
    }

    TEST(StopOffer, IsTakenByEscape)
    {
        StopOffer offer([] { return nullptr; });
        QTest::qWait(longerThanPatience);
        EXPECT_TRUE(offer.goOn());
        QProgressDialog* const shown = offerOnScreen();
        ASSERT_TRUE(shown);
        QTest::keyClick(shown, Qt::Key_Escape);
        EXPECT_FALSE(offer.goOn());
    }

    struct LongCalculation : testing::Test
    {
        ScratchDirectory folder;
        OpenWindow open{(writeSample(folder.path()), folder.path())};
    };

    TEST_F(LongCalculation, StopsWithAFaultThatIsTold)
    {
        open.program.vantstart->Command1.clicked = [&] {
            const qint64 took = searchUntilStopped(open.program.state.goOn, 20000);
            EXPECT_GE(took, 900);
            EXPECT_LE(took, 10000);
            stopWith("a search that was stopped");
        };
        BoxesToCome boxes({[](QWidget& box) { QTest::mouseClick(box.findChild<QPushButton*>(), Qt::LeftButton); }});
        open.click("Command1");
        EXPECT_TRUE(boxes.allMet());
        ASSERT_EQ(open.told.events.size(), 1U);
        EXPECT_THAT(open.told.events[0],
                    testing::HasSubstr("fault: The calculation stopped: a search that was stopped"));
        EXPECT_EQ(offerOnScreen(), nullptr);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

    TEST_F(LongCalculation, ThatEndsByItselfTakesItsOfferAway)
    {
        open.program.vantstart->Command1.clicked = [&] {
            EXPECT_GE(searchUntilStopped(open.program.state.goOn, 1300), 1300);
            EXPECT_TRUE(offerOnScreen());
        };
        open.click("Command1");
        EXPECT_EQ(offerOnScreen(), nullptr);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        open.type("txtage", "41");
        EXPECT_EQ(open.form().txtage.text, "41");
    }

    TEST_F(LongCalculation, IsNotEndedUnderItselfWhenTheWindowIsClosed)
    {
        open.program.vantstart->Command1.clicked = [&] {
            bool asked = false;
            static_cast<void>(searchUntilStopped(
                [&] {
                    const bool more = open.program.state.goOn();
                    if (offerOnScreen() && !asked)
                    {
                        asked = true;
                        open.asWidget().close();   // as a desktop does at the end of a session
                    }
                    return more;
                },
                1300));
            EXPECT_TRUE(asked);
            ASSERT_NE(open.program.vantstart, nullptr);   // what the calculation works on is still there
        };
        open.click("Command1");
    }

    // Three and a half days on the way: the search creeps for some 14000 rounds, and asks.
    TEST_F(LongCalculation, OfARealRaceAsksTheWindow)
    {
        int asked = 0;
        open.program.state.goOn = [&] { return ++asked < 2; };
        enterRace(open.form(), 0, "", "", "304349", "162335", &RaceControls::Option4);
        setTicked(open.form().races[1].Check1, false);
        setTicked(open.form().races[2].Check1, false);
        setText(open.form().txtage, "18");
        setValue(open.form().HScroll1, 5);
        open.click("Command1");
        EXPECT_EQ(asked, 2);
        EXPECT_THAT(open.told.events.back(), testing::HasSubstr("because it took too long"));
    }
}
