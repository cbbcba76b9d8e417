// Every kind of control follows its record, and the record follows what a person does, on a small window of its own.

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

#include "desktop/binder.h"
#include "desktop/picture_widget.h"
#include "desktop/text_surface_widget.h"
#include "model/arithmetic.h"
#include "open_window.h"

namespace
{
    struct AllKinds
    {
        TextBox box{{.name = "box", .caption = "Box:", .tip = "what it holds"}, "first"};
        Label label{{.name = "label", .caption = "Result"}};
        OptionButton left{{.name = "left", .caption = "Left"}};
        OptionButton right{{.name = "right", .caption = "Right"}};
        OptionGroup sides{{&left, &right}};
        OptionButton up{{.name = "up", .caption = "Up"}, true};
        OptionButton down{{.name = "down", .caption = "Down"}};
        OptionGroup heights{{&up, &down}};
        OptionButton alone{{.name = "alone", .caption = "Alone"}};
        CheckBox tick{{.name = "tick", .caption = "Tick"}};
        Button button{{.name = "button", .caption = "Press"}};
        Button known{{.name = "known", .caption = "Known"}, {}, "vantstart"};
        Button unknown{{.name = "unknown", .caption = "Unknown"}, {}, "noform"};
        ScrollBar bar{{.name = "bar"}, 20, 10, 60, 2, 5};
        ListBox list{{.name = "list"}, {"one", "two", "three"}};
        MenuItem menu{{.name = "menu", .caption = "Menu"}};
        MenuItem item{{.name = "item", .caption = "Item"}, "menu"};
        MenuItem unknownItem{{.name = "unknownItem", .caption = "Unknown"}, "menu", false, {}, "noform"};
        TextSurface surface{{.name = "surface"}};
        Picture picture{{.name = "picture"}};
        Form form{"kinds",
                  "Kinds",
                  {&box, &label, &left, &right, &up, &down, &alone, &tick, &button, &known, &unknown, &bar, &list,
                   &menu, &item, &unknownItem, &surface, &picture}};

        std::vector<std::string> events;

        AllKinds()
        {
            for (OptionGroup* group : {&sides, &heights})
                for (OptionButton* option : group->members)
                    option->group = group;
            box.changed = [this] { events.push_back("box " + box.text); };
            for (OptionButton* option : {&left, &right, &up, &down, &alone})
                option->clicked = [this, option] { events.push_back(option->name); };
            tick.clicked = [this] { events.emplace_back(tick.ticked ? "tick on" : "tick off"); };
            for (Button* one : {&button, &known, &unknown})
                one->clicked = [this, one] { events.push_back(one->name); };
            bar.changed = [this] { events.push_back("bar " + std::to_string(bar.value)); };
            list.clicked = [this] { events.push_back("list " + std::to_string(list.selected)); };
            item.clicked = [this] { events.emplace_back("item"); };
            unknownItem.clicked = [this] { events.emplace_back("unknownItem"); };
            picture.size = {100, 50};
        }
    };

    struct Window
    {
        Told told;
        ScratchDirectory folder;
        Program program{told.dialogs(), {}, folder.path()};
        AllKinds kinds;
        QMainWindow window;
        std::unique_ptr<QObject> lifetime = std::make_unique<QObject>();
        QWidget* const page = new QWidget;
        QStringList mismatches;

