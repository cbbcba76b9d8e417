// The window of race files: drives, folders and files by mouse and by keyboard; words that stand over their columns.

#include <string>

#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "datafiles/race_record.h"
#include "desktop/binder.h"
#include "open_window.h"

namespace
{
    namespace fs = std::filesystem;
    using testing::ElementsAre;

    std::string threeRaces()
    {
        return bytesOf(recordOf({"1", "", "19", "20.5", "5", 3, "Parkrun, wet"})) +
               bytesOf(recordOf({"2", "", "40", "", "10", 1, "Z\u00fcrich"})) +
               bytesOf(recordOf({"3", "3", "10", "", "", 6, ""}));
    }

    struct FilesWindow : testing::Test
    {
        ScratchDirectory folder;
        OpenWindow open{(fill(folder.path()), folder.path())};
        FormWindow* window = nullptr;

        static void fill(const fs::path& path)
        {
            writeSample(path);
            writeFile(path / "a.vtc", threeRaces());
            writeFile(path / "b.vtc", "");
            fs::create_directories(path / "inner \u00fc/deep");
            writeFile(path / "inner \u00fc/c.vtc", threeRaces());
        }
        void SetUp() override
        {
            enter(open.program, "vantstart", false, [&] { openForm(open.program, "fileacc"); });
            window = open.windows.windowOf("fileacc");
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
        [[nodiscard]] QListWidget& list(const char* name) { return find<QListWidget>(name); }
        [[nodiscard]] std::string name() { return find<QLineEdit>("Text6").text().toStdString(); }
        [[nodiscard]] std::vector<std::string> items(const char* name)
        {
            std::vector<std::string> texts;
            for (int row = 0; row < list(name).count(); ++row)
                texts.push_back(list(name).item(row)->text().toStdString());
            return texts;
        }
        void click(const char* name, int row)
        {
            QListWidget& widget = list(name);
            const QPoint at = widget.visualItemRect(widget.item(row)).center();
            QTest::mouseClick(widget.viewport(), Qt::LeftButton, Qt::NoModifier, at);
        }
        void doubleClick(const char* name, int row)
        {
            click(name, row);
            QListWidget& widget = list(name);
            const QPoint at = widget.visualItemRect(widget.item(row)).center();
            QTest::mouseDClick(widget.viewport(), Qt::LeftButton, Qt::NoModifier, at);
        }
        void press(const char* button) { QTest::mouseClick(&find<QPushButton>(button), Qt::LeftButton); }
        [[nodiscard]] std::string at(const std::string& file) const { return (folder.path() / file).string(); }
    };

    TEST_F(FilesWindow, TakesAFileWithAClick)
    {
        click("File1", 0);
        EXPECT_EQ(name(), folder.path().string() + "\\a.vtc");
        press("Command4");
        EXPECT_EQ(list("List1").count(), 3);
        EXPECT_TRUE(find<QPushButton>("Command1").isEnabled());
        click("File1", 0);   // the open file
        EXPECT_TRUE(find<QPushButton>("Command1").isEnabled());
        click("File1", 1);
        EXPECT_EQ(name(), folder.path().string() + "\\b.vtc");
        EXPECT_FALSE(find<QPushButton>("Command1").isEnabled());
    }

    TEST_F(FilesWindow, TakesAFileWithTheArrowKeys)
    {
        list("File1").setFocus();
        QTest::keyClick(&list("File1"), Qt::Key_Down);
        QTest::keyClick(&list("File1"), Qt::Key_Down);
        EXPECT_EQ(name(), folder.path().string() + "\\b.vtc");
    }

    TEST_F(FilesWindow, TakesTheSelectedItemAnew)
    {
        click("File1", 0);
        QTest::keyClick(&find<QLineEdit>("Text6"), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&find<QLineEdit>("Text6"), "other");
        EXPECT_EQ(name(), "other");
        click("File1", 0);
        EXPECT_EQ(name(), folder.path().string() + "\\a.vtc");
    }

    TEST_F(FilesWindow, EntersAFolderWithADoubleClick)
    {
        EXPECT_THAT(items("Dir1"), ElementsAre("..", "inner \u00fc"));
        click("Dir1", 1);
        EXPECT_EQ(open.program.currentFolder, folder.path());
        doubleClick("Dir1", 1);
        EXPECT_EQ(open.program.currentFolder, folder.path() / "inner \u00fc");
        EXPECT_THAT(items("Dir1"), ElementsAre("..", "deep"));
        EXPECT_THAT(items("File1"), ElementsAre("c.vtc"));
        EXPECT_EQ(window->windowTitle().toStdString(), "File Access for Saved Races - " + at("inner \u00fc"));
        doubleClick("Dir1", 0);
        EXPECT_EQ(open.program.currentFolder, folder.path());
    }

