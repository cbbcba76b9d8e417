// Windows of tool forms, with a toy: they come when the form is opened, and go with it, whoever closes it.

#include "desktop/windows.h"

#include <memory>
#include <string>
#include <vector>

#include <QCoreApplication>
#include <QEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/text_surface_widget.h"
#include "model/arithmetic.h"
#include "open_window.h"

namespace
{
    struct ToyForm
    {
        explicit ToyForm(Outside& outside)
        {
            close.clicked = [&outside] { outside.closeForm("toy"); };
            surface.page.lines = {"printed"};
        }
        TextBox box{{.name = "box", .caption = "Box", .tip = "Anything"}, "design"};
        Button close{{.name = "close", .caption = "Close", .tip = "Closes"}};
        TextSurface surface{{.name = "surface", .tip = "Lines"}};
        Form form{"toy", "Toy", {&box, &close, &surface}};
    };

    void layOutToy(QMainWindow& window)
    {
        auto* const page = new QWidget;
        auto* const column = new QVBoxLayout(page);
        auto* const box = new QLineEdit;
        box->setObjectName("box");
        auto* const close = new QPushButton("&Close");
        close->setObjectName("close");
        close->setDefault(true);
        auto* const surface = new TextSurfaceWidget;
        surface->setObjectName("surface");
        for (QWidget* widget :
             {static_cast<QWidget*>(box), static_cast<QWidget*>(close), static_cast<QWidget*>(surface)})
            column->addWidget(widget);
        window.setCentralWidget(page);
    }

    Layout layoutWithToy(std::string_view form)
    {
        return form == "toy" ? layOutToy : layoutOfForm(form);
    }

