#include "console/json_text.h"

#include "model/text.h"

namespace
{
    using Json = nlohmann::ordered_json;

    std::string scalarText(const Json& json)
    {
        if (json.is_number_float())
            return exactText(json.get<double>());
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