    TEST_F(FilesWindow, EntersAFolderWithEnter)
    {
        QListWidget& folders = list("Dir1");
        folders.setFocus();
        QTest::keyClick(&folders, Qt::Key_Down);
        QTest::keyClick(&folders, Qt::Key_Down);
        EXPECT_EQ(open.program.currentFolder, folder.path());   // the arrows alone go nowhere
        QTest::keyClick(&folders, Qt::Key_Return);
        EXPECT_EQ(open.program.currentFolder, folder.path() / "inner \u00fc");
        QTest::keyClick(&folders, Qt::Key_Down);
        QTest::keyClick(&folders, Qt::Key_Enter);
        EXPECT_EQ(open.program.currentFolder, folder.path());
        EXPECT_TRUE(folders.hasFocus());
    }

    TEST_F(FilesWindow, MakesADriveTheCurrentOneByTheKeyboard)
    {
        QListWidget& drives = list("Drive1");
        drives.setFocus();
        QTest::keyClick(&drives, Qt::Key_Home);
        EXPECT_EQ(drives.currentRow(), 0);
        EXPECT_EQ(open.program.currentFolder, folder.path());
        QTest::keyClick(&drives, Qt::Key_Return);
        EXPECT_EQ(open.program.currentFolder, "/");
    }

    TEST_F(FilesWindow, MakesADriveTheCurrentOne)
    {
        const int root = list("Drive1").row(list("Drive1").findItems("/", Qt::MatchExactly).value(0));
        doubleClick("Drive1", root);
        EXPECT_EQ(open.program.currentFolder, "/");
        EXPECT_EQ(list("Drive1").currentRow(), root);
    }

    TEST_F(FilesWindow, CanBeWorkedByTheKeyboardAlone)
    {
        QTest::keyClick(window->focusWidget(), Qt::Key_F, Qt::AltModifier);
        EXPECT_TRUE(list("File1").hasFocus());
        QTest::keyClick(window->focusWidget(), Qt::Key_Space);   // the first one has the focus and is not marked yet
        EXPECT_EQ(name(), folder.path().string() + "\\a.vtc");
        QTest::keyClick(window->focusWidget(), Qt::Key_O, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([this] { return list("List1").count() == 3; }));   // a button is seen to go down
        list("List1").setFocus();
        QTest::keyClick(window->focusWidget(), Qt::Key_Down);
        EXPECT_EQ(find<QLineEdit>("Text7").text(), "2");
        QTest::keyClick(window->focusWidget(), Qt::Key_S, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([this] { return open.form().races[0].Text2.text == "40"; }));
        EXPECT_TRUE(items("List1")[1].starts_with(" 1  2 "));
        find<QLineEdit>("Text2").setFocus();
        QTest::keyClicks(window->focusWidget(), "18");
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);   // writes nothing
        EXPECT_EQ(list("List1").count(), 3);
        EXPECT_EQ(fs::file_size(at("a.vtc")), 3U * 84);
        QTest::keyClick(window->focusWidget(), Qt::Key_A, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([this] { return list("List1").count() == 4; }));
        EXPECT_EQ(fs::file_size(at("a.vtc")), 4U * 84);
        EXPECT_TRUE(open.told.events.empty()) << testing::PrintToString(open.told.events);
    }

    TEST_F(FilesWindow, DoesNotLetTheMarkBeTicked)
    {
        click("File1", 0);
        press("Command4");
        auto& mark = find<QAbstractButton>("Check1");
        EXPECT_TRUE(mark.isChecked());
        QTest::mouseClick(&mark, Qt::LeftButton, Qt::NoModifier, QPoint(8, mark.height() / 2));
        EXPECT_TRUE(mark.isChecked());
    }

    /// Where the words of a label stand in the window, in pixels.
    struct Word
    {
        double from = 0, to = 0;
        std::string text;
    };

    std::vector<Word> wordsOf(const QLabel& label, const QWidget& window)
    {
        std::vector<Word> words;
        const QFontMetricsF metrics(label.font());
        const QString text = label.text();
        const double left = label.mapTo(&window, QPoint()).x() + label.indent();
        for (qsizetype at = 0; at < text.size();)
        {
            const qsizetype end = text.indexOf(' ', at) < 0 ? text.size() : text.indexOf(' ', at);
            if (end > at)
                words.push_back({left + metrics.horizontalAdvance(text.left(at)),
                                 left + metrics.horizontalAdvance(text.left(end)),
                                 text.mid(at, end - at).toStdString()});
            at = end + 1;
        }
        return words;
    }

