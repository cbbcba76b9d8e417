#include "desktop/layouts.h"

#include <algorithm>
#include <array>

#include "ui_anaform.h"
#include "ui_eqpace.h"
#include "ui_fileacc.h"
#include "ui_frmabout.h"
#include "ui_graphform.h"
#include "ui_heathum.h"
#include "ui_helpform.h"
#include "ui_perfgraph.h"
#include "ui_perflevform.h"
#include "ui_pertabspec.h"
#include "ui_powen.h"
#include "ui_profile.h"
#include "ui_pstrat.h"
#include "ui_quickcalcs.h"
#include "ui_refform.h"
#include "ui_specinfo.h"
#include "ui_splitform.h"
#include "ui_tmill.h"
#include "ui_vanthelp.h"
#include "ui_vantstart.h"
#include "ui_working.h"
#include "ui_workouts.h"

namespace
{
    template <class Ui>
    void layOut(QMainWindow& window)
    {
        Ui ui;
        ui.setupUi(&window);
    }

    struct NamedLayout
    {
        std::string_view form;
        Layout layOut;
    };

    // clang-format off
    constexpr std::array layouts{
        NamedLayout{"anaform", layOut<Ui::anaform>},
        NamedLayout{"eqpace", layOut<Ui::eqpace>},
        NamedLayout{"fileacc", layOut<Ui::fileacc>},
        NamedLayout{"frmabout", layOut<Ui::frmabout>},
        NamedLayout{"graphform", layOut<Ui::graphform>},
        NamedLayout{"heathum", layOut<Ui::heathum>},
        NamedLayout{"helpform", layOut<Ui::helpform>},
        NamedLayout{"perfgraph", layOut<Ui::perfgraph>},
        NamedLayout{"perflevform", layOut<Ui::perflevform>},
        NamedLayout{"pertabspec", layOut<Ui::pertabspec>},
        NamedLayout{"powen", layOut<Ui::powen>},
        NamedLayout{"profile", layOut<Ui::profile>},
        NamedLayout{"pstrat", layOut<Ui::pstrat>},
        NamedLayout{"quickcalcs", layOut<Ui::quickcalcs>},
        NamedLayout{"refform", layOut<Ui::refform>},
        NamedLayout{"specinfo", layOut<Ui::specinfo>},
        NamedLayout{"splitform", layOut<Ui::splitform>},
        NamedLayout{"tmill", layOut<Ui::tmill>},
        NamedLayout{"vanthelp", layOut<Ui::vanthelp>},
        NamedLayout{"vantstart", layOut<Ui::vantstart>},
        NamedLayout{"working", layOut<Ui::working>},
        NamedLayout{"workouts", layOut<Ui::workouts>},
    };
    // clang-format on
}

Layout layoutOfForm(std::string_view form)
{
    const auto named =
        std::find_if(layouts.begin(), layouts.end(), [form](const NamedLayout& layout) { return layout.form == form; });
    return named == layouts.end() ? nullptr : named->layOut;
}
