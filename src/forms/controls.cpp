#include "forms/controls.h"

#include <algorithm>

namespace
{
    void fire(const Event& event)
    {
        if (event)
            event();
    }

    /// Writes a value that differs. Returns whether it did.
    template <class Value>
    bool write(const Control& control, Value& value, const Value& written)
    {
        if (value == written)
            return false;
        value = written;
        notifyShown(control);
        return true;
    }

    int heldWithin(const ScrollBar& bar, long long value)
    {
        return static_cast<int>(std::clamp<long long>(value, bar.min, bar.max));
    }
}

Control& common(const ControlRef& control)
{
    return std::visit([](auto* record) -> Control& { return *record; }, control);
}

const ControlRef* findControl(const Form& form, std::string_view name)
{
    const auto found = std::find_if(form.controls.begin(), form.controls.end(),
                                    [&](const ControlRef& control) { return common(control).name == name; });
    return found == form.controls.end() ? nullptr : &*found;
}

std::string arrayName(std::string_view name, int index)
{
    return std::string(name) + "(" + std::to_string(index) + ")";
}

void setText(TextBox& box, const std::string& text)
{
    if (write(box, box.text, text))
        fire(box.changed);
}

void setCaption(Control& control, const std::string& caption)
{
    write(control, control.caption, caption);
}

void setColour(Label& label, Colour colour)
{
    write(label, label.colour, colour);
}

void setEnabled(Control& control, bool enabled)
{
    write(control, control.enabled, enabled);
}

void setVisible(Control& control, bool visible)
{
    write(control, control.visible, visible);
}

void setTicked(CheckBox& box, bool ticked)
{
    if (write(box, box.ticked, ticked))
        fire(box.clicked);
}

void setTicked(MenuItem& item, bool ticked)
{
    write(item, item.ticked, ticked);
}

void setTitle(Form& form, const std::string& title)
{
    if (form.title == title)
        return;
    form.title = title;
    fire(form.titleShown);
}

void setSize(Form& form, Point size)
{
    if (form.size == size)
        return;
    form.size = size;
    fire(form.sizeShown);
}

void setChosen(OptionButton& option, bool chosen)
{
    if (!write(option, option.chosen, chosen) || !chosen)
        return;
    if (option.group)
        for (OptionButton* member : option.group->members)
            if (member != &option)
                write(*member, member->chosen, false);
    fire(option.clicked);
}

void setValue(ScrollBar& bar, long long value)
{
    if (write(bar, bar.value, heldWithin(bar, value)))
        fire(bar.changed);
}

void drag(ScrollBar& bar, long long value)
{
    if (write(bar, bar.value, heldWithin(bar, value)))
        fire(bar.scrolled ? bar.scrolled : bar.changed);
}

void release(ScrollBar& bar)
{
    fire(bar.changed);
}

void select(ListBox& list, int index)
{
    const int last = static_cast<int>(list.items.size()) - 1;
    list.selected = std::clamp(index, -1, last);
    notifyShown(list);
    if (list.selected >= 0)
        fire(list.clicked);
}

void notifyShown(const Control& control)
{
    fire(control.shown);
}
