#include "help/topic_texts.h"

std::string_view trainingAnalysisText()
{
    return R"(The training analysis turns your curve into the paces at which training works, the heart rates that go
with them, and a word on the distances that suit you.

# What the paces mean

- Fully aerobic pace is that of the easy and steady miles which make up most of a runner's week. You can talk, and
  you could go on. It builds the engine: heart, blood vessels, and the muscles' way with fat and oxygen.
- Anaerobic threshold pace is the fastest at which the body still clears away what it produces. For a runner like the
  one below it is about that of a race of forty minutes, for the fastest nearer to that of an hour. It is hard but even.
  Twenty to forty minutes of it at a time, whole or in pieces, are plenty.
- VO2max pace is that at which your oxygen uptake is at its highest, about that of a race of eight minutes. Run it in
  efforts of three to five minutes, and a little slower than the pace itself: the analysis gives both ends.
- Repetitions of 400 m are faster than any of these. They teach speed and economy, and need a good rest between
  them.

Each zone has a middle and a range. Stay inside the range and let the day decide where.

# The heart rates

The heart rates come from your maximum, your resting rate, your age and your training. They stand for the last
minutes of about a quarter of an hour at that pace; in the first minutes the heart is still on its way up. In heat,
on hills or after bad nights the same pace has a higher rate: then go by the heart rate, not by the pace.

The graph shows your heart rate at every speed. Green lines mark the aerobic zone, orange lines the threshold, the
thick red line is the VO2max pace and the thin one the slow end of those efforts; between the purple lines are the
400 m repetitions. Move the mouse to read it off, and use the right button to keep the picture.

# Your best distance

The last lines name the range of distances at which your level is highest now, and how much training usually goes
with such a runner. If you train much less than that, your best distance probably lies higher up, and would show
itself with more miles; if you train much more, it may lie further down.

With one race alone this says nothing: the fit has chosen the curve that goes with your miles, and the answer is
"probably near". It needs two races or more.

# A worked example

Our runner is a man of 40 on 30 miles a week who has run 10 km in 40:00. With a maximum heart rate of 185 and 50 at
rest he is told:

    Fully aerobic      8:00 per mile  (8:52 to 7:19)   136 beats
    Threshold          6:28 per mile  (6:39 to 6:17)   164 beats
    VO2max             5:36 per mile, VO2max 56 ml/kg/min
    3-5 minutes        5:36 to 5:50 per mile
    400 m              74 to 79 seconds

An easy day is thus one between 8:52 and 7:19 per mile, at 125 to 147 beats. A threshold run has 160 to 169 beats.
For intervals of 1000 m he would aim at 3:29 to 3:38 per km.

His level peaks at 8.98 km, his 30 miles a week are typical for a runner like him, and the verdict is "probably near
this value", as it is for one race.

# Its limits

Formulas know averages. If your own threshold or VO2max has been measured, trust the measurement. The heart rates
are only as good as the maximum that you entered: an estimate by age can be ten beats off.

A runner for whom 5 km take longer than about an hour and a quarter gets the text without the graph. A maximum heart
rate entered far too low stops the whole analysis. With age-based comparisons the analysis often can't be worked out
for boys of ten or less and for some people above eighty; switch them off for that.
)";
}

