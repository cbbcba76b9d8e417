#include "power/powen_form.h"

#include "forms/form_printing.h"
#include "forms/on_leaving.h"
#include "forms/units_switch.h"
#include "power/power_table.h"

namespace
{
    constexpr const char* mileHeads =
        "min/mi  mi/hr   Watts     Watts  Watts   kcal/hr kcal/hr   METs      kcal/mi  kcal/mi ";
    constexpr const char* kilometerHeads =
        "min/km  km/hr   Watts     Watts  Watts    kJ/hr   kJ/hr    METs       kJ/km    kJ/km ";

    void redraw(PowenForm& form)
    {
        const OnLeaving showIt([&] { notifyShown(form.table); });
        printPowerTable(form.state, showsKilometers(form.Command2), form.table.page);
    }

    void showHeads(PowenForm& form)
    {
        setCaption(form.Label2, showsKilometers(form.Command2) ? kilometerHeads : mileHeads);
    }

    void switchUnits(PowenForm& form)
    {
        flipUnits(form.Command2);
        showHeads(form);
        redraw(form);
    }
}

PowenForm::PowenForm(ModelState& modelState, Outside& formOutside) : state(modelState), outside(formOutside)
{
    setCaption(Command2, toKilometers);
    showHeads(*this);
    Command1.clicked = [this] { outside.closeForm(form.name); };
    Command2.clicked = [this] { switchUnits(*this); };
    Command3.clicked = [this] {
        printForm(outside, form, {&Command1, &Command2, &Command3}, [this] { redraw(*this); });
    };
    form.opened = [this] { redraw(*this); };
    form.controls = {&Label1, &Label3, &Label2, &table, &Label4, &Command1, &Command2, &Command3};
}
