#pragma once

#include "datafiles/fileacc_form.h"

// What the buttons of the form do with a race file and its races. What can't be opened or written is told in a message,
// and the command ends there.

/// Closes the open race file.
void closeRaceFile(FileaccForm& form);

/// Command2 for races: makes the file of that name the open one, whatever it holds; the next race number is 1.
void openNewRaces(FileaccForm& form);

/// Command4 for races: opens the file and lists its races. An empty file counts as one of a race without anything.
/// Faults: race 100, for which the table has no row; a number of the file that is none.
void openExistingRaces(FileaccForm& form);

/// Command1: writes the race of the entries at the place of its number.
/// Faults: as `recordOf`, before anything is written.
void addRace(FileaccForm& form);

/// Command8: writes the race of the entries in place of another one, and opens the file anew.
/// Faults: as `addRace` and `openExistingRaces`.
void replaceRace(FileaccForm& form);

/// Command5: puts the race of the list into the next row of the main form.
/// Faults: a list row above 99; race 100 in the list.
void selectRace(FileaccForm& form);

/// Command7: takes the race of the list out of its row of the main form.
/// Faults: as `selectRace`.
void omitRace(FileaccForm& form);
