#include "program/planning_forms.h"

#include <memory>

#include "program/tool_place.h"
#include "splits/splitform_form.h"
#include "workouts/workouts_form.h"

void addPlanningForms(Program& program)
{
    program.forms.push_back(toolPlace("workouts", emptySlot<WorkoutsForm>(), [&program] {
        return std::make_unique<WorkoutsForm>(program.state, program.outside, program.stored.planner);
    }));
    program.forms.push_back(toolPlace("splitform", emptySlot<SplitForm>(), [&program] {
        return std::make_unique<SplitForm>(program.state, program.outside, program.stored.splits);
    }));
}
