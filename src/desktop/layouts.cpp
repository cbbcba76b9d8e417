#include "desktop/layouts.h"

#include <algorithm>
#include <array>

#include "ui_vantstart.h"

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

    constexpr std::array layouts{
        NamedLayout{"vantstart", layOut<Ui::vantstart>},
    };
}

Layout layoutOf(std::string_view form)
{
    const auto named =
        std::find_if(layouts.begin(), layouts.end(), [form](const NamedLayout& layout) { return layout.form == form; });
    return named == layouts.end() ? nullptr : named->layOut;
}
