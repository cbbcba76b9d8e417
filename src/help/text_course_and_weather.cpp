#include "help/topic_texts.h"

std::string_view specialInformationText()
{
    return R"(This form answers single questions: my time over any distance, on a slope, in the wind, there and
back, or with two halves at different speeds.

# How to use it

Give a distance, as a number and a unit, choose one of the four kinds, and press "Calculate". Nothing changes before
that.

- "Level time only" gives time, paces and level for that distance.
- "Uneven splits effect" lists what it costs to run one half faster than the other, in steps of two seconds per
  mile.
- "Hills and wind - constant" gives the time on a course that goes up, or down, all the way, in a wind that always
  comes from the front or from behind.
- "Hills and wind - out and back" lists pacing plans for a course up and down again, or down and up, in a wind that
  you have in your face on one half and in your back on the other. Below it stand the best times for other wind
  directions and for a track.

The slope is the rise over the distance along the surface: 0.02 is two in a hundred, and a minus is downhill. Beside
it stands the same slope by horizontal distance, as treadmills have it.

The wind is the wind at the height of your waist. That is about half of what the weather report says, for the
report's wind is measured ten meters above the ground. Head or tail is as you meet it at the start.

# Reading the out-and-back table

Each line is a plan. "Pace" is what your watch shows on that half; "= Level" is the same effort on the flat, always
per mile. The first line has even effort on both halves. Look for the smallest time: usually it is a few seconds
away from even effort, with a little more effort where the going is hard.

# A worked example

Our runner is a man of 40 on 30 miles a week who has run 10 km in 40:00. His level time over 15 km is 1:03:00. Over
10 km:

- A slope of 0.02 up all the way takes him 43:15, down all the way 37:29. What the climb costs is more than what the
  descent gives back.
- A head wind of 3 m/s, which is 10.8 km/h, costs more than a tail wind helps: 42:22 against 38:49.
- Out and back on the slope of 0.02, even effort takes 40:20. The best plan is 40:18 (rounded), with 21:17 up and
  19:02 down, 18.4 seconds off the flat time.
- With a first half of 19:23 on the flat the second takes 20:57, and the race 40:20: the bold start has cost 20.2
  seconds.

# The quick calculator

"Quick Calculations for Above Items" in the menu "Tables and Tools" is for playing with slopes, power and energy.
Set a level speed, a slope and a weight, and read at once the equal speeds outdoors and on a treadmill, the power in
watts, the oxygen, and the calories per mile. At 9 mph, a mile pace of 6:40, a slope of 3 percent outdoors has the
same effort at 7:29 per mile; our runner, at 160 pounds, uses 1311 watts in all at that level speed, and 125 kcal a
mile. The treadmill, hill and power tables in that menu print the same for many speeds.

# Its limits

A distance above 500 km is refused. Slopes are for running: on those where everybody walks the calculation may stop,
and says so. On a downhill first half the table of plans can go on without an end for some runners; it then stops
with a message, and the lines before it are good.

The wind of an out-and-back run stays in force, as it was on the second half, for the treadmill and hill tables, the
quick calculator and courses. To be rid of it calculate for uneven splits or "constant"; "Level time only" does not do
it.

The treadmill table of equivalent flat paces goes by the way of the last slope conversion. After the quick calculator
at minus 2 percent it shows 14:56 for 3.4 mph at 0.02, else 15:41. Set the slope there back to 0, or open "Hill Paces",
and then open the table anew.
)";
}

