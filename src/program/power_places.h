#pragma once

#include <vector>

#include "program/program.h"

/// The forms about power, slopes, treadmill, hills, wind and pacing.
[[nodiscard]] std::vector<FormPlace> powerPlaces(Program& program);
