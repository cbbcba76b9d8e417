#pragma once

#include <array>
#include <string>

#include "model/messages.h"
#include "model/model_state.h"
#include "model/text_page.h"
#include "prediction/calculation.h"

// Performance tables: times over 24 distances, in nine columns of levels or of ages.

enum class TableKind {
    levels,        // a column is a level
    agesAtLevel,   // a column is an age; all have one level
    runnerByAge    // a column is an age of this runner
};

/// What table is asked for; the texts are as entered, and their leading numbers count.
struct TableSpecification
{
    TableKind kind = TableKind::levels;
    std::string minimum = "60";   // first column: percent or years
    std::string interval = "5";
    std::string lev = "100";   // percent, for one level
};

struct PerformanceTable
{
    std::string title;
    TextPage page;
    std::array<double, static_cast<std::size_t>(tableColumns)>
        fractions{};   // of the columns: 0.01 a percent or a year
    /// s, by column and row; 0 where a fault came first
    std::array<OneBased<double, tableDistances>, static_cast<std::size_t>(tableColumns)> times{};
};

/// Whether a table can't be built because nothing has been calculated yet; a message then says so.
[[nodiscard]] bool isTableRefused(const ModelState& state, TableKind kind, Messages& said);

/// Builds a table from scratch.
///   input  the main form's entries
///   table  title first, then the lines as they come, up to a fault
///   said   gets the messages of the calculations for each age
/// Reads sex, levelIndex and, for this runner, time800 and time5000. Age comparison is the caller's to set:
/// ageCompareForced for this runner, oplev for one level; without them agecomp decides.
/// Writes curDistance; for this runner also what `fillColumnAtAge` does. Puts age, ageCompareOn and levelIndex back.
/// A fault leaves age, ageCompareOn and, while one is under way, the levelIndex of its cell.
/// Faults: levels of 0 and below, ages without an age factor, a runner who has not raced.
void printPerformanceTable(ModelState& state, const TableSpecification& asked, CalculationInput& input,
                           PerformanceTable& table, Messages& said);
