#pragma once

#include <string>
#include <vector>

#include <QImage>
#include <QPagedPaintDevice>
#include <QWidget>

#include "forms/outside.h"

/// Prints lines of fixed-pitch text over as many pages as they take, in a size at which no line is cut off.
void paintLines(QPagedPaintDevice& device, const std::vector<std::string>& lines);

/// Prints an image on one page, as large as fits, never larger than on screen by more than its resolution allows.
void paintImage(QPagedPaintDevice& device, const QImage& image);

/// A window as it is printed: on that background, without the hidden controls.
[[nodiscard]] QImage imageOf(QWidget& window, const FormImage& form);

/// A printer behind Qt's preview and print dialog, for forms whose window `windowOf` finds.
[[nodiscard]] Printer printerWithPreview(const std::function<QWidget*(const std::string&)>& windowOf);
