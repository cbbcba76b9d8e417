#include "desktop/picture_widget.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QImage>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "desktop/fixed_font.h"
#include "forms/files.h"

namespace
{
    constexpr int filePixelsPerPixel = 2;   // PNG files and copies are finer than the screen
    constexpr int svgDotsPerInch = 96;

    QColor colourOf(Colour colour)
    {
        return {colour.red, colour.green, colour.blue};
    }

    /// From picture units to the rectangle: the largest scale at which all of it fits, centred.
    QTransform placement(const Picture& picture, const QRectF& into)
    {
        const double width = std::max(picture.size.x, 1.0);
        const double height = std::max(picture.size.y, 1.0);
        const double scale = std::min(into.width() / width, into.height() / height);
        QTransform transform;
        transform.translate(into.x() + (into.width() - scale * width) / 2,
                            into.y() + (into.height() - scale * height) / 2);
        transform.scale(scale, scale);
        return transform;
    }

    /// The font of a picture's labels, with a body of so many pixels of the device.
    QFont labelFont(double pixels)
    {
        QFont font(QStringList{"Arial", "Liberation Sans", "DejaVu Sans"});
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
        return font;
    }

    /// The part of a line within a rectangle, if there is one. Halves keep the differences of the farthest ends finite.
    std::optional<QLineF> partOf(const LinePrimitive& line, const QRectF& rect)
    {
        const double dx = line.to.x / 2 - line.from.x / 2;
        const double dy = line.to.y / 2 - line.from.y / 2;
        double begin = 0;
        double end = 1;
        const auto keep = [&](double direction, double from, double limit) {   // where from + t * direction <= limit
            const double room = limit / 2 - from / 2;
            if (direction > 0)
                end = std::min(end, room / direction);
            else if (direction < 0)
                begin = std::max(begin, room / direction);
            else if (room < 0)
                end = -1;
        };
        keep(dx, line.from.x, rect.right());
        keep(-dx, -line.from.x, -rect.left());
        keep(dy, line.from.y, rect.bottom());
        keep(-dy, -line.from.y, -rect.top());
        if (begin > end)
            return std::nullopt;
        const auto at = [&](double t) {
            return QPointF(std::clamp(line.from.x + 2 * (t * dx), rect.left(), rect.right()),
                           std::clamp(line.from.y + 2 * (t * dy), rect.top(), rect.bottom()));
        };
        return QLineF(at(begin), at(end));
    }

    /// The picture and its width and height on every side: what lies farther out, no painter need be asked to draw.
    QRectF surroundings(const Picture& picture)
    {
        const QRectF rect(0, 0, picture.size.x, picture.size.y);
        return rect.adjusted(-picture.size.x, -picture.size.y, picture.size.x, picture.size.y);
    }

    /// Draws shapes at their place on the device, so that pens keep their own widths.
    struct ShapePainter
    {
        QPainter& painter;
        const QTransform& place;
        const QRectF& near;
        double penWidth;

        void operator()(const LinePrimitive& line) const
        {
            if (const std::optional<QLineF> part = partOf(line, near))
                painter.drawLine(place.map(*part));
        }
        void operator()(const CirclePrimitive& circle) const
        {
            if (!isNear(circle.centre))
                return;
            const double radius = circle.radius * place.m11();
            painter.drawEllipse(place.map(QPointF(circle.centre.x, circle.centre.y)), radius, radius);
        }
        void operator()(const PointPrimitive& point) const
        {
            if (!isNear(point.at))
                return;
            const double radius = penWidth / 2;
            painter.setBrush(painter.pen().color());
            painter.drawEllipse(place.map(QPointF(point.at.x, point.at.y)), radius, radius);
            painter.setBrush(Qt::NoBrush);
        }
        void operator()(const TextPrimitive& text) const
        {
            if (!isNear(text.at))
                return;
            const QPointF at = place.map(QPointF(text.at.x, text.at.y));   // the text's left upper corner
            painter.setFont(text.size > 0 ? labelFont(text.size * place.m11()) : fixedFont());
            painter.drawText(QPointF(at.x(), at.y() + painter.fontMetrics().ascent()),
                             QString::fromStdString(text.text));
        }
        [[nodiscard]] bool isNear(Point at) const { return near.contains(at.x, at.y); }
    };
}

