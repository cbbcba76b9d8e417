#include "help/topic_texts.h"

std::string_view programOverviewText()
{
    return R"(Vantelos answers a question that every runner asks: what could I run over a distance that I have not
raced? It needs one to five of your races, your age, your sex and how far you run in a week. From these it works out
your own curve of speed against distance, and everything else in the program follows from that one curve.

# The ideas of the model

Running takes power, and the power grows with the square of the speed. Some of that power you can keep up for as
long as your legs hold out; the rest comes from a store of energy that does not refill during the race, and a longer
race lets you use more of that store, though less of it for each mile. The balance of the two gives your speed over
any distance.

On top of that balance stand a few corrections that races show: the seconds that a start from rest costs, the extra
cost of a sprint, a small dip over the middle distances, and the fade in long races. The fade is where training
counts most: the more you run in a week, the less you fade in a marathon.

Two races settle the shape of your curve with "Fit best two"; with "Use all data" your training still has a say. In
both it decides the fade of a long race. One race alone settles nothing, so that your weekly distance decides: the
program looks for the curve whose level and best distance would typically go with just that much training.

# Where to begin

- Describe yourself and enter your races on the main form, then press "Re-Calculate". Nothing is calculated anew
  before you press it.
- Read the table. "Explanation" tells what the performance levels mean.
- "Analysis/ Workouts" gives your training paces and heart rates, and from there the workout planner.
- "Special" gives a time for any distance, with hills, wind and uneven pacing.
- The menu "Tables and Tools" holds the rest: treadmill and hill tables, power and energy, performance tables,
  splits, course profiles, heat.
- "Data File Access" in the menu "File" keeps your races for years.

# A worked example

Our runner is a man of 40 on 30 miles a week who has run 10 km in 40:00. The fit gives him a sustained power of 815
in the model's own unit, in which running at v meters per second takes 140 + 60 v^2. That power alone would carry
him at 3.35 m/s, which is 8:00 per mile.

Everything faster comes from the store. It carries him through 5 km in 18:50, and at the other end his 30 miles a
week let him expect 3:37:08 in the marathon, a mile pace of 8:17: a little slower than his sustained power by
itself, for in so long a race he fades.

# On printing

"Full report" in the menu "Print" prints who you are, your races, your predicted times over thirty distances and the
training analysis. "Text file of full report" writes the same to the file "fulltext.txt" in the current folder. The
message names the folder where the program was started, which can be another once "Data File Access" has been to other
folders. Both wait for a first table. The program shows the pages first; print from there. Without a printer choose a
PDF file.

Forms with a "Print" button print as they look on the screen, on white paper and without most of their buttons. Every
graph can be copied or saved as a picture, and nearly every table copied or saved, with the right mouse button.

# Its limits

The model knows you by your times alone. It does not know how you feel, what you ate or how hot it was. A prediction
tells what you should be able to run after training for that distance, on a good day, on a level course. It is best
between the distances that you have raced, and it grows uncertain far outside them: no 800 m race can promise a
marathon.
)";
}

std::string_view mainEntryFormText()
{
    return R"(This form says who you are and what you have run. Change what you like, in any order; the table stands
as it is until you press "Re-Calculate".

# Your races

Tick "Use?" in up to five rows, and give each race its hours, minutes and seconds, a number and a unit. Fields may
stay empty: 40 minutes is a 40 in the minutes and nothing else. Marathon and half marathon need no number. Races may
stand in any order.

Choose races that you have run flat out, on good courses, in good weather, in the last few months. Two races at
distances well apart, say one mile and a half marathon, tell the program most. A race whose pace is no faster than
that of a longer one can't be your best, and is left out with a message.

- "Use all data" looks at every race, and at your training as well.
- "Fit best two" takes a pair of races that no other race of yours beats, beginning with the shortest, and goes by
  these two alone. It needs two races.

A message tells when a row has no time, no distance, or a speed that can't be right, and when your races are so
short or so long that the other end of the table is uncertain. "Clear" empties the rows, sets them to meters and
empties the table; the other forms go on with the old curve.

# About you

- Name is for the report.
- Age counts a little like extra training where one race has to do. With "Use age-based comparisons" records and
  levels are those of your age.
- Sex chooses the record curve, and the fade in long races: women fade less.
- Weekly training volume, in miles, decides how you fade in long races. With one race it decides your whole curve.
  Give the usual week of the last few months, not the best one.
- With two or more races age and miles act on the curve through "Use all data" alone, and miles also through the fade.
- Comparison level is what the Record column shows, in percent: at 100 the record, at 80 what a runner of level 80
  would run. At 0 there is nothing to show, and the calculation stops.
- Weight and height count for wind, hills, power and heat, not for this table.
- Maximum and resting heart rate count for the training analysis, which asks for both. The estimate beside them goes
  by age and sex; a rate that you have measured is always better.
- "Metric output" and "English output" choose the distances of the table.

# A worked example

Our runner is a man of 40 with one race, 10 km in 40:00. Choose "English output" for the marathon and "Metric output"
for the 10 km; "Use all data" is on. Watch what his training does to his marathon. On 15 miles a week the table promises 4:11:35, on 30 miles 3:37:08, on 50 miles 3:20:04, while the half marathon moves only from
1:38:09 over 1:33:02 to 1:30:16.

Now he adds a half marathon of 1:32:00. The table, on 30 miles again, now shows 3:33:40 for the marathon and, for
the 10 km themselves, 39:49. "Use all data" blends his two races with what his training suggests, so that the curve
need not pass through both. With "Fit best two" it gives 40:00 and 1:32:00 again, and 3:32:57 for the marathon.

His estimated maximum heart rate, by the way, is 181.

# Its limits

The entries are kept when you close the program, except the name and the choices in "Graph options". A personal data
file keeps the name. What you type is read as far as it is a number: "40:00" in the
field for minutes is 40, but "4o" is 4, and no message tells.

An unusual pair of races, a slow long one beside a fast short one, can push the model to its edge. A message says
so; the numbers that follow are then the best that it can do, not good ones.
)";
}

