#include "power/eqpace_form.h"

#include "forms/form_printing.h"
#include "forms/on_leaving.h"
#include "forms/units_switch.h"
#include "power/slope_tables.h"

namespace
{
    constexpr int largestScale = 4;
    constexpr const char* mileExample =
        "Example: Running 7:00 per mile on level surface requires about the same effort as 9:00 per mile on an 6% "
        "uphill grade or 5:52 per mile on a 6% downhill grade.";
    constexpr const char* kilometerExample =
        "Example: Running 5:00 per kilometer on level surface requires about the same effort as 6:34 per kilometer on "
        "an 6% uphill grade or 4:06 per kilometer on a 6% downhill grade.";

    void redraw(EqpaceForm& form)
    {
        const OnLeaving showIt([&] { notifyShown(form.table); });
        printHillTable(form.state, showsKilometers(form.Command2), form.table.page);
    }

    void showExample(EqpaceForm& form)   // the same for both definitions of a grade
    {
        setCaption(form.Label2, showsKilometers(form.Command2) ? kilometerExample : mileExample);
    }

    void showUnits(EqpaceForm& form)
    {
        setCaption(form.Label1,
                   showsKilometers(form.Command2) ? "Paces in minutes per kilometer" : "Paces in minutes per mile");
        showExample(form);
    }

    void showDefinition(EqpaceForm& form)
    {
        setCaption(form.Label4, form.state.slopeTools.gradeDefinition == 2
                                    ? "  GRADE (vertical rise/horizontal distance)"
                                    : "GRADE (vertical rise/distance along surface)");
    }

    void switchUnits(EqpaceForm& form)
    {
        flipUnits(form.Command2);
        showUnits(form);
        redraw(form);
    }

    void switchDefinition(EqpaceForm& form)
    {
        int& definition = form.state.slopeTools.gradeDefinition;
        definition = definition == 1 ? 2 : 1;
        showDefinition(form);
        showExample(form);
        redraw(form);
    }

    void lessRange(EqpaceForm& form)
    {
        int& scale = form.state.slopeTools.hillScale;
        if (scale > 1)
            scale = scale - 1;
        setEnabled(form.sclplus, true);
        if (scale == 1)
            setEnabled(form.sclminus, false);
        redraw(form);
    }

    void moreRange(EqpaceForm& form)
    {
        int& scale = form.state.slopeTools.hillScale;
        if (scale < largestScale)
            scale = scale + 1;
        setEnabled(form.sclminus, true);
        if (scale == largestScale)
            setEnabled(form.sclplus, false);
        redraw(form);
    }

    void wire(EqpaceForm& form)
    {
        form.Command1.clicked = [&form] { form.outside.closeForm(form.form.name); };
        form.Command2.clicked = [&form] { switchUnits(form); };
        form.Command3.clicked = [&form] {
            printForm(form.outside, form.form,
                      {&form.Command1, &form.Command2, &form.Command3, &form.Command4, &form.sclminus, &form.sclplus},
                      [&form] { redraw(form); });
        };
        form.Command4.clicked = [&form] { switchDefinition(form); };
        form.sclminus.clicked = [&form] { lessRange(form); };
        form.sclplus.clicked = [&form] { moreRange(form); };
        form.form.opened = [&form] { redraw(form); };
    }
}

EqpaceForm::EqpaceForm(ModelState& modelState, Outside& formOutside) : state(modelState), outside(formOutside)
{
    setCaption(Command2, toKilometers);
    showUnits(*this);
    showDefinition(*this);
    wire(*this);
    form.controls = {&Label1,   &Label2,   &Label5,   &Label4,     &table,    &Command1,
                     &Command2, &Command4, &Command3, &rangeLabel, &sclminus, &sclplus};
}
