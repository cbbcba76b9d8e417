#include "workouts/workouts_form.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <vector>

#include "forms/first_fault.h"
#include "forms/on_leaving.h"
#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/text.h"
#include "model/units.h"
#include "workouts/workout_heart_rates.h"
#include "workouts/zone_sentence.h"

namespace
{
    constexpr double lowestVoluntaryPurpose = 94;   // percent of intensity below which only race pace counts
    constexpr int racePurpose = 100;

    constexpr const char* intervalWords =
        "Enter up to 5 distances, the number of repetitions for each, and the work to recovery (time) ratio (you can "
        "optionally let Vantelos suggest these by chacking the box in the upper right part of the form)";
    constexpr const char* continuousWords =
        "By default, 1609.3 meters (1 mile) is entered, and 3.5 (miles) is entered as an example";

    /// A half of a bar's value, as its text shows it.
    double halfOf(const ScrollBar& bar)
    {
        return bar.value / 2.0;
    }

    WorkoutEntries entriesOf(const WorkoutsForm& form)
    {
        WorkoutEntries entries;
        std::transform(form.rows.begin(), form.rows.end(), entries.begin(), [](const WorkoutRowControls& row) {
            return WorkoutEntry{row.dist.text, row.num.text, row.wrp.text};
        });
        return entries;
    }

    WorkoutSettings settingsOf(const WorkoutsForm& form)
    {
        WorkoutSettings settings;
        settings.recovPct = form.recovpace.value;
        settings.intensityPct = halfOf(form.pctmax);
        settings.purpose = form.repvoscrl.value;
        settings.perfAdjust = form.perfadj.value;
        settings.autoRatio = form.acwr.ticked;
        settings.continuousRun = form.scrun.chosen;
        return settings;
    }

    std::string wholeText(double value)
    {
        return plainText(std::floor(0.5 + value));
    }

    void showStandard(WorkoutsForm& form, double standardPoints)
    {
        setCaption(form.stload, wholeText(100 * standardPoints));
    }

    void clearRow(WorkoutRowControls& row)
    {
        for (Label* label : {&row.Label3, &row.rptslbl, &row.split, &row.rest, &row.restd, &row.sec400, &row.sec100,
                             &row.minmi, &row.rsec100, &row.rminmi})
            setCaption(*label, "");
    }

    double paceOver(double time, double distance, double metres)
    {
        return checked(quotient(time, distance) * metres);
    }

    /// What is shown of a tiny time goes on being used.
    void showRow(WorkoutRowControls& row, const PlannedRow& planned)
    {
        const double dist = planned.dist;
        double t = planned.effortTime;
        double r = planned.recoveryTime;
        const double y = planned.recoveryDist;
        setCaption(row.split, formatTime(t));
        setCaption(row.rest, formatTime(r));
        setCaption(row.restd, wholeText(y));
        setCaption(row.sec400, formatNumber(paceOver(t, dist, metresPerTrackLap), 5, 1));
        setCaption(row.sec100, formatNumber(paceOver(t, dist, 100), 5, 1));
        setCaption(row.minmi, formatTime(paceOver(t, dist, metresPerMile)));
        setCaption(row.rsec100, formatNumber(paceOver(r, y, 100), 5, 1));
        setCaption(row.rminmi, formatTime(paceOver(r, y, metresPerMile)));
    }

    void showRows(WorkoutsForm& form, const WorkoutPlan& plan)
    {
        for (std::size_t i = 0; i < plannerRows; ++i)
        {
            if (plan.rows[i].counts)
                showRow(form.rows[i], plan.rows[i]);
            else
                clearRow(form.rows[i]);
        }
    }

    void showDistances(WorkoutsForm& form, const WorkoutPlan& plan)
    {
        const double recovery = plan.totalDist - plan.fastDist;
        setCaption(form.fastm, wholeText(plan.fastDist));
        setCaption(form.fastmi, formatNumber(plan.fastDist / metresPerMile, 5, 2));
        setCaption(form.recm, plainText(std::floor(0.5 + plan.totalDist - plan.fastDist)));
        setCaption(form.recmi, formatNumber(recovery / metresPerMile, 5, 2));
        setCaption(form.totm, wholeText(plan.totalDist));
        setCaption(form.totmi, formatNumber(plan.totalDist / metresPerMile, 5, 2));
    }

