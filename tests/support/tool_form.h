#pragma once

#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "program/program.h"
#include "support/recorded_outside.h"
#include "support/scratch_folder.h"

/// A program with one of its tool forms, used as a person does by the names of its controls. Whatever no person could
/// do throws std::logic_error.
struct ToolForm
{
    explicit ToolForm(std::string name) : formName(std::move(name)) {}

    ScratchFolder folder;
    RecordedOutside outside;
    std::vector<FormImage> printed;
    Printer printer{{}, [this](const FormImage& image) { printed.push_back(image); }};
    Program program{outside.dialogs(), printer, folder.path};
    std::string formName;

    void open()
    {
        enter(program, formName, false, [this] { openForm(program, formName); });
    }
    void close() { click("Command1"); }

    [[nodiscard]] ModelState& state() { return program.state; }
    [[nodiscard]] Form* form() { return findForm(program, formName); }

    template <class Record>
    [[nodiscard]] Record& get(const std::string& control)
    {
        const ControlRef* found = form() ? findControl(*form(), control) : nullptr;
        Record* const* record = found ? std::get_if<Record*>(found) : nullptr;
        if (!record)
            throw std::logic_error("there is no such " + control);
        return **record;
    }
    [[nodiscard]] const std::string& text(const std::string& box) { return get<TextBox>(box).text; }
    [[nodiscard]] const std::string& label(const std::string& name) { return get<Label>(name).caption; }
    [[nodiscard]] const std::string& caption(const std::string& button) { return get<Button>(button).caption; }
    [[nodiscard]] bool isOn(const std::string& option) { return get<OptionButton>(option).chosen; }
    [[nodiscard]] const std::vector<std::string>& lines(const std::string& surface = "table")
    {
        return get<TextSurface>(surface).page.lines;
    }

    template <class Record>
    [[nodiscard]] Record& usable(const std::string& control)
    {
        Record& record = get<Record>(control);
        if (!record.enabled || !record.visible)
            throw std::logic_error(control + " can't be used");
        return record;
    }
    void click(const std::string& button)
    {
        const Event clicked = usable<Button>(button).clicked;
        enter(program, formName + "." + button, false, clicked);
    }
    void choose(const std::string& option)
    {
        OptionButton& record = usable<OptionButton>(option);
        enter(program, formName + "." + option, false, [&] { setChosen(record, true); });
    }
    void type(const std::string& box, const std::string& typed)
    {
        TextBox& record = usable<TextBox>(box);
        if (record.locked)
            throw std::logic_error(box + " is only shown");
        enter(program, formName + "." + box, true, [&] { setText(record, typed); });
    }
    void slide(const std::string& bar, long long value)
    {
        ScrollBar& record = usable<ScrollBar>(bar);
        enter(program, formName + "." + bar, false, [&] { setValue(record, value); });
    }
    void pull(const std::string& bar, long long value)
    {
        ScrollBar& record = usable<ScrollBar>(bar);
        enter(program, formName + "." + bar, false, [&] { drag(record, value); });
    }
};