    TEST_F(FilesWindow, HasTheWordsOverTheColumnsOfTheList)
    {
        struct Column
        {
            int from, to;   // characters that a usual value takes
        };
        const std::vector<Column> columns{{0, 2},   {3, 5},   {7, 9},   {11, 14}, {16, 21}, {25, 29}, {31, 33},
                                          {35, 37}, {39, 41}, {43, 45}, {47, 49}, {51, 53}, {55, 70}};
        click("File1", 0);
        press("Command4");
        QListWidget& races = list("List1");
        const std::vector<Word> words = wordsOf(find<QLabel>("Label1"), *window);
        ASSERT_EQ(words.size(), columns.size());
        const double digit = QFontMetricsF(races.font()).horizontalAdvance('0');
        const double textMargin = races.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &races) + 1;
        const double left = races.viewport()->mapTo(window, QPoint()).x() + textMargin;
        for (std::size_t i = 0; i < columns.size(); ++i)
        {
            EXPECT_LT(words[i].from, left + digit * columns[i].to) << words[i].text;
            EXPECT_GT(words[i].to, left + digit * columns[i].from) << words[i].text;
        }
    }

    TEST_F(FilesWindow, HasTheWordsOverTheBoxesOfARace)
    {
        const std::vector<Word> words = wordsOf(find<QLabel>("Label2"), *window);
        const char* const boxes[]{"Text1",   "Text2",   "Text3",   "Text4",   "Option1", "Option2",
                                  "Option3", "Option4", "Option5", "Option6", "Text5"};
        ASSERT_EQ(words.size(), std::size(boxes));
        for (std::size_t i = 0; i < words.size(); ++i)
        {
            const auto& box = find<QWidget>(boxes[i]);
            const double left = box.mapTo(window, QPoint()).x();
            EXPECT_LT(words[i].from, left + box.width()) << words[i].text;
            EXPECT_GT(words[i].to, left) << words[i].text;
        }
    }

    // A form with one list: what a person's clicks fire.
    struct OneList : testing::Test
    {
        Told told;
        ScratchDirectory folder;
        Program program{told.dialogs(), {}, folder.path()};
        std::vector<int> clicked;
        ListBox record{{.name = "list", .tip = "a list"}, {"one", "two", "three"}, -1, [this] {
                           clicked.push_back(record.selected);
                       }};
        Form form{"small", "Small", {&record}};
        QWidget window;
        QListWidget* widget = new QListWidget(&window);
        QObject lifetime;

        void bind()
        {
            widget->setObjectName("list");
            widget->resize(200, 200);
            EXPECT_EQ(bindForm(program, form, window, lifetime).join(", "), "");
            window.show();
            ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        }
        void press(int row, Qt::MouseButton button = Qt::LeftButton)
        {
            const QPoint at = widget->visualItemRect(widget->item(row)).center();
            QTest::mouseClick(widget->viewport(), button, Qt::NoModifier, at);
        }
    };

    TEST_F(OneList, FiresOnceAClickOnTheSelectedItemToo)
    {
        bind();
        press(1);
        press(1);
        press(1);
        press(0);
        EXPECT_EQ(clicked, (std::vector<int>{1, 1, 1, 0}));
    }

    TEST_F(OneList, FiresForTheSpaceBarOnTheSelectedItemToo)
    {
        bind();
        widget->setFocus();
        widget->setCurrentRow(1, QItemSelectionModel::NoUpdate);
        QTest::keyClick(widget, Qt::Key_Space);
        QTest::keyClick(widget, Qt::Key_Space);
        QTest::keyClick(widget, Qt::Key_Space, Qt::ShiftModifier);
        EXPECT_EQ(clicked, (std::vector<int>{1, 1}));
    }

    TEST_F(OneList, ThatIsEnteredTakesTheItemWithTheFocusMarkedOrNot)
    {
        record.entered = true;
        bind();
        widget->setFocus();
        widget->setCurrentRow(2, QItemSelectionModel::NoUpdate);
        QTest::keyClick(widget, Qt::Key_Return);
        EXPECT_EQ(clicked, (std::vector<int>{2}));
    }

    TEST_F(OneList, FiresNothingForAnotherButtonOnTheSelectedItem)
    {
        bind();
        press(1);
        press(1, Qt::RightButton);
        EXPECT_EQ(clicked, (std::vector<int>{1}));
    }

    TEST_F(OneList, FiresForTheKeysAndThenForAClickOnTheSameItem)
    {
        bind();
        press(0);
        QTest::keyClick(widget, Qt::Key_Down);
        press(1);
        EXPECT_EQ(clicked, (std::vector<int>{0, 1, 1}));
    }

    TEST_F(OneList, FiresWhereTheClickEmptiesTheSelection)
    {
        record.clicked = [this] {
            clicked.push_back(record.selected);
            record.selected = -1;
            notifyShown(record);
        };
        bind();
        press(1);
        press(1);
        EXPECT_EQ(clicked, (std::vector<int>{1, 1}));
    }

    TEST_F(OneList, ThatIsEnteredFiresForADoubleClickAlone)
    {
        record.entered = true;
        bind();
        press(1);
        press(1);
        QTest::keyClick(widget, Qt::Key_Down);
        press(2);
        EXPECT_TRUE(clicked.empty());
        QTest::mouseDClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier,
                           widget->visualItemRect(widget->item(2)).center());
        EXPECT_EQ(clicked, (std::vector<int>{2}));
    }
}
