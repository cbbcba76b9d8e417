#include "datafiles/race_commands_form.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "datafiles/race_list.h"
#include "datafiles/race_record.h"
#include "forms/on_leaving.h"
#include "model/arithmetic.h"
#include "model/text.h"

namespace
{
    constexpr const char* ending = ".vtc";

    double recordCountOf(const HeldFile& file)
    {
        return static_cast<double>(file.size()) / raceRecordLength;
    }

    void clearList(FileaccForm& form)
    {
        form.List1.items.clear();
        form.List1.selected = -1;
        notifyShown(form.List1);
    }

    /// Opens a file for its records. Returns whether it could be opened.
    bool openRecords(FileaccForm& form, const std::string& name)
    {
        const std::filesystem::path path = pathOf(form, name);
        form.openedName = path.string();
        if (const std::optional<std::string> failure = form.file.open(path))
        {
            setTicked(form.Check1, false);
            form.outside.said.push_back(
                {"The race file " + form.openedName + " can't be opened: " + *failure + ".", "File not opened"});
            return false;
        }
        form.state.raceFile.raceTable.clear();
        return true;
    }

    std::optional<RaceRecord> readRecord(FileaccForm& form, int r)
    {
        const std::optional<std::string> bytes =
            form.file.read(recordOffset(r), static_cast<std::size_t>(raceRecordLength));
        if (bytes)
            return recordOfBytes(*bytes);
        form.outside.said.push_back(
            {"Race " + std::to_string(r) + " of the file " + form.openedName + " can't be read."});
        return std::nullopt;
    }

    /// Returns whether there is a file to write to; without one it is told.
    bool hasOpenFile(FileaccForm& form)
    {
        if (!form.file.isOpen())
            form.outside.said.push_back({"No race file is open."});
        return form.file.isOpen();
    }

    /// Writes a record at the place of its number. Returns whether it is in the file.
    bool writeRecord(FileaccForm& form, const RaceRecord& record)
    {
        const std::optional<std::string> failure = form.file.write(recordOffset(record.number), bytesOf(record));
        if (failure)
            form.outside.said.push_back(
                {"The race could not be written to " + form.openedName + ": " + *failure + ".", "Race not written"});
        return !failure;
    }

    RaceEntries entriesOf(const FileaccForm& form, const TextBox& number)
    {
        const auto& units = form.units.members;
        const auto unit =
            std::find_if(units.begin(), units.end(), [](const OptionButton* option) { return option->chosen; });
        return {number.text,     form.Text1.text, form.Text2.text,
                form.Text3.text, form.Text4.text, unit == units.end() ? 0 : static_cast<int>(unit - units.begin()) + 1,
                form.Text5.text};
    }

    /// What follows a record that has been written. Its race reaches its own row of the table when the file is opened
    /// next: until then row 0 has it, and a list that is built anew shows its row empty.
    void listWritten(FileaccForm& form, const RaceRecord& record)
    {
        RaceFileState& races = form.state.raceFile;
        races.raceCount = recordCountOf(form.file);
        const RaceTableRow row = rowOf(record);
        raceTableRow(races, 0) = row;
        form.List1.items.push_back(raceListLine(row, 0));
        notifyShown(form.List1);
    }

    /// The list from the table, with the picks.
    void rebuildList(FileaccForm& form)
    {
        RaceFileState& races = form.state.raceFile;
        clearList(form);
        const OnLeaving showIt([&form] { notifyShown(form.List1); });
        for (int r = 1; r <= races.raceCount; ++r)
        {
            form.state.activity = "listing race " + std::to_string(r) + " of the race file";
            const RaceTableRow& row = raceTableRow(races, r);
            form.List1.items.push_back(raceListLine(row, pickOrderOf(races, r)));
        }
    }

    std::array<OptionButton*, static_cast<std::size_t>(raceFlags)> unitsOf(RaceControls& row)
    {
        return {&row.Option1, &row.Option2, &row.Option3, &row.Option4, &row.Option5, &row.Option6};
    }

    void beep(const Outside& outside)
    {
        if (outside.dialogs.beep)
            outside.dialogs.beep();
    }
}

void closeRaceFile(FileaccForm& form)
{
    form.file.close();
    setTicked(form.Check1, false);
}

