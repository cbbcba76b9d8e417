#pragma once

#include "analysis/heart_rate_graph_form.h"
#include "forms/controls.h"
#include "forms/outside.h"
#include "model/model_state.h"

/// The training analysis: its text, and below it the heart rate graph with a read-out that follows the mouse.
///
/// Whenever it is asked for it is cleared and the analysis runs anew.
struct AnaformForm
{
    AnaformForm(ModelState& modelState, Outside& formOutside);
    AnaformForm(const AnaformForm&) = delete;
    AnaformForm& operator=(const AnaformForm&) = delete;

    ModelState& state;
    Outside& outside;

    TextSurface Surface{{.name = "Surface", .tip = "Training paces, heart rates and best distances"}};
    Picture pic{
        {.name = "pic", .tip = "Heart rate against speed; move the mouse to read the curve"}, {}, heartRatePicture};

    Label falbl{{.name = "falbl", .caption = "Fully Aerobic"}, aerobicColour};
    Label ltlbl{{.name = "ltlbl", .caption = "Lactate Threshold"}, thresholdColour};
    Label vomlbl{{.name = "vomlbl", .caption = "VO2 Max"}, vo2maxColour};
    Label frlbl{{.name = "frlbl", .caption = "Fast Repeats"}, repetitionColour};

    Label trackerTitle{{.name = "trackerTitle", .caption = "Mouse Tracker:"}};
    Label trackerHint{{.name = "trackerHint", .caption = "(move mouse on graph)"}};
    Label hrlbl{{.name = "hrlbl", .tip = "Heart rate, beats a minute"}};
    Label mpslbl{{.name = "mpslbl", .tip = "Speed, meters a second"}};
    Label kphlbl{{.name = "kphlbl", .tip = "Speed, kilometers an hour"}};
    Label mphlbl{{.name = "mphlbl", .tip = "Speed, miles an hour"}};
    Label mpklbl{{.name = "mpklbl", .tip = "Time per kilometer"}};
    Label mpmlbl{{.name = "mpmlbl", .tip = "Time per mile"}};
    Label mpllbl{{.name = "mpllbl", .tip = "Time per 400 m"}};

    Button Command1{{.name = "Command1",
                     .caption = "Show Workout Planner",
                     .tip = "Interval and continuous workouts at these paces"},
                    {},
                    "workouts"};
    Button Command2{
        {.name = "Command2", .caption = "Help", .tip = "What the paces and heart rates mean"}, {}, "helpform"};
    Button Command3{{.name = "Command3", .caption = "Close", .tip = "Close the analysis"}};

    Form form{"anaform", "Analysis"};
};

/// Clears the form, runs the training analysis, prints it and draws the graph.
/// Faults: as `trainingAnalysis`, `printAnalysis` and `drawHeartRateGraph`; what was printed and drawn up to the fault stays.
void showAnalysis(AnaformForm& form);

/// Shows the first sample of the graph that is not left of a place, in picture units; right of the plot the first of
/// all. Where there is none the labels stay.
void readCurve(AnaformForm& form, double x);
