#pragma once

#include "forms/controls.h"
#include "model/model_state.h"

// The heart rate graph of the form `anaform`: heart rate against speed, in picture units.

inline constexpr Colour aerobicColour{0, 200, 0};
inline constexpr Colour thresholdColour{250, 150, 0};
inline constexpr Colour vo2maxColour{250, 0, 0};   // of the key; the marks have the classic light red
inline constexpr Colour repetitionColour{250, 0, 250};

inline constexpr double heartRatePlotRight = 8550;          // where the plot ends
inline constexpr Point heartRatePicture{9000, 5250};        // holds the plot and the scales around it
inline constexpr std::size_t mostHeartRateSamples = 4501;   // index 0 to 4500

/// Draws the graph of the latest training analysis in place of what the picture showed, and keeps its samples.
/// Faults: a scale without a step (400 m repetitions in about 293 to 440 s, a maximum heart rate of 40 to 59) or with
/// steps too fine to be seen; more samples than are kept, as with 1500 m in 2:30. What was drawn before stays.
void drawHeartRateGraph(ModelState& state, Picture& pic);
