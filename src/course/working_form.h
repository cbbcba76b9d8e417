#pragma once

#include "forms/controls.h"
#include "forms/outside.h"

/// What stands on the screen while a course takes long to solve. It is gone when the solve is.
struct WorkingForm
{
    WorkingForm() { form.controls = {&Label1}; }
    WorkingForm(const WorkingForm&) = delete;
    WorkingForm& operator=(const WorkingForm&) = delete;

    Label Label1{{.name = "Label1", .caption = "Working on the course.  Please wait ...", .tip = "Goes by itself"}};

    Form form{"working", "Working"};
};
