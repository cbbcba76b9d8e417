#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "forms/controls.h"
#include "program/program.h"

// One piece of code connects the controls of a form with the widgets of the same names, both ways and for all kinds.
// It alone writes to those widgets, and blocks their signals while it does.

/// Property of a list whose items Enter takes, instead of pressing the form's main button.
inline constexpr const char* takesEnter = "takesEnter";

/// "Text1(0)" is the widget "Text1_0".
[[nodiscard]] QString widgetName(const std::string& controlName);

/// Connects every control of a form with its widget in a window: captions, tips, values, ranges, enabled and visible
/// state go to the widget whenever the control changes, and what a person does there becomes the control's event.
///   lifetime  the connections end with it; it must go before the form does
/// Returns what has no partner or one of the wrong kind; nothing when all fit.
[[nodiscard]] QStringList bindForm(Program& program, Form& form, QWidget& window, QObject& lifetime);

/// Widgets of a window that a person can use, or that show a value, and that no control of the form stands behind.
[[nodiscard]] QStringList widgetsWithoutControl(const Form& form, const QWidget& window);
