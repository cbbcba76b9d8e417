#include "program/power_places.h"

#include <memory>

#include "power/eqpace_form.h"
#include "power/powen_form.h"
#include "power/quickcalcs_form.h"
#include "power/tmill_form.h"
#include "special/pstrat_form.h"
#include "special/specinfo_form.h"

namespace
{
    /// Where a form stands while it is open.
    template <class ToolForm>
    using Slot = std::shared_ptr<std::unique_ptr<ToolForm>>;

    /// The place of a form that `build` makes; it stands in `slot`.
    template <class ToolForm, class Build>
    FormPlace placeIn(const Slot<ToolForm>& slot, std::string_view name, Build build)
    {
        return {name, [slot]() -> Form* { return *slot ? &(*slot)->form : nullptr; },
                [slot, build] { *slot = build(); }, [slot] { slot->reset(); }};
    }

    template <class ToolForm>
    Slot<ToolForm> emptySlot()
    {
        return std::make_shared<std::unique_ptr<ToolForm>>();
    }

    /// The place of a form that needs the model and the outside alone.
    template <class ToolForm>
    FormPlace plainPlace(Program& program, std::string_view name)
    {
        return placeIn(emptySlot<ToolForm>(), name,
                       [&program] { return std::make_unique<ToolForm>(program.state, program.outside); });
    }
}

std::vector<FormPlace> powerPlaces(Program& program)
{
    const auto specinfo = emptySlot<SpecinfoForm>();
    const auto buildSpecinfo = [&program] {
        return std::make_unique<SpecinfoForm>(program.state, program.outside, program.vantstart->HScroll2);
    };
    const auto analyzeAgain = [&program, specinfo] {
        if (!*specinfo)
            openForm(program, "specinfo");
        analyze(**specinfo);
    };
    const auto buildPstrat = [&program, analyzeAgain] {
        return std::make_unique<PstratForm>(program.outside, analyzeAgain);
    };
    return {plainPlace<QuickcalcsForm>(program, "quickcalcs"), plainPlace<PowenForm>(program, "powen"),
            plainPlace<TmillForm>(program, "tmill"),           plainPlace<EqpaceForm>(program, "eqpace"),
            placeIn(specinfo, "specinfo", buildSpecinfo),      placeIn(emptySlot<PstratForm>(), "pstrat", buildPstrat)};
}