        Window()
        {
            auto* const grid = new QGridLayout(page);
            grid->addWidget(named<QLineEdit>("box"));
            grid->addWidget(named<QLabel>("label"));
            for (const char* option : {"left", "right", "up", "down", "alone"})
                grid->addWidget(named<QRadioButton>(option));
            grid->addWidget(named<QCheckBox>("tick"));
            for (const char* button : {"button", "known", "unknown"})
                grid->addWidget(named<QPushButton>(button));
            auto* const bar = named<QScrollBar>("bar");
            bar->setOrientation(Qt::Horizontal);
            bar->setFocusPolicy(Qt::StrongFocus);
            bar->setMinimumWidth(200);
            grid->addWidget(bar);
            grid->addWidget(named<QListWidget>("list"), 0, 1, 6, 1);
            grid->addWidget(named<TextSurfaceWidget>("surface"), 6, 1, 4, 1);
            grid->addWidget(named<PictureWidget>("picture"), 10, 1, 4, 1);
            window.setCentralWidget(page);
            auto* const menu = new QMenu(window.menuBar());
            menu->setObjectName("menu");
            window.menuBar()->addMenu(menu);
            for (const char* name : {"item", "unknownItem"})
            {
                auto* const action = new QAction(name, &window);
                action->setObjectName(name);
                action->setCheckable(true);
                menu->addAction(action);
            }
            mismatches = bindForm(program, kinds.form, window, *lifetime);
            window.resize(640, 640);
            window.show();
            if (!QTest::qWaitForWindowActive(&window))
                throw std::runtime_error("the window does not become active");
        }

        template <class Widget>
        Widget* named(const char* name)
        {
            auto* const widget = new Widget(page);
            widget->setObjectName(name);
            return widget;
        }
        template <class Widget>
        Widget& find(const char* name)
        {
            auto* const widget = window.findChild<Widget*>(name);
            if (!widget)
                throw std::runtime_error(std::string("no widget ") + name);
            return *widget;
        }
        std::vector<std::string> events() { return std::exchange(kinds.events, {}); }
    };

    using Events = std::vector<std::string>;

    TEST(AllKindsOfControls, FindTheirWidgets)
    {
        Window open;
        EXPECT_EQ(open.mismatches.join(", "), "");
        EXPECT_EQ(open.window.windowTitle(), "Kinds");
        EXPECT_EQ(open.events(), Events{});
        setTitle(open.kinds.form, "Kinds of controls");
        EXPECT_EQ(open.window.windowTitle(), "Kinds of controls");
    }

    TEST(TextBoxes, TellAChangeAtEachKeystroke)
    {
        Window open;
        auto& edit = open.find<QLineEdit>("box");
        EXPECT_EQ(edit.text(), "first");
        edit.setFocus();
        edit.end(false);
        QTest::keyClicks(&edit, "ab");
        QTest::keyClick(&edit, Qt::Key_Backspace);
        EXPECT_EQ(open.events(), (Events{"box firsta", "box firstab", "box firsta"}));
        EXPECT_EQ(open.kinds.box.text, "firsta");
    }

    TEST(TextBoxes, FollowTheRecordAndKeepTheCursor)
    {
        Window open;
        auto& edit = open.find<QLineEdit>("box");
        edit.setFocus();
        edit.setCursorPosition(2);
        setText(open.kinds.box, "second");
        EXPECT_EQ(edit.text(), "second");
        EXPECT_EQ(edit.cursorPosition(), 2);
        EXPECT_EQ(open.events(), Events{"box second"});
        setText(open.kinds.box, "x");
        EXPECT_EQ(edit.cursorPosition(), 1);
    }

    TEST(TextBoxes, KeepTheCursorAndUndoWhileTyping)
    {
        Window open;
        auto& edit = open.find<QLineEdit>("box");
        edit.setFocus();
        edit.setCursorPosition(2);
        QTest::keyClick(&edit, 'x');
        EXPECT_EQ(edit.text(), "fixrst");
        EXPECT_EQ(edit.cursorPosition(), 3);
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(edit.text(), "first");
        EXPECT_EQ(open.kinds.box.text, "first");
    }

    TEST(TextBoxes, ShowWhatTheFormMakesOfAnEntry)
    {
        Window open;
        open.kinds.box.changed = [&] {
            if (open.kinds.box.text == "firstx")
                setText(open.kinds.box, "changed");
        };
        auto& edit = open.find<QLineEdit>("box");
        edit.setFocus();
        edit.end(false);
        QTest::keyClick(&edit, 'x');
        EXPECT_EQ(edit.text(), "changed");
        EXPECT_EQ(open.kinds.box.text, "changed");
    }