    /// Shows the stress. Returns the percent of standard as shown.
    double showStress(WorkoutsForm& form, const WorkoutPlan& plan)
    {
        setCaption(form.totload, formatNumber(plan.totalPoints, 5, 1));
        const double percentOfStandard = std::floor(0.5 + quotient(plan.totalPoints, plan.standardPoints));
        setCaption(form.totldst, plainText(percentOfStandard));
        return percentOfStandard;
    }

    void showTimes(WorkoutsForm& form, WorkoutPlan& plan)
    {
        setCaption(form.fasttime, formatTime(plan.fastTime));
        setCaption(form.rectime, formatTime(plan.recoveryTotalTime));
        setCaption(form.tottime, formatTime(plan.fastTime + plan.recoveryTotalTime));
    }

    void showHeartRates(WorkoutsForm& form, const WorkoutHeartRates& rates)
    {
        setCaption(form.approxhr, wholeText(rates.effortHr));
        setCaption(form.apminhr, wholeText(rates.recoveryHr));
        setCaption(form.newmeanhr, wholeText(rates.meanHr));
        setCaption(form.hrpctmax, plainText(roundHalfEven(rates.hrPercentMax)));
        setCaption(form.hrrlbl, plainText(roundHalfEven(rates.hrPercentReserve)));
    }

    void showZone(WorkoutsForm& form, const WorkoutPlan& plan, double percentOfStandard)
    {
        const double speed = quotient(quotient(plan.fastDist, plan.fastTime), form.perfadj.value / 200.0);
        const ZoneSentence sentence = zoneSentence(form.state.training, speed, percentOfStandard);
        setCaption(form.zonelbl, sentence.text);
        setColour(form.zonelbl, {sentence.red, sentence.green, sentence.blue});
    }

    void showPlan(WorkoutsForm& form, WorkoutPlan plan)
    {
        form.state.activity = "showing the plan of the workout";
        setCaption(form.effectiveIntensity, plainText(std::floor(0.5 + 10 * plan.effectiveIntensity) / 10));
        showRows(form, plan);
        showDistances(form, plan);
        const double percentOfStandard = showStress(form, plan);
        showTimes(form, plan);
        form.state.activity = "working out the heart rates of the workout";
        showHeartRates(form, workoutHeartRates(form.state, plan, settingsOf(form)));
        form.state.activity = "telling what kind of training the workout is";
        showZone(form, plan, percentOfStandard);
    }

    void noteEntry(WorkoutsForm& form)
    {
        form.worthKeeping = form.worthKeeping || !form.loading;
    }

    void takeEntry(WorkoutsForm& form)
    {
        noteEntry(form);
        planWorkout(form);
    }

    void takePurpose(WorkoutsForm& form)
    {
        noteEntry(form);
        setText(form.vrtext, plainText(form.repvoscrl.value));
        planWorkout(form);
    }

    void takeRecoveryPace(WorkoutsForm& form)
    {
        noteEntry(form);
        setText(form.recovpacetxt, plainText(form.recovpace.value));
        planWorkout(form);
    }

    bool isBelowVoluntaryPurpose(const WorkoutsForm& form)
    {
        return halfOf(form.pctmax) < lowestVoluntaryPurpose;
    }

    void takeIntensity(WorkoutsForm& form)
    {
        noteEntry(form);
        setText(form.pctmaxtxt, plainText(halfOf(form.pctmax)));
        setEnabled(form.repvoscrl, true);
        if (isBelowVoluntaryPurpose(form))
        {
            setValue(form.repvoscrl, racePurpose);
            setEnabled(form.repvoscrl, false);
        }
        planWorkout(form);
    }

    /// While it is dragged the purpose moves, and is disabled only when the bar is let go.
    void takeDraggedIntensity(WorkoutsForm& form)
    {
        noteEntry(form);
        setText(form.pctmaxtxt, plainText(halfOf(form.pctmax)));
        if (isBelowVoluntaryPurpose(form))
            setValue(form.repvoscrl, racePurpose);
        planWorkout(form);
    }

