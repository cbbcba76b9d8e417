#include "support/runners.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <vector>

#include "prediction/calculate.h"
#include "support/faults.h"

namespace
{
    constexpr std::array<std::pair<std::string_view, RaceUnit>, 6> unitWords{{{"mi", RaceUnit::miles},
                                                                              {"yd", RaceUnit::yards},
                                                                              {"km", RaceUnit::kilometers},
                                                                              {"m", RaceUnit::meters},
                                                                              {"marathon", RaceUnit::marathon},
                                                                              {"half", RaceUnit::halfMarathon}}};

    RaceUnit unitOf(std::string_view word)
    {
        const auto found =
            std::find_if(unitWords.begin(), unitWords.end(), [&](const auto& known) { return known.first == word; });
        if (found == unitWords.end())
            throw std::invalid_argument("no unit: " + std::string(word));
        return found->second;
    }
}

RaceRow raceRow(std::string_view words)
{
    RaceRow row;
    if (words.empty())
        return row;
    std::istringstream stream{std::string(words)};
    std::string unit;
    std::string time;
    if (!words.starts_with("marathon") && !words.starts_with("half"))
        stream >> row.number;
    stream >> unit >> time;
    row.use = true;
    row.unit = unitOf(unit);
    for (std::string* field : {&row.seconds, &row.minutes, &row.hours})
    {
        const std::size_t colon = time.rfind(':');
        *field = time.substr(colon == std::string::npos ? 0 : colon + 1);
        if (colon == std::string::npos)
            break;
        time.erase(colon);
    }
    return row;
}

CalculationInput entries(std::initializer_list<std::string_view> races)
{
    CalculationInput input;
    std::transform(races.begin(), races.end(), input.rows.begin(), raceRow);
    input.age = "40";
    input.weeklyMiles = 30;
    input.fit = FitMode::allData;
    input.output = OutputMode::metric;
    return input;
}

void Prediction::start(const Run& run, const CalculationInput& entered)
{
    input = entered;
    fault = faultOf([&] { run(state, input, results, messages); });
}

Prediction recalculated(const CalculationInput& input)
{
    Prediction prediction;
    prediction.start(recalculate, input);
    return prediction;
}

Prediction calculatedOnce(const CalculationInput& input)
{
    Prediction prediction;
    prediction.start(calculate, input);
    return prediction;
}

std::vector<std::string> textsOf(const Messages& messages)
{
    std::vector<std::string> texts;
    for (const Message& message : messages)
        texts.push_back(message.text);
    return texts;
}