    /// Something that people paste, by mistake or not.
    struct Pasted
    {
        const char* name;
        QString text;
    };

    class PastedText : public testing::TestWithParam<Pasted>
    {};

    TEST_P(PastedText, GoesToTheRecordAsItIsShown)
    {
        Window open;
        auto& edit = open.find<QLineEdit>("box");
        QApplication::clipboard()->setText(GetParam().text);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
        EXPECT_FALSE(edit.text().isEmpty());
        EXPECT_EQ(open.kinds.box.text, edit.text().toStdString());
        EXPECT_EQ(open.events().size(), 1U);
        QTest::keyClick(&edit, 'x');
        EXPECT_EQ(open.kinds.box.text, edit.text().toStdString());
        const QImage shown = open.window.grab().toImage();
        EXPECT_FALSE(shown.isNull());
    }

    INSTANTIATE_TEST_SUITE_P(OfAllSorts, PastedText,
                             testing::Values(Pasted{"a_megabyte", QString(1000000, '7')},
                                             Pasted{"control_characters", QString("4\x01\x02\x1b[31m0\x7f")},
                                             Pasted{"line_ends_and_tabs", QString("4\n0\r\n5\t6")},
                                             Pasted{"right_to_left", QString::fromUtf8("עדה לוי مرحبا")},
                                             Pasted{"a_right_to_left_override", QString("12") + QChar(0x202e) + "34"},
                                             Pasted{"emoji", QString::fromUtf8("🏃🏽‍♀️ 42")},
                                             Pasted{"half_an_emoji", QString("1") + QChar(0xd83c) + "2"},
                                             Pasted{"markup", QString("<b>Joe</b> &amp; <img src=x>")},
                                             Pasted{"a_null_character", QString("1") + QChar(0) + "2"}),
                             [](const auto& row) { return row.param.name; });

    TEST(TextBoxes, ShowTextThatIsNoUtf8WithoutTakingPartOfIt)
    {
        Window open;
        auto& edit = open.find<QLineEdit>("box");
        setText(open.kinds.box, std::string("a\xff\0b", 4));
        EXPECT_EQ(edit.text().size(), 4);
        EXPECT_EQ(open.kinds.box.text.size(), 4U);
    }

    TEST(TextBoxes, LetARecordsEventFailWithoutLosingTheEntry)
    {
        Window open;
        open.kinds.box.changed = [&] {
            open.program.state.activity = "reading the box";
            static_cast<void>(quotient(1, 0));
        };
        auto& edit = open.find<QLineEdit>("box");
        edit.setFocus();
        edit.end(false);
        QTest::keyClick(&edit, 'x');
        EXPECT_EQ(edit.text(), "firstx");
        EXPECT_EQ(open.kinds.box.text, "firstx");
        EXPECT_EQ(open.told.events, Events{"status: The calculation stopped: division by zero while reading the box."});
    }

    TEST(Labels, ShowCaptionAndColourAndNoMarkup)
    {
        Window open;
        auto& label = open.find<QLabel>("label");
        EXPECT_EQ(label.text(), "Result");
        setCaption(open.kinds.label, "<b>12</b> & more");
        label.adjustSize();
        // what is on screen must be as wide as these characters
        EXPECT_GE(label.sizeHint().width(), label.fontMetrics().horizontalAdvance("<b>12</b> & more"));
        EXPECT_LE(label.sizeHint().width(), label.fontMetrics().horizontalAdvance("<b>12</b> & more") + 8);
        setCaption(open.kinds.label, "");
        EXPECT_EQ(label.text(), "");
    }

