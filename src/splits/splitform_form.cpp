#include "splits/splitform_form.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/files.h"
#include "forms/first_fault.h"
#include "forms/on_leaving.h"
#include "forms/pasted_cells.h"
#include "forms/track_file.h"
#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    double unitFactorOf(const SplitForm& form)
    {
        if (form.opsplitmi.chosen)
            return metresPerMile;
        return form.opsplitkm.chosen ? metresPerKilometre : 1;
    }

    SplitMethod methodOf(const SplitForm& form)
    {
        if (form.opwork.chosen)
            return SplitMethod::method1;
        return form.openergy.chosen ? SplitMethod::method2 : SplitMethod::mix;
    }

    SplitEntry entryOf(const SplitRowControls& row)
    {
        return {row.splitdis.text, row.splitmin.text, row.splitsec.text};
    }

    SplitEntries entriesOf(const SplitForm& form)
    {
        SplitEntries entries;
        std::transform(form.rows.begin(), form.rows.end(), entries.begin(), entryOf);
        return entries;
    }

    bool isFilled(const SplitRowControls& row)
    {
        const SplitEntry entry = entryOf(row);
        return hasDistance(entry) && hasTime(entry);
    }

    /// The row's own paces, and the analysis if the row can be part of one.
    void updateSplitRow(SplitForm& form, SplitRowControls& row)
    {
        if (form.splitLoading == 1)
            return;
        form.state.activity = "working out the paces of row " + row.splitno.caption;
        setCaption(row.minmi, "");
        setCaption(row.sec4, "");
        if (!isNumeric(row.splitdis.text) || !(val(row.splitdis.text) > 0) || !isNumeric(row.splitsec.text))
            return;
        const double d = checked(val(row.splitdis.text) * unitFactorOf(form));
        const double t = checked(val(row.splitmin.text) * 60 + val(row.splitsec.text));
        setCaption(row.minmi, formatTime(quotient(t, d / metresPerMile)));
        setCaption(row.sec4, formatTime(checked(quotient(t, d) * metresPerTrackLap)));
        if (!form.pasting)
            analyse(form);
    }

    /// A click on a unit or a method.
    void takeChoice(SplitForm& form)
    {
        if (form.splitLoading == 1)
            return;
        analyse(form);
        for (SplitRowControls& row : form.rows)
            if (val(row.splitdis.text) > 0)
                updateSplitRow(form, row);
    }

    /// Distance first, so that a row that is emptied never reaches the analysis.
    void writeRow(SplitRowControls& row, const SplitEntry& entry)
    {
        setText(row.splitdis, entry.distance);
        setText(row.splitmin, entry.minutes);
        setText(row.splitsec, entry.seconds);
    }

    /// Writes each box, whatever stops the event of one before it.
    void writeRow(SplitRowControls& row, const SplitEntry& entry, FirstFault& fault)
    {
        fault.hold([&] { setText(row.splitdis, entry.distance); });
        fault.hold([&] { setText(row.splitmin, entry.minutes); });
        fault.hold([&] { setText(row.splitsec, entry.seconds); });
    }

    void deleteRow(SplitForm& form, SplitRowControls& row)
    {
        writeRow(row, {});
        updateSplitRow(form, row);
        analyse(form);
    }

    void clearRows(SplitForm& form)
    {
        for (SplitRowControls& row : form.rows)
            writeRow(row, {});
    }

    void showEvenSplits(SplitForm& form, const SplitAnalysis& analysis, double potentialTime)
    {
        const double evenSpeed = quotient(analysis.totalDistance, potentialTime);
        for (int i = 0; i < splitRowCount; ++i)
        {
            const auto piece = std::find_if(analysis.pieces.begin(), analysis.pieces.end(),
                                            [i](const SplitPiece& one) { return one.row == i; });
            setCaption(form.rows[static_cast<std::size_t>(i)].calcsm,
                       piece == analysis.pieces.end() ? "" : formatTime(quotient(piece->metres, evenSpeed)));
        }
    }

    std::string totalDistanceText(const SplitForm& form, double metres)
    {
        if (form.opsplitkm.chosen)
            return formatNumber(metres / metresPerKilometre, 7, 3);
        return form.opsplitmi.chosen ? formatNumber(metres / metresPerMile, 7, 3) : plainText(metres);
    }

    void showEquivalents(SplitForm& form, double curveRatio)
    {
        const auto timeOver = [&](double distance) { return checked(curveRatio * raceTimeAt(form.state, distance)); };
        setCaption(form.s400, formatNumber(timeOver(400), 5, 1));
        setCaption(form.s800, formatTime(timeOver(800)));
        setCaption(form.s1500, formatTime(timeOver(1500)));
        setCaption(form.s1600, formatTime(timeOver(1600)));
        setCaption(form.smile, formatTime(timeOver(metresPerMile)));
        setCaption(form.s3000, formatTime(timeOver(3000)));
        setCaption(form.s3200, formatTime(timeOver(3200)));
        setCaption(form.s5000, formatTime(timeOver(5000)));
        setCaption(form.s10000, formatTime(timeOver(10000)));
    }

    void showAnalysis(SplitForm& form, const SplitAnalysis& analysis)
    {
        const double D = analysis.totalDistance;
        double T = analysis.totalTime;
        double Pt = analysis.potentialTime;
        setCaption(form.calctott, formatTime(Pt));   // what is shown of a tiny time goes on being used
        showEvenSplits(form, analysis, Pt);
        setCaption(form.tdiff, formatTime(T - Pt));
        setCaption(form.paceminmi, formatTime(quotient(T, D / metresPerMile)));
        setCaption(form.pacesec4, formatTime(checked(quotient(T, D) * metresPerTrackLap)));
        setCaption(form.potpaceminmi, formatTime(quotient(Pt, D / metresPerMile)));
        setCaption(form.potpacesec4, formatTime(checked(quotient(Pt, D) * metresPerTrackLap)));
        setCaption(form.totracetim, formatTime(T));
        setCaption(form.totracedis, totalDistanceText(form, D));
        setCaption(form.pcts, formatNumber(quotient(100, analysis.curveRatio), 5, 1));
        showEquivalents(form, analysis.curveRatio);
    }

    void restore(SplitForm& form)
    {
        const StoredSplits& stored = form.stored;
        if (!isPresent(stored))
            return;
        OptionButton* const units[] = {&form.opsplitmi, &form.opsplitkm, &form.opsplitm};
        OptionButton* const methods[] = {&form.opwork, &form.openergy, &form.opmix};
        setChosen(*units[static_cast<std::size_t>(*stored.distanceUnit) - 1], true);
        setChosen(*methods[static_cast<std::size_t>(*stored.method) - 1], true);
        for (std::size_t i = 0; i < splitRows; ++i)
            writeRow(form.rows[i], {stored.rows[i].splitdis, stored.rows[i].splitmin, stored.rows[i].splitsec});
    }

    void load(SplitForm& form)
    {
        form.splitLoading = 1;
        restore(form);
        form.splitLoading = 0;
        for (SplitRowControls& row : form.rows)
        {
            setCaption(row.calcsm, "");
            updateSplitRow(form, row);
        }
        analyse(form);
    }

    /// Keeps the entries, whatever closes the form.
    void store(const SplitForm& form)
    {
        StoredSplits& stored = form.stored;
        stored.distanceUnit = form.opsplitmi.chosen ? 1 : (form.opsplitkm.chosen ? 2 : 3);
        stored.method = form.opwork.chosen ? 1 : (form.openergy.chosen ? 2 : 3);
        std::transform(form.rows.begin(), form.rows.end(), stored.rows.begin(), [](const SplitRowControls& row) {
            return StoredSplits::Row{row.splitdis.text, row.splitmin.text, row.splitsec.text};
        });
    }

    /// The laps of a track: those that the watch counted, else the shortest even ones that the grid has room for.
    std::vector<TrackLap> lapsOf(const SplitForm& form, const Track& track)
    {
        if (!track.laps.empty())
            return track.laps;
        const double unit = form.opsplitmi.chosen ? metresPerMile : metresPerKilometre;
        std::vector<TrackLap> laps;
        for (const double steps : {1, 2, 5, 10, 20, 50})
        {
            laps = evenLaps(track, steps * unit, splitRows);
            if (laps.size() <= splitRows)
                break;
        }
        return laps;
    }

    /// A length in the form's unit, to the decimeter.
    std::string distanceText(const SplitForm& form, double metres)
    {
        const double unit = unitFactorOf(form);
        const double places = unit == 1 ? 10 : 10000;
        return plainText(roundHalfEven(metres / unit * places) / places);
    }

    /// Whether a lap is more than nothing once it is rounded.
    bool isLap(const SplitTexts& texts)
    {
        const double seconds = val(texts.minutes.value_or("")) * 60 + val(texts.seconds.value_or(""));
        return val(texts.distance.value_or("")) > 0 && seconds > 0;
    }

    SplitTexts textsOf(const SplitForm& form, const TrackLap& lap)
    {
        SplitTexts texts = timeTexts(roundHalfEven(lap.seconds * 10) / 10);
        texts.distance = distanceText(form, lap.metres);
        return texts;
    }

    void askForLaps(SplitForm& form)
    {
        const FileQuestion question{"Import laps", "Laps and tracks", {"*.tcx", "*.gpx"}};
        const std::optional<std::string> path = chooseFile(form.outside, question);
        if (!path)
            return;
        const std::optional<std::string> bytes = readFile(*path, longestTrackFile + 1);
        if (bytes)
            importLaps(form, *bytes);
        else
            form.outside.said.push_back({"The file " + *path + " can't be opened."});
    }

    void nameRow(SplitRowControls& row, int i)
    {
        const std::string number = std::to_string(i + 1);
        row.delbut = {{.name = arrayName("delbut", i), .caption = "D", .tip = "Delete row " + number}};
        row.splitno = {{.name = arrayName("splitno", i), .caption = number}};
        row.splitdis = {{.name = arrayName("splitdis", i),
                         .caption = "Distance",
                         .tip = "Distance of split " + number + " in the unit chosen, up to 100 km"}};
        row.splitmin = {{.name = arrayName("splitmin", i), .caption = "Minutes", .tip = "Minutes of split " + number}};
        row.splitsec = {{.name = arrayName("splitsec", i),
                         .caption = "Seconds",
                         .tip = "Seconds of split " + number + "; decimals allowed"}};
        row.minmi = {{.name = arrayName("minmi", i), .tip = "Pace of split " + number + ", minutes a mile"}};
        row.sec4 = {{.name = arrayName("sec4", i), .tip = "Pace of split " + number + ", seconds a 400 m"}};
        row.calcsm = {{.name = arrayName("calcsm", i), .tip = "Time of split " + number + " at even pace"}};
    }

    /// Two laps of 400 m, then faster ones behind blank rows, which shows that rows may be skipped.
    void fillDesignRows(SplitForm& form)
    {
        struct DesignRow
        {
            std::size_t row;
            SplitEntry entry;
        };
        const DesignRow design[] = {
            {0, {"400", "1", "15"}}, {1, {"400", "1", "15"}}, {3, {"400", "1", "25"}}, {5, {"300", "1", "5"}}};
        for (const auto& [row, entry] : design)
            writeRow(form.rows[row], entry);
    }

    void wireRow(SplitForm& form, std::size_t i)
    {
        SplitRowControls& row = form.rows[i];
        row.delbut.clicked = [&form, &row] { deleteRow(form, row); };
        SplitColumn column = SplitColumn::distance;
        for (TextBox* box : {&row.splitdis, &row.splitmin, &row.splitsec})
        {
            box->changed = [&form, &row] { updateSplitRow(form, row); };
            box->pasted = [&form, i, column](const std::string& text) { return pasteSplits(form, i, column, text); };
            column = column == SplitColumn::distance ? SplitColumn::minutes : SplitColumn::seconds;
        }
    }

    void wire(SplitForm& form)
    {
        for (OptionGroup* group : {&form.unitGroup, &form.methodGroup})
            for (OptionButton* option : group->members)
            {
                option->group = group;
                option->clicked = [&form] { takeChoice(form); };
            }
        for (std::size_t i = 0; i < splitRows; ++i)
            wireRow(form, i);
        form.Command1.clicked = [&form] { analyse(form); };
        form.Command2.clicked = [&form] { form.outside.closeForm(form.form.name); };
        form.Command3.clicked = [&form] { duplicateRows(form); };
        form.Command4.clicked = [&form] { form.outside.openForm(form.Command4.opens); };
        form.Command5.clicked = [&form] { clearRows(form); };
        form.importlaps.clicked = [&form] { askForLaps(form); };
        form.form.load = [&form] { load(form); };
        form.form.unloaded = [&form] { store(form); };
        form.form.table = [&form] { return tableOf(form); };
    }

    std::vector<ControlRef> controlsOf(SplitForm& f)
    {
        std::vector<ControlRef> list{&f.gridHeading};
        for (SplitRowControls& row : f.rows)
        {
            const std::vector<ControlRef> controls{&row.delbut,   &row.splitno, &row.splitdis, &row.splitmin,
                                                   &row.splitsec, &row.minmi,   &row.sec4,     &row.calcsm};
            list.insert(list.end(), controls.begin(), controls.end());
        }
        const std::vector<ControlRef> rest{
            &f.unitsHeading, &f.opsplitmi,    &f.opsplitkm,   &f.opsplitm, &f.methodHeading,
            &f.opwork,       &f.openergy,     &f.opmix,       &f.Label10,  &f.Command1,
            &f.Command3,     &f.Command5,     &f.importlaps,  &f.Command4, &f.Command2,
            &f.totracedis,   &f.totracetim,   &f.calctott,    &f.tdiff,    &f.paceminmi,
            &f.pacesec4,     &f.potpaceminmi, &f.potpacesec4, &f.pcts,     &f.equivalentHeading,
            &f.raceHeading,  &f.s400,         &f.s800,        &f.s1500,    &f.s1600,
            &f.smile,        &f.s3000,        &f.s3200,       &f.s5000,    &f.s10000};
        list.insert(list.end(), rest.begin(), rest.end());
        return list;
    }
}

