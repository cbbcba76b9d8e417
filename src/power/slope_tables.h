#pragma once

#include "model/model_state.h"
#include "model/text_page.h"

// Tables of paces of equal effort: on a treadmill and flat, and on hills of many grades.

/// Prints the treadmill table: 41 speeds by 14 inclines, after 3 empty lines, the head and 2 more.
///   kilometers  speeds in km/h and paces per kilometer instead of miles
///   indoors     compares with the same treadmill level instead of outdoors
/// Reads tmillMode (1 flat pace equal to a treadmill setting, 2 the reverse), tmillDisplay (1 paces, 2 speeds), and
/// what the conversions of incline.h read: with tmillMode 1 the slopeDirection that the latest inverse conversion
/// left. Leaves indoorMode at 0.
/// Cells printed before a fault stay.  Faults: as those conversions.
void printTreadmillTable(ModelState& state, bool kilometers, bool indoors, TextPage& page);

/// Prints the hill table: 19 level paces by 13 grades, after 3 empty lines, the head and 2 more.
///   kilometers  paces per kilometer, 2:00 to 8:00, instead of per mile, 3:00 to 12:00
/// Reads hillScale, gradeDefinition, and what the conversions of incline.h read.
/// Cells printed before a fault stay.  Faults: as those conversions.
void printHillTable(ModelState& state, bool kilometers, TextPage& page);
