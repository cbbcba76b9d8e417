// What only the windows of planner, splits and analysis do: a spreadsheet's rows pasted into the grid, a form's table to
// the clipboard and into a file, a graph under the mouse.

#include <string>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "boxes_to_come.h"
#include "desktop/picture_widget.h"
#include "desktop/text_surface_widget.h"
#include "tool_window.h"

namespace
{
    using testing::HasSubstr;

    TEST_F(ToolWindow, TakesASpreadsheetsRowsIntoTheGrid)
    {
        show("splitform");
        paste("splitdis_1", "400\t1\t20\n500\t1\t40\n");
        EXPECT_EQ(box("splitdis_0"), "400");   // above the place of the paste nothing changes
        EXPECT_EQ(box("splitsec_0"), "15");
        EXPECT_EQ(box("splitdis_1"), "400");
        EXPECT_EQ(box("splitmin_1"), "1");
        EXPECT_EQ(box("splitsec_1"), "20");
        EXPECT_EQ(box("splitdis_2"), "500");
        EXPECT_EQ(box("splitsec_2"), "40");
        EXPECT_EQ(label("totracedis"), "2000");   // 400 + 400 + 500 and, further down, 400 + 300
    }

    TEST_F(ToolWindow, TakesTheSamePasteFromTheMenu)
    {
        show("splitform");
        QApplication::clipboard()->setText("200\t0\t40\n");
        rightClick(find<QLineEdit>("splitdis_6"));
        choose("Paste");
        EXPECT_EQ(box("splitdis_6"), "200");
        EXPECT_EQ(box("splitsec_6"), "40");
    }

    TEST_F(ToolWindow, LeavesAPlainWordToTheBox)
    {
        show("splitform");
        paste("splitdis_1", "350");
        EXPECT_EQ(box("splitdis_1"), "350");
        EXPECT_EQ(box("splitmin_1"), "1");
        EXPECT_EQ(label("totracedis"), "1450");
    }

    TEST_F(ToolWindow, CopiesItsTable)
    {
        show("splitform");
        QApplication::clipboard()->clear();
        rightClick(find<QLabel>("Label10"));
        choose("Copy table");
        EXPECT_THAT(QApplication::clipboard()->text().toStdString(),
                    testing::AllOf(HasSubstr("Total Distance"), HasSubstr("1500")));
    }

    TEST_F(ToolWindow, SavesItsTable)
    {
        show("splitform");
        const std::filesystem::path path = folder.path() / "splits.csv";
        BoxesToCome boxes({giving(path)});
        rightClick(find<QLabel>("Label10"));
        choose("Save as CSV");
        EXPECT_TRUE(boxes.allMet());
        EXPECT_THAT(bytesOf(path), HasSubstr("1,400,1,15,"));
    }

    TEST_F(ToolWindow, AsksWhichLapsToImport)
    {
        const std::filesystem::path laps = folder.path() / "laps.tcx";
        writeFile(laps, "<TrainingCenterDatabase><Activities><Activity><Lap><TotalTimeSeconds>90</TotalTimeSeconds>"
                        "<DistanceMeters>400</DistanceMeters></Lap></Activity></Activities></TrainingCenterDatabase>");
        const Dialogs dialogs = open.windows.dialogs();
        open.program.outside.dialogs.chooseFile = dialogs.chooseFile;
        show("splitform");
        BoxesToCome boxes({giving(laps)});
        QTest::mouseClick(&find<QPushButton>("importlaps"), Qt::LeftButton);
        EXPECT_TRUE(boxes.allMet());
        EXPECT_EQ(box("splitdis_0"), "400");
        EXPECT_EQ(box("splitmin_0"), "1");
        EXPECT_EQ(box("splitsec_0"), "30");
        EXPECT_EQ(box("splitdis_1"), "");
    }

    // At 3 m/s, sample 750 of those that begin at 1.5 m/s and are 0.002 m/s apart.
    TEST_F(ToolWindow, ReadsTheHeartRateUnderTheMouse)
    {
        QTest::mouseClick(&open.find<QPushButton>("Command3"), Qt::LeftButton);
        window = open.windows.windowOf("anaform");
        ASSERT_TRUE(window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        EXPECT_THAT(find<TextSurfaceWidget>("Surface").toPlainText().toStdString(),
                    HasSubstr("TRAINING AND SPECIALIZATION ANALYSIS:"));
        auto& graph = find<PictureWidget>("pic");
        const double atThree = open.program.state.heartRateSamples.curveX.at(750);
        int pixel = 0;
        while (pixel < graph.width() && graph.toPicture(QPointF(pixel, graph.height() / 2.0)).x() < atThree)
            ++pixel;
        moveOver(graph, QPointF(pixel, graph.height() / 2.0));
        EXPECT_THAT(label("mpslbl"), testing::AnyOf("3.00 m/s", "3.01 m/s"));
        EXPECT_THAT(label("hrlbl"), HasSubstr("HR ="));
        QTest::mouseClick(&find<QPushButton>("Command3"), Qt::LeftButton);
        EXPECT_EQ(open.windows.windowOf("anaform"), nullptr);
    }
}