void paintPicture(QPainter& painter, const Picture& picture, const QRectF& into)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(into, colourOf(picture.background));
    const QTransform place = placement(picture, into);
    painter.setClipRect(place.mapRect(QRectF(0, 0, picture.size.x, picture.size.y)), Qt::IntersectClip);
    const QRectF near = surroundings(picture);
    for (const Primitive& primitive : picture.primitives)
    {
        painter.setPen(QPen(colourOf(primitive.colour), std::max(primitive.width, 1.0)));
        std::visit(ShapePainter{painter, place, near, std::max(primitive.width, 1.0)}, primitive.shape);
    }
    painter.restore();
}

PictureWidget::PictureWidget(QWidget* parent) : QWidget(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
}

void PictureWidget::showPicture(const Picture& picture)
{
    shown.primitives = picture.primitives;
    shown.size = picture.size;
    shown.background = picture.background;
    update();
}

void PictureWidget::setButton(bool button)
{
    pressedByKeys = button;
    setFocusPolicy(button ? Qt::StrongFocus : Qt::ClickFocus);
    setCursor(button ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void PictureWidget::press()
{
    emit pressedAt(toPicture(QRectF(rect()).center()));
}

QPointF PictureWidget::toPicture(QPointF point) const
{
    return placement(shown, rect()).inverted().map(point);
}

QSize PictureWidget::sizeHint() const
{
    constexpr int usualWidth = 640;
    constexpr int usualHeight = 400;
    return {usualWidth, usualHeight};
}

QImage PictureWidget::image() const
{
    QImage image(size() * filePixelsPerPixel, QImage::Format_ARGB32);
    image.setDevicePixelRatio(filePixelsPerPixel);
    QPainter painter(&image);
    paintPicture(painter, shown, rect());
    return image;
}

void PictureWidget::writeSvg(QIODevice& device) const
{
    QSvgGenerator svg;
    svg.setOutputDevice(&device);
    svg.setSize(size());
    svg.setViewBox(rect());
    svg.setResolution(svgDotsPerInch);
    QPainter painter(&svg);
    paintPicture(painter, shown, rect());
}

void PictureWidget::writePdf(QIODevice& device) const
{
    constexpr double millimetresPerInch = 25.4;
    QPdfWriter pdf(&device);
    pdf.setResolution(svgDotsPerInch);
    pdf.setPageSize(QPageSize(QSizeF(width(), height()) * millimetresPerInch / svgDotsPerInch, QPageSize::Millimeter));
    pdf.setPageMargins(QMarginsF());
    QPainter painter(&pdf);
    paintPicture(painter, shown, rect());
}

bool PictureWidget::save(const QString& path, QString& wrong) const
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    if (path.endsWith(".svg", Qt::CaseInsensitive))
        writeSvg(bytes);
    else if (path.endsWith(".pdf", Qt::CaseInsensitive))
        writePdf(bytes);
    else
        image().save(&bytes, "PNG");
    const auto failure = replaceFile(path.toStdString(), bytes.data().toStdString());
    wrong = QString::fromStdString(failure.value_or(""));
    return !failure;
}

void PictureWidget::saveAs()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save as"), "graph.png",
                                                      tr("Picture (*.png);;Drawing (*.svg);;Page (*.pdf)"));
    QString wrong;
    if (!path.isEmpty() && !save(path, wrong))
        QMessageBox::warning(this, tr("Not saved"), tr("%1 could not be written: %2").arg(path, wrong));
}

void PictureWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    paintPicture(painter, shown, rect());
    if (pressedByKeys && hasFocus())
    {
        constexpr double width = 2;
        painter.setPen(QPen(palette().color(QPalette::Highlight), width));
        painter.drawRect(QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2));
    }
}

void PictureWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit pressedAt(toPicture(event->position()));
}

void PictureWidget::mouseMoveEvent(QMouseEvent* event)
{
    emit movedTo(toPicture(event->position()));
}

void PictureWidget::keyPressEvent(QKeyEvent* event)
{
    if (pressedByKeys && event->key() == Qt::Key_Space)
        press();
    else
        QWidget::keyPressEvent(event);
}

void PictureWidget::contextMenuEvent(QContextMenuEvent* event)
{
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(tr("&Copy")), &QAction::triggered, this,
            [this] { QApplication::clipboard()->setImage(image()); });
    connect(menu->addAction(tr("&Save as PNG, SVG or PDF...")), &QAction::triggered, this, &PictureWidget::saveAs);
    menu->popup(event->globalPos());
}
