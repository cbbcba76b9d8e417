#include <cstdint>
#include <random>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "support/finite_state.h"
#include "support/planning.h"

namespace
{
    /// Uses a form without sense or mercy. The same seed does the same.
    class Monkey
    {
    public:
        Monkey(const std::string& form, std::uint32_t seed) : random(seed), program(form)
        {
            program.state().goOn = [this] { return ++asked < 10; };   // a bound that does not depend on the machine
            program.open();
        }

        void act()
        {
            if (below(200) == 0)
                program.close();
            if (!program.isOpen())
                program.open();
            program.outside.forget();
            asked = 0;
            const std::vector<ControlRef>& controls = findForm(program.program, program.formName)->controls;
            const ControlRef control = controls[below(static_cast<unsigned>(controls.size()))];
            last = common(control).name;
            if (common(control).enabled)
                std::visit([this](auto* record) { use(*record); }, control);
        }

        void expectHealth()
        {
            EXPECT_LE(program.outside.faults.size(), 1U) << last;
            for (const FaultReport& fault : program.outside.faults)
                EXPECT_TRUE(fault.text.starts_with("The calculation stopped: ")) << fault.text;
            EXPECT_TRUE(program.program.outside.said.empty()) << last;
            expectFiniteState(program.state(), " after " + last);
            if (const ::Form* form = findForm(program.program, program.formName))
            {
                for (const ControlRef& control : form->controls)
                    expectNumbers(control);
            }
            faults += static_cast<int>(program.outside.faults.size());
        }

        int faults = 0;

    private:
        void expectNumbers(const ControlRef& control)
        {
            Label* const* label = std::get_if<Label*>(&control);
            if (!label || (**label).name == "zonelbl" || (**label).name == "scrdesclbl")
                return;
            for (const char* bad : {"nan", "inf"})
                EXPECT_EQ((**label).caption.find(bad), std::string::npos) << (**label).name << " after " << last;
        }

        unsigned below(unsigned bound) { return static_cast<unsigned>(random() % bound); }

        std::string someText()
        {
            static const std::vector<std::string> sense{"400",  "800", "1",   "2",   "4",  "15",
                                                        "59.5", "75",  "100", "114", "0.5"};
            static const std::vector<std::string> others{"",
                                                         " ",
                                                         "0",
                                                         "-0",
                                                         "-1",
                                                         "-400",
                                                         "1e-320",
                                                         "1e-5",
                                                         "1e15",
                                                         "1e150",
                                                         "1e308",
                                                         "1e999",
                                                         "-1e999",
                                                         "abc",
                                                         "nan",
                                                         "inf",
                                                         "12 km",
                                                         "1,5",
                                                         "1:15",
                                                         "9410.5",
                                                         "100000",
                                                         "100001",
                                                         std::string(5000, '9'),
                                                         "\xc3\xa4\xff"};
            const std::vector<std::string>& texts = below(3) > 0 ? sense : others;
            return texts[below(static_cast<unsigned>(texts.size()))];
        }

        void use(TextBox& box)
        {
            if (box.pasted && below(10) == 0)
                program.paste(box.name, someText() + "\t" + someText() + "\n" + someText() + "\t" + someText());
            else
                program.type(box.name, someText());
        }
        void use(OptionButton& option) { program.choose(option.name); }
        void use(CheckBox& box) { program.tick(box.name, !box.ticked); }
        void use(ScrollBar& bar)
        {
            const long long value = bar.min - 10LL + below(static_cast<unsigned>(bar.max - bar.min + 20));
            if (below(2) == 0)
                program.slide(bar.name, value);
            else
                program.pull(bar.name, value);
        }
        void use(Button& button)
        {
            if (button.caption != "Clear All" || below(10) == 0)
                program.click(button.name);
        }
        void use(Picture& picture)
        {
            const Point at{100.0 + below(12200), below(6300) * 1.0};
            const auto event = below(3) == 0 ? picture.pressed : picture.moved;
            enter(program.program, program.formName + "." + picture.name, true, [&] { event(at); });
        }
        template <class Other>
        void use(Other&)
        {}

        std::mt19937 random;
        PlanningProgram program;
        std::string last;
        int asked = 0;
    };

    struct Seed
    {
        const char* name;
        std::uint32_t seed;
    };

    class PlanningMonkey : public testing::TestWithParam<Seed>
    {};

    TEST_P(PlanningMonkey, BreaksNothing)
    {
        Monkey monkey(GetParam().name, GetParam().seed);
        for (int i = 0; i < 2000 && !HasFailure(); ++i)
        {
            monkey.act();
            monkey.expectHealth();
        }
        EXPECT_GT(monkey.faults, 5);
    }

    INSTANTIATE_TEST_SUITE_P(Seeds, PlanningMonkey,
                             testing::Values(Seed{"workouts", 1}, Seed{"workouts", 20}, Seed{"splitform", 1},
                                             Seed{"splitform", 20}, Seed{"profile", 1}, Seed{"profile", 20}),
                             [](const auto& row) {
                                 return std::string(row.param.name) + std::to_string(row.param.seed);
                             });
}
