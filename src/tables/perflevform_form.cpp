#include "tables/perflevform_form.h"

#include <utility>

#include "forms/form_printing.h"
#include "forms/on_leaving.h"

namespace
{
    /// performanceTable: clears the form and builds it anew, unless the table is refused.
    void performanceTable(PerflevformForm& form)
    {
        VantstartForm& main = form.main;
        if (isTableRefused(main.state, form.latest.kind, main.outside.said))
            return;
        CalculationInput input = entriesOf(main);
        const OnLeaving showIt([&form] {
            if (!form.built.title.empty())
                setTitle(form.form, form.built.title);
            form.table.page = form.built.page;
            notifyShown(form.table);
        });
        printPerformanceTable(main.state, form.latest, input, form.built, main.outside.said);
    }

    /// Takes what is asked for, and builds with age comparison as that has it: also where its form is closed.
    template <class Build>
    void withSpecification(PerflevformForm& form, Build build)
    {
        Flags& flags = form.main.state.flags;
        if (const std::optional<TableSpecification> now = form.asked())
            form.latest = *now;
        const OnLeaving putBack([&flags, oplev = flags.oplev] { flags.oplev = oplev; });
        flags.oplev = form.latest.kind == TableKind::agesAtLevel ? 1 : 0;
        flags.ageCompareForced = form.latest.kind == TableKind::runnerByAge ? 1 : 0;
        build();
        flags.ageCompareForced = 0;
    }

    void print(PerflevformForm& form)
    {
        withSpecification(form, [&form] {
            printForm(form.main.outside, form.form, {&form.Command1, &form.Command2},
                      [&form] { performanceTable(form); });
        });
    }

    void load(PerflevformForm& form)
    {
        const std::optional<TableSpecification> now = form.asked();
        setVisible(form.Command3, !now || now->kind != TableKind::levels);
    }
}

PerflevformForm::PerflevformForm(VantstartForm& mainForm,
                                 std::function<std::optional<TableSpecification>()> specification)
    : main(mainForm), asked(std::move(specification))
{
    Command1.clicked = [this] { main.outside.closeForm(form.name); };
    Command2.clicked = [this] { print(*this); };
    Command3.clicked = [this] { main.outside.openForm(Command3.opens); };
    form.load = [this] { load(*this); };
    form.controls = {&table, &Command1, &Command2, &Command3};
}

void buildTable(PerflevformForm& form)
{
    withSpecification(form, [&form] { performanceTable(form); });
}
