#include "program/power_forms.h"

#include <memory>

#include "power/eqpace_form.h"
#include "power/powen_form.h"
#include "power/quickcalcs_form.h"
#include "power/tmill_form.h"
#include "program/tool_place.h"
#include "special/pstrat_form.h"
#include "special/specinfo_form.h"

void addPowerForms(Program& program)
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
    program.forms.push_back(plainToolPlace<QuickcalcsForm>(program, "quickcalcs"));
    program.forms.push_back(plainToolPlace<PowenForm>(program, "powen"));
    program.forms.push_back(plainToolPlace<TmillForm>(program, "tmill"));
    program.forms.push_back(plainToolPlace<EqpaceForm>(program, "eqpace"));
    program.forms.push_back(toolPlace("specinfo", specinfo, buildSpecinfo));
    program.forms.push_back(toolPlace("pstrat", emptySlot<PstratForm>(), buildPstrat));
}
