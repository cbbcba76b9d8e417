#pragma once

#include "program/program.h"

/// Adds the course elevation profile to the forms of a program.
void addCourseForms(Program& program);
