#pragma once

#include "model/model_state.h"
#include "model/text_page.h"

/// Where the analysis goes: the screen form, or the end of the full report.
enum class ReportMode { screen = 0, fullReport = 1 };

/// What kind of runner the curve tells of.
struct Specialty
{
    double peak = 0;            // km, distance of the highest performance level
    const char* band = "";      // race distances around it
    double typicalMiles = 0;    // miles a week that go with level and specialty at the runner's age
    const char* verdict = "";   // where the potentially best distance lies, seen from the peak
};

/// Weekly miles against what is typical: whoever gets the present results on less training has a longer best distance.
///   typicalMiles, weeklyMiles  miles a week
[[nodiscard]] const char* specialtyVerdict(double typicalMiles, double weeklyMiles);

/// The numbers of the training analysis: paces, specialty, heart rate zones and the speeds at their ends, in this order.
/// Reads the runner, the curve, speedRatio and time5000. Writes the training results, level, speedRatioAdj, curDistance.
/// Faults: as `findTrainingPaces`, `peakDistance`, `findHeartRateZones` and `findZoneSpeeds`; what was found before
/// stays.
[[nodiscard]] Specialty trainingAnalysis(ModelState& state);

/// Prints the training analysis below what is on the page.
/// Faults: a speed of 0. Lines printed before stay.
void printAnalysis(const ModelState& state, const Specialty& specialty, ReportMode mode, TextPage& page);