SplitForm::SplitForm(ModelState& modelState, Outside& formOutside, StoredSplits& storedSplits)
    : state(modelState), outside(formOutside), stored(storedSplits)
{
    for (std::size_t i = 0; i < splitRows; ++i)
        nameRow(rows[i], static_cast<int>(i));
    fillDesignRows(*this);
    wire(*this);
    form.controls = controlsOf(*this);
}

void analyse(SplitForm& form)
{
    const std::optional<SplitAnalysis> analysis =
        analyseSplits(form.state, entriesOf(form), unitFactorOf(form), methodOf(form), form.outside.said);
    if (!analysis)
        return;
    form.state.activity = "showing the analysis of the splits";
    showAnalysis(form, *analysis);
}

void duplicateRows(SplitForm& form)
{
    std::array<SplitRowControls, splitRows>& rows = form.rows;
    constexpr std::size_t lastTested = splitRows - 2;
    std::size_t i = 0;
    while (i <= lastTested && !(isFilled(rows[i]) && !isFilled(rows[i + 1])))
        ++i;
    if (i == 0)
        form.outside.said.push_back({"At least the first two rows must be popluted to use this feature."});
    else if (i >= lastTested)
        form.outside.said.push_back({"out of room at the bottom."});
    else
    {
        writeRow(rows[i + 1], entryOf(rows[i - 1]));
        writeRow(rows[i + 2], entryOf(rows[i]));
    }
}

