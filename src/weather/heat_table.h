#pragma once

#include <array>
#include <string>

#include "model/messages.h"
#include "model/model_state.h"
#include "model/units.h"

// What heat, cold, humidity and sunshine do to race times, from one or two races in near-ideal weather.
//
// A curve of its own, simpler than the runner's: a pace that grows with the logarithm of distance. It doesn't touch
// the runner's curve, and may differ from it a little.

inline constexpr std::size_t heatRows = 10;

/// Metres of the rows; the first one is free.
inline constexpr std::array<double, heatRows> heatDistances{
    0, 400, 800, 1500, metresPerMile, 3000, 5000, 10000, halfMarathonMetres, marathonMetres};

/// How the rows are called; the first one is called by its distance.
inline constexpr std::array<const char*, heatRows> heatRowNames{"",       "400 m",  "800 m",   "1500 m",    "1 mile",
                                                                "3000 m", "5000 m", "10000 m", "half mara", "marathon"};

struct HeatRace
{
    bool use = true;
    double seconds = 0;
    double metres = 0;
};

struct HeatEntries
{
    HeatRace race1, race2;
    double dispred = 0;   // m, the free distance
    std::string wtkg;     // kg, as typed; read where the steps need it
    std::string htcm;     // cm
    std::string agetx;    // years, read with one race alone
    double weekmi = 0;    // miles a week
    bool fop = false;     // female
};

/// One row as it is shown; the numbers are as they were computed.
struct HeatRow
{
    double ideal = 0;       // s
    double decrement = 0;   // percent
    double given = 0;       // s
    std::string idealt, pdec, givent;
};

using HeatTable = std::array<HeatRow, heatRows>;

/// The runner's long-distance coefficient: that of the model, each step as this form takes it.
///   w    miles a week, 0 to 150
///   fop  female: 0.022 less
[[nodiscard]] double heatFatigueCoefOf(double w, bool fop);

/// Factor of the times over 400 m to 9000 m, both excluded.
///   d  m
[[nodiscard]] double middleDistanceFactor(double d);

/// Factor of the times from 9000 m up: times are divided by it.
///   d  m
/// Reads heatFatigueCoef, sex.
[[nodiscard]] double longDistanceFactor(const ModelState& state, double d);

/// Wet bulb globe temperature, degrees C, that is best for a race: the cooler the longer, and the more mass for its
/// surface a body has.
///   t     s, > -60
///   wtkg  kg, > 0
///   htcm  cm, > 0
/// Faults: a body without surface, a negative weight or height.
[[nodiscard]] double idealWbgt(double t, double wtkg, double htcm);

/// Percent by which weather lengthens a race. Cold counts the same as heat; 0 at the ideal.
///   t      s, of the race in ideal weather, > 0
///   tm     s, of the runner's marathon, likewise: slow runners suffer more
///   stray  degrees C of wet bulb globe temperature away from the ideal, of either sign
/// Faults: times of 0 or below.
[[nodiscard]] double heatDecrement(double t, double tm, double stray, bool fop);

/// Fills the table for the weather of wbgtC.
///   table  written row by row, each up to the fault if one comes; as it was where the entries are refused
///   said   gets the refusal of a distance below 400 m, or of two races that are both not used
/// Reads wbgtC, heatFatigueCoef, sex. Writes paceBase and paceSlope.
/// With one race, that one's pace and the growth that five rounds find from weekly distance, age and sex. The reference
/// of the rows stays at race 1 all the same, also where race 2 alone is used.
/// Faults: two races over one distance, a used race without a time, a body without surface, distances far beyond any
/// race.
void calculateHeatTable(ModelState& state, const HeatEntries& entries, HeatTable& table, Messages& said);
