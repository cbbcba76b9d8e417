// Uses the forms about weather and performance tables without sense or mercy. The same seed does the same.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "support/finite_state.h"
#include "support/person.h"
#include "support/tool_form.h"

namespace
{
    class Monkey
    {
    public:
        explicit Monkey(std::uint32_t seed) : random(seed)
        {
            tools.state().goOn = [this] { return ++asked < 10; };
        }

        void act()
        {
            static const std::vector<std::string> formNames{"heathum", "pertabspec", "perflevform", "perfgraph"};
            tools.outside.forget();
            asked = 0;
            tools.formName = formNames[below(formNames.size())];
            last = tools.formName;
            if (below(30) == 0)
                useMainForm();
            else if (!tools.form() || below(40) == 0)
                tools.open();
            else
                useOne(*tools.form());
            faults += tools.outside.faults.size();
        }

        void expectHealth(const std::string& when)
        {
            EXPECT_LE(tools.outside.faults.size(), 1U) << when;
            for (const FaultReport& fault : tools.outside.faults)
                EXPECT_TRUE(fault.text.starts_with("The calculation stopped: ")) << fault.text << when;
            EXPECT_EQ(tools.state().flags.tableMode, 0) << when;
            expectFiniteState(tools.state(), when);
            if (const Form* form = tools.form())
                for (const ControlRef& control : form->controls)
                    expectSound(control, when);
        }

        std::size_t faults = 0;
        std::string last;

    private:
        static void expectSound(const ControlRef& control, const std::string& when)
        {
            if (Picture* const* picture = std::get_if<Picture*>(&control))
                for (const Primitive& drawn : (**picture).primitives)
                    if (const LinePrimitive* line = std::get_if<LinePrimitive>(&drawn.shape))
                    {
                        EXPECT_TRUE(std::isfinite(line->from.y) && std::isfinite(line->to.y)) << when;
                    }
            for (const char* bad : {"nan", "inf"})
            {
                EXPECT_EQ(common(control).caption.find(std::string(" ") + bad), std::string::npos) << when;
            }
        }

        std::size_t below(std::size_t bound) { return random() % bound; }

        std::string someText()
        {
            static const std::vector<std::string> texts{"",    "0",   "-0",    "1",     "5",     "25",   "60", "100",
                                                        "-5",  "40",  "0.5",   "1e308", "1e999", "abc",  "-",  "5000",
                                                        "399", "400", "10000", "42195", ".05",   "x\xff"};
            return texts[below(texts.size())];
        }

        void useMainForm()
        {
            last = "vantstart";
            Person person(tools.program);
            if (below(2) == 0)
                person.type("txtage", someText());
            if (below(2) == 0)
                person.click(below(2) == 0 ? "optmale" : "optfemale");
            if (below(4) == 0)
                person.click("agecomp");
            person.slide("HScroll1", static_cast<long long>(below(151)));
            person.enterRace(0, {"", below(4) == 0 ? "30" : "40", "", "10", 3});
            tools.outside.forget();
            person.click("Command1");
        }

        void useOne(const Form& form)
        {
            const ControlRef control = form.controls[below(form.controls.size())];
            last = form.name + "." + common(control).name;
            if (common(control).enabled && common(control).visible)
                std::visit([this](auto* record) { use(*record); }, control);
        }

        void use(TextBox& box)
        {
            person([&, text = someText()] { setText(box, text); });
        }
        void use(OptionButton& option)
        {
            person([&] { setChosen(option, true); });
        }
        void use(CheckBox& box)
        {
            person([&] { setTicked(box, !box.ticked); });
        }
        void use(ScrollBar& bar)
        {
            const long long value = static_cast<long long>(below(300)) - 50;
            if (below(2) == 0)
                person([&] { setValue(bar, value); });
            else
                person([&] { drag(bar, value); });
        }
        void use(Picture& picture)
        {
            const Point at{static_cast<double>(below(12000)) - 1000, 3000};
            person([moved = picture.moved, at] { moved(at); });
        }
        void use(Button& button) { person(Event(button.clicked)); }
        template <class Other>
        void use(Other&)
        {}

        template <class Action>
        void person(Action action)
        {
            enter(tools.program, last, true, action);
        }

        std::mt19937 random;
        ToolForm tools{"heathum"};
        int asked = 0;
    };

    class TableMonkey : public testing::TestWithParam<std::uint32_t>
    {};

    TEST_P(TableMonkey, BreaksNothing)
    {
        constexpr int acts = 1200;
        Monkey monkey(GetParam());
        for (int i = 0; i < acts && !HasFailure(); ++i)
        {
            monkey.act();
            monkey.expectHealth(", act " + std::to_string(i) + ": " + monkey.last);
        }
        EXPECT_GT(monkey.faults, 10U);
    }

    INSTANTIATE_TEST_SUITE_P(Seeds, TableMonkey, testing::Values(1U, 20U, 300U),
                             [](const auto& row) { return std::to_string(row.param); });
}
