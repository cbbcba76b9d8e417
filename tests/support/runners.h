#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "model/messages.h"
#include "model/model_state.h"
#include "prediction/calculation.h"

/// A race row from its words, which may be anything: number, unit (mi yd km m) and time, or marathon or half and
/// time: "5 km 20:00", "1760 yd 4:40.5", "marathon 3:05:10". The parts of the time go to the fields they stand for.
[[nodiscard]] RaceRow raceRow(std::string_view words);

/// The runner that most cases are told about: a man of 40 on 30 miles a week, "Use all data", metric output.
/// Rows stand on the form in the order given; an empty text leaves its row unchecked.
[[nodiscard]] CalculationInput entries(std::initializer_list<std::string_view> races);

/// One state and what runs of `calculate` or `recalculate` leave.
struct Prediction
{
    ModelState state;
    CalculationInput input;
    CalculationResults results;
    Messages messages;   // of all runs so far
    std::string fault;   // of the last run

    using Run = std::function<void(ModelState&, CalculationInput&, CalculationResults&, Messages&)>;

    /// Runs `run` on `entered`, whose fit and output it may change. A fault is kept in `fault`.
    void start(const Run& run, const CalculationInput& entered);
};

/// A fresh state after Re-Calculate.
[[nodiscard]] Prediction recalculated(const CalculationInput& input);

/// A fresh state, with curve constants as Re-Calculate sets them, after one run.
[[nodiscard]] Prediction calculatedOnce(const CalculationInput& input);

/// The texts of messages, without their titles.
[[nodiscard]] std::vector<std::string> textsOf(const Messages& messages);
