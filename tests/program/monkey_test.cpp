#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "program/program.h"
#include "support/finite_state.h"
#include "support/recorded_outside.h"
#include "support/scratch_folder.h"

namespace
{
    /// Uses the main form without sense or mercy. The same seed does the same.
    class Monkey
    {
    public:
        explicit Monkey(std::uint32_t seed) : random(seed) { startAnew(); }

        void act()
        {
            outside.forget();
            asked = 0;
            const unsigned choice = below(100);
            if (choice < 60)
                useOne();
            else if (choice < 85)
                enterSense();
            else if (choice < 98)
                clickButton(program->vantstart->Command1);
            else if (choice < 99)
                spoilTheFile();
            else
                stop(*program);
            if (!program->vantstart)
                startAnew();
        }

        void expectHealth(const std::string& when)
        {
            for (const FaultReport& fault : outside.faults)
            {
                EXPECT_TRUE(fault.text.starts_with("The calculation stopped: ")) << fault.text << when;
                EXPECT_LE(outside.faults.size(), 1U) << when;
            }
            EXPECT_TRUE(program->outside.said.empty()) << when;
            expectFiniteState(program->state, when);
            for (const ControlRef& control : program->vantstart->form.controls)
            {
                if (ScrollBar* const* bar = std::get_if<ScrollBar*>(&control))
                {
                    EXPECT_TRUE((**bar).value >= (**bar).min && (**bar).value <= (**bar).max) << (**bar).name << when;
                }
                else if (OptionButton* const* option = std::get_if<OptionButton*>(&control))
                {
                    int chosen = 0;
                    for (const OptionButton* member : (**option).group->members)
                        chosen += member->chosen ? 1 : 0;
                    EXPECT_LE(chosen, 1) << (**option).name << when;
                }
            }
            for (const std::string& line : program->vantstart->Picture1.page.lines)
                for (const char* bad : {"nan", "inf"})
                    EXPECT_EQ(line.find(bad), std::string::npos) << line << when;
        }

        [[nodiscard]] int tablesSeen() const { return tables; }
        [[nodiscard]] int faultsSeen() const { return allFaults; }
        [[nodiscard]] std::string lastAct() const { return last; }

        void count()
        {
            allFaults += static_cast<int>(outside.faults.size());
            tables += program->vantstart->Picture1.page.lines.size() == 11 ? 1 : 0;
        }

    private:
        unsigned below(unsigned bound) { return static_cast<unsigned>(random() % bound); }

        void startAnew()
        {
            last = "start";
            program = std::make_unique<Program>(outside.dialogs(), outside.printer(), folder.path);
            program->state.goOn = [this] { return ++asked < 10; };   // a bound that does not depend on the machine
            start(*program);
        }

        void spoilTheFile()
        {
            last = "spoil";
            stop(*program);
            std::string bytes = readBytes(folder.path / settingsFileName);
            for (unsigned i = below(5); i > 0; --i)
                bytes[below(static_cast<unsigned>(bytes.size()))] = static_cast<char>(below(256));
            if (below(3) == 0)
                bytes.resize(below(static_cast<unsigned>(bytes.size())));
            writeBytes(folder.path / settingsFileName, bytes);
        }

        std::string someText()
        {
            static const std::vector<std::string> texts{"",
                                                        " ",
                                                        "0",
                                                        "-0",
                                                        "1",
                                                        "5",
                                                        "10",
                                                        "40",
                                                        "59.95",
                                                        "400",
                                                        "1500",
                                                        "3e1",
                                                        "1e-320",
                                                        "1e-300",
                                                        "1e15",
                                                        "1e150",
                                                        "1e308",
                                                        "-1e308",
                                                        "1e999",
                                                        "-1e999",
                                                        "1e",
                                                        "+",
                                                        "-",
                                                        ".",
                                                        "-5",
                                                        "-1200",
                                                        "abc",
                                                        "nan",
                                                        "inf",
                                                        "0x1p3",
                                                        "12 km",
                                                        "1,5",
                                                        "45x",
                                                        "\"",
                                                        "\"\"",
                                                        "#TRUE#",
                                                        "a\r\nb",
                                                        "\xc3\xa4\xff",
                                                        std::string(1, '\0'),
                                                        std::string(5000, '9'),
                                                        std::string(5000, 'x'),
                                                        "9410.5",
                                                        "97",
                                                        "200",
                                                        "104",
                                                        "-4",
                                                        "8",
                                                        "27.5"};
            return texts[below(static_cast<unsigned>(texts.size()))];
        }

        /// Something that a runner might enter, so that runs get beyond their checks.
        void enterSense()
        {
            VantstartForm& form = *program->vantstart;
            RaceControls& race = form.races[below(5)];
            constexpr std::array<const char*, 9> kilometres{"0.1", "0.4", "0.8", "1.5", "3", "5", "10", "20", "60"};
            const unsigned which = below(9);
            const double pace = 150 + below(350) + std::stod(kilometres[which]);   // seconds a kilometre
            person([&] { setText(race.Text1, ""); });
            person([&] { setText(race.Text2, ""); });
            person([&] { setText(race.Text3, std::to_string(pace * std::stod(kilometres[which]))); });
            person([&] { setText(race.Text4, kilometres[which]); });
            person([&] { setChosen(race.Option3, true); });
            person([&] { setTicked(race.Check1, below(3) > 0); });
            person([&] { setText(form.txtage, std::to_string(below(95))); });
            last = "enter sense";
        }

        void clickButton(const Button& button)
        {
            last = button.name;
            person(Event(button.clicked));
        }

        void useOne()
        {
            const std::vector<ControlRef>& controls = program->vantstart->form.controls;
            const ControlRef control = controls[below(static_cast<unsigned>(controls.size()))];
            last = common(control).name;
            if (common(control).enabled)
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
            const long long value = below(20) == 0 ? static_cast<long long>(random()) - 2000000000 : below(1200);
            if (below(2) == 0)
                person([&] { setValue(bar, value); });
            else
                person([&] { drag(bar, value); });
        }
        void use(Button& button) { person(Event(button.clicked)); }
        void use(MenuItem& item)
        {
            if (item.clicked)
                person(Event(item.clicked));
        }
        template <class Other>
        void use(Other&)
        {}

        template <class Action>
        void person(Action action)
        {
            if (program->vantstart)
                enter(*program, last, true, action);
        }

        std::mt19937 random;
        ScratchFolder folder;
        RecordedOutside outside;
        std::unique_ptr<Program> program;
        std::string last;
        int asked = 0;
        int tables = 0;
        int allFaults = 0;
    };

    class MonkeyTest : public testing::TestWithParam<std::uint32_t>
    {};

    TEST_P(MonkeyTest, BreaksNothing)
    {
        constexpr int acts = 3000;
        Monkey monkey(GetParam());
        for (int i = 0; i < acts && !HasFailure(); ++i)
        {
            monkey.act();
            monkey.expectHealth(", act " + std::to_string(i) + ": " + monkey.lastAct());
            monkey.count();
        }
        EXPECT_GT(monkey.tablesSeen(), acts / 50) << "it hardly got beyond the checks";
        EXPECT_GT(monkey.faultsSeen(), 10);
    }

    INSTANTIATE_TEST_SUITE_P(Seeds, MonkeyTest, testing::Values(1U, 20U, 300U),
                             [](const auto& row) { return std::to_string(row.param); });
}