    void showRaceTimes(WorkoutsForm& form)
    {
        form.state.activity = "working out race times at the adjusted level";
        const auto timeOver = [&form](double d) {
            return quotient(raceTimeAt(form.state, d) * 200, form.perfadj.value);
        };
        setCaption(form.p400, formatNumber(timeOver(400), 5, 1));
        setCaption(form.p800, formatTime(timeOver(800)));
        setCaption(form.p1500, formatTime(timeOver(1500)));
        setCaption(form.p1600, formatTime(timeOver(1600)));
        setCaption(form.pmile, formatTime(timeOver(metresPerMile)));
        setCaption(form.p3000, formatTime(timeOver(3000)));
        setCaption(form.p3200, formatTime(timeOver(3200)));
        setCaption(form.p5000, formatTime(timeOver(5000)));
        setCaption(form.p10000, formatTime(timeOver(10000)));
    }

    void takeLevel(WorkoutsForm& form)
    {
        noteEntry(form);
        setText(form.perfadjtxt, plainText(halfOf(form.perfadj)));
        showRaceTimes(form);
        planWorkout(form);
    }

    WorkoutRowControls& lastRowOf(WorkoutsForm& form)
    {
        return form.rows[static_cast<std::size_t>(lastWorkoutRow)];
    }

    /// All rows but the last.
    std::vector<WorkoutRowControls*> upperRowsOf(WorkoutsForm& form)
    {
        std::vector<WorkoutRowControls*> upper;
        for (WorkoutRowControls& row : form.rows)
            if (&row != &lastRowOf(form))
                upper.push_back(&row);
        return upper;
    }

    void enableRow(WorkoutRowControls& row, bool enabled)
    {
        for (TextBox* box : {&row.dist, &row.num, &row.wrp})
            setEnabled(*box, enabled);
    }

    void chooseIntervals(WorkoutsForm& form)
    {
        noteEntry(form);
        setText(lastRowOf(form).num, "0");
        const std::vector<WorkoutRowControls*> upper = upperRowsOf(form);
        for (WorkoutRowControls* row : upper)
            enableRow(*row, true);
        if (std::all_of(upper.begin(), upper.end(), [](const auto* row) { return val(row->num.text) <= 0; }))
            setText(form.rows[2].num, "4");
        setEnabled(form.acwr, true);
        setTicked(form.acwr, true);
        setCaption(form.scrdesclbl, intervalWords);
    }

    void chooseContinuousRun(WorkoutsForm& form)
    {
        noteEntry(form);
        setText(lastRowOf(form).wrp, plainText(continuousRatio));
        setText(lastRowOf(form).num, "3.5");
        setTicked(form.acwr, false);
        setEnabled(form.acwr, false);
        for (WorkoutRowControls* row : upperRowsOf(form))
        {
            enableRow(*row, false);
            setText(row->num, "0");
        }
        setCaption(form.scrdesclbl, continuousWords);
    }

    /// A stored bar value; what the settings never held leaves the bar.
    void restore(ScrollBar& bar, const std::optional<double>& value)
    {
        if (value)
            setValue(bar, std::llround(std::clamp<double>(roundHalfEven(*value), bar.min, bar.max)));
    }

    /// Puts the stored entries back one by one; each plans the workout anew. What stands between two of them may be no
    /// workout, though all together are one, so that a fault waits until every entry is back.
    void restore(WorkoutsForm& form)
    {
        const StoredPlanner stored = form.stored;
        if (!isPresent(stored))
            return;
        FirstFault fault(form.state);
        fault.hold([&] { setChosen(form.ints, true); });
        if (*stored.workoutMode == 2)
            fault.hold([&] { setChosen(form.scrun, true); });
        fault.hold([&] { setTicked(form.acwr, stored.acwr); });
        fault.hold([&] { restore(form.repvoscrl, stored.repvoscrl); });
        fault.hold([&] { restore(form.recovpace, stored.recovpace); });
        fault.hold([&] { restore(form.pctmax, stored.pctmax); });
        fault.hold([&] { restore(form.perfadj, stored.perfadj); });
        for (std::size_t i = 0; i < plannerRows; ++i)
        {
            fault.hold([&] { setText(form.rows[i].dist, stored.rows[i].dist); });
            fault.hold([&] { setText(form.rows[i].num, stored.rows[i].num); });
            fault.hold([&] { setText(form.rows[i].wrp, stored.rows[i].wrp); });
        }
        fault.raise();
    }

