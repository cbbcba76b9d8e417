#include "program/course_forms.h"

#include <memory>

#include "course/profile_form.h"
#include "course/working_form.h"
#include "program/tool_place.h"

void addCourseForms(Program& program)
{
    program.forms.push_back(toolPlace("profile", emptySlot<ProfileForm>(), [&program] {
        return std::make_unique<ProfileForm>(program.state, program.outside, program.currentFolder);
    }));
    program.forms.push_back(
        toolPlace("working", emptySlot<WorkingForm>(), [] { return std::make_unique<WorkingForm>(); }));
}
