#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "forms/controls.h"
#include "forms/files.h"
#include "forms/outside.h"
#include "model/model_state.h"
#include "prediction/vantstart_form.h"

/// The files of races and of personal data: which one, what is done with it, and the races of the open one.
///
/// It is built with its design values. It holds the open race file. It refers to the model state, the outside, the main
/// form and the current folder, and its controls to each other, so that it stays where it was built.
struct FileaccForm
{
    using MoveTo = std::function<void(const std::filesystem::path&)>;

    /// currentFolder: where the program stands; moveTo: makes another folder the current one
    FileaccForm(ModelState& modelState, Outside& formOutside, VantstartForm& mainForm,
                const std::filesystem::path& currentFolder, MoveTo moveToFolder);
    FileaccForm(const FileaccForm&) = delete;
    FileaccForm& operator=(const FileaccForm&) = delete;

    ModelState& state;
    Outside& outside;
    VantstartForm& vantstart;
    const std::filesystem::path& folder;
    MoveTo moveTo;
    HeldFile file;            // the open race file
    std::string openedName;   // its path, for messages

    ListBox Drive1{{.name = "Drive1",
                    .caption = "Drive",
                    .tip = "Mounted file systems and the home folder; a double click or Enter goes there"},
                   {},
                   -1,
                   {},
                   true};
    ListBox Dir1{{.name = "Dir1",
                  .caption = "Directory",
                  .tip = "Folders in the current folder, \"..\" is the one above; a double click or Enter goes there"},
                 {},
                 -1,
                 {},
                 true};
    ListBox File1{{.name = "File1",
                   .caption = "Files",
                   .tip = "Files of the chosen kind; a click puts one into the box of the file name"}};
    OptionButton races{{.name = "races", .caption = "Races", .tip = "Race files, *.vtc"}, true};
    OptionButton persdat{{.name = "persdat",
                          .caption = "Personal data (name, age, etc.)",
                          .tip = "Files of what the main form holds about the runner apart from races, *.vtd"}};
    OptionGroup kinds{{&races, &persdat}};
    TextBox Text6{
        {.name = "Text6",
         .caption = "Drive\\Directory\\File",
         .tip = "Name of the file; one without a folder is in the current one. A change closes the open file"}};
    CheckBox Check1{{.name = "Check1", .caption = "Open", .tip = "Ticked while a race file is open", .enabled = false}};
    Button Command2{{.name = "Command2",
                     .caption = "Open New",
                     .tip =
                         "Start a file of this name; a race file that is there already is kept, a personal data file "
                         "is replaced",
                     .enabled = false}};
    Button Command4{{.name = "Command4",
                     .caption = "Open Existing",
                     .tip = "List the races of the file, or put its personal data into the main form"}};
    Button Command3{{.name = "Command3", .caption = "Close", .tip = "Close the file and the form"}};
    Button Command6{{.name = "Command6", .caption = "Help", .tip = "What this form does"}, {}, "helpform"};

    Label Label2{
        {.name = "Label2",
         .caption = "Hrs       Min      Sec        Number   mi   yd    km   m   mara h.mara           Comments"}};
    TextBox Text1{{.name = "Text1", .tip = "Hours of the race time"}};
    TextBox Text2{{.name = "Text2", .tip = "Minutes of the race time"}};
    TextBox Text3{{.name = "Text3", .tip = "Seconds of the race time; decimals allowed"}};
    TextBox Text4{
        {.name = "Text4", .tip = "Distance in the unit to the right; not needed for a marathon or half marathon"}};
    OptionButton Option1{{.name = "Option1", .tip = "The race was run over that many miles"}};
    OptionButton Option2{{.name = "Option2", .tip = "The race was run over that many yards"}};
    OptionButton Option3{{.name = "Option3", .tip = "The race was run over that many kilometers"}};
    OptionButton Option4{{.name = "Option4", .tip = "The race was run over that many meters"}};
    OptionButton Option5{{.name = "Option5", .tip = "The race was a marathon"}};
    OptionButton Option6{{.name = "Option6", .tip = "The race was a half marathon"}};
    OptionGroup units{{&Option1, &Option2, &Option3, &Option4, &Option5, &Option6}};
    TextBox Text5{{.name = "Text5", .tip = "Comment on the race, up to 60 characters"}};
    TextBox Text9{{.name = "Text9",
                   .caption = "Next available race number to add to file:",
                   .tip = "Number that the race gets, 1 to 32767; a race of that number in the file is overwritten"}};
    Button Command1{{.name = "Command1",
                     .caption = "Add Race to File",
                     .tip = "Write the race above into the file",
                     .enabled = false}};
    TextBox Text7{{.name = "Text7",
                   .caption = "Race number to replace (click in list box):",
                   .tip = "Number of the race that the race above replaces"}};
    Button Command8{{.name = "Command8",
                     .caption = "Replace Race",
                     .tip = "Write the race above in place of that one, and list the file anew",
                     .enabled = false}};

    Label Label1{
        {.name = "Label1",
         .caption = "Sel   #   Hrs    Min     Sec     Number   mi   yd    km    m   mar h.mar       Comments"}};
    ListBox List1{
        {.name = "List1", .tip = "Races of the open file; the first column is the row they were picked into"}};
    Button Command5{{.name = "Command5",
                     .caption = "Select Race",
                     .tip = "Put the race into the next row of the main form",
                     .enabled = false}};
    Button Command7{{.name = "Command7",
                     .caption = "Omit Race",
                     .tip = "Take the race out of its row of the main form",
                     .enabled = false}};

    Form form{"fileacc", "File Access for Saved Races"};
};

/// Makes another folder the current one and lists it; one that can't be entered gets a message, and nothing changes.
void enterFolder(FileaccForm& form, const std::filesystem::path& folder);

/// Lists drives, folders and files anew and shows the folder in the title.
void listFolder(FileaccForm& form);

/// Lists the files of the chosen kind anew. The selected one stays so.
void listFiles(FileaccForm& form);

/// The path that a name in Text6 stands for: "\" parts it as well as "/", several of them as one, and what has no
/// folder is in the current one.
[[nodiscard]] std::filesystem::path pathOf(const FileaccForm& form, const std::string& name);
