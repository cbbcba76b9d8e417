#pragma once

#include <QPointer>
#include <QWidget>

#include "forms/outside.h"

class QStatusBar;

/// What a runner can do about a calculation that stopped.
[[nodiscard]] QString adviceFor(const FaultReport& fault);

/// Message boxes, questions and beeps over a window. A fault gets a box that tells what stopped, at which input and
/// what to try; while an entry is under way it is told in the window's status bar instead.
[[nodiscard]] Dialogs boxesOver(QPointer<QWidget> window, QPointer<QStatusBar> statusBar);
