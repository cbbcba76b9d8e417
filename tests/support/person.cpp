#include "support/person.h"

#include <stdexcept>
#include <variant>

namespace
{
    template <class Record>
    Record& as(const ControlRef& control)
    {
        Record* const* record = std::get_if<Record*>(&control);
        if (!record)
            throw std::logic_error(common(control).name + " is of another kind");
        return **record;
    }
}

ControlRef Person::usable(const std::string& name) const
{
    Form* form = findForm(program, "vantstart");
    const ControlRef* control = form ? findControl(*form, name) : nullptr;
    if (!control)
        throw std::logic_error("there is no " + name);
    if (!common(*control).enabled || !common(*control).visible)
        throw std::logic_error(name + " can't be used");
    return *control;
}

void Person::type(const std::string& box, const std::string& text)
{
    TextBox& record = as<TextBox>(usable(box));
    enter(program, "vantstart." + box, true, [&] { setText(record, text); });
}

void Person::slide(const std::string& bar, long long value)
{
    ScrollBar& record = as<ScrollBar>(usable(bar));
    enter(program, "vantstart." + bar, false, [&] { setValue(record, value); });
}

void Person::pull(const std::string& bar, long long value)
{
    ScrollBar& record = as<ScrollBar>(usable(bar));
    enter(program, "vantstart." + bar, false, [&] { drag(record, value); });
}

void Person::click(const std::string& control)
{
    const ControlRef used = usable(control);
    const std::string where = "vantstart." + control;
    if (OptionButton* const* option = std::get_if<OptionButton*>(&used))
        enter(program, where, false, [&] { setChosen(**option, true); });
    else if (CheckBox* const* box = std::get_if<CheckBox*>(&used))
        enter(program, where, false, [&] { setTicked(**box, !(**box).ticked); });
    else
    {
        MenuItem* const* item = std::get_if<MenuItem*>(&used);
        const Event clicked = item ? (**item).clicked : as<Button>(used).clicked;   // the event may end the form
        if (!clicked)
            throw std::logic_error(control + " is a menu");
        enter(program, where, false, clicked);
    }
}

void Person::enterRace(int row, const Race& race)
{
    const ControlRef use = usable(arrayName("Check1", row));
    if (!as<CheckBox>(use).ticked)
        click(arrayName("Check1", row));
    type(arrayName("Text1", row), race.hours);
    type(arrayName("Text2", row), race.minutes);
    type(arrayName("Text3", row), race.seconds);
    type(arrayName("Text4", row), race.number);
    click(arrayName("Option" + std::to_string(race.option), row));
}
