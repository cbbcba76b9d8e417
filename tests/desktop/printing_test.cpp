// Printing, to PDF: text over pages, forms as images, and the preview.

#include "desktop/printing.h"

#include <string>
#include <vector>

#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "boxes_to_come.h"
#include "open_window.h"

namespace
{
    QByteArray output(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is needed";
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput();
    }

    /// A printer that prints to a file, with the margins of the preview's.
    struct PaperInAFile
    {
        ScratchDirectory folder;
        QString path = QString::fromStdString(folder.path() / "paper.pdf");
        QPrinter printer{QPrinter::HighResolution};

        PaperInAFile()
        {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(path);
            printer.setPageSize(QPageSize(QPageSize::A4));
            printer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
        }
        QStringList pages() const
        {
            QStringList pages = QString::fromUtf8(output("pdftotext", {"-layout", path, "-"})).split('\f');
            pages.removeLast();   // behind the last page's end
            return pages;
        }
    };

    QStringList linesOf(const QStringList& pages)
    {
        QStringList lines;
        for (const QString& page : pages)
            lines += page.split('\n', Qt::SkipEmptyParts);
        return lines;
    }

    TEST(PrintedText, ComesBackLineByLineOverItsPages)
    {
        PaperInAFile paper;
        std::vector<std::string> lines;
        for (int i = 0; i < 200; ++i)
            lines.push_back("line " + std::to_string(i) + " & <b>more</b>");
        paintLines(paper.printer, lines);
        const QStringList pages = paper.pages();
        EXPECT_GE(pages.size(), 2);
        EXPECT_LE(pages.size(), 6);
        const QStringList printed = linesOf(pages);
        ASSERT_EQ(printed.size(), 200);
        for (int i = 0; i < 200; ++i)
            EXPECT_EQ(printed[i].trimmed().toStdString(), lines[static_cast<std::size_t>(i)]);
    }

    TEST(PrintedText, KeepsItsColumns)
    {
        PaperInAFile paper;
        paintLines(paper.printer, {"   Distance       Time", "     400 m        1:06", "  marathon     4:14:17"});
        const QString boxes = QString::fromUtf8(output("pdftotext", {"-bbox", paper.path, "-"}));
        // both times end in one column
        double ends[2] = {};
        int found = 0;
        const QRegularExpression word("xMax=\"([0-9.]+)\" yMax=\"[0-9.]+\">(1:06|4:14:17)<");
        for (auto match = word.globalMatch(boxes); match.hasNext() && found < 2; ++found)
            ends[found] = match.next().captured(1).toDouble();
        ASSERT_EQ(found, 2);
        EXPECT_NEAR(ends[0], ends[1], 0.1);   // points
    }

    class PrintedWidth : public testing::TestWithParam<int>
    {};

