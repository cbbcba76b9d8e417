#include "program/table_forms.h"

#include <memory>
#include <optional>

#include "program/tool_place.h"
#include "tables/perfgraph_form.h"
#include "tables/perflevform_form.h"
#include "tables/pertabspec_form.h"

void addTableForms(Program& program)
{
    const auto pertabspec = emptySlot<PertabspecForm>();
    const auto perflevform = emptySlot<PerflevformForm>();
    // each of the two forms knows of the other: one of them must not keep the other's place alive
    const auto asked = [place = std::weak_ptr(pertabspec)]() -> std::optional<TableSpecification> {
        const Slot<PertabspecForm> open = place.lock();
        if (!open || !*open)
            return std::nullopt;
        return specificationOf(**open);
    };
    const auto showTable = [&program, perflevform] {
        openForm(program, "perflevform");
        buildTable(**perflevform);
    };
    program.forms.push_back(toolPlace("pertabspec", pertabspec, [&program, showTable] {
        return std::make_unique<PertabspecForm>(*program.vantstart, showTable, program.stopping);
    }));
    program.forms.push_back(toolPlace("perflevform", perflevform, [&program, asked] {
        return std::make_unique<PerflevformForm>(*program.vantstart, asked);
    }));
    program.forms.push_back(toolPlace("perfgraph", emptySlot<PerfgraphForm>(),
                                      [&program] { return std::make_unique<PerfgraphForm>(*program.vantstart); }));
}
