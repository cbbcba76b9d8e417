#include "help/topic_texts.h"

std::string_view performanceTablesText()
{
    return R"(These tables tell what a level is worth over twenty-four distances, from 100 m to the marathon, and
what age does to it.

# The three kinds

- "General performance levels": a column for each level, for men or women. Find your time, and read your level; or
  find what the next level asks for.
- "Times by age for level": a column for each age, all of one level. An honest comparison for masters and juniors.
- "Individual performance by age": a column for each age of this runner, who keeps the levels that the main form
  finds now. It needs a table on the main form first.

For "Times by age for level" type the level beside it. Give the smallest level or age and the interval; nine columns follow, and "Maximum" shows where they end. Then press
"Calculate". "Print" prints the table, the right mouse button copies or saves it.

# The graph

For both kinds by age "Graph" draws time against age for one distance, with six gray curves for the levels from 100
down to 50 and a red one for you. Choose the distance with the buttons, and move the mouse to read all seven at any
age.

# The age curves

Behind the ages stand curves of how fast people of each age have run, one for 5 km and one for 30 km, for men and
for women; all other distances lie on the line through these two. They are flat from the early twenties to the
middle thirties, then fall, slowly at first and steeply after seventy-five. Runners of a high level lose a little
less with age than others, and the curves allow for that.

# A worked example

For men, level 75 over 10 km is 40:57 in an open comparison. At the age of 40 it is 42:42, at 60 it is 50:38.

Our runner is a man of 40 on 30 miles a week who has run 10 km in 40:00. He can look ahead: at 60 his own table
promises 47:09. Over 5 km the graph gives him 22:13 at 60, between 21:22 for level 80 and 26:05 for level 70 at that
age. This takes his training as unchanged.

# Afterwards

When you close this form the main form is calculated again. Even so, press "Re-Calculate" there after a table by age
or a graph. Both try many imagined runners: the graph may lower a constant of the model, and after a table of the other
sex leave the wrong sex behind. "Re-Calculate" puts all of it back.

After "Individual performance by age" the other sex stays disabled under "Times by age for level". Choose "General
performance levels" in between: it brings it back.

# Its limits

The age curves are those of people who race. Below ten and above eighty-five they are mere continuations. They go in
steps of five years, and a small jump at a step is no error. A level of 0 has no time, so that a table from 0 stops.
)";
}

std::string_view savedFilesText()
{
    return R"("Data File Access" in the menu "File" keeps two kinds of files: races, and personal data. Choose the
kind first; the list of files then shows that kind alone.

# Race files

A race file holds all races of a runner, one record each, numbered from 1, with time, distance and a comment of up
to 60 characters. It can grow for years. Its name ends in ".vtc".

- A new file: go to its folder, type its name, press "Open New". The ending is added for you.
- An old file: click it in the list, press "Open Existing". Its races appear below.
- Add: fill the row of boxes, look at the number, press "Add Race to File". It is written at once.
- Change: click the race in the list, fill the boxes anew, press "Replace Race", and say yes.
- Use: click a race and press "Select Race". The first goes to row 1 of the main form, the next to row 2, and so on,
  over whatever stands there, ticked. Five can be selected, a sixth is refused; "Omit Race" takes one back and empties
  its row. Then press "Re-Calculate" on the main form.

# Personal data

A personal file holds the rest of the main form: name, age, weight, height, sex, heart rates and weekly miles. Its
name ends in ".vtd". "Open New" writes it from the main form, "Open Existing" reads it back, and a message says
which of them it was. An old file of that name is replaced.

# A worked example

A file with 12 races is 12 x 84 = 1008 bytes long, and offers number 13 for the next one. A coach selects races 3,
5, 8 and 9: they fill rows 1 to 4. She omits race 5, and row 2 is empty; she selects race 10, and it goes to row 2.
Race 12, which she selects next, goes to row 3 although race 8 stands there, and race 8 loses its mark. Her five are
now used up although only four rows hold races: to select another, she has to omit one first.

# Its surprises

- Going to another folder moves the program there: your settings are saved in that folder when you close it, and the
  next start does not look there. So do the report and the courses. The title of this window names the folder: go back
  to where you began before you end the program.
- Typing in the name, or clicking another file, closes the open one. Open it again before you add.
- An empty file shows one empty race and offers number 2. Change that to 1, or race 1 stays empty.
- "Open New" on a file that exists keeps its races, but offers number 1, and "Add" then overwrites race 1. To go on
  with an old file always use "Open Existing".
- After "Open New" with a name without its ending, "Replace Race" opens another, empty file of just that name: type
  ".vtc" yourself, or open the file again. The ending is compared by its exact letters: ".VTC" gets ".vtc" behind it.
- "Open Existing" makes an empty file of a name that there is not.
- A number past the end leaves a gap of empty races.
- The marks of selected races are forgotten only in part when a file is opened: old ones come back at the first
  "Select". The rows of the main form are what counts.
- The same race selected twice takes two rows.
- Open the file again before you select a race that you have just added: until then it arrives on the main form as an
  empty row. It is in the file.
- A comma in a name breaks a personal file, for the reader takes it for the end: write "Lee Ann", not "Lee, Ann".
- Letters in a comment that the old character set of race files does not have become question marks.

# Its limits

A list shows ninety-nine races. A longer file stops with a message there, but can still be added to. Race numbers go
up to 32767. Make a copy of your files now and then: they are small, and hold years.
)";
}
