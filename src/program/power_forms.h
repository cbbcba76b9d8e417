#pragma once

#include "program/program.h"

/// Gives the program its forms about power, slopes, treadmill, hills, wind and pacing.
void addPowerForms(Program& program);