    /// A first impression of the load and the paces, until the next change plans the workout. Each row counts as
    /// repetitions of 800 m, whatever its distance.
    void preview(WorkoutsForm& form, double standardPoints)
    {
        form.state.activity = "previewing the workout";
        double L = 0;
        for (WorkoutRowControls& row : form.rows)
        {
            const double num = val(row.num.text);
            const double points = roundHalfEven(checked((num * 100 / 5) * power(val(row.dist.text) / 800, 0.7)));
            setCaption(row.Label3, plainText(points));
            L = L + points;
            if (num > 0)
            {
                double time = quotient(800, form.state.training.vo2maxSpeedTop) * 0.98;
                setCaption(row.split, formatTime(time));
                setCaption(row.rest, formatTime(time / power(800.0 / 600, 0.45)));
            }
        }
        setCaption(form.totload, plainText(roundHalfEven(L)));
        setCaption(form.totldst, plainText(roundHalfEven(quotient(L, standardPoints))));
    }

    void load(WorkoutsForm& form)
    {
        form.loading = true;
        const OnLeaving over([&form] { form.loading = false; });
        setValue(form.perfadj, 199);   // so that its event runs
        setValue(form.perfadj, 200);
        const double S = standardLoad(form.state.runner.weeklyMiles);
        setCaption(form.stload, plainText(roundHalfEven(100 * S)));
        setText(form.rows[2].num, plainText(roundHalfEven(5 * S)));
        restore(form);
        form.worthKeeping = true;
        preview(form, S);
    }

    /// Keeps the entries, whatever closes the form.
    void store(const WorkoutsForm& form)
    {
        if (!form.worthKeeping)
            return;
        StoredPlanner& stored = form.stored;
        stored.workoutMode = form.scrun.chosen ? 2 : 1;
        stored.acwr = form.acwr.ticked;
        stored.repvoscrl = form.repvoscrl.value;
        stored.recovpace = form.recovpace.value;
        stored.pctmax = form.pctmax.value;
        stored.perfadj = form.perfadj.value;
        std::transform(form.rows.begin(), form.rows.end(), stored.rows.begin(), [](const WorkoutRowControls& row) {
            return StoredPlanner::Row{row.dist.text, row.num.text, row.wrp.text};
        });
    }

    void nameRow(WorkoutRowControls& row, int i)
    {
        struct DesignRow
        {
            const char *dist, *num, *wrp;
        };
        constexpr DesignRow design[] = {
            {"400", "0", "83"}, {"600", "0", "100"}, {"800", "5", "114"}, {"1200", "0", "137"}, {"1609.3", "0", "155"}};
        const auto& [dist, num, wrp] = design[i];
        row.dist = {
            {.name = arrayName("dist", i), .caption = "Distance (m)", .tip = "Distance of one repetition, meters"},
            dist};
        row.num = {{.name = arrayName("num", i), .caption = "Number", .tip = "Repetitions; fractions allowed"}, num};
        row.wrp = {{.name = arrayName("wrp", i),
                    .caption = "Work/Rec (%)",
                    .tip = "Time of the effort in percent of the recovery's, at least 5"},
                   wrp};
        row.Label3 = {{.name = arrayName("Label3", i), .tip = "Stress points of the efforts"}, {}, "Points"};
        row.rptslbl = {{.name = arrayName("rptslbl", i), .tip = "Stress points of the recoveries"}, {}, "Points"};
        row.split = {{.name = arrayName("split", i), .tip = "Time of one effort"}, {}, "Split"};
        row.sec400 = {{.name = arrayName("sec400", i), .tip = "Pace of the efforts, seconds a 400 m"}, {}, "sec/400"};
        row.sec100 = {{.name = arrayName("sec100", i), .tip = "Pace of the efforts, seconds a 100 m"}, {}, "sec/100"};
        row.minmi = {{.name = arrayName("minmi", i), .tip = "Pace of the efforts, minutes a mile"}, {}, "min/mi"};
        row.restd = {{.name = arrayName("restd", i), .tip = "Distance of one recovery, meters"}, {}, "Distance"};
        row.rest = {{.name = arrayName("rest", i), .tip = "Time of one recovery"}, {}, "Time"};
        row.rsec100 = {
            {.name = arrayName("rsec100", i), .tip = "Pace of the recoveries, seconds a 100 m"}, {}, "sec/100"};
        row.rminmi = {{.name = arrayName("rminmi", i), .tip = "Pace of the recoveries, minutes a mile"}, {}, "min/mi"};
    }

