#pragma once

#include <filesystem>
#include <string>

#include "course/course_reading.h"
#include "course/profile_graph_form.h"
#include "forms/controls.h"
#include "forms/outside.h"
#include "model/model_state.h"

/// The course elevation profile: its entries, its graph, which takes points by the mouse and reads them out, its times
/// and its files.
///
/// It is built with its design values. It refers to the model state, the outside and the folder of its files, and its
/// controls to each other, so that it stays where it was built.
struct ProfileForm
{
    ProfileForm(ModelState& modelState, Outside& formOutside, const std::filesystem::path& currentFolder);
    ProfileForm(const ProfileForm&) = delete;
    ProfileForm& operator=(const ProfileForm&) = delete;

    ModelState& state;
    Outside& outside;
    const std::filesystem::path& folder;   // of course files
    bool restoring = false;                // while entries are put back: their changes are read once, at the end
    CourseSlope lastSlope;                 // of the latest read-out
    Course solved;                         // the course as it was last worked out: its splits stay when entries change

    TextBox Text1{{.name = "Text1",
                   .caption = "Distance",
                   .tip = "Length of the course in the unit chosen, 50 m to 500 km; a marathon needs no number"},
                  "5"};
    OptionButton pmi{{.name = "pmi", .caption = "mi", .tip = "Distances are miles"}};
    OptionButton pyd{{.name = "pyd", .caption = "yd", .tip = "Distances are yards"}};
    OptionButton pkm{{.name = "pkm", .caption = "km", .tip = "Distances are kilometers"}, true};
    OptionButton pme{{.name = "pme", .caption = "m", .tip = "Distances are meters"}};
    OptionButton pma{{.name = "pma", .caption = "marathon", .tip = "The distance is 42195 m"}};
    OptionButton phm{{.name = "phm", .caption = "half marathon", .tip = "The distance is 21097.5 m"}};
    OptionGroup distanceUnits{{&pmi, &pyd, &pkm, &pme, &pma, &phm}};

    TextBox maxel{{.name = "maxel",
                   .caption = "Max elevation",
                   .tip = "Top of the graph; compared as text, so that 1000 counts as less than 350"},
                  "600"};
    TextBox minel{{.name = "minel", .caption = "Min elevation", .tip = "Bottom of the graph; compared as text"}, "100"};
    TextBox startel{{.name = "startel", .caption = "Start elevation", .tip = "Elevation of the start"}, "250"};
    TextBox endel{{.name = "endel", .caption = "End elevation", .tip = "Elevation of the finish"}, "350"};
    OptionButton elft{{.name = "elft",
                       .caption = "feet",
                       .tip = "Elevations are feet; the numbers stay and are read anew, without comparisons"}};
    OptionButton elm{{.name = "elm",
                      .caption = "meters",
                      .tip = "Elevations are meters; the numbers stay and are read anew, without comparisons"},
                     true};
    OptionGroup elevationUnits{{&elft, &elm}};

    Picture p1{{.name = "p1", .tip = "Click to add a point; move the mouse to read pace and time at a place"},
               {},
               graphPicture};

    Label mouseHeading{{.name = "mouseHeading", .caption = "Mouse at"}};
    TextBox mousexmi{
        {.name = "mousexmi", .caption = "miles =", .tip = "Miles from the start, horizontally"}, "", {}, true};
    TextBox mousexm{
        {.name = "mousexm", .caption = "horizontal meters into course,", .tip = "Meters from the start"}, "", {}, true};
    TextBox mouseyft{{.name = "mouseyft", .caption = "feet = ", .tip = "Elevation at the mouse, feet"}, "", {}, true};
    TextBox mouseym{{.name = "mouseym", .caption = "meters, grade at mouse =", .tip = "Elevation at the mouse, meters"},
                    "",
                    {},
                    true};
    TextBox mousegrade{
        {.name = "mousegrade", .tip = "Grade of the course there, rise over horizontal distance"}, "", {}, true};

    Label pointHeading{{.name = "pointHeading",   // not shown: each box has its own word of it
                        .caption = "Dist from start  Elevation",
                        .visible = false}};
    TextBox distx{{.name = "distx", .caption = "Dist from start", .tip = "Where a point is, in the distance's unit"}};
    TextBox eletx{{.name = "eletx", .caption = "Elevation", .tip = "Elevation of the point, in the elevations' unit"}};
    Button Command4{{.name = "Command4", .caption = "Enter", .tip = "Add the point to the course"}};

    OptionButton cdots{
        {.name = "cdots", .caption = "Connect dots", .tip = "The course runs straight from point to point"}, true};
    OptionButton scur{
        {.name = "scur", .caption = "Smooth curve", .tip = "The course runs in a curve through the points"}};
    OptionGroup lines{{&cdots, &scur}};
    CheckBox update{{.name = "update", .caption = "Update ", .tip = "Work the times out after each change"}, true};

    Label distanceHeading{{.name = "distanceHeading",   // not shown: each box has its own word of it
                           .caption = "Horizontal     Along slope",
                           .visible = false}};
    TextBox Text2{
        {.name = "Text2", .caption = "Total distance in meters", .tip = "Horizontal distance, meters"}, "", {}, true};
    TextBox Text3{
        {.name = "Text3", .caption = "Along slope", .tip = "Distance along the surface, meters"}, "", {}, true};
    Label Label32{{.name = "Label32", .caption = "Total (meters)"}};
    TextBox risetx{{.name = "risetx", .caption = "Rise", .tip = "All climbs, in the elevations' unit"}, "", {}, true};
    TextBox falltx{{.name = "falltx", .caption = "Drop", .tip = "All descents, in the elevations' unit"}, "", {}, true};

