#include "tables/pertabspec_form.h"

#include <utility>

#include "forms/on_leaving.h"
#include "model/text.h"

namespace
{
    constexpr int lastColumn = tableColumns - 1;

    void setRange(PertabspecForm& form, const char* minimum, const char* interval)
    {
        setText(form.Text1, minimum);
        setText(form.Text2, interval);
    }

    void showMaximum(PertabspecForm& form)
    {
        form.main.state.activity = "working out the maximum of the range";
        setText(form.Text3, plainText(checked(val(form.Text1.text) + lastColumn * val(form.Text2.text))));
    }

    /// The table's sex becomes the one chosen on the main form, and stays where none is.
    void followMainForm(PertabspecForm& form)
    {
        const bool female = form.main.optfemale.chosen;
        if (!female && !form.main.optmale.chosen)
            return;
        form.main.state.runner.sex = female ? 'f' : 'm';
        setChosen(female ? form.Option2 : form.Option1, true);
    }

    void disableOtherSex(PertabspecForm& form)
    {
        if (form.main.optfemale.chosen)
            setEnabled(form.Option1, false);
        if (form.main.optmale.chosen)
            setEnabled(form.Option2, false);
    }

    void takeLevels(PertabspecForm& form)
    {
        form.main.state.flags.oplev = 0;
        setEnabled(form.Option1, true);
        setEnabled(form.Option2, true);
        followMainForm(form);
        setRange(form, "60", "5");
    }

    void takeAgesAtLevel(PertabspecForm& form)
    {
        form.main.state.flags.oplev = 1;
        setRange(form, "25", "5");
    }

    void takeRunnerByAge(PertabspecForm& form)
    {
        form.main.state.flags.oplev = 0;
        followMainForm(form);
        disableOtherSex(form);
        setRange(form, "25", "5");
    }

    void showTable(PertabspecForm& form)
    {
        form.main.state.activity = "reading the runner's age";
        ModelState& state = form.main.state;
        state.runner.age = val(form.main.txtage.text);
        if (isTableRefused(state, specificationOf(form).kind, form.main.outside.said))
            state.flags.ageCompareForced = 0;
        else
            form.show();
    }

    /// The main form gets its own results back, with age comparison still as this form has it.
    void leave(PertabspecForm& form)
    {
        if (form.programStops)
            return;
        Flags& flags = form.main.state.flags;
        const OnLeaving offAgain([&flags] { flags.oplev = 0; });
        calculate(form.main);
        flags.calculatedOnce = 1;
    }

    void wire(PertabspecForm& form)
    {
        form.opper.clicked = [&form] { takeLevels(form); };
        form.oplev.clicked = [&form] { takeAgesAtLevel(form); };
        form.opage.clicked = [&form] { takeRunnerByAge(form); };
        form.Text1.changed = [&form] { showMaximum(form); };
        form.Text2.changed = [&form] { showMaximum(form); };
        form.Option1.clicked = [&form] { form.main.state.runner.sex = 'm'; };
        form.Option2.clicked = [&form] { form.main.state.runner.sex = 'f'; };
        form.Command1.clicked = [&form] { showTable(form); };
        form.Command2.clicked = [&form] { form.main.outside.openForm(form.Command2.opens); };
        form.Command3.clicked = [&form] { form.main.outside.closeForm(form.form.name); };
        form.form.load = [&form] { takeLevels(form); };
        form.form.unloaded = [&form] { leave(form); };
    }
}

PertabspecForm::PertabspecForm(VantstartForm& mainForm, Event showTable, const bool& stopping)
    : main(mainForm), show(std::move(showTable)), programStops(stopping)
{
    for (OptionGroup* group : {&kinds, &sexes})
        for (OptionButton* option : group->members)
            option->group = group;
    wire(*this);
    form.controls = {&opper, &oplev, &lev,     &opage,   &Label1,   &rangeLabel, &Text1,
                     &Text2, &Text3, &Option1, &Option2, &Command1, &Command2,   &Command3};
}

TableSpecification specificationOf(const PertabspecForm& form)
{
    TableSpecification asked;
    if (form.oplev.chosen)
        asked.kind = TableKind::agesAtLevel;
    if (form.opage.chosen)
        asked.kind = TableKind::runnerByAge;
    asked.minimum = form.Text1.text;
    asked.interval = form.Text2.text;
    asked.lev = form.lev.text;
    return asked;
}
