#pragma once

#include "program/program.h"

/// Puts the forms `anaform` and `graphform` and the full report into the program.
void addAnalysisForms(Program& program);

/// The full report, to the printer or, with reportToFile at 1, to a text file in the current folder; afterwards the
/// heart rate graph, also where its form is not open. The file is put in place when all of it is done: then a message
/// says so, else the old file stands.
/// Faults: as `printFullReport` and `drawHeartRateGraph`.
void writeFullReport(Program& program);