std::string_view workoutPlannerText()
{
    return R"(The planner turns a workout into times: how fast each effort, how long and how far each recovery, what
it does to the heart, and how much of a load it is. Change anything, and everything is worked out again at once.

# Intervals

Each of the five rows is a set: a distance in meters, how often, and the effort's time in percent of the recovery's.
A ratio of 100 means that you rest as long as you run, 150 that three minutes of running have two of recovery, 50
that the rest is twice as long as the run. Leave rows that you don't need at a number of 0.

A short rest makes the set more like one long race, and its pace slower; a long rest brings the pace close to what
you could race once. "Automatically choose work:recovery ratio" picks a sensible ratio for each distance.

Recovery pace is your speed in the breaks, in percent of the effort's. Below about 40 it is a walk or a shuffle and
counts as rest; at 100 there is no break, and the workout is one continuous run.

# Continuous runs

"Single Continuous Run" takes the last row alone: its distance, and how often. By default that is a mile, so that
the number is the miles of the run.

# Intensity and purpose

- Intensity is what share of your best you want to give. Intervals are usually run at well above ninety, steady runs
  at about eighty. Below 95 the program allows for the time of fast running: half an hour leaves the intensity as it
  is, more raises it a little, less lowers it. What comes out is the "time adj int".
- Purpose slides from VO2max, at 0, to repetitions, at 100. At 0 each effort goes by your VO2max pace, at 100 by
  what you could race over the workout. It applies to an intensity of 94 and more; below, it goes to 100 by itself.
- Performance adjustment makes you a little better or worse for today, without a change on the main form.

# The load

The workout's points count time and pace together, and pace by its fourth power: a little faster is much harder. A
single point is about a minute at VO2max pace. "Standard points" are those of a sound week on your weekly miles, and
"Percent of Standard" tells what share of that week this workout takes.

The colored line says in words what the workout trains and whether it is rather short or long for that. Green is as
it should be, blue is easy, red is hard.

# A worked example

Our runner is a man of 40 on 30 miles a week who has run 10 km in 40:00. He plans 5 x 800 m with the ratio of 114,
at an intensity of 97, purpose 85 and a recovery pace of 50. The planner asks for 2:51 each, with 2:30 and 351 m of
jogging between them. All of it takes 24:14 and scores 14.0 points, 18 percent of a standard week of 76. The heart
goes up to 178 and down to 128 beats. The verdict is "VO2 max pace".

Another day he runs 8 miles without a break at an intensity of 80. He is given 8:13 a mile, 1:05:42 in all, and
about 140 beats. That is 14.7 points, much the same load, and "Ideal aerobic training pace".

# Its limits

The planner opens from the training analysis and uses its paces and heart rates: after a new "Re-Calculate" run the
analysis again. The heart rates are those of the highest and lowest moments of a typical repetition, not of the
first one.

A ratio of 0 stops the calculation, and so do weekly miles of 0, for then there is no standard week. With the
automatic ratio a row with a distance of 0 keeps stopping until you type its ratio anew.

The plan is kept, also when you close the program; the automatic ratio only until then. On opening, the splits and
rests shown are those of 800 m in every row, and the points are far too high. Change anything, and all of it is worked
out properly.
)";
}

std::string_view splitsAnalysisText()
{
    return R"(You went out too fast, or you had to fight your way back. What was the race worth at an even pace? And
what was that set of intervals worth as a race? Enter the splits, and see.

# How to use it

Choose the unit first: a change of unit does not convert what you have typed. Then give each split its distance,
minutes and seconds, a row a split, up to twenty-seven of them. Rows may be skipped. Every change is worked out at
once. Fill in the seconds, if only with a 0: a row without them is not worked out until another one is.

- "D" before a row clears it. "Clear All" clears everything; the results stay until the next split.
- "Duplicate last two consecutive rows" is handy for intervals with recoveries. It copies the last two rows of the
  first unbroken block to the two rows below it, over what stands there; its first two rows must be filled.
- "Import..." reads the laps of a TCX file, or a GPX track. Cells that you copy in a spreadsheet can be pasted.
- Recoveries are splits like any other: enter the jog with its distance and time.

# What it tells

Total time is what you ran, potential time what the same effort is worth at an even pace. Behind each row stands its
time at that even pace. "Percent Speed of Calculated Profile" compares with your curve on the main form: at 100 the
effort was as good as your predicted race. The last line says what it would be worth over other distances.

# The two methods

- Method 1 asks how uneven the speeds were and how often they changed. It fits races, and agrees with the pacing
  tables and the workout planner.
- Method 2 adds up the stress of each split, by about the fourth power of its speed, and spreads it evenly.
- "70/30 Mix" takes seven parts of the first and three of the second. Unless you have a reason, stay with it.

The whole is never rated below its best stretch, measured by your curve: if you ran one part better than all of it,
you could have done as well over all of it. With more than two rows the program also tries without the first and the
last one, since a short first lap can spoil the rest.

# A worked example

Our runner is a man of 40 on 30 miles a week who has run 10 km in 40:00. He races 5 x 1000 m without a stop, that is
5 km, in splits of 3:50, 3:55, 4:05, 4:10 and 3:45: 19:45 in all. At an even pace, 3:55 for each km, the same effort
would have brought him home in 19:37, so the sag in the middle has cost 7.7 seconds. Method 1 alone says 19:36,
method 2 says 19:40.

His curve promises 18:50, of which this is 96.0 percent in speed; over 10 km the effort would have been worth 41:41.

# Its limits

The tool knows times and nothing of hills, wind or company. Splits should be run on one day, one after the other. A
row with a distance needs a time. With a distance of 0 or below, or a time of 0, there is no speed, and the
calculation stops until the row is mended. Distances above 100 km are refused.
)";
}
