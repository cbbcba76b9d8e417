#pragma once

#include "model/model_state.h"

/// Turns the fitted curve into training speeds and an estimate of VO2max: weighted averages of the curve's speeds over
/// fixed times and distances, corrected by the 5000 m and 10000 m times, in one fixed order.
/// Reads the curve and time5000, the latest metric table's. Writes the speeds, times and vo2max of the training
/// results one after the other, so that after a fault the steps before it have been taken, and curDistance.
/// Faults: a curve without a time at one of the distances; aerobicPower below 140; a threshold not above 0.
void findTrainingPaces(ModelState& state);
