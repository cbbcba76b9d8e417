// The picture: its place in a widget of any size, the mouse in its own units, and its files.

#include "desktop/picture_widget.h"

#include <algorithm>
#include <string>
#include <vector>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QImage>
#include <QMenu>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSvgRenderer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "boxes_to_come.h"
#include "open_window.h"

namespace
{
    const Colour red{255, 0, 0};
    const Colour blue{0, 0, 255};

    /// 200 by 100 units: a red cross line through the middle, a blue circle, a point, and a name that needs care.
    Picture sample()
    {
        Picture picture;
        picture.size = {200, 100};
        picture.primitives = {{LinePrimitive{{0, 50}, {200, 50}}, red, 3},
                              {CirclePrimitive{{50, 25}, 10}, blue, 1},
                              {PointPrimitive{{150, 75}}, blue, 7},
                              {TextPrimitive{"Pace & <distance>", {10, 70}}, {0, 0, 0}, 1}};
        return picture;
    }

    int countOf(const QImage& image, QColor colour)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == colour ? 1 : 0;
        return count;
    }

    /// A size of the widget, and where a point of it lies in a picture of 200 by 100, worked out by hand.
    struct Place
    {
        const char* name;
        QSize size;
        QPoint at;
        QPointF expected;
    };

    class PictureScales : public testing::TestWithParam<Place>
    {};

    TEST_P(PictureScales, TellTheMouseInUnits)
    {
        PictureWidget widget;
        widget.showPicture(sample());
        widget.resize(GetParam().size);
        widget.show();
        const QSignalSpy pressed(&widget, &PictureWidget::pressedAt);
        const QSignalSpy moved(&widget, &PictureWidget::movedTo);
        QTest::mouseMove(&widget, GetParam().at + QPoint(1, 1));
        QTest::mouseMove(&widget, GetParam().at);
        QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, GetParam().at);
        QTest::mouseClick(&widget, Qt::RightButton, Qt::NoModifier, GetParam().at);
        ASSERT_EQ(pressed.count(), 1);
        ASSERT_GE(moved.count(), 1);
        for (const QPointF& place : {pressed.front().front().toPointF(), moved.back().front().toPointF()})
        {
            EXPECT_NEAR(place.x(), GetParam().expected.x(), 1e-9);
            EXPECT_NEAR(place.y(), GetParam().expected.y(), 1e-9);
        }
    }

    INSTANTIATE_TEST_SUITE_P(
        AtSizes, PictureScales,
        testing::Values(Place{"its_own_size", {200, 100}, {30, 40}, {30, 40}},
                        Place{"twice_as_large", {400, 200}, {30, 40}, {15, 20}},
                        Place{"half_as_large", {100, 50}, {30, 40}, {60, 80}},
                        Place{"wider", {300, 100}, {80, 40}, {30, 40}},     // 50 pixels free on each side
                        Place{"higher", {200, 300}, {30, 140}, {30, 40}},   // 100 above and below
                        Place{
                            "odd", {333, 111}, {166, 55}, {99.54954954954955, 49.54954954954955}},   // 1.11; 55.5 free
                        Place{"outside", {300, 100}, {10, 40}, {-40, 40}}),
        [](const auto& row) { return row.param.name; });

    TEST(Pictures, SurviveHavingNoSize)
    {
        PictureWidget widget;
        widget.resize(0, 0);
        EXPECT_FALSE(qIsNaN(widget.toPicture({0, 0}).x()));
        widget.showPicture({});
        widget.resize(50, 50);
        EXPECT_FALSE(qIsNaN(widget.toPicture({10, 10}).x()));
        EXPECT_FALSE(widget.grab().isNull());
    }

    TEST(Pictures, DrawWhereTheUnitsSay)
    {
        PictureWidget widget;
        widget.showPicture(sample());
        widget.resize(400, 200);
        const QImage image = widget.grab().toImage();
        const double ratio = image.devicePixelRatio();
        EXPECT_EQ(image.size(), QSize(400, 200) * ratio);
        const auto at = [&](double x, double y) { return image.pixelColor(int(x * ratio), int(y * ratio)); };
        EXPECT_EQ(at(300, 100), QColor(Qt::red));    // on the line
        EXPECT_EQ(at(300, 90), QColor(Qt::white));   // above it
        EXPECT_EQ(at(300, 150), QColor(Qt::blue));   // the point
        EXPECT_EQ(at(300, 140), QColor(Qt::white));
        EXPECT_EQ(at(100, 50), QColor(Qt::white));   // the circle is not filled
        EXPECT_NE(at(120, 50), QColor(Qt::white));   // its right edge: 20 pixels from its centre
    }

    QImage drawn(const std::vector<Primitive>& primitives)
    {
        Picture picture = sample();
        picture.primitives = primitives;
        QImage image(400, 200, QImage::Format_RGB32);
        QPainter painter(&image);
        paintPicture(painter, picture, QRectF(0, 0, 400, 200));
        return image;
    }

    // A course may have a point at 1e300 m.
    TEST(Pictures, DrawTheirPartOfWhatLiesFarAway)
    {
        const QImage onwards = drawn({{LinePrimitive{{100, 50}, {1e301, 50}}, red, 3}});
        EXPECT_EQ(onwards.pixelColor(300, 100), QColor(Qt::red));
        EXPECT_EQ(onwards.pixelColor(150, 100), QColor(Qt::white));
        const QImage across = drawn({{LinePrimitive{{-1e10, 50}, {1e10, 50}}, red, 3}});
        EXPECT_EQ(across.pixelColor(1, 100), QColor(Qt::red));
        EXPECT_EQ(across.pixelColor(398, 100), QColor(Qt::red));
        const QImage slanting = drawn({{LinePrimitive{{0, 0}, {1e301, 0.5e301}}, red, 3}});
        EXPECT_EQ(slanting.pixelColor(200, 100), QColor(Qt::red));
        EXPECT_EQ(slanting.pixelColor(200, 20), QColor(Qt::white));
        const QImage beside = drawn({{LinePrimitive{{1e301, 0}, {1e301, 100}}, red, 3},
                                     {CirclePrimitive{{-1e301, 0}, 10}, red, 1},
                                     {PointPrimitive{{0, 1e301}}, red, 7},
                                     {TextPrimitive{"far", {1e301, 1e301}}, red, 1}});
        EXPECT_EQ(countOf(beside, Qt::white), 400 * 200);
    }

    TEST(Pictures, AreWhiteInDarkPalettesToo)
    {
        const QPalette light = QApplication::palette();
        QApplication::setPalette(QPalette(QColor(53, 53, 53), QColor(42, 42, 42)));
        PictureWidget widget;
        widget.showPicture(sample());
        widget.resize(300, 100);
        const QImage image = widget.grab().toImage();
        EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
        EXPECT_EQ(image.pixelColor(image.width() - 2, 1), QColor(Qt::white));
        QApplication::setPalette(light);
    }

    class PictureFiles : public testing::TestWithParam<QSize>
    {
    protected:
        ScratchDirectory folder;
        PictureWidget widget;
        QString wrong;

        PictureFiles()
        {
            widget.showPicture(sample());
            widget.resize(GetParam());
        }
        QString file(const char* name) { return QString::fromStdString(folder.path() / name); }
        static QByteArray output(const QString& program, const QStringList& arguments)
        {
            QProcess process;
            process.start(program, arguments);
            EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is needed";
            return process.readAllStandardOutput();
        }
    };

    TEST_P(PictureFiles, ArePng)
    {
        ASSERT_TRUE(widget.save(file("graph.png"), wrong)) << wrong.toStdString();
        const QImage image(file("graph.png"), "PNG");
        EXPECT_EQ(image.size(), GetParam() * 2);
        EXPECT_GT(countOf(image, Qt::red), image.width());
        EXPECT_GT(countOf(image, Qt::blue), 10);
        EXPECT_GT(countOf(image, Qt::white), image.width() * image.height() / 2);
    }

    TEST_P(PictureFiles, AreSvg)
    {
        ASSERT_TRUE(widget.save(file("graph.SVG"), wrong)) << wrong.toStdString();
        const std::string bytes = bytesOf(file("graph.SVG").toStdString());
        EXPECT_THAT(bytes, testing::HasSubstr("<svg"));
        EXPECT_THAT(bytes, testing::HasSubstr("Pace &amp; &lt;distance&gt;"));
        QSvgRenderer renderer(file("graph.SVG"));
        ASSERT_TRUE(renderer.isValid());
        EXPECT_EQ(renderer.viewBox(), QRect(QPoint(), GetParam()));
        const auto width = QRegularExpression("width=\"([0-9.]+)mm\"").match(QString::fromStdString(bytes));
        ASSERT_TRUE(width.hasMatch());
        EXPECT_NEAR(width.captured(1).toDouble(), GetParam().width() * 25.4 / 96, 0.01);   // as large as on screen
        QImage image(GetParam(), QImage::Format_ARGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        renderer.render(&painter);
        painter.end();
        EXPECT_GT(countOf(image, Qt::red), image.width() / 2);
    }

    TEST_P(PictureFiles, ArePdf)
    {
        ASSERT_TRUE(widget.save(file("graph.pdf"), wrong)) << wrong.toStdString();
        EXPECT_THAT(output("pdftotext", {"-layout", file("graph.pdf"), "-"}).toStdString(),
                    testing::HasSubstr("Pace & <distance>"));
        output("pdftoppm", {"-png", "-r", "96", "-singlefile", file("graph.pdf"), file("page")});
        const QImage image(file("page.png"));
        EXPECT_NEAR(image.width(), GetParam().width(), 2);
        EXPECT_NEAR(image.height(), GetParam().height(), 2);
        EXPECT_GT(countOf(image, Qt::red), image.width());
        // the line through the middle reaches both edges: nothing is cut off
        EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() / 2), QColor(Qt::red));
        EXPECT_EQ(image.pixelColor(2, image.height() / 2), QColor(Qt::red));
        EXPECT_EQ(image.pixelColor(image.width() - 3, image.height() / 2), QColor(Qt::red));
    }

    INSTANTIATE_TEST_SUITE_P(AtSizes, PictureFiles, testing::Values(QSize(400, 200), QSize(640, 320), QSize(1200, 600)),
                             [](const auto& row) { return "width_" + std::to_string(row.param.width()); });

    TEST(PictureFile, ThatCanNotBeWrittenIsTold)
    {
        const ScratchDirectory folder;
        PictureWidget widget;
        widget.showPicture(sample());
        widget.resize(200, 100);
        for (const char* name : {"none/graph.png", "none/graph.svg", "none/graph.pdf"})
        {
            QString wrong;
            EXPECT_FALSE(widget.save(QString::fromStdString(folder.path() / name), wrong)) << name;
            EXPECT_THAT(wrong.toStdString(), testing::HasSubstr("No such file or directory")) << name;
        }
    }

    TEST(PictureFile, WithoutAnEndingIsPng)
    {
        const ScratchDirectory folder;
        PictureWidget widget;
        widget.showPicture(sample());
        widget.resize(200, 100);
        QString wrong;
        EXPECT_TRUE(widget.save(QString::fromStdString(folder.path() / "graph"), wrong));
        EXPECT_FALSE(QImage(QString::fromStdString(folder.path() / "graph"), "PNG").isNull());
    }

    TEST(PictureMenu, Copies)
    {
        PictureWidget widget;
        widget.showPicture(sample());
        widget.resize(200, 100);
        widget.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
        QApplication::clipboard()->clear();
        QContextMenuEvent event(QContextMenuEvent::Mouse, {20, 20}, widget.mapToGlobal(QPoint(20, 20)));
        QApplication::sendEvent(&widget, &event);
        QWidget* const menu = QApplication::activePopupWidget();
        ASSERT_TRUE(menu);
        QAction* copy = nullptr;
        for (QAction* action : menu->actions())
            if (action->text().remove('&') == "Copy")
                copy = action;
        ASSERT_TRUE(copy);
        clickItem(*menu, *copy);
        const QImage copied = QApplication::clipboard()->image();
        EXPECT_EQ(copied.size(), QSize(400, 200));
        EXPECT_GT(countOf(copied, Qt::red), 0);
    }
}
