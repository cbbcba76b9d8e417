#pragma once

#include <memory>
#include <string_view>

#include "program/program.h"

/// Where a tool form stands while it is open.
template <class ToolForm>
using Slot = std::shared_ptr<std::unique_ptr<ToolForm>>;

template <class ToolForm>
[[nodiscard]] Slot<ToolForm> emptySlot()
{
    return std::make_shared<std::unique_ptr<ToolForm>>();
}

/// The place of a form that `build` makes anew, as a std::unique_ptr, whenever it is asked for.
template <class ToolForm, class Build>
[[nodiscard]] FormPlace toolPlace(std::string_view name, const Slot<ToolForm>& slot, Build build)
{
    return {name, [slot]() -> Form* { return *slot ? &(*slot)->form : nullptr; }, [slot, build] { *slot = build(); },
            [slot] { slot->reset(); }};
}

/// The place of a form that needs the model and the outside alone.
template <class ToolForm>
[[nodiscard]] FormPlace plainToolPlace(Program& program, std::string_view name)
{
    return toolPlace(name, emptySlot<ToolForm>(),
                     [&program] { return std::make_unique<ToolForm>(program.state, program.outside); });
}
