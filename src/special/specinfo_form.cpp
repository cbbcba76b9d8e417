#include "special/specinfo_form.h"

#include <array>
#include <utility>

#include "forms/form_printing.h"
#include "forms/on_leaving.h"
#include "forms/units_switch.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    constexpr double milesPerKnot = 1.153;   // of this form's conversion

    std::array<std::pair<OptionButton*, SpecialUnit>, 6> unitOptions(SpecinfoForm& form)
    {
        return {{{&form.optmi, SpecialUnit::miles},
                 {&form.optyd, SpecialUnit::yards},
                 {&form.optkm, SpecialUnit::kilometers},
                 {&form.optm, SpecialUnit::meters},
                 {&form.optmara, SpecialUnit::marathon},
                 {&form.opthmara, SpecialUnit::halfMarathon}}};
    }

    std::array<std::pair<OptionButton*, const char*>, 3> modeOptions(SpecinfoForm& form)
    {
        return {{{&form.Option1, "n"}, {&form.Option2, "c"}, {&form.Option3, "r"}}};
    }

    SpecialEntries entriesOf(SpecinfoForm& form)
    {
        SpecialEntries entries;
        entries.number = form.Text1.text;
        entries.unit = SpecialUnit::none;
        for (const auto& [option, unit] : unitOptions(form))
            if (option->chosen)
                entries.unit = unit;
        for (const auto& [option, mode] : modeOptions(form))
            if (option->chosen)
                entries.mode = mode;
        entries.levelOnly = form.Option5.chosen;
        entries.slope = form.Text3.text;
        entries.wind = form.wsscr.value;
        entries.tailWind = form.tailw.chosen;
        return entries;
    }

    void showResults(SpecinfoForm& form)
    {
        setText(form.Text4, form.results.levelLine);
        setText(form.Text5, form.results.hillLine);
        form.table.page = form.results.table;
        form.winds.page = form.results.winds;
        notifyShown(form.table);
        notifyShown(form.winds);
    }

    void showPaceUnit(SpecinfoForm& form)
    {
        setCaption(form.Label8,
                   showsKilometers(form.Command4) ? "Paces in minutes per kilometer" : "Paces in minutes per mile");
    }

    void switchPaceUnit(SpecinfoForm& form)
    {
        flipUnits(form.Command4);
        showPaceUnit(form);
        analyze(form);
    }

    void takeWind(SpecinfoForm& form)
    {
        const double wind = form.wsscr.value / 10.0;
        form.state.special.windBase = form.tailw.chosen ? -wind : wind;
    }

    void showWind(SpecinfoForm& form)
    {
        const double mps = form.wsscr.value / 10.0;
        setText(form.wsmps, plainText(mps));
        setText(form.wskph, plainText(roundHalfEven(mps * 36) / 10));
        setText(form.wsmph, plainText(roundHalfEven(mps * (36 / kilometresPerMile)) / 10));
        setText(form.wsknt, plainText(roundHalfEven(mps * (36 / kilometresPerMile / milesPerKnot)) / 10));
        takeWind(form);
    }

    void showHorizontalSlope(SpecinfoForm& form)
    {
        form.state.activity = "converting the slope";
        const double s = val(form.Text3.text);
        setText(form.Text2, formatNumber(quotient(s, power(1 - square(s), 0.5)), 6, 4));
    }

    /// Puts the entries of the latest run back. The slope comes last: one of 1 or more can't be shown the other way.
    void restore(SpecinfoForm& form, const SpecialEntries& entries)
    {
        setText(form.Text1, entries.number);
        for (const auto& [option, unit] : unitOptions(form))
            setChosen(*option, entries.unit == unit);
        for (const auto& [option, mode] : modeOptions(form))
            setChosen(*option, entries.mode == mode);
        setChosen(form.Option5, entries.levelOnly);
        setValue(form.wsscr, entries.wind);
        setChosen(form.headw, !entries.tailWind);
        setChosen(form.tailw, entries.tailWind);
        takeWind(form);
        setText(form.Text3, entries.slope);
    }

    void open(SpecinfoForm& form)
    {
        form.results = {};
        showResults(form);
        if (form.state.special.stored)
            restore(form, SpecialEntries(form.state.special.entries));
    }

    void wire(SpecinfoForm& form)
    {
        for (Button* button : {&form.Command2, &form.Command6, &form.Command7, &form.Command8})
            button->clicked = [&form, button] { form.outside.openForm(button->opens); };
        form.Command1.clicked = [&form] { analyze(form); };
        form.Command3.clicked = [&form] { form.outside.closeForm(form.form.name); };
        form.Command4.clicked = [&form] { switchPaceUnit(form); };
        form.Command5.clicked = [&form] {
            printForm(form.outside, form.form,
                      {&form.Command1, &form.Command2, &form.Command3, &form.Command4, &form.Command5},
                      [&form] { analyze(form); });
        };
        form.headw.clicked = [&form] { takeWind(form); };
        form.tailw.clicked = [&form] { takeWind(form); };
        form.Text3.changed = [&form] { showHorizontalSlope(form); };
        form.wsscr.changed = [&form] { showWind(form); };
        form.form.opened = [&form] { open(form); };
    }

    /// Every control once, in reading order.
    std::vector<ControlRef> controlsOf(SpecinfoForm& f)
    {
        return {&f.Label1,   &f.distanceLabel, &f.distanceHeading, &f.Text1,    &f.optmi,    &f.optyd,    &f.optkm,
                &f.optm,     &f.optmara,       &f.opthmara,        &f.Option5,  &f.Option1,  &f.Option2,  &f.Option3,
                &f.Text3,    &f.Text2,         &f.windHeading,     &f.wsscr,    &f.wsmps,    &f.wskph,    &f.wsmph,
                &f.wsknt,    &f.headw,         &f.tailw,           &f.windwarn, &f.Command1, &f.Command4, &f.Command5,
                &f.Command2, &f.Command3,      &f.Label4,          &f.Label5,   &f.Text4,    &f.Label10,  &f.Text5,
                &f.Label8,   &f.winds,         &f.table,           &f.Label11,  &f.Command6, &f.Command7, &f.Command8};
    }
}

SpecinfoForm::SpecinfoForm(ModelState& modelState, Outside& formOutside, const ScrollBar& comparisonLevel)
    : state(modelState), outside(formOutside), comparison(comparisonLevel)
{
    for (OptionGroup* group : {&units, &modes, &directions})
        for (OptionButton* option : group->members)
            option->group = group;
    setCaption(Command4, toKilometers);
    showPaceUnit(*this);
    wire(*this);
    form.controls = controlsOf(*this);
}

void analyze(SpecinfoForm& form)
{
    const SpecialEntries entries = entriesOf(form);
    const bool hasTable = entries.mode == "n" || entries.mode == "r";
    setEnabled(form.Command4, hasTable);
    setVisible(form.Label8, hasTable);
    const OnLeaving showThem([&] { showResults(form); });
    specialAnalysis(form.state, entries, form.comparison.value, showsKilometers(form.Command4), form.results,
                    form.outside.said);
}
