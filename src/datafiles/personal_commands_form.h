#pragma once

#include "datafiles/fileacc_form.h"

// What the buttons of the form do with a personal data file. What can't be read or written is told in a message.

/// Command2 for personal data: writes what the main form holds, in place of a file of that name.
void saveNewPersonalData(FileaccForm& form);

/// Command4 for personal data: puts a file's values into the main form, in their order and as many as there are.
/// Faults: a number that no double holds, and what a change of the main form faults; the values before it stand.
void readPersonalData(FileaccForm& form);
