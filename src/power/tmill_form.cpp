#include "power/tmill_form.h"

#include "forms/form_printing.h"
#include "forms/on_leaving.h"
#include "forms/units_switch.h"
#include "power/slope_tables.h"
#include "power/treadmill_texts.h"

namespace
{
    constexpr const char* toIndoors = "Switch to indoors";
    constexpr const char* toOutdoors = "Switch to outdoors";
    constexpr const char* toIncline = "Switch to pace needed on incline";
    constexpr const char* toFlat = "Switch to equivalent flat pace";
    constexpr const char* toSpeed = "Switch to speed";
    constexpr const char* toPace = "Switch to pace";

    bool isIndoors(const TmillForm& form)
    {
        return form.Command4.caption == toOutdoors;
    }

    void redraw(TmillForm& form)
    {
        const OnLeaving showIt([&] { notifyShown(form.table); });
        printTreadmillTable(form.state, showsKilometers(form.Command2), isIndoors(form), form.table.page);
    }

    void updateLabels(TmillForm& form)
    {
        const SlopeTools& tools = form.state.slopeTools;
        const bool indoors = isIndoors(form);
        const bool outdoorsFirst = tools.tmillMode == 2 && !indoors;
        setCaption(form.Label3, outdoorsFirst ? "Outdoors     Treadmill incline (vertical rise/horizontal distance)"
                                              : "Treadmill    Incline (vertical rise/horizontal distance)");
        const TreadmillTexts texts =
            treadmillTexts(tools.tmillMode, showsKilometers(form.Command2), tools.tmillDisplay, indoors);
        setCaption(form.Label4, texts.title);
        setCaption(form.Label1, texts.contents);
        setCaption(form.Label2, texts.example);
    }

    void updateAndRedraw(TmillForm& form)
    {
        updateLabels(form);
        redraw(form);
    }

    void switchPlace(TmillForm& form)
    {
        setCaption(form.Command4, isIndoors(form) ? toIndoors : toOutdoors);
        updateAndRedraw(form);
    }

    void switchMode(TmillForm& form)
    {
        const bool flat = form.Command5.caption == toFlat;
        setCaption(form.Command5, flat ? toIncline : toFlat);
        form.state.slopeTools.tmillMode = flat ? 1 : 2;
        updateAndRedraw(form);
    }

    void switchDisplay(TmillForm& form)
    {
        const bool speed = form.Command6.caption == toSpeed;
        setCaption(form.Command6, speed ? toPace : toSpeed);
        form.state.slopeTools.tmillDisplay = speed ? 2 : 1;
        updateAndRedraw(form);
    }

    void wire(TmillForm& form)
    {
        form.Command1.clicked = [&form] { form.outside.closeForm(form.form.name); };
        form.Command2.clicked = [&form] {
            flipUnits(form.Command2);
            updateAndRedraw(form);
        };
        form.Command3.clicked = [&form] {
            printForm(form.outside, form.form,
                      {&form.Command1, &form.Command2, &form.Command3, &form.Command4, &form.Command5, &form.Command6},
                      [&form] { redraw(form); });
        };
        form.Command4.clicked = [&form] { switchPlace(form); };
        form.Command5.clicked = [&form] { switchMode(form); };
        form.Command6.clicked = [&form] { switchDisplay(form); };
        form.form.opened = [&form] { redraw(form); };
    }
}

TmillForm::TmillForm(ModelState& modelState, Outside& formOutside) : state(modelState), outside(formOutside)
{
    const SlopeTools& tools = state.slopeTools;
    setCaption(Command2, toKilometers);
    setCaption(Command4, toIndoors);
    setCaption(Command5, tools.tmillMode == 2 ? toFlat : toIncline);
    setCaption(Command6, tools.tmillDisplay == 2 ? toPace : toSpeed);
    updateLabels(*this);
    wire(*this);
    form.controls = {&Label4,   &Label1,   &Label2,   &Label3,   &table,   &Command1,
                     &Command2, &Command4, &Command5, &Command6, &Command3};
}