std::string_view courseProfileText()
{
    return R"(No course is flat. Draw yours as points of distance and elevation, and read what it costs, where the
time goes, and how fast to run on each hill.

# Entering a course

- Set the distance and its unit, the elevations of start and finish, and the top and bottom of the graph.
- Click on the graph where the course rises and falls, or type a distance from the start and an elevation, and press
  "Enter"; the key of that name presses nothing here. Start and finish are there already; up to a hundred points fit.
- Keep a course with "Save" and bring it back with "Retrieve". Saving replaces a file of that name without asking.
- A GPX or TCX recording can be imported; its elevations are smoothed, since those of watches are rough. A note tells
  how far, and the largest error that is left.
- "Connect dots" runs straight from point to point. "Smooth curve" rounds the hills, and solves the course in a
  hundred steps.

"Clear" goes back to start and finish. Set distance and elevations before the first point.

# What it tells

- Flat equivalent: your time over the same distance on the flat.
- Even effort: your time with the same effort everywhere.
- Strategic: your time if you give a little more uphill and take a little less downhill. It wins back a part of what
  the hills cost.

Move the mouse along the course for the time, the pace and the grade at that place. "Feels like" is the pace on the
flat that asks for the same. "Show splits" marks miles or kilometers with the time and the split. "Pace band" prints
all splits, and the right mouse button beside the graph copies or saves them.

Set the elevation at which you ran the races of the main form. Above it the air has less oxygen, and you are slower;
it is also thinner, which helps a little. A long descent helps less than its grade, since tired thighs don't let you
use it.

# A worked example

Our runner is a man of 40 on 30 miles a week who has run 10 km in 40:00. He plans 10 km over one hill: start and
finish at 250 m, the top at 5 km and 400 m. His races were run at 300 m.

    Flat equivalent   40:01
    Even effort       40:59
    Strategic         40:47

The flat time is a second above 40:00, since the way over the hill is 10004.5 m long. With "Smooth curve" the three
times are 40:02, 41:10 and 40:55. At 2500 m he then climbs at a grade of 0.0300: even effort asks for 7:14 per mile
there, strategic pacing for 7:04, which feels like 6:19 on the flat.

# Its surprises

- The four elevation fields are compared as texts, letter by letter, when you type in them. So 1000 counts as less
  than 350, for 1 comes before 3, and is refused; a single 6 on the way to 600 is accepted. A refused text stays in
  its field without being used.
- A way round it: a change between "feet" and "meters", and "Clear", read all four fields anew without that test. Type
  what you need, answer the messages, then press "Clear".
- "feet" and "meters" do not convert the fields; they read the same numbers in the new unit.
- The first point is taken wherever it is. One right at the start or at the finish, as "Enter" gives with empty
  boxes, leaves no room for a slope: every redraw stops with a message until you press "Clear".
- Once there are points a new distance or elevation is answered by a message, but counts from the next redraw on.
  Put the old one back, or clear.
- With "Update" off only the graph follows you; times and read-out are those of the last solve, perhaps of another
  course.
- The performance multiplier scales the times that are shown, without a new solve. The marks of "Show splits" are
  not scaled. They end at 50, and on courses over 100 km they lag; the pace band does neither.
- A course is kept until you end the program. At the next opening the multiplier, "Connect dots" and "Update" are back
  at their beginnings.

# Its limits

Wind, surface, corners and heat are not in it; only a wind that is left over from "Special" is. Grades of more than
one in one from the point before are refused, except for the first point. Where a hill is too steep to be run, every
redraw stops until "Clear". A course has 50 m to 500 km.
)";
}

std::string_view heatAndHumidityText()
{
    return R"(Warm air costs time, moist air more, and a long race most. This form estimates how much.

# How to use it

Set temperature, relative humidity and sunshine with the three bars; the measures of the weather follow at once.
Then set the runner, one or two races in good weather and a distance of your choice, and press "Calculate": the
table does not change before that. What you do here changes nothing on the main form.

- The sunshine runs from 0 at night over 5, partly to mostly cloudy, to 10, a clear sky with the sun overhead.
- The form begins with your weight, height, age and training, and with two races of your curve, over 1500 m and the
  half marathon. Better than these are two races that you really ran in cool weather.
- With two races the curve here goes through both. With one, training, age and sex say how you slow down with the
  distance. With one race use the first row; with the second row alone the table does not give that race back. With
  neither ticked the form asks for one.
- Races, even in a row that is not used, and distances below 400 m are refused; heat hardly matters there.

# The measures

- Dew point and wet bulb tell how moist the air is. A high wet bulb means that sweat dries slowly and cools little.
- The wet bulb globe temperature is made of wet bulb, air temperature and sun. It is what counts for the table.
- The U.S. heat index and the Canadian humidex tell how warm it feels to somebody who is not running. They are shown
  for comparison.

# How the effect is worked out

For each race there is a best temperature. The longer the race the cooler it is, since there is more time to grow
hot; for a heavy body, which has little skin for its mass, it is cooler still. The further away from the best, the
larger the loss, on the cold side as well. Slower runners lose more than fast ones, in long races above all, and
women about a fifth less than men.

# A worked example

A warm day: 80 F with a humidity of 60 percent, mostly sunny (8). The wet bulb globe temperature is 26.4 C. Our
runner is a man of 40 on 30 miles a week who has run 10 km in 40:00:

    5000 m       18:51  becomes    19:17    2.30 %
    10000 m      40:01  becomes    41:41    4.15 %
    marathon   3:36:53  becomes  4:09:53   15.21 %

On an overcast day (2) of 50 F and the same humidity it is 8.5 C, and he loses 0.07 percent over 10000 m and 0.73
percent in the marathon: as good as nothing.

# Its limits

The table has a simple curve of its own, and its ideal times differ from the main form's by a few seconds, by 15 in the
marathon: 40:01 here, 40:00 there. It says nothing about a runner who is used to heat, drinks well, or finds shade, and in dangerous
heat no number should keep anyone in a race.

A change of sex changes the percentages at once, but the fade in long races only when the bar for weekly miles has been
moved. Two races over one distance give no curve, and the calculation stops.
)";
}
