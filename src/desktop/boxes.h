#pragma once

#include <functional>
#include <string>

#include <QMainWindow>

#include "forms/outside.h"

/// What a runner can do about a calculation that stopped.
[[nodiscard]] QString adviceFor(const FaultReport& fault);

/// Message boxes, questions and beeps over the window in front. A fault gets a box that tells what stopped, at which
/// input and what to try; while an entry is under way it is told in the status bar of the entry's window instead.
///   windowOf  finds the window of a form by its name; it may give nothing
[[nodiscard]] Dialogs boxesOver(const std::function<QMainWindow*(const std::string&)>& windowOf);
