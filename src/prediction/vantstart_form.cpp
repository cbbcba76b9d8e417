#include "prediction/vantstart_form.h"

#include <string>
#include <utility>

#include "forms/on_leaving.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"
#include "prediction/calculate.h"

namespace
{
    constexpr const char* noMaxHr = "Please enter a maximum heart rate.  If you don't know the actual value, you can "
                                    "use the estimate in the box above.";
    constexpr const char* noRestHr = "Please enter a resting heart rate.  If you don't know the actual value, you can "
                                     "enter something in the range of 40 to 70.";

    RaceUnit unitOf(const RaceControls& race)
    {
        if (race.Option1.chosen)
            return RaceUnit::miles;
        if (race.Option2.chosen)
            return RaceUnit::yards;
        if (race.Option3.chosen)
            return RaceUnit::kilometers;
        if (race.Option4.chosen)
            return RaceUnit::meters;
        if (race.Option5.chosen)
            return RaceUnit::marathon;
        if (race.Option6.chosen)
            return RaceUnit::halfMarathon;
        return RaceUnit::none;
    }

    FitMode fitOf(const VantstartForm& form)
    {
        if (form.Option7.chosen)
            return FitMode::bestTwo;
        return form.Option8.chosen ? FitMode::allData : FitMode::none;
    }

    OutputMode outputOf(const VantstartForm& form)
    {
        if (form.Option10.chosen)
            return OutputMode::english;
        return form.Option9.chosen ? OutputMode::metric : OutputMode::none;
    }

    SexChoice sexOf(const VantstartForm& form)
    {
        if (form.optfemale.chosen)
            return SexChoice::female;
        return form.optmale.chosen ? SexChoice::male : SexChoice::none;
    }

    /// Shows what runs have left: the table, the options as the runs have set them, and what is enabled.
    void showResults(VantstartForm& form, const CalculationInput& input)
    {
        const CalculationResults& results = form.results;
        form.Picture1.page = results.picture;
        notifyShown(form.Picture1);
        setEnabled(form.Option7, results.bestTwoEnabled);
        if (input.fit == FitMode::allData)
            setChosen(form.Option8, true);
        if (input.output == OutputMode::metric)
            setChosen(form.Option9, true);
        if (input.output == OutputMode::english)
            setChosen(form.Option10, true);
        for (Control* control : {static_cast<Control*>(&form.pfull), static_cast<Control*>(&form.tfile)})
            setEnabled(*control, results.reportsEnabled);
        for (Control* control : {static_cast<Control*>(&form.Command2), static_cast<Control*>(&form.Command3),
                                 static_cast<Control*>(&form.Command4), static_cast<Control*>(&form.unevpa),
                                 static_cast<Control*>(&form.cpa), static_cast<Control*>(&form.hhe)})
            setEnabled(*control, results.toolsEnabled);
    }

    void showWeeklyMiles(VantstartForm& form)
    {
        setText(form.txtmi, plainText(form.HScroll1.value));
        setText(form.txtkm, plainText(roundHalfEven(val(form.txtmi.text) * displayKilometresPerMile)));
    }

    void showComparisonLevel(VantstartForm& form)
    {
        setText(form.Text5, plainText(form.HScroll2.value / 10.0));
    }

    void renewBodyDrag(VantstartForm& form)
    {
        Runner& runner = form.state.runner;
        runner.bodyDrag = bodyDragOf(runner.weightKg, runner.heightCm);
    }

    void takeWeight(VantstartForm& form)
    {
        setText(form.txlb, plainText(form.wtscrl.value));
        setText(form.txkg, formatNumber(form.wtscrl.value * kilogramsPerPound, 5, 1));
        form.state.runner.weightKg = val(form.txkg.text);
        renewBodyDrag(form);
    }

    void takeHeight(VantstartForm& form)
    {
        setText(form.txin, plainText(form.htscrl.value));
        setText(form.txcm, formatNumber(form.htscrl.value * centimetresPerInch, 5, 0));
        form.state.runner.heightCm = val(form.txcm.text);
        renewBodyDrag(form);
    }

    void estimateHeartRate(VantstartForm& form, int female)
    {
        form.state.activity = "estimating the maximum heart rate";
        setText(form.emhrtx, plainText(roundHalfEven(estimateMaxHr(val(form.txtage.text), female))));
    }

    void takeAge(VantstartForm& form)
    {
        form.state.activity = "reading the age";
        if (!isNumeric(form.txtage.text))
            return;
        estimateHeartRate(form, form.optfemale.chosen ? 1 : 0);
        form.state.runner.age = val(form.txtage.text);
        form.state.runner.ageDistanceTerm = ageDistanceTermOf(form.state.runner.age);
    }

    /// A heart rate entry goes to the state as its leading number.
    void takeHeartRate(VantstartForm& form, const TextBox& box, double& rate)
    {
        form.state.activity = "reading a heart rate";
        rate = val(box.text);
    }