    void wireEntries(WorkoutsForm& form)
    {
        for (WorkoutRowControls& row : form.rows)
            for (TextBox* box : {&row.dist, &row.num, &row.wrp})
                box->changed = [&form] { takeEntry(form); };
        form.acwr.clicked = [&form] { takeEntry(form); };
        form.repvoscrl.changed = [&form] { takePurpose(form); };
        form.recovpace.changed = [&form] { takeRecoveryPace(form); };
        form.pctmax.changed = [&form] { takeIntensity(form); };
        form.pctmax.scrolled = [&form] { takeDraggedIntensity(form); };
        form.perfadj.changed = [&form] { takeLevel(form); };
        for (OptionButton* option : form.modes.members)
            option->group = &form.modes;
        form.ints.clicked = [&form] { chooseIntervals(form); };
        form.scrun.clicked = [&form] { chooseContinuousRun(form); };
    }

    void wireButtons(WorkoutsForm& form)
    {
        form.Command1.clicked = [&form] { form.outside.closeForm(form.form.name); };
        form.Command2.clicked = [&form] { form.outside.openForm(form.Command2.opens); };
        form.Command3.clicked = [&form] { planWorkout(form); };
        form.form.load = [&form] { load(form); };
        form.form.unloaded = [&form] { store(form); };
        form.form.table = [&form] { return tableOf(form); };
    }

    /// The controls of a row as they stand from left to right.
    std::vector<ControlRef> controlsOf(WorkoutRowControls& row)
    {
        return {&row.dist,   &row.num,   &row.Label3, &row.rptslbl, &row.wrp,     &row.split, &row.sec400,
                &row.sec100, &row.minmi, &row.restd,  &row.rest,    &row.rsec100, &row.rminmi};
    }

    std::vector<ControlRef> controlsOf(WorkoutsForm& f)
    {
        std::vector<ControlRef> list{&f.ints, &f.scrun, &f.acwr, &f.scrdesclbl, &f.rowHeading};
        for (WorkoutRowControls& row : f.rows)
        {
            const std::vector<ControlRef> controls = controlsOf(row);
            list.insert(list.end(), controls.begin(), controls.end());
        }
        const std::vector<ControlRef> rest{&f.pctmax,        &f.pctmaxtxt,     &f.repvoscrl,      &f.vrtext,
                                           &f.recovpace,     &f.recovpacetxt,  &f.perfadj,        &f.perfadjtxt,
                                           &f.raceHeading,   &f.p400,          &f.p800,           &f.p1500,
                                           &f.p1600,         &f.pmile,         &f.p3000,          &f.p3200,
                                           &f.p5000,         &f.p10000,        &f.summaryHeading, &f.fastHeading,
                                           &f.fastm,         &f.fastmi,        &f.fasttime,       &f.recoveryHeading,
                                           &f.recm,          &f.recmi,         &f.rectime,        &f.totalHeading,
                                           &f.totm,          &f.totmi,         &f.tottime,        &f.effectiveIntensity,
                                           &f.stressHeading, &f.totload,       &f.totldst,        &f.stload,
                                           &f.heartHeading,  &f.effortHeading, &f.meanHeading,    &f.recovHeading,
                                           &f.approxhr,      &f.newmeanhr,     &f.apminhr,        &f.hrpctmax,
                                           &f.hrrlbl,        &f.zonelbl,       &f.Command3,       &f.Command2,
                                           &f.Command1};
        list.insert(list.end(), rest.begin(), rest.end());
        return list;
    }

