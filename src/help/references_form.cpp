#include "help/references_form.h"

#include <string>

#include "help/references.h"

ReferencesForm::ReferencesForm(Outside& formOutside) : outside(formOutside)
{
    for (const std::string& line : referenceLines())
        printLine(references.page, line);
    Command1.clicked = [this] { outside.closeForm(form.name); };
    form.controls = {&references, &Command1};
}