    void chooseScale(VantstartForm& form, int graphScale, const MenuItem& chosen)
    {
        form.state.flags.graphScale = graphScale;
        for (MenuItem* item : {&form.logg, &form.lin1, &form.lin2, &form.lin3})
            setTicked(*item, item == &chosen);
    }

    void chooseUnits(VantstartForm& form, char unitsMode)
    {
        form.state.flags.unitsMode = unitsMode;
        setTicked(form.metric, unitsMode == 'm');
        setTicked(form.english, unitsMode == 'e');
    }

    /// Command3: the analysis needs both heart rates and, with English output, the metric table's times.
    void openAnalysis(VantstartForm& form)
    {
        form.state.activity = "reading the heart rates";
        if (val(form.actmhrtx.text) == 0)
        {
            form.outside.said.push_back({noMaxHr});
            return;
        }
        if (val(form.resthrtx.text) == 0)
        {
            form.outside.said.push_back({noRestHr});
            return;
        }
        if (form.Option10.chosen)
        {
            setChosen(form.Option9, true);
            recalculate(form);
            setChosen(form.Option10, true);
            recalculate(form);
        }
        form.outside.openForm(form.Command3.opens);
    }

    void startReport(VantstartForm& form, int reportToFile)
    {
        form.state.flags.reportToFile = reportToFile;
        if (form.fullReport)
            form.fullReport();
    }

    void nameRow(RaceControls& race, int i)
    {
        race.Check1 = {{.name = arrayName("Check1", i), .caption = std::to_string(i + 1), .tip = "Use this race"}};
        race.Text1 = {{.name = arrayName("Text1", i), .caption = "Hours", .tip = "Hours of the race time, 0 or more"}};
        race.Text2 = {
            {.name = arrayName("Text2", i), .caption = "Minutes", .tip = "Minutes of the race time, 0 or more"}};
        race.Text3 = {{.name = arrayName("Text3", i),
                       .caption = "Seconds",
                       .tip = "Seconds of the race time, 0 or more; decimals allowed"}};
        race.Text4 = {
            {.name = arrayName("Text4", i),
             .caption = "Number",
             .tip = "Distance in the unit to the right, above 0; not needed for a marathon or half marathon"}};
        struct UnitOption
        {
            OptionButton* option;
            const char* caption;
            const char* what;
        };
        const UnitOption unitOptions[] = {{&race.Option1, "miles", "that many miles"},
                                          {&race.Option2, "yards", "that many yards"},
                                          {&race.Option3, "kilometers", "that many kilometers"},
                                          {&race.Option4, "meters", "that many meters"},
                                          {&race.Option5, "marathon", "a marathon; the number is not read"},
                                          {&race.Option6, "half marathon", "a half marathon; the number is not read"}};
        int number = 1;
        for (const auto& [option, caption, what] : unitOptions)
        {
            *option = {{.name = arrayName("Option" + std::to_string(number), i),
                        .caption = caption,
                        .tip = std::string("The race was run over ") + what}};
            option->group = &race.units;
            race.units.members.push_back(option);
            ++number;
        }
    }

    void joinGroups(VantstartForm& form)
    {
        for (OptionGroup* group : {&form.sexes, &form.fitModes, &form.outputs})
            for (OptionButton* option : group->members)
                option->group = group;
        for (int i = 0; i < maxRaces; ++i)
            nameRow(form.races[static_cast<std::size_t>(i)], i);
    }

    void wireEntries(VantstartForm& form)
    {
        form.HScroll1.changed = [&form] { showWeeklyMiles(form); };
        form.HScroll2.changed = [&form] { showComparisonLevel(form); };
        form.wtscrl.changed = [&form] { takeWeight(form); };
        form.htscrl.changed = [&form] { takeHeight(form); };
        form.actmhrtx.changed = [&form] { takeHeartRate(form, form.actmhrtx, form.state.runner.maxHr); };
        form.resthrtx.changed = [&form] { takeHeartRate(form, form.resthrtx, form.state.runner.restHr); };
        form.optmale.clicked = [&form] { estimateHeartRate(form, 0); };
        form.optfemale.clicked = [&form] { estimateHeartRate(form, 1); };
        form.txtage.changed = [&form] { takeAge(form); };
        form.txtname.changed = [&form] { form.state.runner.runnerName = form.txtname.text; };
        form.agecomp.clicked = [&form] { form.state.flags.agecomp = form.agecomp.ticked ? 1 : 0; };
    }

    void wireButtons(VantstartForm& form)
    {
        for (Button* button : {&form.Command2, &form.Command4, &form.Command5, &form.Command8})
            button->clicked = [&form, button] { form.outside.openForm(button->opens); };
        form.Command1.clicked = [&form] { recalculate(form); };
        form.Command3.clicked = [&form] { openAnalysis(form); };
        form.Command6.clicked = [&form] { form.outside.closeForm(form.form.name); };
        form.Command7.clicked = [&form] { clearRaces(form); };
    }

