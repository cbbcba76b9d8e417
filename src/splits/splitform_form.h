#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "forms/controls.h"
#include "forms/outside.h"
#include "model/model_state.h"
#include "prediction/settings_file.h"
#include "splits/pasted_splits.h"
#include "splits/split_analysis.h"

/// One row of the grid.
struct SplitRowControls
{
    Button delbut;
    Label splitno;
    TextBox splitdis, splitmin, splitsec;
    Label minmi, sec4;   // pace of the row
    Label calcsm;        // its time at even pace
};

/// The split form: a grid of split rows with live paces, and the analysis that every entry reruns.
///
/// It is built with its design values. It refers to the model state, the outside and the stored entries, and its
/// controls to each other, so that it stays where it was built.
struct SplitForm
{
    SplitForm(ModelState& modelState, Outside& formOutside, StoredSplits& storedSplits);
    SplitForm(const SplitForm&) = delete;
    SplitForm& operator=(const SplitForm&) = delete;

    ModelState& state;
    Outside& outside;
    StoredSplits& stored;   // what is kept between openings and written to the settings
    int splitLoading = 0;   // 1 while the form loads: changes and clicks do nothing
    bool pasting = false;   // while rows are written that one analysis follows

    Label gridHeading{{.name = "gridHeading",
                       .caption = "Split   Distance  Minutes  Seconds   Min/mile  Sec/400 m    Even Split Times",
                       .visible = false}};   // each column of the grid has its own word of it
    std::array<SplitRowControls, splitRows> rows;

    Label unitsHeading{{.name = "unitsHeading", .caption = "Distance Units"}};
    OptionButton opsplitmi{{.name = "opsplitmi", .caption = "miles", .tip = "Distances are miles"}};
    OptionButton opsplitkm{{.name = "opsplitkm", .caption = "kilometers", .tip = "Distances are kilometers"}};
    OptionButton opsplitm{{.name = "opsplitm", .caption = "meters", .tip = "Distances are meters"}, true};
    OptionGroup unitGroup{{&opsplitmi, &opsplitkm, &opsplitm}};
    Label methodHeading{{.name = "methodHeading", .caption = "Method"}};
    OptionButton opwork{{.name = "opwork",
                         .caption = "Method 1",
                         .tip = "Exponent model with corrections for how often the speed alternates"}};
    OptionButton openergy{
        {.name = "openergy", .caption = "Method 2", .tip = "Spreads a stress of about the fourth power of speed"}};
    OptionButton opmix{{.name = "opmix", .caption = "70/30 Mix", .tip = "70 % of method 1 and 30 % of method 2"}, true};
    OptionGroup methodGroup{{&opwork, &openergy, &opmix}};

    Label Label10{{.name = "Label10", .caption = "Calculations done automatically with data changes"}};
    Button Command1{{.name = "Command1", .tip = "Analyse the splits again"}};
    Button Command3{{.name = "Command3",
                     .caption = "Duplicate last two consecutive rows",
                     .tip = "Copy the last two rows into the next two"}};
    Button Command5{{.name = "Command5", .caption = "Clear All", .tip = "Empty every row"}};
    Button importlaps{{.name = "importlaps",
                       .caption = "Import...",
                       .tip = "Fill the rows with the laps of a TCX file or even distances along a GPX track"}};
    Button Command4{{.name = "Command4", .caption = "Help", .tip = "What the analysis does"}, {}, "helpform"};
    Button Command2{{.name = "Command2", .caption = "Close", .tip = "Keep the entries and close the window"}};

    Label totracedis{{.name = "totracedis", .tip = "Distance of all splits, in the unit chosen"}, {}, "Total Distance"};
    Label totracetim{{.name = "totracetim", .tip = "Time of all splits"}, {}, "Total Time"};
    Label calctott{{.name = "calctott", .tip = "Time at even pace for the same effort"}, {}, "Potential Time"};
    Label tdiff{{.name = "tdiff", .tip = "What even pace would have saved"}, {}, "Difference"};
    Label paceminmi{{.name = "paceminmi", .tip = "Mean pace, minutes a mile"}, {}, "Pace (min/mile)"};
    Label potpaceminmi{{.name = "potpaceminmi", .tip = "Even pace, minutes a mile"}, {}, "Pace (min/mile)"};
    Label pacesec4{{.name = "pacesec4", .tip = "Mean pace, seconds a 400 m"}, {}, "Pace (sec/400 m)"};
    Label potpacesec4{{.name = "potpacesec4", .tip = "Even pace, seconds a 400 m"}, {}, "Pace (sec/400 m)"};
    Label pcts{{.name = "pcts", .tip = "Speed of the effort in percent of the runner's curve"},
               {},
               "Percent Speed of Calculated Profile"};

    Label equivalentHeading{{.name = "equivalentHeading", .caption = "Equivalent Potential Race Times"}};
    Label raceHeading{{.name = "raceHeading",
                       .caption = "400      800      1500    1600      mile      3000      3200        5000      10000",
                       .visible = false}};   // likewise
    Label s400{{.name = "s400", .tip = "Time over 400 m that equals the effort"}, {}, "400"};
    Label s800{{.name = "s800", .tip = "Time over 800 m that equals the effort"}, {}, "800"};
    Label s1500{{.name = "s1500", .tip = "Time over 1500 m that equals the effort"}, {}, "1500"};
    Label s1600{{.name = "s1600", .tip = "Time over 1600 m that equals the effort"}, {}, "1600"};
    Label smile{{.name = "smile", .tip = "Time over one mile that equals the effort"}, {}, "mile"};
    Label s3000{{.name = "s3000", .tip = "Time over 3000 m that equals the effort"}, {}, "3000"};
    Label s3200{{.name = "s3200", .tip = "Time over 3200 m that equals the effort"}, {}, "3200"};
    Label s5000{{.name = "s5000", .tip = "Time over 5000 m that equals the effort"}, {}, "5000"};
    Label s10000{{.name = "s10000", .tip = "Time over 10000 m that equals the effort"}, {}, "10000"};

    Form form{"splitform", "Generic Uneven Split Analysis Tool"};
};

/// Command1: analyses the rows and shows the result.
/// Faults: as `analyseSplits`, and what its result can't be shown as; outputs shown before stay.
void analyse(SplitForm& form);

/// Command3: copies the two rows before the first gap into the next two.
void duplicateRows(SplitForm& form);

/// Fills rows from `row` on with texts, as typed box by box, and analyses once at the end. What does not fit is told.
/// Faults: as the paces of a row and the analysis, the first of them, when all is written.
void fillRows(SplitForm& form, std::size_t row, const std::vector<SplitTexts>& texts);

/// A paste into a box of a row. Returns whether it was a table or a time; anything else is left to the box.
/// Faults: as `fillRows`.
bool pasteSplits(SplitForm& form, std::size_t row, SplitColumn column, const std::string& text);

/// Fills the grid with the laps of a file's bytes, in the form's unit, or tells why it can't.
/// Faults: as `fillRows`.
void importLaps(SplitForm& form, const std::string& bytes);

/// The filled rows and the result, as they are copied and saved.
[[nodiscard]] TextTable tableOf(const SplitForm& form);