std::string_view predictedTableText()
{
    return R"(The table is the heart of the program: nine distances, and what you can expect of yourself over each.

# The columns

- Distance: "Metric output" has 400 m to 10000 m, "English output" 440 yards to the marathon.
- Time: what you should be able to run.
- Per mile, Per km, Per 400: the pace of that time.
- Record: the record over that distance by a smooth curve, for your sex. With another comparison level it is the
  time of that level, and with age-based comparisons it is your age's.
- % Spd: your speed in percent of that column's.
- P.Level: your performance level, which is fair between distances. 100 is the record.
- Top_%: about how many runners in a hundred are better.

# How to use it

Run your eye down the P.Level column. It rises to your best distance and falls beyond it: that is where your talent
and your training meet today. A race well below its neighbors in level is one that you can do better.

"Graph" draws your pace and the record's, your percentage of it and your level over the whole range, from a sprint
to an ultramarathon. Its scale and units are in the menu "Graph options"; press "Graph" again after a change there.

# A worked example

    Distance       Time      Record   % Spd   P.Level   Top_%
       800 m       2:26        1:41      69        68      11
      5000 m      18:50       12:40      67        76     2.8
     10000 m      40:00       26:21      66        76     2.4

The runner is a man of 40 on 30 miles a week. His speed is a smaller share of the record's over 10 km than over 800
m, 66 against 69 percent, and yet his level is higher, 76 against 68: long races are his.

# Its limits

% Spd and P.Level are whole numbers, so that a small step may hide or jump. Times below a minute have tenths; longer
ones are whole seconds. The record is a curve through all distances, so that it differs by a little from the record
book.
)";
}

std::string_view performanceLevelsText()
{
    return R"(How good is a time? The usual answer is a percentage of the world record. It is a poor one.

# Why plain percentages mislead

A percentage of the record's speed is not worth the same over each distance. In a sprint most of us reach a large
share of the record's speed, for people differ less in speed than in endurance. In a marathon that same share is the
mark of a very good runner. Compare your percentages, and every one of us seems to be a born sprinter.

Records themselves are uneven, too. Some distances are raced by everyone, others by hardly anybody, and one
outstanding runner can bend the list for twenty years.

# How the level is built

First, the records are replaced by a smooth curve of speed against distance, one for men and one for women. It has
no bumps where a record happens to be soft.

Then the ratio of the record's time to yours is stretched or shrunk by an amount that depends on the distance and on
the sex. What comes out is a scale from 0 to 100 on which the same number means about the same quality, whether over
800 m or over 42 km: 100 is the record, and a club runner who trains well stands somewhere in the sixties or
seventies.

Top_% in the table says the same in another way: the share of runners who are better than this level.

# A worked example

This is what a man of level 70 runs, and what share of the record's speed it takes him:

    Distance       Time    Speed
    100 m          12.4     79 %
    800 m          2:21     71 %
    5 km          20:58     60 %
    marathon    3:28:18     60 %

The four times are equally good. By plain percentages the sprinter would look far better than the marathoner.

Our runner is a man of 40 on 30 miles a week who has run 10 km in 40:00. He has 69 percent of the record's speed
over 800 m and 58 percent in the marathon, which looks like eleven points lost. By level he stands at 68 over both.

# How to use it

- Compare your own races with each other, and find the distances that suit you.
- Compare runners who race over different distances, or a woman with a man.
- With "Use age-based comparisons" the level tells how good you are for your age. Our runner's 10 km rise from level
  76 to 78 at the age of 40.

# Its limits

The scale fits runners in general, not each of them. A difference of one or two points says nothing. For the very
young and the very old it is less certain than for all others.
)";
}