    /// Windows that were told to go do so when events are looked for.
    void letWindowsGo()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }

    struct ToolWindows : testing::Test
    {
        ScratchDirectory folder;
        Told told;
        Windows windows{layoutWithToy};
        Program program{told.dialogs(), {}, (writeSample(folder.path()), folder.path())};
        std::unique_ptr<ToyForm> toy;
        std::vector<std::string> happened;

        ToolWindows()
        {
            program.forms.push_back({"toy", [this]() -> Form* { return toy ? &toy->form : nullptr; },
                                     [this] {
                                         toy = std::make_unique<ToyForm>(program.outside);
                                         toy->form.load = [this] { happened.emplace_back("load"); };
                                         toy->form.opened = [this] { happened.emplace_back("opened"); };
                                         toy->form.unloaded = [this] { happened.emplace_back("unloaded"); };
                                     },
                                     [this] { toy.reset(); }});
            program.forms.push_back({"bare", [] { return static_cast<Form*>(nullptr); }, [] {}, [] {}});
            windows.show(program);
            start(program);
        }
        void open(const std::string& form = "toy")
        {
            enter(program, "vantstart", false, [&] { openForm(program, form); });
        }
        [[nodiscard]] FormWindow& window() { return *windows.windowOf("toy"); }
        template <class Widget>
        [[nodiscard]] Widget& find(const char* name)
        {
            return *window().findChild<Widget*>(name);
        }
    };

    using Happened = std::vector<std::string>;

    TEST_F(ToolWindows, AreThereOnceTheirFormIsOpened)
    {
        EXPECT_EQ(windows.windowOf("toy"), nullptr);
        open();
        ASSERT_TRUE(windows.windowOf("toy"));
        EXPECT_TRUE(window().isVisible());
        EXPECT_EQ(window().windowTitle(), "Toy");
        EXPECT_EQ(windows.mismatches.join(", "), "");
        EXPECT_EQ(find<QLineEdit>("box").text(), "design");
        EXPECT_EQ(happened, (Happened{"load", "opened"}));
        QTest::keyClick(&find<QLineEdit>("box"), Qt::Key_End);
        QTest::keyClicks(&find<QLineEdit>("box"), "!");
        EXPECT_EQ(toy->box.text, "design!");
    }

    TEST_F(ToolWindows, ComeToTheFrontWhenTheyAreOpenedAgain)
    {
        open();
        const FormWindow* const first = &window();
        window().showMinimized();
        open();
        EXPECT_EQ(&window(), first);
        EXPECT_FALSE(window().isMinimized());
        EXPECT_EQ(happened, (Happened{"load", "opened", "opened"}));
    }

    class ClosedBy : public ToolWindows, public testing::WithParamInterface<const char*>
    {};

    TEST_P(ClosedBy, UnloadsTheForm)
    {
        open();
        setText(toy->box, "changed");
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
        const std::string by = GetParam();
        const QPointer<FormWindow> shown = &window();
        if (by == "button")
            QTest::mouseClick(&find<QPushButton>("close"), Qt::LeftButton);
        else if (by == "enter")
            QTest::keyClick(&find<QLineEdit>("box"), Qt::Key_Return);
        else if (by == "escape")
            QTest::keyClick(&find<QLineEdit>("box"), Qt::Key_Escape);
        else if (by == "frame")
            window().close();
        else
            stop(program);
        EXPECT_EQ(toy, nullptr);
        EXPECT_EQ(windows.windowOf("toy"), nullptr);
        EXPECT_EQ(happened, (Happened{"load", "opened", "unloaded"}));
        letWindowsGo();
        EXPECT_TRUE(shown.isNull());
        if (by == "end")
            return;
        EXPECT_TRUE(windows.windowOf("vantstart")->isVisible());
        open();
        EXPECT_EQ(find<QLineEdit>("box").text(), "design");
    }

    INSTANTIATE_TEST_SUITE_P(AnyWay, ClosedBy, testing::Values("button", "enter", "escape", "frame", "end"),
                             [](const auto& row) { return std::string(row.param); });

    TEST_F(ToolWindows, GoWithTheirMenuOpen)
    {
        open();
        auto& surface = find<TextSurfaceWidget>("surface");
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, surface.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(surface.viewport(), &event);
        ASSERT_TRUE(QApplication::activePopupWidget());
        window().close();
        letWindowsGo();
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_EQ(toy, nullptr);
    }

    TEST_F(ToolWindows, AreShownThoughTheirLoadFaults)
    {
        const Event build = program.forms[program.forms.size() - 2].build;
        program.forms[program.forms.size() - 2].build = [this, build] {
            build();
            toy->form.load = [] { stopWith("a division by zero"); };
        };
        open();
        ASSERT_TRUE(windows.windowOf("toy"));
        EXPECT_TRUE(window().isVisible());
        EXPECT_EQ(told.events, Happened{"fault: The calculation stopped: a division by zero."});
    }

    TEST_F(ToolWindows, GoThoughTheirUnloadFaults)
    {
        open();
        toy->form.unloaded = [] { stopWith("a division by zero"); };
        window().close();
        EXPECT_EQ(toy, nullptr);
        EXPECT_EQ(told.events, Happened{"fault: The calculation stopped: a division by zero."});
        open();
        EXPECT_TRUE(window().isVisible());
    }

    TEST_F(ToolWindows, OpenAndCloseAThousandTimesAndLeaveNothing)
    {
        letWindowsGo();
        const auto before = QApplication::allWidgets().size();
        for (int i = 0; i < 1000; ++i)
        {
            open();
            QTest::mouseClick(&find<QPushButton>("close"), Qt::LeftButton);
            letWindowsGo();
        }
        EXPECT_EQ(QApplication::allWidgets().size(), before);
    }

    // A form's fault while somebody types is told where it was typed, with what to try.
    TEST_F(ToolWindows, TellAFaultOfAnEntryInTheirOwnStatusBar)
    {
        open();
        const Dialogs dialogs = windows.dialogs();
        dialogs.fault({"The calculation stopped: a division by zero while reading the age.", "toy.box", true});
        EXPECT_THAT(window().statusBar()->currentMessage().toStdString(),
                    testing::AllOf(testing::HasSubstr("a division by zero while reading the age."),
                                   testing::HasSubstr("Check the age")));
    }
}
