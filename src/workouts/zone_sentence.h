#pragma once

#include <string>

#include "model/model_state.h"

/// What kind of training a workout is, and the colour that it is told in: parts of red, green and blue, 0 to 255.
struct ZoneSentence
{
    std::string text;
    int red = 0, green = 0, blue = 0;

    friend bool operator==(const ZoneSentence&, const ZoneSentence&) = default;
};

/// The sentence for a mean speed of fast running and a load.
///   speed              m/s at the runner's own level
///   percentOfStandard  stress points in percent of those of the weekly mileage, a whole number
/// Eleven zones are tried from the slowest on, each by itself, so that where their bounds are out of order the later
/// one wins.
[[nodiscard]] ZoneSentence zoneSentence(const Training& training, double speed, double percentOfStandard);