    TEST(Labels, TakeEachColourAndGoBackToTheirOwn)
    {
        Window open;
        auto& label = open.find<QLabel>("label");
        const auto colour = [&label] {
            label.ensurePolished();
            return label.palette().color(QPalette::WindowText);
        };
        const QColor own = colour();
        setColour(open.kinds.label, {200, 0, 0});
        EXPECT_EQ(colour(), QColor(200, 0, 0));
        setColour(open.kinds.label, {0, 0, 0});
        EXPECT_EQ(colour(), own);
    }

    TEST(Options, OfOneGroupExcludeEachOtherAndNoOtherGroup)
    {
        Window open;
        auto& left = open.find<QRadioButton>("left");
        auto& right = open.find<QRadioButton>("right");
        auto& up = open.find<QRadioButton>("up");
        auto& down = open.find<QRadioButton>("down");
        EXPECT_FALSE(left.isChecked() || right.isChecked() || down.isChecked());
        EXPECT_TRUE(up.isChecked());
        QTest::mouseClick(&left, Qt::LeftButton, Qt::NoModifier, {8, left.height() / 2});
        EXPECT_TRUE(left.isChecked() && up.isChecked());
        QTest::mouseClick(&right, Qt::LeftButton, Qt::NoModifier, {8, right.height() / 2});
        EXPECT_TRUE(right.isChecked() && up.isChecked());
        EXPECT_FALSE(left.isChecked() || open.kinds.left.chosen);
        EXPECT_TRUE(open.kinds.right.chosen && open.kinds.up.chosen);
        EXPECT_EQ(open.events(), (Events{"left", "right"}));
        QTest::mouseClick(&right, Qt::LeftButton, Qt::NoModifier, {8, right.height() / 2});
        EXPECT_TRUE(right.isChecked() && open.kinds.right.chosen);
        EXPECT_EQ(open.events(), Events{});
    }

    TEST(Options, CanAllBeOffAgain)
    {
        Window open;
        auto& up = open.find<QRadioButton>("up");
        setChosen(open.kinds.up, false);
        EXPECT_FALSE(up.isChecked());
        EXPECT_FALSE(open.find<QRadioButton>("down").isChecked());
        setChosen(open.kinds.down, true);
        EXPECT_TRUE(open.find<QRadioButton>("down").isChecked());
        setChosen(open.kinds.up, true);
        EXPECT_TRUE(up.isChecked());
        EXPECT_FALSE(open.find<QRadioButton>("down").isChecked());
        EXPECT_EQ(open.events(), (Events{"down", "up"}));
    }

    TEST(Options, AreChosenByArrowsAndBySpace)
    {
        Window open;
        auto& left = open.find<QRadioButton>("left");
        left.setFocus();
        QTest::keyClick(&left, Qt::Key_Space);
        EXPECT_TRUE(open.kinds.left.chosen);
        QTest::keyClick(&left, Qt::Key_Down);
        EXPECT_TRUE(open.kinds.right.chosen);
        EXPECT_FALSE(open.kinds.left.chosen);
        EXPECT_EQ(QApplication::focusWidget(), &open.find<QRadioButton>("right"));
        EXPECT_EQ(open.events(), (Events{"left", "right"}));
    }

    TEST(Options, ThatStandAloneStayOnceChosen)
    {
        Window open;
        auto& alone = open.find<QRadioButton>("alone");
        QTest::mouseClick(&alone, Qt::LeftButton, Qt::NoModifier, {8, alone.height() / 2});
        EXPECT_TRUE(open.kinds.alone.chosen && alone.isChecked());
        EXPECT_TRUE(open.kinds.up.chosen && open.find<QRadioButton>("up").isChecked());
        EXPECT_EQ(open.events(), Events{"alone"});
    }

    TEST(CheckBoxes, FollowBothWays)
    {
        Window open;
        auto& tick = open.find<QCheckBox>("tick");
        QTest::mouseClick(&tick, Qt::LeftButton, Qt::NoModifier, {8, tick.height() / 2});
        EXPECT_TRUE(open.kinds.tick.ticked);
        QTest::keyClick(&tick, Qt::Key_Space);
        EXPECT_FALSE(open.kinds.tick.ticked);
        EXPECT_EQ(open.events(), (Events{"tick on", "tick off"}));
        setTicked(open.kinds.tick, true);
        EXPECT_TRUE(tick.isChecked());
        EXPECT_EQ(open.events(), Events{"tick on"});
    }

