#include "console/json_text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace
{
    using Json = nlohmann::ordered_json;

    std::string doubleText(double number)
    {
        if (number == 0)
            return std::signbit(number) ? "-0.0" : "0";   // many readers take -0 as a whole number
        std::array<char, 40> buffer{};
        const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
        return {buffer.data(), end};
    }

    std::string scalarText(const Json& json)
    {
        if (json.is_number_float())
            return doubleText(json.get<double>());
        return json.dump(-1, ' ', false, Json::error_handler_t::replace);
    }
}

std::string jsonText(const Json& json)
{
    if (!json.is_structured())
        return scalarText(json);
    std::string text;
    for (const auto& [key, value] : json.items())
    {
        if (!text.empty())
            text += ',';
        if (json.is_object())
            text += scalarText(key) + ':';
        text += jsonText(value);
    }
    return json.is_object() ? '{' + text + '}' : '[' + text + ']';
}