    void addPair(TextTable& table, const std::string& words, const std::string& value)
    {
        table.rows.push_back({words, value});
    }

    void addRows(TextTable& table, const WorkoutsForm& form)
    {
        table.rows.push_back({"Distance (m)", "Number", "Points", "Points", "Work/Rec (%)", "Split", "sec/400",
                              "sec/100", "min/mi", "Distance", "Time", "sec/100", "min/mi"});
        for (const WorkoutRowControls& row : form.rows)
            if (!row.split.caption.empty())
                table.rows.push_back({row.dist.text, row.num.text, row.Label3.caption, row.rptslbl.caption,
                                      row.wrp.text, row.split.caption, row.sec400.caption, row.sec100.caption,
                                      row.minmi.caption, row.restd.caption, row.rest.caption, row.rsec100.caption,
                                      row.rminmi.caption});
        table.rows.emplace_back();
    }
}

WorkoutsForm::WorkoutsForm(ModelState& modelState, Outside& formOutside, StoredPlanner& storedPlanner)
    : state(modelState), outside(formOutside), stored(storedPlanner)
{
    for (int i = 0; i < workoutRowCount; ++i)
        nameRow(rows[static_cast<std::size_t>(i)], i);
    wireEntries(*this);
    wireButtons(*this);
    form.controls = controlsOf(*this);
}

void planWorkout(WorkoutsForm& form)
{
    WorkoutEntries entries = entriesOf(form);
    PlanListener listener;
    listener.standard = [&form](double standardPoints) { showStandard(form, standardPoints); };
    listener.ratioWritten = [&form, &entries](int row) {   // plans once more, within this plan
        const auto i = static_cast<std::size_t>(row);
        setText(form.rows[i].wrp, entries[i].wrp);
        entries = entriesOf(form);
    };
    listener.points = [&form](int row, const std::string& fast, const std::string& recovery) {
        setCaption(form.rows[static_cast<std::size_t>(row)].Label3, fast);
        setCaption(form.rows[static_cast<std::size_t>(row)].rptslbl, recovery);
    };
    const std::optional<WorkoutPlan> plan =
        planWorkout(form.state, entries, settingsOf(form), listener, form.outside.said);
    if (plan)
        showPlan(form, *plan);
}

TextTable tableOf(const WorkoutsForm& form)
{
    TextTable table;
    addRows(table, form);
    table.rows.push_back({form.summaryHeading.caption, "meters", "miles", "time"});
    table.rows.push_back({form.fastHeading.caption, form.fastm.caption, form.fastmi.caption, form.fasttime.caption});
    table.rows.push_back({form.recoveryHeading.caption, form.recm.caption, form.recmi.caption, form.rectime.caption});
    table.rows.push_back({form.totalHeading.caption, form.totm.caption, form.totmi.caption, form.tottime.caption});
    table.rows.emplace_back();
    for (const Label* label : {&form.effectiveIntensity, &form.totload, &form.totldst, &form.stload})
        addPair(table, label->heading, label->caption);
    table.rows.emplace_back();
    table.rows.push_back({form.heartHeading.caption, form.effortHeading.caption, form.meanHeading.caption,
                          form.recovHeading.caption, form.hrpctmax.heading, form.hrrlbl.heading});
    table.rows.push_back({"", form.approxhr.caption, form.newmeanhr.caption, form.apminhr.caption,
                          form.hrpctmax.caption, form.hrrlbl.caption});
    table.rows.push_back({form.zonelbl.caption});
    table.rows.emplace_back();
    for (const Label* label : {&form.p400, &form.p800, &form.p1500, &form.p1600, &form.pmile, &form.p3000, &form.p3200,
                               &form.p5000, &form.p10000})
        addPair(table, label->heading, label->caption);
    return table;
}