    void wireMenus(VantstartForm& form)
    {
        for (MenuItem* item : {&form.datafiles, &form.tread, &form.power, &form.quickcalcsshow, &form.unevpa, &form.cpa,
                               &form.hhe, &form.ppinfo, &form.proghelp, &form.refs, &form.about})
            item->clicked = [&form, item] { form.outside.openForm(item->opens); };
        form.exit.clicked = [&form] { form.outside.closeForm(form.form.name); };
        form.hillpaces.clicked = [&form] {
            form.state.slopeTools.hillScale = 2;
            form.outside.openForm(form.hillpaces.opens);
        };
        form.performance.clicked = [&form] {
            form.state.flags.performanceStart = 1;
            form.outside.openForm(form.performance.opens);
        };
        form.logg.clicked = [&form] { chooseScale(form, 4, form.logg); };
        form.lin1.clicked = [&form] { chooseScale(form, 1, form.lin1); };
        form.lin2.clicked = [&form] { chooseScale(form, 2, form.lin2); };
        form.lin3.clicked = [&form] { chooseScale(form, 3, form.lin3); };
        form.metric.clicked = [&form] { chooseUnits(form, 'm'); };
        form.english.clicked = [&form] { chooseUnits(form, 'e'); };
        form.pfull.clicked = [&form] { startReport(form, 0); };
        form.tfile.clicked = [&form] { startReport(form, 1); };
    }

    /// Every control once, in reading order.
    std::vector<ControlRef> controlsOf(VantstartForm& f)
    {
        std::vector<ControlRef> list{&f.txtname, &f.txtage, &f.optmale,  &f.optfemale, &f.HScroll1,
                                     &f.txtmi,   &f.txtkm,  &f.HScroll2, &f.Text5,     &f.agecomp,
                                     &f.wtscrl,  &f.txlb,   &f.txkg,     &f.htscrl,    &f.txin,
                                     &f.txcm,    &f.emhrtx, &f.actmhrtx, &f.resthrtx,  &f.raceHeading};
        for (RaceControls& race : f.races)
        {
            const std::vector<ControlRef> row{&race.Check1,  &race.Text1,   &race.Text2,   &race.Text3,
                                              &race.Text4,   &race.Option1, &race.Option2, &race.Option3,
                                              &race.Option4, &race.Option5, &race.Option6};
            list.insert(list.end(), row.begin(), row.end());
        }
        const std::vector<ControlRef> rest{
            &f.Option7,     &f.Option8,  &f.Option9,  &f.Option10,  &f.Command1, &f.Command7, &f.Command2,
            &f.Command3,    &f.Command4, &f.Command5, &f.Command8,  &f.Command6, &f.Picture1, &f.fileMenu,
            &f.datafiles,   &f.exit,     &f.tables,   &f.hillpaces, &f.tread,    &f.power,    &f.quickcalcsshow,
            &f.performance, &f.unevpa,   &f.cpa,      &f.hhe,       &f.graphs,   &f.scale,    &f.logg,
            &f.lin1,        &f.lin2,     &f.lin3,     &f.units,     &f.metric,   &f.english,  &f.printMenu,
            &f.ppinfo,      &f.pfull,    &f.tfile,    &f.helpMenu,  &f.proghelp, &f.refs,     &f.about};
        list.insert(list.end(), rest.begin(), rest.end());
        return list;
    }
}

VantstartForm::VantstartForm(ModelState& modelState, Outside& formOutside) : state(modelState), outside(formOutside)
{
    joinGroups(*this);
    wireEntries(*this);
    wireButtons(*this);
    wireMenus(*this);
    form.controls = controlsOf(*this);
}

CalculationInput entriesOf(const VantstartForm& form)
{
    CalculationInput input;
    for (std::size_t i = 0; i < form.races.size(); ++i)
    {
        const RaceControls& race = form.races[i];
        input.rows[i] = {race.Check1.ticked, race.Text1.text, race.Text2.text,
                         race.Text3.text,    race.Text4.text, unitOf(race)};
    }
    input.age = form.txtage.text;
    input.weeklyMiles = form.HScroll1.value;
    input.sex = sexOf(form);
    input.fit = fitOf(form);
    input.output = outputOf(form);
    input.comparisonLevel = form.HScroll2.value;
    return input;
}

void recalculate(VantstartForm& form)
{
    CalculationInput input = entriesOf(form);
    const OnLeaving showThem([&] { showResults(form, input); });
    recalculate(form.state, input, form.results, form.outside.said);
}

void calculate(VantstartForm& form)
{
    CalculationInput input = entriesOf(form);
    const OnLeaving showThem([&] { showResults(form, input); });
    calculate(form.state, input, form.results, form.outside.said);
}

void clearRaces(VantstartForm& form)
{
    for (RaceControls& race : form.races)
    {
        setTicked(race.Check1, false);
        for (TextBox* box : {&race.Text1, &race.Text2, &race.Text3, &race.Text4})
            setText(*box, "");
        setChosen(race.Option4, true);
    }
    form.results.picture = {};
    form.results.rows.clear();
    form.Picture1.page = {};
    notifyShown(form.Picture1);
}
