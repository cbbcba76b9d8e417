#include "program/planning_forms.h"

#include <memory>

#include "splits/splitform_form.h"
#include "workouts/workouts_form.h"

namespace
{
    /// A place for a form that `build` makes.
    template <class ToolForm, class Build>
    FormPlace placeOf(std::string_view name, Build build)
    {
        const auto slot = std::make_shared<std::unique_ptr<ToolForm>>();
        return {name, [slot]() -> Form* { return *slot ? &(*slot)->form : nullptr; },
                [slot, build] { *slot = build(); }, [slot] { slot->reset(); }};
    }
}

void addPlanningForms(Program& program)
{
    program.forms.push_back(placeOf<WorkoutsForm>("workouts", [&program] {
        return std::make_unique<WorkoutsForm>(program.state, program.outside, program.stored.planner);
    }));
    program.forms.push_back(placeOf<SplitForm>("splitform", [&program] {
        return std::make_unique<SplitForm>(program.state, program.outside, program.stored.splits);
    }));
}
