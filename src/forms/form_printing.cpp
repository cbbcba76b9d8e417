#include "forms/form_printing.h"

#include "forms/on_leaving.h"

void printForm(Outside& outside, const Form& form, const std::vector<Button*>& buttons, const Event& redraw)
{
    FormImage image{.form = form.name, .hidden = {}};
    for (const Button* button : buttons)
        image.hidden.push_back(button->name);
    const auto show = [&](bool visible) {
        for (Button* button : buttons)
            setVisible(*button, visible);
    };
    {
        const OnLeaving bringThemBack([&] { show(true); });
        show(false);
        redraw();
        if (outside.printer.printForm)
            outside.printer.printForm(image);
    }
    redraw();
}
