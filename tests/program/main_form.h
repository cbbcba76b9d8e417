#pragma once

#include "program/program.h"
#include "support/person.h"
#include "support/recorded_outside.h"
#include "support/scratch_folder.h"

/// A program with its main form open and at its load defaults, a person who uses it, and a folder of its own.
struct MainForm
{
    ScratchFolder folder;
    RecordedOutside outside;
    Program program{outside.dialogs(), outside.printer(), folder.path};
    Person person{program};

    [[nodiscard]] VantstartForm& form() { return *program.vantstart; }
    [[nodiscard]] ModelState& state() { return program.state; }

    /// A man of 40 with one race over 10 km in 40:00 in the first row, metric output.
    void enterOneRace()
    {
        person.enterRace(0, {"", "40", "", "10", 3});
        person.type("txtage", "40");
        person.click("Option9");
    }

    void enterTwoRaces()
    {
        enterOneRace();
        person.enterRace(1, {"", "19", "", "5", 3});
        person.click("Option8");
    }

    void recalculate() { person.click("Command1"); }
};
