#include "special/pstrat_form.h"

#include <utility>

#include "forms/units_switch.h"

namespace
{
    void showUnits(PstratForm& form)
    {
        setCaption(form.Label1,
                   showsKilometers(form.Command2) ? "Paces in minutes per kilometer" : "Paces in minutes per mile");
    }

    void switchUnits(PstratForm& form)
    {
        flipUnits(form.Command2);
        showUnits(form);
        form.rerun();
    }
}

PstratForm::PstratForm(Outside& formOutside, Event analyzeAgain) : outside(formOutside), rerun(std::move(analyzeAgain))
{
    setCaption(Command2, toKilometers);
    showUnits(*this);
    Command1.clicked = [this] { outside.closeForm(form.name); };
    Command2.clicked = [this] { switchUnits(*this); };
    form.controls = {&Label1, &Command1, &Command2};
}
