#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

#include "program/program.h"
#include "support/recorded_outside.h"
#include "support/scratch_folder.h"

/// The curve of a man who runs 5000 m in 20:00.
inline void setUsualCurve(ModelState& state)
{
    state.curve.aerobicPower = 759.04276427009;
    state.curve.anaerobicEnergy = 512138.6432489031;
    state.curve.refDistance = 5000;
    state.curve.fatigueCoef = 0.10917293463433267;
}

/// Round numbers for what a training analysis leaves.
inline void setUsualTraining(ModelState& state)
{
    Training& training = state.training;
    training.aerobicTrainSpeed = 3.4;
    training.thresholdSpeed = 3.95;
    training.vo2maxSpeed = 4.5;
    training.vo2maxSpeedTop = 4.41;
    training.intervalSpeed = 4.32;
    training.aerobicHr = 141;
    training.thresholdHr = 166;
    training.aerobicSpeedLow = 3.1;
    training.aerobicSpeedHigh = 3.6;
    training.thresholdSpeedLow = 3.8;
    training.thresholdSpeedHigh = 4.1;
    state.runner.maxHr = 185;
    state.runner.restHr = 50;
    state.runner.weeklyMiles = 30;
}

/// A program in a folder of its own whose runner has a curve and training results, and a person who uses one of its
/// forms by the names of the controls. Whatever no person could do throws std::logic_error.
struct PlanningProgram
{
    explicit PlanningProgram(std::string usedForm) : formName(std::move(usedForm))
    {
        setUsualCurve(program.state);
        setUsualTraining(program.state);
    }

    ScratchFolder folder;
    RecordedOutside outside;
    Program program{outside.dialogs(), outside.printer(), folder.path};
    std::string formName;

    [[nodiscard]] ModelState& state() { return program.state; }

    void open()
    {
        enter(program, formName, false, [this] { openForm(program, formName); });
    }
    void close()
    {
        enter(program, formName, false, [this] { closeForm(program, formName); });
    }
    [[nodiscard]] bool isOpen() { return findForm(program, formName) != nullptr; }

    template <class Record>
    [[nodiscard]] Record& get(const std::string& name)
    {
        Form* form = findForm(program, formName);
        const ControlRef* found = form ? findControl(*form, name) : nullptr;
        Record* const* record = found ? std::get_if<Record*>(found) : nullptr;
        if (!record)
            throw std::logic_error("there is no such " + name);
        return **record;
    }
    [[nodiscard]] std::string text(const std::string& box) { return get<TextBox>(box).text; }
    [[nodiscard]] std::string label(const std::string& name) { return get<Label>(name).caption; }
    [[nodiscard]] bool isOn(const std::string& option) { return get<OptionButton>(option).chosen; }

    template <class Record>
    [[nodiscard]] Record& usable(const std::string& name)
    {
        Record& record = get<Record>(name);
        if (!record.enabled || !record.visible)
            throw std::logic_error(name + " can't be used");
        return record;
    }
    void type(const std::string& box, const std::string& typed)
    {
        TextBox& record = usable<TextBox>(box);
        enter(program, formName + "." + box, true, [&] { setText(record, typed); });
    }
    /// Returns whether the form took the paste.
    bool paste(const std::string& box, const std::string& pasted)
    {
        TextBox& record = usable<TextBox>(box);
        bool taken = true;   // what stops with a fault was a table
        enter(program, formName + "." + box, false, [&] { taken = record.pasted(pasted); });
        return taken;
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
    void tick(const std::string& box, bool ticked)
    {
        CheckBox& record = usable<CheckBox>(box);
        enter(program, formName + "." + box, false, [&] { setTicked(record, ticked); });
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
    void letGo(const std::string& bar)
    {
        ScrollBar& record = usable<ScrollBar>(bar);
        enter(program, formName + "." + bar, false, [&] { release(record); });
    }
};