void openNewRaces(FileaccForm& form)
{
    RaceFileState& races = form.state.raceFile;
    closeRaceFile(form);
    if (form.Text6.text.empty())
    {
        form.outside.said.push_back({"You must specify a file name in the box to create a new file."});
        return;
    }
    setEnabled(form.Command1, true);
    std::string name = form.Text6.text;
    if (!name.ends_with(ending))
        name += ending;
    if (!openRecords(form, name))
        return;
    setTicked(form.Check1, true);
    setText(form.Text9, "1");
    races.nextSlot = 0;
    races.pickedCount = 0;
    clearList(form);
    listFiles(form);
}

void openExistingRaces(FileaccForm& form)
{
    RaceFileState& races = form.state.raceFile;
    closeRaceFile(form);
    if (form.Text6.text.empty())
    {
        form.outside.said.push_back({"Please select a file."});
        return;
    }
    setEnabled(form.Command1, true);
    if (!openRecords(form, form.Text6.text))
        return;
    setTicked(form.Check1, true);
    listFiles(form);
    races.raceCount = recordCountOf(form.file);
    if (races.raceCount == 0)
        races.raceCount = 1;
    setText(form.Text9, plainText(races.raceCount + 1));
    races.nextSlot = 0;
    races.pickedCount = 0;
    clearList(form);
    const OnLeaving showIt([&form] { notifyShown(form.List1); });
    for (int r = 1; r <= races.raceCount; ++r)
    {
        form.state.activity = "listing race " + std::to_string(r) + " of the race file";
        const std::optional<RaceRecord> record = readRecord(form, r);
        if (!record)
            return;
        RaceTableRow& row = raceTableRow(races, r);
        row = rowOf(*record);
        form.List1.items.push_back(raceListLine(row, 0));
    }
}

void addRace(FileaccForm& form)
{
    form.state.activity = "adding a race to the race file";
    if (!hasOpenFile(form))
        return;
    const RaceRecord record = recordOf(entriesOf(form, form.Text9));
    if (!writeRecord(form, record))
        return;
    listWritten(form, record);
    setText(form.Text9, plainText(form.state.raceFile.raceCount + 1));
}

void replaceRace(FileaccForm& form)
{
    const RaceFileState& races = form.state.raceFile;
    form.state.activity = "replacing a race of the race file";
    if (val(form.Text7.text) <= races.raceCount)
    {
        const std::string question = "This action will replace race number " + std::to_string(races.listRow) +
                                     ".  Do you wish to continue?";   // the row clicked, whatever Text7 holds by now
        if (!ask(form.outside, {question}))
            return;
    }
    if (!hasOpenFile(form))
        return;
    const RaceRecord record = recordOf(entriesOf(form, form.Text7));
    if (!writeRecord(form, record))
        return;
    listWritten(form, record);
    setEnabled(form.Command8, false);
    openExistingRaces(form);
}

void selectRace(FileaccForm& form)
{
    RaceFileState& races = form.state.raceFile;
    form.state.activity = "selecting a race of the race file";
    if (races.pickedCount == maxRaces)
    {
        beep(form.outside);
        form.outside.said.push_back({"Already picked 5 races - omit one first."});
        return;
    }
    enterPick(races);
    const RaceTableRow& fields = raceTableRow(races, races.listRow);
    RaceControls& row = form.vantstart.races.at(static_cast<std::size_t>(races.nextSlot));
    setText(row.Text1, cellText(fields[2]));
    setText(row.Text2, cellText(fields[3]));
    setText(row.Text3, cellText(fields[4]));
    setText(row.Text4, cellText(fields[5]));
    std::size_t flag = 6;
    for (OptionButton* const option : unitsOf(row))
        if (cellText(fields[flag++]) == "X")
            setChosen(*option, true);
    setTicked(row.Check1, true);
    countPick(races);
    rebuildList(form);
    setEnabled(form.Command7, true);
}

void omitRace(FileaccForm& form)
{
    RaceFileState& races = form.state.raceFile;
    form.state.activity = "omitting a race of the race file";
    int& pick = pickOrderOf(races, races.listRow);
    const int n = pick;
    pick = 0;
    if (n == 0)
    {
        beep(form.outside);
        form.outside.said.push_back({"Not already selected."});
        return;
    }
    RaceControls& row = form.vantstart.races.at(static_cast<std::size_t>(n - 1));
    for (TextBox* const box : {&row.Text1, &row.Text2, &row.Text3, &row.Text4})
        setText(*box, "");
    setTicked(row.Check1, false);
    races.pickedCount = races.pickedCount - 1;
    races.nextSlot = n - 1;
    rebuildList(form);
}
