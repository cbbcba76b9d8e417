#pragma once

#include <QIODevice>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <QWidget>

#include "forms/controls.h"

/// Draws a picture's display list into a rectangle of a painter, as large as fits and centred.
void paintPicture(QPainter& painter, const Picture& picture, const QRectF& into);

/// A picture scaled to its widget, which tells where the mouse is in the picture's own units. It can be copied, and
/// saved as PNG, SVG or PDF.
class PictureWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PictureWidget(QWidget* parent = nullptr);

    void showPicture(const Picture& picture);

    /// Whether it can be pressed by the keyboard as well: it is reached by the Tab key then, and shows that it is.
    void setButton(bool button);
    [[nodiscard]] bool isButton() const { return pressedByKeys; }

    /// As a press in its middle.
    void press();

    /// The place of a point of the widget in picture units.
    [[nodiscard]] QPointF toPicture(QPointF point) const;

    /// A copy of the picture in a file whose ending tells the kind: .svg, .pdf, and with any other PNG. Returns whether
    /// it is written; if not the old file stands, and `wrong` says why.
    [[nodiscard]] bool save(const QString& path, QString& wrong) const;

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void pressedAt(QPointF place);
    void movedTo(QPointF place);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    [[nodiscard]] QImage image() const;
    void writeSvg(QIODevice& device) const;
    void writePdf(QIODevice& device) const;
    void saveAs();

    Picture shown;
    bool pressedByKeys = false;
};
