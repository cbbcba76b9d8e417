#pragma once

#include "model/model_state.h"
#include "model/text_page.h"

// What happens to a race time if the two halves are run at different speeds.
//
// The paces p and q of the halves lie on a hyperbola, (p - c) (q - c) = K. It passes through even pacing and through
// the extreme in which one half is the fastest that the runner could do over half the distance and the other half is
// run at an aerobic pace. All paces are seconds a mile, at all stages.

/// Wind at the runner's height from wind at 1 m above the ground, by a power law: a runner of 178 cm feels it unchanged.
///   windBase  m/s, positive is a head wind
/// Returns m/s. Reads heightCm.  Faults: a negative heightCm.
[[nodiscard]] double windAtRunner(const ModelState& state, double windBase);

/// Lays the hyperbola for a distance.
///   distance  m, > 0; the paces of races beyond 9000 m are taken without the runner's long-distance fade
/// Writes curDistance (half the distance), evenPace, fastHalfPace, aerobicHalfPace, pacingCentre, pacingArea.
/// Faults: a distance not above 0; an aerobicPower below 140; aerobic and fast half as far from even pacing.
void layPacingCurve(ModelState& state, double distance);

struct PacingTimes
{
    double best = 999999;   // s, the best total of all rows
    double flat = 0;        // s, even pacing on the level without wind
};

/// Prints the table of strategies, each row 2 s a mile from the one before it, the first one even effort.
///   distance  m, > 0
///   mode      "n" level without wind, "r" out and back: slope and windBase hold for the first half, their opposites
///             for the second
///   slope     of the first half, rise over distance along the surface; 0 in mode "n"
/// Reads windBase, paceDivisor. Writes windSpeed (left as in the last second half), slopeDirection, zeroPowerFlag, and
/// what `layPacingCurve` writes.
/// No cap: it ends after a row whose next first half, or whose second half, is faster than the fast half. With a
/// negative slope that can become impossible; then it faults, but not before 200 rows.
/// Rows printed before a fault stay.
[[nodiscard]] PacingTimes printPacingTable(ModelState& state, double distance, const std::string& mode, double slope,
                                           TextPage& page);