    TEST(Buttons, FireOnceAClick)
    {
        Window open;
        auto& button = open.find<QPushButton>("button");
        QTest::mouseClick(&button, Qt::LeftButton);
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space);
        EXPECT_EQ(open.events(), (Events{"button", "button"}));
        setCaption(open.kinds.button, "Hills & wind");
        EXPECT_EQ(button.text(), "Hills && wind");
    }

    TEST(Buttons, KeepTheMnemonicOfTheFormFile)
    {
        Window open;
        auto& button = open.find<QPushButton>("button");
        button.setText("P&ress");
        notifyShown(open.kinds.button);
        EXPECT_EQ(button.text(), "P&ress");
    }

    TEST(Openers, OfFormsThatTheProgramHasNotCanNotBeUsed)
    {
        Window open;
        EXPECT_TRUE(open.kinds.unknown.enabled);
        EXPECT_FALSE(open.find<QPushButton>("unknown").isEnabled());
        EXPECT_TRUE(open.find<QPushButton>("known").isEnabled());
        EXPECT_FALSE(open.find<QAction>("unknownItem").isEnabled());
        EXPECT_TRUE(open.find<QAction>("item").isEnabled());
        setEnabled(open.kinds.unknown, false);
        setEnabled(open.kinds.unknown, true);
        EXPECT_FALSE(open.find<QPushButton>("unknown").isEnabled());
    }

    TEST(ScrollBars, TakeRangeStepsAndValueFromTheRecord)
    {
        Window open;
        auto& bar = open.find<QScrollBar>("bar");
        EXPECT_EQ(bar.minimum(), 10);
        EXPECT_EQ(bar.maximum(), 60);
        EXPECT_EQ(bar.singleStep(), 2);
        EXPECT_EQ(bar.pageStep(), 5);
        EXPECT_EQ(bar.value(), 20);
        setValue(open.kinds.bar, 33);
        EXPECT_EQ(bar.value(), 33);
        EXPECT_EQ(open.events(), Events{"bar 33"});
        open.kinds.bar.min = 40;
        open.kinds.bar.max = 90;
        open.kinds.bar.value = 80;
        notifyShown(open.kinds.bar);
        EXPECT_EQ(bar.minimum(), 40);
        EXPECT_EQ(bar.maximum(), 90);
        EXPECT_EQ(bar.value(), 80);
        EXPECT_EQ(open.events(), Events{});
    }

    TEST(ScrollBars, ChangeByKeysPagesAndWheel)
    {
        Window open;
        auto& bar = open.find<QScrollBar>("bar");
        bar.setFocus();
        QTest::keyClick(&bar, Qt::Key_Right);
        QTest::keyClick(&bar, Qt::Key_Right);
        QTest::keyClick(&bar, Qt::Key_Left);
        QTest::keyClick(&bar, Qt::Key_End);
        QTest::keyClick(&bar, Qt::Key_Home);
        EXPECT_EQ(open.events(), (Events{"bar 22", "bar 24", "bar 22", "bar 60", "bar 10"}));
        setValue(open.kinds.bar, 30);
        QTest::keyClick(&bar, Qt::Key_PageUp);
        EXPECT_EQ(std::abs(open.kinds.bar.value - 30), 5);
        QTest::keyClick(&bar, Qt::Key_PageDown);
        EXPECT_EQ(open.kinds.bar.value, 30);
    }

    TEST(ScrollBars, ScrollWhileDraggedAndChangeWhenLetGo)
    {
        Window open;
        open.kinds.bar.scrolled = [&] {
            open.kinds.events.push_back("scroll " + std::to_string(open.kinds.bar.value));
        };
        auto& bar = open.find<QScrollBar>("bar");
        pullBar(bar, 6, 8);
        const Events scrolled = open.events();
        ASSERT_FALSE(scrolled.empty());
        for (const std::string& event : scrolled)
            EXPECT_EQ(event.rfind("scroll ", 0), 0U) << event;
        EXPECT_EQ(scrolled.back(), "scroll " + std::to_string(bar.value()));
        EXPECT_EQ(open.kinds.bar.value, bar.value());
        EXPECT_GT(bar.value(), 20);
        letGo(bar);
        EXPECT_EQ(open.events(), Events{"bar " + std::to_string(bar.value())});
    }

    TEST(ScrollBars, WithoutAScrollEventChangeWhileDragged)
    {
        Window open;
        auto& bar = open.find<QScrollBar>("bar");
        pullBar(bar, 1, 20);
        EXPECT_EQ(open.events(), Events{"bar " + std::to_string(bar.value())});
    }

    TEST(ScrollBars, FireNothingWhenOnlyPressed)
    {
        Window open;
        auto& bar = open.find<QScrollBar>("bar");
        pullBar(bar, 0, 0);
        EXPECT_EQ(open.events(), Events{});
        EXPECT_EQ(open.kinds.bar.value, 20);
    }

    TEST(ScrollBars, ShowTheRecordsValueWhereItDoesNotFollow)
    {
        Window open;
        open.kinds.bar.changed = [&] {
            if (open.kinds.bar.value > 30)
                setValue(open.kinds.bar, 30);
        };
        auto& bar = open.find<QScrollBar>("bar");
        bar.setFocus();
        QTest::keyClick(&bar, Qt::Key_End);
        EXPECT_EQ(open.kinds.bar.value, 30);
        EXPECT_EQ(bar.value(), 30);
    }

    TEST(Lists, ShowTheirItemsAndTellTheSelection)
    {
        Window open;
        auto& list = open.find<QListWidget>("list");
        ASSERT_EQ(list.count(), 3);
        EXPECT_EQ(list.item(1)->text(), "two");
        EXPECT_TRUE(list.selectedItems().isEmpty());
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, list.visualItemRect(list.item(1)).center());
        EXPECT_EQ(open.kinds.list.selected, 1);
        QTest::keyClick(&list, Qt::Key_Down);
        EXPECT_EQ(open.kinds.list.selected, 2);
        EXPECT_EQ(open.events(), (Events{"list 1", "list 2"}));
        select(open.kinds.list, 0);
        EXPECT_EQ(list.currentRow(), 0);
        EXPECT_EQ(open.events(), Events{"list 0"});
        select(open.kinds.list, -1);
        EXPECT_TRUE(list.selectedItems().isEmpty());
    }

    TEST(Lists, TakeNewItems)
    {
        Window open;
        auto& list = open.find<QListWidget>("list");
        select(open.kinds.list, 2);
        open.kinds.list.items = {"four", "five & six"};
        open.kinds.list.selected = 1;
        notifyShown(open.kinds.list);
        ASSERT_EQ(list.count(), 2);
        EXPECT_EQ(list.item(1)->text(), "five & six");
        EXPECT_EQ(list.currentRow(), 1);
    }

    TEST(Lists, SelectNothingBecauseTheyGetTheFocus)
    {
        Window open;
        auto& list = open.find<QListWidget>("list");
        list.setFocus(Qt::TabFocusReason);
        EXPECT_EQ(open.events(), Events{});
        EXPECT_EQ(open.kinds.list.selected, -1);
    }

    TEST(MenuItems, TickAndFire)
    {
        Window open;
        auto& item = open.find<QAction>("item");
        EXPECT_EQ(open.find<QMenu>("menu").title(), "Menu");
        EXPECT_EQ(item.text(), "Item");
        EXPECT_FALSE(item.isChecked());
        setTicked(open.kinds.item, true);
        EXPECT_TRUE(item.isChecked());
        item.trigger();   // toggles by itself; the record stays ticked, and so must the item
        EXPECT_EQ(open.events(), Events{"item"});
        EXPECT_TRUE(item.isChecked());
        setVisible(open.kinds.item, false);
        EXPECT_FALSE(item.isVisible());
        setEnabled(open.kinds.menu, false);
        EXPECT_FALSE(open.find<QMenu>("menu").menuAction()->isEnabled());
    }

    TEST(Surfaces, ShowTheirLines)
    {
        Window open;
        auto& surface = open.find<TextSurfaceWidget>("surface");
        EXPECT_EQ(surface.toPlainText(), "");
        printLine(open.kinds.surface.page, "   400 m   1:06");
        printLine(open.kinds.surface.page, "<b>800 m</b>");
        notifyShown(open.kinds.surface);
        EXPECT_EQ(surface.toPlainText(), "   400 m   1:06\n<b>800 m</b>");
        EXPECT_TRUE(surface.isReadOnly());
        clear(open.kinds.surface.page);
        notifyShown(open.kinds.surface);
        EXPECT_EQ(surface.toPlainText(), "");
    }

    TEST(PictureControls, TellWhereTheMouseIsInTheirOwnUnits)
    {
        Window open;
        std::vector<Point> pressed;
        std::vector<Point> moved;
        open.kinds.picture.pressed = [&](Point at) { pressed.push_back(at); };
        open.kinds.picture.moved = [&](Point at) { moved.push_back(at); };
        auto& picture = open.find<PictureWidget>("picture");
        const QPoint middle(picture.width() / 2, picture.height() / 2);
        QTest::mouseMove(&picture, middle + QPoint(1, 1));
        QTest::mouseMove(&picture, middle);
        QTest::mouseClick(&picture, Qt::LeftButton, Qt::NoModifier, middle);
        ASSERT_EQ(pressed.size(), 1U);
        ASSERT_FALSE(moved.empty());
        const double unit = std::max(100.0 / picture.width(), 50.0 / picture.height());   // of one pixel
        EXPECT_NEAR(pressed[0].x, 50, unit);
        EXPECT_NEAR(pressed[0].y, 25, unit);
        EXPECT_NEAR(moved.back().x, 50, unit);
        EXPECT_NEAR(moved.back().y, 25, unit);
    }

    TEST(EnabledAndVisible, GoToTheWidgetOfEachKind)
    {
        Window open;
        for (const ControlRef& control : open.kinds.form.controls)
        {
            Control& record = common(control);
            auto* const widget = open.window.findChild<QWidget*>(record.name.c_str());
            if (!widget || record.name == "menu")
                continue;
            setEnabled(record, false);
            EXPECT_FALSE(widget->isEnabled()) << record.name;
            setVisible(record, false);
            EXPECT_FALSE(widget->isVisible()) << record.name;
            setVisible(record, true);
            EXPECT_TRUE(widget->isVisible()) << record.name;
            setEnabled(record, true);
            EXPECT_EQ(widget->isEnabled(), record.name != "unknown") << record.name;
        }
        EXPECT_EQ(open.events(), Events{});
    }

    TEST(Tips, AreShownAndReadAloud)
    {
        Window open;
        const auto& edit = open.find<QLineEdit>("box");
        EXPECT_EQ(edit.toolTip(), "what it holds");
        EXPECT_EQ(edit.accessibleDescription(), "what it holds");
        EXPECT_EQ(edit.accessibleName(), "Box:");
    }

    TEST(Connections, EndWithTheirLifetime)
    {
        Window open;
        open.lifetime.reset();
        auto& edit = open.find<QLineEdit>("box");
        edit.setFocus();
        QTest::keyClick(&edit, 'x');
        QTest::mouseClick(&open.find<QPushButton>("button"), Qt::LeftButton);
        EXPECT_EQ(open.events(), Events{});
        EXPECT_EQ(open.kinds.box.text, "first");
    }
}
