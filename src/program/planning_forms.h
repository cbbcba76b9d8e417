#pragma once

#include "program/program.h"

/// Adds the workout planner and the splits analysis to the forms of a program.
void addPlanningForms(Program& program);
