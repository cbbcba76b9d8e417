#include "datafiles/fileacc_form.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "datafiles/personal_commands_form.h"
#include "datafiles/race_commands_form.h"
#include "forms/folders.h"
#include "model/text.h"

namespace
{
    constexpr const char* title = "File Access for Saved Races";
    constexpr const char* upwards = "..";

    const std::string& selectedItem(const ListBox& list)
    {
        return list.items[static_cast<std::size_t>(list.selected)];
    }

    void show(ListBox& list, std::vector<std::string> items, int selected)
    {
        list.items = std::move(items);
        list.selected = selected;
        notifyShown(list);
    }

    void changeDirectory(FileaccForm& form)
    {
        const std::string name = selectedItem(form.Dir1);
        const std::filesystem::path here = fromRoot(form.folder);
        enterFolder(form, name == upwards ? here.parent_path() : here / name);
    }

    void pickFile(FileaccForm& form)
    {
        setText(form.Text6, fromRoot(form.folder).string() + "\\" + selectedItem(form.File1));
        setEnabled(form.Command2, true);
    }

    void changeName(FileaccForm& form)
    {
        closeRaceFile(form);
        setEnabled(form.Command1, false);
        setEnabled(form.Command2, true);
    }

    void pickRow(FileaccForm& form)
    {
        form.state.raceFile.listRow = form.List1.selected + 1;
        setEnabled(form.Command5, true);
        setEnabled(form.Command8, true);
        setText(form.Text7, plainText(form.state.raceFile.listRow));
    }

    void openNew(FileaccForm& form)
    {
        if (form.persdat.chosen)
            saveNewPersonalData(form);
        else
            openNewRaces(form);
    }

    void openExisting(FileaccForm& form)
    {
        if (form.persdat.chosen)
            readPersonalData(form);
        else
            openExistingRaces(form);
    }

    void load(FileaccForm& form)
    {
        setEnabled(form.Command1, false);
        setEnabled(form.Command8, false);
        listFolder(form);
    }

    void wire(FileaccForm& f)
    {
        for (OptionGroup* group : {&f.kinds, &f.units})
            for (OptionButton* option : group->members)
                option->group = group;
        f.Drive1.clicked = [&f] { enterFolder(f, selectedItem(f.Drive1)); };
        f.Dir1.clicked = [&f] { changeDirectory(f); };
        f.File1.clicked = [&f] { pickFile(f); };
        f.races.clicked = [&f] { listFiles(f); };
        f.persdat.clicked = [&f] { listFiles(f); };
        f.Text6.changed = [&f] { changeName(f); };
        f.List1.clicked = [&f] { pickRow(f); };
        f.Command1.clicked = [&f] { addRace(f); };
        f.Command2.clicked = [&f] { openNew(f); };
        f.Command3.clicked = [&f] { f.outside.closeForm(f.form.name); };
        f.Command4.clicked = [&f] { openExisting(f); };
        f.Command5.clicked = [&f] { selectRace(f); };
        f.Command7.clicked = [&f] { omitRace(f); };
        f.Command8.clicked = [&f] { replaceRace(f); };
        f.form.load = [&f] { load(f); };
        f.form.unloaded = [&f] { closeRaceFile(f); };
    }

    std::vector<ControlRef> controlsOf(FileaccForm& f)
    {
        return {&f.Drive1,   &f.Dir1,     &f.File1,    &f.races,   &f.persdat, &f.Text6,    &f.Check1,  &f.Command2,
                &f.Command4, &f.Command3, &f.Command6, &f.Label2,  &f.Text1,   &f.Text2,    &f.Text3,   &f.Text4,
                &f.Option1,  &f.Option2,  &f.Option3,  &f.Option4, &f.Option5, &f.Option6,  &f.Text5,   &f.Text9,
                &f.Command1, &f.Text7,    &f.Command8, &f.Label1,  &f.List1,   &f.Command5, &f.Command7};
    }
}

FileaccForm::FileaccForm(ModelState& modelState, Outside& formOutside, VantstartForm& mainForm,
                         const std::filesystem::path& currentFolder, MoveTo moveToFolder)
    : state(modelState),
      outside(formOutside),
      vantstart(mainForm),
      folder(currentFolder),
      moveTo(std::move(moveToFolder))
{
    wire(*this);
    form.controls = controlsOf(*this);
}

void enterFolder(FileaccForm& form, const std::filesystem::path& folder)
{
    if (const std::optional<std::string> failure = whyNoFolder(folder))
    {
        form.outside.said.push_back({"The folder " + folder.string() + " can't be opened: " + *failure + "."});
        listFolder(form);
        return;
    }
    form.moveTo(folder);
    listFolder(form);
}

void listFolder(FileaccForm& form)
{
    const std::filesystem::path here = fromRoot(form.folder);
    const std::vector<std::string> places = drives();
    show(form.Drive1, places, driveOf(here, places));
    std::vector<std::string> folders = foldersIn(here);
    if (here.has_relative_path())
        folders.insert(folders.begin(), upwards);
    show(form.Dir1, std::move(folders), -1);
    form.File1.selected = -1;
    listFiles(form);
    setTitle(form.form, std::string(title) + " - " + here.string());
}

void listFiles(FileaccForm& form)
{
    const std::string before = form.File1.selected < 0 ? "" : selectedItem(form.File1);
    std::vector<std::string> names = filesIn(fromRoot(form.folder), form.persdat.chosen ? ".vtd" : ".vtc");
    const auto again = std::find(names.begin(), names.end(), before);
    const int selected = again == names.end() ? -1 : static_cast<int>(again - names.begin());
    show(form.File1, std::move(names), selected);
}

std::filesystem::path pathOf(const FileaccForm& form, const std::string& name)
{
    std::string path;
    for (const char c : name)
    {
        const char part = c == '\\' ? '/' : c;
        if (part != '/' || !path.ends_with('/'))
            path += part;
    }
    return fromRoot(form.folder) / path;
}
