// Uses the forms about power, hills and pacing without sense or mercy. The same seed does the same.

#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "support/finite_state.h"
#include "support/tool_form.h"

namespace
{
    const std::vector<std::string> formNames{"quickcalcs", "powen", "tmill", "eqpace", "specinfo", "pstrat"};

    class Monkey
    {
    public:
        explicit Monkey(std::uint32_t seed) : random(seed)
        {
            Curve& curve = main.state().curve;
            curve.aerobicPower = 718.9014246120277;
            curve.anaerobicEnergy = 1128612.647840636;
            curve.refDistance = 10000;
            curve.fatigueCoef = 0.14564314245873303;
            main.state().goOn = [this] { return ++asked < 10; };
        }

        void act()
        {
            main.outside.forget();
            asked = 0;
            main.formName = formNames[below(formNames.size())];
            last = main.formName;
            if (!main.form() || below(40) == 0)
                main.open();
            else if (below(60) == 0)
                useMainForm();
            else
                useOne(*main.form());
            faults += main.outside.faults.size();
        }

        void expectHealth(const std::string& when)
        {
            EXPECT_LE(main.outside.faults.size(), 1U) << when;
            for (const FaultReport& fault : main.outside.faults)
                EXPECT_TRUE(fault.text.starts_with("The calculation stopped: ")) << fault.text << when;
            EXPECT_EQ(main.state().incline.indoorMode, 0) << when;
            expectFiniteState(main.state(), when);
            if (const Form* form = main.form())
                for (const ControlRef& control : form->controls)
                    expectSound(control, when);
        }

        [[nodiscard]] std::string lastAct() const { return last; }

        std::size_t faults = 0;

    private:
        static void expectSound(const ControlRef& control, const std::string& when)
        {
            if (TextSurface* const* surface = std::get_if<TextSurface*>(&control))
            {
                for (const std::string& line : (**surface).page.lines)
                    for (const char* bad : {"nan", "inf"})
                        EXPECT_EQ(line.find(bad), std::string::npos) << line << when;
            }
            if (Button* const* button = std::get_if<Button*>(&control))
            {
                EXPECT_TRUE((**button).visible) << (**button).name << when;
            }
        }

        std::size_t below(std::size_t bound) { return random() % bound; }

        std::string someText()
        {
            static const std::vector<std::string> texts{"",   "0",      "-0",     "1",      "5",     "10",    "26.2",
                                                        "-5", "0.02",   "-0.02",  "0.3",    "-0.3",  "0.5",   "0.9",
                                                        "1",  "-1",     "2",      "1e-300", "1e308", "1e999", "abc",
                                                        "-",  "500000", "500001", "400",    "42",    ".05",   "x\xff"};
            return texts[below(texts.size())];
        }

        void useMainForm()
        {
            last = "vantstart";
            VantstartForm& form = *main.program.vantstart;
            enter(main.program, last, true, [&] {
                setValue(form.wtscrl, static_cast<long long>(below(300)));
                setValue(form.htscrl, static_cast<long long>(below(90)));
                setValue(form.HScroll2, static_cast<long long>(below(1100)));
            });
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
            if (!box.locked)
                person([&, text = someText()] { setText(box, text); });
        }
        void use(OptionButton& option)
        {
            person([&] { setChosen(option, true); });
        }
        void use(ScrollBar& bar)
        {
            const long long value = static_cast<long long>(below(3000)) - 300;
            if (below(2) == 0)
                person([&] { setValue(bar, value); });
            else
                person([&] { drag(bar, value); });
        }
        void use(Button& button) { person(Event(button.clicked)); }
        template <class Other>
        void use(Other&)
        {}

        template <class Action>
        void person(Action action)
        {
            enter(main.program, last, true, action);
        }

        std::mt19937 random;
        ToolForm main{"specinfo"};
        std::string last;
        int asked = 0;
    };

    class ToolMonkey : public testing::TestWithParam<std::uint32_t>
    {};

    TEST_P(ToolMonkey, BreaksNothing)
    {
        constexpr int acts = 1500;
        Monkey monkey(GetParam());
        for (int i = 0; i < acts && !HasFailure(); ++i)
        {
            monkey.act();
            monkey.expectHealth(", act " + std::to_string(i) + ": " + monkey.lastAct());
        }
        EXPECT_GT(monkey.faults, 10U);
    }

    INSTANTIATE_TEST_SUITE_P(Seeds, ToolMonkey, testing::Values(1U, 20U, 300U),
                             [](const auto& row) { return std::to_string(row.param); });
}
