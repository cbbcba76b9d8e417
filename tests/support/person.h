#pragma once

#include <string>

#include "program/program.h"

/// Uses the controls of the main form as a person does, by their names. Whatever no person could do throws
/// std::logic_error: a control that is not there, is disabled, or is of another kind.
class Person
{
public:
    explicit Person(Program& usedProgram) : program(usedProgram) {}

    void type(const std::string& box, const std::string& text);
    void click(const std::string& control);
    void slide(const std::string& bar, long long value);
    void pull(const std::string& bar, long long value);   // a drag

    /// A race into row i: ticks it, types the four texts and clicks the option of that number.
    struct Race
    {
        const char *hours, *minutes, *seconds, *number;
        int option;   // 1 miles, 2 yards, 3 kilometers, 4 meters, 5 marathon, 6 half marathon
    };
    void enterRace(int row, const Race& race);

private:
    [[nodiscard]] ControlRef usable(const std::string& name) const;

    Program& program;
};