void fillRows(SplitForm& form, std::size_t row, const std::vector<SplitTexts>& texts)
{
    const std::size_t room = splitRows - row;
    FirstFault fault(form.state);
    {
        form.pasting = true;
        const OnLeaving over([&form] { form.pasting = false; });
        for (std::size_t i = 0; i < std::min(room, texts.size()); ++i)
        {
            SplitRowControls& controls = form.rows[row + i];
            const SplitEntry old = entryOf(controls);
            writeRow(controls,
                     {texts[i].distance.value_or(old.distance), texts[i].minutes.value_or(old.minutes),
                      texts[i].seconds.value_or(old.seconds)},
                     fault);
        }
    }
    if (texts.size() > room)
        form.outside.said.push_back(
            {"There is room for " + std::to_string(room) + " of the rows; the others were left out."});
    fault.hold([&form] { analyse(form); });
    fault.raise();
}

bool pasteSplits(SplitForm& form, std::size_t row, SplitColumn column, const std::string& text)
{
    const std::string_view entry = std::string_view(text).substr(0, text.find_last_not_of("\r\n") + 1);
    if (entry.find_first_of("\t;:\r\n") == std::string_view::npos)
        return false;   // one entry, typed as it is
    const std::vector<std::vector<std::string>> cells =
        pastedCells(text, column == SplitColumn::distance ? Commas::separators : Commas::maybeDecimal);
    const std::vector<SplitTexts> texts = pastedSplits(cells, column);
    if (texts.empty())
        return false;
    fillRows(form, row, texts);
    return true;
}

