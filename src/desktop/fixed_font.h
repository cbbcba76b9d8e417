#pragma once

#include <QFont>
#include <QFontDatabase>

/// The font of tables: Courier New where it is installed, else one whose columns are as wide.
[[nodiscard]] inline QFont fixedFont()
{
    constexpr int points = 10;
    QFont font(QStringList{"Courier New", "Liberation Mono", "DejaVu Sans Mono"}, points);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}
