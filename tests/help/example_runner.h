#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "program/program.h"
#include "support/recorded_outside.h"
#include "support/scratch_folder.h"

/// A text without the blanks around it.
[[nodiscard]] inline std::string trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// The words of a line.
[[nodiscard]] inline std::vector<std::string> wordsOf(const std::string& line)
{
    std::vector<std::string> words;
    for (std::size_t from = line.find_first_not_of(' '); from != std::string::npos;)
    {
        const std::size_t to = std::min(line.find(' ', from), line.size());
        words.push_back(line.substr(from, to - from));
        from = line.find_first_not_of(' ', to);
    }
    return words;
}

/// The program with the runner of the help's examples: a man of 40 on 30 miles a week who has run 10 km in 40:00, with
/// heart rates of 185 and 50. A person uses it by names as a script has them, "vantstart.Command1"; whatever no person
/// could do throws std::logic_error.
class ExampleRunner
{
public:
    ExampleRunner()
    {
        type("vantstart.txtage", "40");
        type("vantstart.actmhrtx", "185");
        type("vantstart.resthrtx", "50");
        slide("vantstart.HScroll1", 30);
        slide("vantstart.wtscrl", 160);
        race(0, "", "40", "", "10", "Option3");
        click("vantstart.Command1");
    }

    ScratchFolder folder;
    RecordedOutside outside;
    Program program{outside.dialogs(), outside.printer(), folder.path};

    /// A race into row i of the main form, with one of the options for its unit.
    void race(int row, const char* hours, const char* minutes, const char* seconds, const char* number,
              const char* option)
    {
        const std::string index = "(" + std::to_string(row) + ")";
        tick("vantstart.Check1" + index, true);
        type("vantstart.Text1" + index, hours);
        type("vantstart.Text2" + index, minutes);
        type("vantstart.Text3" + index, seconds);
        type("vantstart.Text4" + index, number);
        click("vantstart." + std::string(option) + index);
    }

    void open(const std::string& form)
    {
        enter(program, form, false, [&] { openForm(program, form); });
    }

    void type(const std::string& box, const std::string& text)
    {
        TextBox& record = usable<TextBox>(box);
        enter(program, box, true, [&] { setText(record, text); });
    }

    void slide(const std::string& bar, long long value)
    {
        ScrollBar& record = usable<ScrollBar>(bar);
        enter(program, bar, false, [&] { setValue(record, value); });
    }

    void tick(const std::string& box, bool ticked)
    {
        CheckBox& record = usable<CheckBox>(box);
        enter(program, box, false, [&] { setTicked(record, ticked); });
    }

    /// A button, an option or an item of a menu.
    void click(const std::string& name)
    {
        const ControlRef control = found(name);
        if (!common(control).enabled || !common(control).visible)
            throw std::logic_error(name + " can't be used");
        if (OptionButton* const* option = std::get_if<OptionButton*>(&control))
            return enter(program, name, false, [&] { setChosen(**option, true); });
        Button* const* button = std::get_if<Button*>(&control);
        MenuItem* const* item = std::get_if<MenuItem*>(&control);
        if (!button && !item)
            throw std::logic_error(name + " can't be clicked");
        const Event clicked = button ? (**button).clicked : (**item).clicked;
        enter(program, name, false, clicked);
    }

    void press(const std::string& picture)
    {
        const auto pressed = usable<Picture>(picture).pressed;
        enter(program, picture, false, [&] { pressed({0, 0}); });
    }

    void move(const std::string& picture, Point to)
    {
        const auto moved = usable<Picture>(picture).moved;
        enter(program, picture, false, [&] { moved(to); });
    }

    [[nodiscard]] std::string box(const std::string& name) { return trimmed(get<TextBox>(name).text); }
    [[nodiscard]] std::string label(const std::string& name) { return trimmed(get<Label>(name).caption); }
    [[nodiscard]] const std::vector<std::string>& lines(const std::string& surface)
    {
        return get<TextSurface>(surface).page.lines;
    }

    /// The words of the line that begins with these.
    [[nodiscard]] std::vector<std::string> line(const std::string& surface, const std::string& beginning)
    {
        for (const std::string& candidate : lines(surface))
            if (trimmed(candidate).starts_with(beginning))
                return wordsOf(trimmed(candidate).substr(beginning.size()));
        throw std::logic_error("no line begins with " + beginning);
    }

    template <class Record>
    [[nodiscard]] Record& get(const std::string& name)
    {
        const ControlRef control = found(name);
        Record* const* record = std::get_if<Record*>(&control);
        if (!record)
            throw std::logic_error(name + " is of another kind");
        return **record;
    }

private:
    [[nodiscard]] ControlRef found(const std::string& name)
    {
        const std::size_t dot = name.find('.');
        Form* const form = findForm(program, name.substr(0, dot));
        const ControlRef* control = form ? findControl(*form, name.substr(dot + 1)) : nullptr;
        if (!control)
            throw std::logic_error("there is no such " + name);
        return *control;
    }

    template <class Record>
    [[nodiscard]] Record& usable(const std::string& name)
    {
        Record& record = get<Record>(name);
        if (!record.enabled || !record.visible)
            throw std::logic_error(name + " can't be used");
        return record;
    }
};