void importLaps(SplitForm& form, const std::string& bytes)
{
    form.state.activity = "reading a file of laps";
    const std::optional<Track> track = readTrack(bytes, form.outside.said);
    if (!track)
        return;
    std::vector<SplitTexts> texts;
    for (const TrackLap& lap : lapsOf(form, *track))
        if (SplitTexts one = textsOf(form, lap); isLap(one))
            texts.push_back(std::move(one));
    if (texts.empty())
    {
        form.outside.said.push_back({"The file has neither laps nor a track with times."});
        return;
    }
    clearRows(form);
    fillRows(form, 0, texts);
}

TextTable tableOf(const SplitForm& form)
{
    TextTable table{{{"Split", "Distance", "Minutes", "Seconds", "Min/mile", "Sec/400 m", "Even Split Times"}}};
    for (const SplitRowControls& row : form.rows)
        if (!row.splitdis.text.empty() || !row.splitmin.text.empty() || !row.splitsec.text.empty())
            table.rows.push_back({row.splitno.caption, row.splitdis.text, row.splitmin.text, row.splitsec.text,
                                  row.minmi.caption, row.sec4.caption, row.calcsm.caption});
    table.rows.emplace_back();
    const auto addResults = [&table](std::initializer_list<const Label*> labels) {
        for (const Label* label : labels)
            table.rows.push_back({label->heading, label->caption});
    };
    addResults({&form.totracedis, &form.totracetim, &form.calctott, &form.tdiff, &form.paceminmi, &form.potpaceminmi,
                &form.pacesec4, &form.potpacesec4, &form.pcts});
    table.rows.emplace_back();
    table.rows.push_back({form.equivalentHeading.caption});
    addResults({&form.s400, &form.s800, &form.s1500, &form.s1600, &form.smile, &form.s3000, &form.s3200, &form.s5000,
                &form.s10000});
    return table;
}
