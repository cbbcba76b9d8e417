#include "console/control_values.h"

#include <array>
#include <cstdio>

namespace
{
    using Json = nlohmann::ordered_json;

    Json shapeOf(const LinePrimitive& line)
    {
        return {{"line", {line.from.x, line.from.y, line.to.x, line.to.y}}};
    }

    Json shapeOf(const CirclePrimitive& circle)
    {
        return {{"circle", {circle.centre.x, circle.centre.y, circle.radius}}};
    }

    Json shapeOf(const PointPrimitive& point)
    {
        return {{"point", {point.at.x, point.at.y}}};
    }

    Json shapeOf(const TextPrimitive& text)
    {
        Json json{{"text", text.text}, {"at", {text.at.x, text.at.y}}};
        if (text.size != 0)
            json["size"] = text.size;
        return json;
    }

    Json primitiveJson(const Primitive& primitive)
    {
        Json json = std::visit([](const auto& shape) { return shapeOf(shape); }, primitive.shape);
        json["colour"] = colourText(primitive.colour);
        json["width"] = primitive.width;
        return json;
    }

    Json contents(const TextBox& box)
    {
        return box.text;
    }
    Json contents(const Label& label)
    {
        return label.caption;
    }
    Json contents(const OptionButton& option)
    {
        return option.chosen;
    }
    Json contents(const CheckBox& box)
    {
        return box.ticked ? 1 : 0;
    }
    Json contents(const Button& button)
    {
        return button.caption;
    }
    Json contents(const ScrollBar& bar)
    {
        return bar.value;
    }
    Json contents(const ListBox& list)
    {
        return list.items;
    }
    Json contents(const MenuItem& item)
    {
        return item.ticked;
    }
    Json contents(const TextSurface& surface)
    {
        return surface.page.lines;
    }

    Json contents(const Picture& picture)
    {
        Json primitives = Json::array();
        for (const Primitive& primitive : picture.primitives)
            primitives.push_back(primitiveJson(primitive));
        return primitives;
    }

    struct KindName
    {
        const char* operator()(const TextBox*) const { return "text box"; }
        const char* operator()(const Label*) const { return "label"; }
        const char* operator()(const OptionButton*) const { return "option"; }
        const char* operator()(const CheckBox*) const { return "check box"; }
        const char* operator()(const Button*) const { return "button"; }
        const char* operator()(const ScrollBar*) const { return "scroll bar"; }
        const char* operator()(const ListBox*) const { return "list"; }
        const char* operator()(const MenuItem*) const { return "menu item"; }
        const char* operator()(const TextSurface*) const { return "text surface"; }
        const char* operator()(const Picture*) const { return "picture"; }
    };

    template <class Held>
    Json heldJson(const Held& held)
    {
        return held;
    }

    /// A cell without anything is null.
    Json heldJson(const std::vector<RaceTableRow>& rows)
    {
        Json json = Json::array();
        for (const RaceTableRow& row : rows)
        {
            Json cells = Json::array();
            for (const RaceCell& cell : row)
            {
                if (const double* number = std::get_if<double>(&cell))
                    cells.push_back(*number);
                else if (const std::string* text = std::get_if<std::string>(&cell))
                    cells.push_back(*text);
                else
                    cells.push_back(nullptr);
            }
            json.push_back(cells);
        }
        return json;
    }

    std::optional<Json> colourProperty(const ControlRef& control)
    {
        if (const auto* label = std::get_if<Label*>(&control))
            return colourText((*label)->colour);
        if (const auto* picture = std::get_if<Picture*>(&control))
            return colourText((*picture)->background);
        return {};
    }
}

std::string colourText(Colour colour)
{
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "#%02x%02x%02x", static_cast<unsigned>(colour.red),
                  static_cast<unsigned>(colour.green), static_cast<unsigned>(colour.blue));
    return text.data();
}

Json valueOf(const ControlRef& control)
{
    return std::visit([](const auto* record) { return contents(*record); }, control);
}

std::optional<Json> propertyOf(const ControlRef& control, std::string_view property)
{
    const Control& record = common(control);
    if (property == "enabled")
        return record.enabled;
    if (property == "visible")
        return record.visible;
    if (property == "caption")
        return record.caption;
    if (property == "colour")
        return colourProperty(control);
    if (const auto* bar = std::get_if<ScrollBar*>(&control))
    {
        if (property == "min")
            return (*bar)->min;
        if (property == "max")
            return (*bar)->max;
    }
    if (const auto* list = std::get_if<ListBox*>(&control); list && property == "selected")
        return (*list)->selected;
    return {};
}

Json describe(const ControlRef& control)
{
    Json json{{"name", common(control).name}, {"kind", std::visit(KindName{}, control)}, {"value", valueOf(control)}};
    for (const char* property : {"enabled", "visible", "caption", "colour", "min", "max", "selected"})
        if (const std::optional<Json> value = propertyOf(control, property))
            json[property] = *value;
    return json;
}

Json stateJson(const StateValue& value)
{
    return std::visit([](const auto& held) { return heldJson(held); }, value);
}
