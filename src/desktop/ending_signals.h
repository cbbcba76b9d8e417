#pragma once

#include <QObject>

/// Lets a signal that asks the process to end (of a terminal that closes, or of a session's end) close the windows as a
/// person would, so that the entries are saved.
///   lifetime  of what listens; it stands as long as the application does
void closeWindowsOnSignals(QObject& lifetime);
