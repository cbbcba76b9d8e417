#pragma once

#include <string>
#include <vector>

/// The literature behind the formulas, as the lines of a page: at most 100 characters each, a blank line between two
/// entries. An entry is author, year, title and place, and what it stands for in Vantelos.
/// docs/model.md tells where each is used, and which formulas are fits of this system's own.
[[nodiscard]] const std::vector<std::string>& referenceLines();