    TEST_P(PrintedWidth, CutsOffNothing)
    {
        PaperInAFile paper;
        std::vector<std::string> lines;
        for (int i = 0; i < 150; ++i)
            lines.push_back(std::string(static_cast<std::size_t>(GetParam()), 'W'));
        paintLines(paper.printer, lines);
        const QString boxes = QString::fromUtf8(output("pdftotext", {"-bbox", paper.path, "-"}));
        const QRegularExpression page("<page width=\"([0-9.]+)\" height=\"([0-9.]+)\"");
        const auto size = page.match(boxes);
        ASSERT_TRUE(size.hasMatch());
        const double margin = 15 / 25.4 * 72;
        const double right = size.captured(1).toDouble() - margin;
        const double bottom = size.captured(2).toDouble() - margin;
        const QRegularExpression word(
            "xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">(W+)<");
        int found = 0;
        for (auto match = word.globalMatch(boxes); match.hasNext(); ++found)
        {
            const auto one = match.next();
            EXPECT_GE(one.captured(1).toDouble(), margin - 1);
            EXPECT_GE(one.captured(2).toDouble(), margin - 1);
            EXPECT_LE(one.captured(3).toDouble(), right + 0.5);
            EXPECT_LE(one.captured(4).toDouble(), bottom + 1);
            EXPECT_EQ(one.captured(5).size(), GetParam());
        }
        EXPECT_EQ(found, 150);
    }

    INSTANTIATE_TEST_SUITE_P(OfLines, PrintedWidth, testing::Values(20, 80, 90, 132, 250),
                             [](const auto& row) { return std::to_string(row.param); });

    TEST(PrintedText, OfNoLinesIsAnEmptyPage)
    {
        PaperInAFile paper;
        paintLines(paper.printer, {});
        EXPECT_EQ(paper.pages().size(), 1);
    }

    TEST(PrintedReport, ReadsBackLineByLine)
    {
        const ScratchDirectory folder;
        OpenWindow open{(writeSample(folder.path()), folder.path())};
        std::vector<std::string> lines;
        open.program.outside.printer.printText = [&](const std::vector<std::string>& printed) { lines = printed; };
        open.choose({"print", "pfull"});
        QStringList expected;
        for (const std::string& line : lines)
            if (const QString words = QString::fromStdString(line).simplified(); !words.isEmpty())
                expected << words;
        ASSERT_GE(expected.size(), 50);
        EXPECT_THAT(expected.front().toStdString(), testing::HasSubstr("full report on"));
        PaperInAFile paper;
        paintLines(paper.printer, lines);
        QStringList printed;
        for (const QString& line : linesOf(paper.pages()))
            printed << line.simplified();
        EXPECT_EQ(printed.join('\n').toStdString(), expected.join('\n').toStdString());
    }

    int unlike(const QImage& image, const QRect& place, QColor colour)
    {
        int count = 0;
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                count += image.pixelColor(x, y) == colour ? 0 : 1;
        return count;
    }

    struct FormPrint : testing::Test
    {
        ScratchDirectory folder;
        OpenWindow open{(writeSample(folder.path()), folder.path())};
        static constexpr Colour white{255, 255, 255};

        QRect placeIn(const QImage& image, const QWidget& widget)
        {
            const double ratio = double(image.width()) / open.asWidget().width();
            const QPoint at = widget.mapTo(&open.window, QPoint());
            return {(QPointF(at) * ratio).toPoint(), (QSizeF(widget.size()) * ratio).toSize()};
        }
    };

    TEST_F(FormPrint, LeavesOutTheHiddenButtonsAndNothingElse)
    {
        const QRect before = open.find<QWidget>("Command7").geometry();
        const QImage image = imageOf(open.window, {"vantstart", white, {"Command1", "Command7"}});
        EXPECT_GE(image.width(), open.asWidget().width());
        for (const char* hidden : {"Command1", "Command7"})
            EXPECT_EQ(unlike(image, placeIn(image, open.find<QWidget>(hidden)), Qt::white), 0) << hidden;
        for (const char* kept : {"Command6", "Text2_0", "Option3_0", "Picture1", "txtname", "caption_txtname"})
            EXPECT_GT(unlike(image, placeIn(image, open.find<QWidget>(kept)), Qt::white), 20) << kept;
        EXPECT_EQ(open.find<QWidget>("Command7").geometry(), before);
    }

    TEST_F(FormPrint, LeavesTheWindowAsItWas)
    {
        const QPalette palette = open.asWidget().palette();
        open.find<QPushButton>("Command1").setFocus();
        const QImage focused = open.asWidget().grab().toImage();
        static_cast<void>(imageOf(open.window, {"vantstart", white, {"Command1", "Command7", "Picture1"}}));
        QApplication::processEvents();
        EXPECT_EQ(open.asWidget().palette(), palette);
        EXPECT_TRUE(open.find<QWidget>("Command1").isVisible());
        EXPECT_EQ(QApplication::focusWidget(), &open.find<QPushButton>("Command1"));
        EXPECT_EQ(open.asWidget().grab().toImage(), focused);
        EXPECT_FALSE(open.find<QWidget>("Command7").sizePolicy().retainSizeWhenHidden());
    }

    TEST_F(FormPrint, KeepsHiddenWhatWasHidden)
    {
        setVisible(open.form().Command7, false);
        static_cast<void>(imageOf(open.window, {"vantstart", white, {"Command7"}}));
        EXPECT_FALSE(open.find<QWidget>("Command7").isVisible());
    }

    TEST(FormPrintInTheDark, IsReadableOnWhite)
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
            const QImage image = imageOf(open.window, {"vantstart", {255, 255, 255}, {}});
            const auto darkest = [&](const char* name) {
                const auto& widget = open.find<QWidget>(name);
                const double ratio = double(image.width()) / open.asWidget().width();
                const QPoint at = widget.mapTo(&open.window, QPoint());
                int least = 255;
                for (int y = 0; y < int(widget.height() * ratio); ++y)
                    for (int x = 0; x < int(widget.width() * ratio); ++x)
                        least = std::min(
                            least, image.pixelColor(int(at.x() * ratio) + x, int(at.y() * ratio) + y).lightness());
                return least;
            };
            EXPECT_LE(darkest("caption_txtname"), 100);
            EXPECT_LE(darkest("caption_txtmi"), 100);
        }
        QApplication::setPalette(light);
    }

    TEST(PrintedImage, FillsThePageAndKeepsItsShape)
    {
        PaperInAFile paper;
        QImage image(400, 200, QImage::Format_ARGB32);
        image.fill(Qt::red);
        paintImage(paper.printer, image);
        const QString page = QString::fromStdString(paper.folder.path() / "page");
        output("pdftoppm", {"-png", "-r", "50", "-singlefile", paper.path, page});
        const QImage printed(page + ".png");
        const double millimetre = 50 / 25.4;
        const auto at = [&](double x, double y) {
            return printed.pixelColor(int(x * millimetre), int(y * millimetre));
        };
        const auto isRed = [&](double x, double y) {
            return at(x, y).red() > 250 && at(x, y).green() < 5 && at(x, y).blue() < 5;
        };
        EXPECT_TRUE(isRed(17, 17));
        EXPECT_TRUE(isRed(193, 103));   // 180 mm wide, so 90 mm high
        EXPECT_EQ(at(105, 109), QColor(Qt::white));
        EXPECT_EQ(at(12, 50), QColor(Qt::white));
        EXPECT_EQ(at(198, 50), QColor(Qt::white));
    }

    TEST(PrintPreview, ComesBeforeTextAndBeforeForms)
    {
        const ScratchDirectory folder;
        writeSample(folder.path());
        OpenWindow open(folder.path());
        const Printer printer = printerWithPreview([&](const std::string&) { return &open.window; });
        int previews = 0;
        const auto look = [&](QWidget& box) {
            auto* const preview = qobject_cast<QPrintPreviewDialog*>(&box);
            ASSERT_TRUE(preview);
            EXPECT_FALSE(preview->windowTitle().isEmpty());
            ++previews;
            QTest::keyClick(preview, Qt::Key_Escape);   // nothing is printed, and that is no error
        };
        BoxesToCome boxes({look, look});
        printer.printText({"one line", "another line"});
        printer.printForm({"vantstart", {255, 255, 255}, {"Command1"}});
        EXPECT_EQ(previews, 2);
        EXPECT_TRUE(open.find<QWidget>("Command1").isVisible());
    }

    TEST(PrintPreview, OfAFormThatIsNotOpenIsNone)
    {
        const Printer printer = printerWithPreview([](const std::string&) -> QWidget* { return nullptr; });
        const BoxesToCome boxes;
        printer.printForm({"vantstart", {255, 255, 255}, {}});
        EXPECT_EQ(boxes.seen(), 0);
    }
}
