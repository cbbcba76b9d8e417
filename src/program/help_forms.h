#pragma once

#include <string>

#include "program/program.h"

/// Registers the help forms: helpform, vanthelp, frmabout, refform.
void addHelpForms(Program& program);

/// Before a control's event: where the control opens a help topic of its own, that one is helpform's next.
///   where  the control, "anaform.Command2"
void chooseTopic(Program& program, const std::string& where);

/// Lets the buttons of a form that open the help, and do nothing else, open it.
void connectHelp(Program& program, Form& form);

/// Opens the topic that a form goes with, and for one that none goes with the index.
void openHelpOn(Program& program, const std::string& form);
