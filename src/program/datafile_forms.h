#pragma once

#include "program/program.h"

/// Gives the program its form of race files and personal data files.
void addDatafileForms(Program& program);
