#pragma once

#include "program/program.h"

/// Gives the program its performance tables and the graph of performance by age.
void addTableForms(Program& program);
