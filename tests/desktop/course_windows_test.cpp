// What only the course's window does: points by the mouse, the read-out under it, and courses from files.

#include <cmath>
#include <string>

#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/picture_widget.h"
#include "tool_window.h"

namespace
{
    using testing::HasSubstr;

    struct CourseWindow : ToolWindow
    {
        [[nodiscard]] PictureWidget& graph() { return find<PictureWidget>("p1"); }
        [[nodiscard]] const Course& course() const { return open.program.state.course; }

        void type(const char* name, const char* text)
        {
            auto& edit = find<QLineEdit>(name);
            edit.setFocus();
            edit.selectAll();
            QTest::keyClicks(&edit, text);
        }
    };

    TEST_F(CourseWindow, AddsAPointWhereTheMouseIsPressed)
    {
        show("profile");
        const std::string straight = box("Text5");
        const QPoint at(graph().width() / 3, graph().height() / 4);
        const QPointF place = graph().toPicture(at);
        QTest::mouseClick(&graph(), Qt::LeftButton, Qt::NoModifier, at);
        ASSERT_EQ(course().pointCount, 3);
        EXPECT_NEAR(course().pointX[1], (place.x() - 150) * 5000 / 12000, 1e-6);
        EXPECT_EQ(course().pointY[1], std::nearbyint(600 - (place.y() - 100) * 500 / 6000));
        EXPECT_NE(box("Text5"), straight);
        EXPECT_EQ(open.told.events, std::vector<std::string>());
        QTest::mouseClick(&graph(), Qt::LeftButton, Qt::NoModifier, QPoint(graph().width() / 2, graph().height() - 1));
        EXPECT_EQ(open.told.events, std::vector<std::string>{"message: Mouse out of range"});
        EXPECT_EQ(course().pointCount, 3);
        press("Command3");
        EXPECT_EQ(course().pointCount, 2);
        EXPECT_EQ(box("Text5"), straight);
    }

    // 250 m to 350 m over 5000 m: a grade of 0.02 everywhere.
    TEST_F(CourseWindow, ReadsTheCourseUnderTheMouse)
    {
        show("profile");
        EXPECT_EQ(box("mousexm"), "");
        moveOver(graph(), {graph().width() / 2.0, graph().height() - 1.0});
        EXPECT_EQ(box("mousexm"), "") << "below the grid";
        const QPointF at(graph().width() / 2.0, graph().height() / 2.0);
        const double x = (graph().toPicture(at).x() - 150) * 5000 / 12000;
        moveOver(graph(), at);
        EXPECT_EQ(std::stod(box("mousexm")), std::nearbyint(x));
        EXPECT_EQ(box("mousegrade"), "0.0200");
        for (const char* name : {"Text7", "Text8", "Text9", "Text10", "Text11"})
            EXPECT_THAT(box(name), HasSubstr(":")) << name;
    }

    TEST_F(CourseWindow, TakesAPointFromTheKeyboard)
    {
        show("profile");
        type("distx", "2.5");
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(window->focusWidget(), "200");
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);
        EXPECT_EQ(course().pointCount, 2) << "no button is pressed by Enter: an empty point would spoil the course";
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        QTest::keyClick(window->focusWidget(), Qt::Key_Space);
        ASSERT_EQ(course().pointCount, 3);
        EXPECT_EQ(course().pointX[1], 2500);
        EXPECT_EQ(course().pointY[1], 200);
    }

    TEST_F(CourseWindow, SavesAndRetrieves)
    {
        writeFile(folder.path() / "flat.cpf", "8\r\n 3 \r\n600\r\n100\r\n200\r\n200\r\n 2 \r\n 2 \r\n 250 \r\n 2 \r\n"
                                              " 0 \r\n 200 \r\n 8000 \r\n 200 \r\n");
        show("profile");
        auto& files = find<QListWidget>("cpflist");
        ASSERT_EQ(files.count(), 1);
        QTest::mouseClick(files.viewport(), Qt::LeftButton, Qt::NoModifier,
                          files.visualItemRect(files.item(0)).center());
        EXPECT_EQ(box("retname"), "flat.cpf");
        press("Command5");
        EXPECT_EQ(box("Text1"), "8");
        EXPECT_EQ(box("Text2"), "8000");
        EXPECT_EQ(box("origelm"), "250");
        EXPECT_EQ(course().startElev, 200);
        type("savname", "again");
        press("Command2");
        EXPECT_THAT(bytesOf(folder.path() / "again.cpf"), HasSubstr("8000"));
    }

    TEST_F(CourseWindow, ImportsARecording)
    {
        std::string gpx = "<gpx><trk><trkseg>";
        for (int i = 0; i <= 100; ++i)
            gpx += "<trkpt lat=\"" + std::to_string(50 + i * 0.0005) + "\" lon=\"8\"><ele>" +
                   std::to_string(200 + 30 * std::sin(i / 8.0)) + "</ele></trkpt>";
        writeFile(folder.path() / "hills.gpx", gpx + "</trkseg></trk></gpx>");
        open.program.outside.dialogs.chooseFile = open.windows.dialogs().chooseFile;
        show("profile");
        BoxesToCome boxes({giving(folder.path() / "hills.gpx")});
        press("importtrack");
        EXPECT_TRUE(boxes.allMet());
        EXPECT_THAT(label("importnote"), HasSubstr("101 points recorded"));
        EXPECT_NEAR(course().courseDist, 5560, 10) << "0.05 degrees of latitude";
        auto& note = find<QLabel>("importnote");
        QApplication::processEvents();
        EXPECT_GE(note.height(), note.heightForWidth(note.width()));
        EXPECT_LE(window->height(), 720);
    }
}
