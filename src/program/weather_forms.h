#pragma once

#include "program/program.h"

/// Gives the program its form about temperature and humidity.
void addWeatherForms(Program& program);