    Label timeHeading{{.name = "timeHeading",   // not shown: each box has its own word of it
                       .caption = "Flat Equiv.  Even Effort   Strategic",
                       .visible = false}};
    TextBox Text4{
        {.name = "Text4", .caption = "Flat Equiv.", .tip = "Time of the same distance on the flat"}, "", {}, true};
    TextBox Text5{{.name = "Text5", .caption = "Even Effort", .tip = "Time at even effort"}, "", {}, true};
    TextBox Text6{{.name = "Text6", .caption = "Strategic", .tip = "Time with strategic pacing"}, "", {}, true};

    ScrollBar perfmult{{.name = "perfmult",
                        .caption = "Performance multiplier (may be less accurate than re-entering race performance "
                                   "information)",
                        .tip = "Tenths of a percent of the runner's speed, 900 to 1100; above 1000 is faster"},
                       1000,
                       900,
                       1100,
                       1,
                       10};
    TextBox perfmulttx{{.name = "perfmulttx", .caption = "%", .tip = "The multiplier in percent"}, "100.0", {}, true};
    ScrollBar origel{{.name = "origel",
                      .caption = "Elevation for original data                         feet     meters",
                      .tip = "Elevation at which the runner's races were run, -100 to 4500 m"},
                     300,
                     -100,
                     4500,
                     1,
                     100};
    TextBox origelft{{.name = "origelft", .caption = "feet", .tip = "That elevation in feet"}, "984", {}, true};
    TextBox origelm{{.name = "origelm", .caption = "meters", .tip = "That elevation in meters"}, "300", {}, true};

    TextBox Text11{
        {.name = "Text11", .caption = "Time", .tip = "Time at the mouse with strategic pacing"}, "", {}, true};
    TextBox Text12{{.name = "Text12", .caption = "miles", .tip = "Miles along the surface at the mouse"}, "", {}, true};
    TextBox Text13{{.name = "Text13", .caption = "meters into course", .tip = "Meters along the surface at the mouse"},
                   "",
                   {},
                   true};
    TextBox Text7{{.name = "Text7", .caption = "Even effort", .tip = "Pace of even effort at the mouse"}, "", {}, true};
    TextBox Text9{{.name = "Text9", .caption = "Feels like", .tip = "Pace on the flat that even effort feels like"},
                  "",
                  {},
                  true};
    TextBox Text8{
        {.name = "Text8", .caption = "Strategic", .tip = "Pace of strategic pacing at the mouse"}, "", {}, true};
    TextBox Text10{
        {.name = "Text10", .caption = "Feels like", .tip = "Pace on the flat that strategic pacing feels like there"},
        "",
        {},
        true};
    OptionButton minpmi{{.name = "minpmi", .caption = "min/mi", .tip = "Paces and splits per mile"}, true};
    OptionButton minpkm{{.name = "minpkm", .caption = "min/km", .tip = "Paces and splits per kilometer"}};
    OptionGroup paceUnits{{&minpmi, &minpkm}};

    TextBox savname{{.name = "savname", .caption = "Name to save file as", .tip = "\".cpf\" is added to it"}};
    Label savending{{.name = "savending", .caption = ".cpf"}};
    Button Command2{{.name = "Command2",
                     .caption = "Save",
                     .tip = "Save the course; a file of that name is replaced without asking"}};
    TextBox retname{{.name = "retname", .caption = "Name of file to retrieve", .tip = "With its ending"}};
    ListBox cpflist{
        {.name = "cpflist", .caption = "Saved profiles (click to pick)", .tip = "Courses of the current folder"}};
    Button Command5{{.name = "Command5", .caption = "Retrieve", .tip = "Put the file in place of the course"}};
    Button importtrack{{.name = "importtrack",
                        .caption = "Import...",
                        .tip = "Make a course of a GPX track or route or a TCX file, with its elevations smoothed"}};
    Label importnote{{.name = "importnote", .tip = "What the import has made of the file"}};
    Button paceband{{.name = "paceband", .caption = "Pace band", .tip = "Print the splits, narrow enough for a wrist"}};

    Button Command3{{.name = "Command3",
                     .caption = "Clear",
                     .tip = "Take all points away; the entries are read anew, without comparisons"}};
    Button Command6{{.name = "Command6", .caption = "Show splits", .tip = "Mark each mile or kilometer on the graph"}};
    Button Command7{{.name = "Command7", .caption = "Help", .tip = "What this form does"}, {}, "helpform"};
    Button Command8{{.name = "Command8", .caption = "Weather", .tip = "What heat does to a race time"}, {}, "heathum"};
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Keep the course and close the form"}};

    Form form{"profile", "Course Elevation Profile Analysis"};
};

/// Draws the course and, with `update` ticked, works out its times.
///   solves  how often the times are worked out
/// Faults: as `drawCourse` and `solveAndSplit`; results before are shown.
void redraw(ProfileForm& form, int solves = 1);

/// A press of the mouse on the graph: adds a point there.
/// Faults: as `addCoursePoint` and `redraw`.
void pressGraph(ProfileForm& form, Point at);

/// A move of the mouse over the graph: reads the course out there.
/// Faults: as `coursePacesAt`; what was shown before stays.
void readGraph(ProfileForm& form, Point at);

/// Makes a course of the bytes of a GPX or TCX file, or tells why it can't.
/// Faults: as `redraw`.
void importTrack(ProfileForm& form, const std::string& bytes);

/// The course of the latest solve, with the multiplier as it is now.
[[nodiscard]] Course solvedCourse(const ProfileForm& form);

/// The splits of that course per kilometer and per mile, as they are copied and saved; empty before a solve.
/// Faults: as `courseSplits`.
[[nodiscard]] TextTable splitTable(const ProfileForm& form);
