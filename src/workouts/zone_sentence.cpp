#include "workouts/zone_sentence.h"

#include <array>
#include <limits>
#include <optional>
#include <span>

namespace
{
    struct Rgb
    {
        int red, green, blue;
    };

    constexpr double noEnd = std::numeric_limits<double>::infinity();

    /// What a load adds: from <= percent < below.
    struct Suffix
    {
        double from, below;
        const char* text;
        Rgb colour;
    };

    constexpr Rgb lightBlue{0, 0, 200};
    constexpr Rgb green{0, 160, 0};
    constexpr Rgb orange{150, 50, 0};
    constexpr Rgb red{200, 0, 0};

    constexpr std::array<Suffix, 4> tooSlow{
        {{10, 14, ", but some training benefit due to length of run", {0, 100, 100}},
         {14, 18, ", but significant training benefit due to length of run", green},
         {18, 22, ", but somewhat stressful due to length of run", {100, 100, 0}},
         {22, noEnd, ", but stressful due to length of run", orange}}};
    constexpr std::array<Suffix, 4> easyAerobic{
        {{-noEnd, 10, ", but run too short for optimal benefit", lightBlue},
         {16, 20, ", but considerable training benefit due to length of run", green},
         {20, 25, ", but somewhat stressful due to length of run", {100, 100, 0}},
         {25, noEnd, ", but stressful due to length of run", orange}}};
    constexpr std::array<Suffix, 2> idealAerobic{{{-noEnd, 10, ", but run too short for optimal benefit", lightBlue},
                                                  {25, noEnd, ", but stressful due to length of run", orange}}};
    constexpr std::array<Suffix, 3> fastAerobic{{{-noEnd, 10, ", but run too short for optimal benefit", lightBlue},
                                                 {25, 40, ", and stressful due to length of run", orange},
                                                 {40, noEnd, ", and very stressful due to length of run", red}}};
    constexpr std::array<Suffix, 3> hardAerobic{{{-noEnd, 10, ", but relatively easy due to short run", {0, 50, 150}},
                                                 {28, 42, ", and stressful due to length of run", orange},
                                                 {42, noEnd, ", and very stressful due to length of run", red}}};
    // from here on a load of 42 adds nothing: the gap between 42 and 43 is meant
    constexpr std::array<Suffix, 4> lowThreshold{{{-noEnd, 10, ", and rather easy due to short run", {0, 40, 160}},
                                                  {10, 17, ", and somewhat easy due to short run", {0, 70, 130}},
                                                  {29, 42, ", but stressful due to length of run", orange},
                                                  {43, noEnd, ", but very stressful due to length of run", red}}};
    constexpr std::array<Suffix, 4> threshold{{{-noEnd, 10, ", but rather easy due to short run", {0, 40, 160}},
                                               {10, 17, ", but somewhat easy due to short run", {0, 70, 130}},
                                               {29, 42, ", and stressful due to length of run", orange},
                                               {43, noEnd, ", and very stressful due to length of run", red}}};
    constexpr std::array<Suffix, 4> fast{{{-noEnd, 10, ", but rather easy due to short workout", {0, 40, 160}},
                                          {10, 17, ", but somewhat easy due to short workout", {0, 70, 130}},
                                          {29, 42, ", and stressful due to length of workout", orange},
                                          {43, noEnd, ", and very stressful due to length of workout", red}}};

    struct Zone
    {
        double above;   // m/s
        const char* text;
        std::optional<Rgb> colour;   // none keeps that of the zone before
        std::span<const Suffix> suffixes;
    };

    std::array<Zone, 11> zonesOf(const Training& t)
    {
        return {
            {{-noEnd, "Generally too slow for optimal aerobic stimulus", lightBlue, tooSlow},
             {t.aerobicSpeedLow, "Easy aerobic training pace", {}, easyAerobic},
             {0.6 * t.aerobicTrainSpeed + 0.4 * t.aerobicSpeedLow, "Ideal aerobic training pace", green, idealAerobic},
             {0.6 * t.aerobicTrainSpeed + 0.4 * t.aerobicSpeedHigh, "Fast aerobic training pace", green, fastAerobic},
             {t.aerobicSpeedHigh, "Hard aerobic 'marathon' intensity", green, hardAerobic},
             {t.thresholdSpeedLow, "Lower-end lactate threshold pace", green, lowThreshold},
             {0.6 * t.thresholdSpeed + 0.4 * t.thresholdSpeedLow, "Ideal lactate threshold pace", green, threshold},
             {0.6 * t.thresholdSpeed + 0.4 * t.thresholdSpeedHigh, "High-end lactate threshold pace", green, threshold},
             {t.thresholdSpeedHigh, "'Grey area' near or a bit faster than 10K pace", green, fast},
             {t.intervalSpeed, "VO2 max pace", green, fast},
             {t.vo2maxSpeed, "Intense pace suitable for only races and short repetitions", green, fast}}};
    }

    void setColour(ZoneSentence& sentence, Rgb colour)
    {
        sentence.red = colour.red;
        sentence.green = colour.green;
        sentence.blue = colour.blue;
    }
}

ZoneSentence zoneSentence(const Training& training, double speed, double percentOfStandard)
{
    ZoneSentence sentence;
    for (const Zone& zone : zonesOf(training))
    {
        if (!(speed > zone.above))
            continue;
        sentence.text = zone.text;
        if (zone.colour)
            setColour(sentence, *zone.colour);
        for (const Suffix& suffix : zone.suffixes)
        {
            if (percentOfStandard < suffix.from || percentOfStandard >= suffix.below)
                continue;
            sentence.text += suffix.text;
            setColour(sentence, suffix.colour);
        }
    }
    return sentence;
}
