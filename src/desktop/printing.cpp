#include "desktop/printing.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "desktop/binder.h"
#include "desktop/fixed_font.h"

namespace
{
    constexpr double marginMillimetres = 15;
    constexpr double largestPoints = 10;

    QString text(const std::string& bytes)
    {
        return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }

    /// The font at which the longest line fits the width.
    QFont fontFor(QPagedPaintDevice& device, const std::vector<std::string>& lines, double width)
    {
        QFont font = fixedFont();
        font.setPointSizeF(largestPoints);
        const QFontMetricsF metrics(font, &device);
        double widest = 1;
        for (const std::string& line : lines)
            widest = std::max(widest, metrics.horizontalAdvance(text(line)));
        font.setPointSizeF(largestPoints * std::min(1.0, width / widest));
        return font;
    }

    /// Dark on light, whatever the screen has.
    QPalette paperPalette(Colour background)
    {
        QPalette paper(QColor(239, 239, 239));
        paper.setColor(QPalette::Window, QColor(background.red, background.green, background.blue));
        return paper;
    }

    void preview(QWidget* parent, const QString& title, const std::function<void(QPrinter&)>& paint)
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setDocName(title);
        printer.setPageMargins(QMarginsF(marginMillimetres, marginMillimetres, marginMillimetres, marginMillimetres),
                               QPageLayout::Millimeter);
        QPrintPreviewDialog dialog(&printer, parent);
        dialog.setWindowTitle(title);
        QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, [&paint](QPrinter* target) { paint(*target); });
        dialog.exec();
    }
}

void paintLines(QPagedPaintDevice& device, const std::vector<std::string>& lines)
{
    QPainter painter;
    if (!painter.begin(&device))
        return;
    const QRectF page = painter.viewport();
    painter.setFont(fontFor(device, lines, page.width()));
    const QFontMetricsF metrics(painter.font(), &device);
    double y = 0;
    for (const std::string& line : lines)
    {
        if (y + metrics.lineSpacing() > page.height())
        {
            device.newPage();
            y = 0;
        }
        painter.drawText(QPointF(0, y + metrics.ascent()), text(line));
        y += metrics.lineSpacing();
    }
}

void paintImage(QPagedPaintDevice& device, const QImage& image)
{
    QPainter painter;
    if (!painter.begin(&device) || image.isNull())
        return;
    const QRectF page = painter.viewport();
    const QSizeF size = QSizeF(image.size()).scaled(page.size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(QPointF(0, 0), size), image);
}

QImage imageOf(QWidget& window, const FormImage& form)
{
    constexpr int finer = 2;   // printed finer than on screen
    struct Hidden
    {
        QWidget* widget;
        QSizePolicy policy;
    };
    std::vector<Hidden> hidden;
    for (const std::string& name : form.hidden)
        if (auto* const widget = window.findChild<QWidget*>(widgetName(name)); widget && widget->isVisibleTo(&window))
            hidden.push_back({widget, widget->sizePolicy()});
    const QPalette kept = window.palette();
    QWidget* const focused = window.focusWidget();
    window.setPalette(paperPalette(form.background));
    for (const auto& [widget, policy] : hidden)
    {
        QSizePolicy retaining = policy;
        retaining.setRetainSizeWhenHidden(true);   // so that nothing jumps
        widget->setSizePolicy(retaining);
        widget->hide();
    }
    QImage image(window.size() * finer, QImage::Format_ARGB32);
    image.setDevicePixelRatio(finer);
    image.fill(Qt::white);
    window.render(&image);
    for (const auto& [widget, policy] : hidden)
    {
        widget->show();
        widget->setSizePolicy(policy);
    }
    window.setPalette(kept);
    if (focused)
        focused->setFocus();
    return image;
}

Printer printerWithPreview(const std::function<QWidget*(const std::string&)>& windowOf)
{
    Printer printer;
    printer.printText = [windowOf](const std::vector<std::string>& lines) {
        preview(windowOf("vantstart"), QObject::tr("Vantelos report"),
                [&lines](QPrinter& target) { paintLines(target, lines); });
    };
    printer.printForm = [windowOf](const FormImage& form) {
        QWidget* const window = windowOf(form.form);
        if (!window)
            return;
        const QImage image = imageOf(*window, form);
        preview(window, window->windowTitle(), [&image](QPrinter& target) { paintImage(target, image); });
    };
    return printer;
}
