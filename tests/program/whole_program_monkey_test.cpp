// All forms of the program together, used without sense or mercy.

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <random>
#include <sstream>
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
    constexpr std::array sense{"1",   "2",   "3",    "5",    "10",   "15",    "20",    "21",   "30",
                               "40",  "42",  "59.5", "60",   "75",   "100",   "200",   "250",  "350",
                               "400", "600", "800",  "1500", "3000", "10000", "42195", "0.02", "-0.05"};
    const std::vector<std::string> others{"",
                                          " ",
                                          "0",
                                          "-0",
                                          "-1",
                                          "-1200",
                                          "1e-320",
                                          "1e-5",
                                          "1e15",
                                          "1e150",
                                          "1e308",
                                          "-1e308",
                                          "1e999",
                                          "abc",
                                          "nan",
                                          "inf",
                                          "12 km",
                                          "1,5",
                                          "1:15",
                                          "9410.5",
                                          "500001",
                                          "\"",
                                          "races.vtc",
                                          "runner.vtd",
                                          "hill.cpf",
                                          "a\r\nb",
                                          std::string(1, '\0'),
                                          std::string(5000, '9'),
                                          "\xc3\xa4\xff"};

    /// The same seed does the same.
    class Monkey
    {
    public:
        explicit Monkey(std::uint32_t seed) : random(seed) { startAnew(); }

        void act()
        {
            outside.forget();
            outside.answers.assign(3, below(2) == 0);
            asked = 0;
            const unsigned choice = below(1000);
            if (choice < 30)
                open();
            else if (choice < 33)
                end();
            else if (choice < 130)
                enterRace();
            else
                useOne();
            if (!program->vantstart)
                startAnew();
        }

        void expectHealth()
        {
            EXPECT_LE(outside.faults.size(), 1U) << last;
            for (const FaultReport& fault : outside.faults)
                EXPECT_TRUE(fault.text.starts_with("The calculation stopped: ")) << fault.text << " after " << last;
            EXPECT_TRUE(program->outside.said.empty()) << last;
            EXPECT_FALSE(program->underWay) << last;
            expectFiniteState(program->state, " after " + last);
            for (Form* form : openForms())
                for (const ControlRef& control : form->controls)
                    expectSense(form->name, control);
            faults += outside.faults.empty() ? 0 : 1;
        }

        int faults = 0;

    private:
        unsigned below(std::size_t bound) { return static_cast<unsigned>(random() % bound); }

        void startAnew()
        {
            last = "start";
            program = std::make_unique<Program>(outside.dialogs(), outside.printer(), folder.path);
            program->state.goOn = [this] { return ++asked < 10; };   // a bound that does not depend on the machine
            start(*program);
        }

        void end()
        {
            last = "end";
            outside.answers.assign(3, false);   // leave, saved or not
            stop(*program);
        }

        void open()
        {
            const FormPlace& place = program->forms[below(program->forms.size())];
            last = "open " + std::string(place.name);
            enter(*program, "vantstart", false, [&] { openForm(*program, std::string(place.name)); });
        }

        [[nodiscard]] std::vector<Form*> openForms() const
        {
            std::vector<Form*> forms{&program->vantstart->form};
            for (const FormPlace& place : program->forms)
                if (Form* form = place.find())
                    forms.push_back(form);
            return forms;
        }

        std::string someText() { return below(3) > 0 ? sense[below(sense.size())] : others[below(others.size())]; }

        void enterRace()
        {
            last = "enter a race";
            VantstartForm& form = *program->vantstart;
            RaceControls& race = form.races[below(5)];
            const unsigned kilometers = 1 + below(40);
            const auto person = [this](const Event& act) { enter(*program, "vantstart", true, act); };
            person([&] { setText(race.Text1, ""); });
            person([&] { setText(race.Text2, std::to_string(kilometers * (3 + below(4)))); });
            person([&] { setText(race.Text3, ""); });
            person([&] { setText(race.Text4, std::to_string(kilometers)); });
            person([&] { setChosen(race.Option3, true); });
            person([&] { setTicked(race.Check1, true); });
            person([&] { setText(form.txtage, std::to_string(10 + below(70))); });
            enter(*program, "vantstart", false, Event(form.Command1.clicked));
        }

        void useOne()
        {
            const std::vector<Form*> forms = openForms();
            Form* const form = forms[below(forms.size())];
            const ControlRef control = form->controls[below(form->controls.size())];
            Control& record = common(control);
            last = form->name + "." + record.name;
            if (record.enabled && record.visible && !leavesTheFolder(*form, record))
                std::visit([this](auto* used) { use(*used); }, control);
        }

        /// What is saved must stay in the folder of this test.
        static bool leavesTheFolder(const Form& form, const Control& control)
        {
            return form.name == "fileacc" && (control.name == "Drive1" || control.name == "Dir1");
        }

        void person(bool keystroke, const Event& event) { enter(*program, last, keystroke, event); }

        void use(TextBox& box)
        {
            const std::string text = someText();
            if (box.pasted && below(10) == 0)
                person(true, [&] { (void)box.pasted(text + "\t" + someText() + "\n" + someText()); });
            else if (!box.locked)
                person(true, [&] { setText(box, text); });
        }
        void use(OptionButton& option)
        {
            person(false, [&] { setChosen(option, true); });
        }
        void use(CheckBox& box)
        {
            person(false, [&] { setTicked(box, !box.ticked); });
        }
        void use(ScrollBar& bar)
        {
            const long long value = bar.min - 10LL + below(static_cast<std::size_t>(bar.max - bar.min + 20));
            const bool pulled = below(2) == 0;
            person(false, [&] { pulled ? drag(bar, value) : setValue(bar, value); });
        }
        void use(ListBox& list)
        {
            if (!list.items.empty())
                person(false, [&] { select(list, static_cast<int>(below(list.items.size()))); });
        }
        void use(Button& button) { click(button.clicked); }
        void use(MenuItem& item) { click(item.clicked); }
        void use(Picture& picture)
        {
            const Point at{picture.size.x * below(1000) / 1000.0, picture.size.y * below(1000) / 1000.0};
            const auto event = below(3) == 0 ? picture.pressed : picture.moved;
            if (event)
                person(true, [&] { event(at); });
        }
        void use(Label&) {}
        void use(TextSurface&) {}
        void click(const Event& clicked)
        {
            const Event event = clicked;   // which may end the form that holds it
            if (event)
                person(false, event);
        }

        void expectSense(const std::string& form, const ControlRef& control)
        {
            const std::string where = form + "." + common(control).name + " after " + last;
            if (ScrollBar* const* bar = std::get_if<ScrollBar*>(&control))
            {
                EXPECT_TRUE((**bar).value >= (**bar).min && (**bar).value <= (**bar).max) << where;
            }
            else if (ListBox* const* list = std::get_if<ListBox*>(&control))
            {
                EXPECT_LT((**list).selected, static_cast<int>((**list).items.size())) << where;
            }
            else if (TextSurface* const* surface = std::get_if<TextSurface*>(&control))
            {
                for (const std::string& line : (**surface).page.lines)
                    if (line.find("report on") == std::string::npos)   // which has the runner's name
                        expectNumbers(line, where);
            }
        }

        static void expectNumbers(const std::string& line, const std::string& where)
        {
            std::istringstream words(line);
            for (std::string word; words >> word;)
                EXPECT_FALSE(word == "nan" || word == "-nan" || word == "inf" || word == "-inf") << line << where;
        }

        std::mt19937 random;
        ScratchFolder folder;
        RecordedOutside outside;
        std::unique_ptr<Program> program;
        std::string last;
        int asked = 0;
    };

    /// How long a monkey plays: 6000 acts, unless VANTELOS_MONKEY_ACTS says otherwise.
    int acts()
    {
        const char* const more = std::getenv("VANTELOS_MONKEY_ACTS");
        return more ? std::atoi(more) : 6000;
    }

    class WholeProgramMonkey : public testing::TestWithParam<std::uint32_t>
    {};

    TEST_P(WholeProgramMonkey, BreaksNothing)
    {
        Monkey monkey(GetParam());
        for (int i = 0; i < acts() && !HasFailure(); ++i)
        {
            monkey.act();
            monkey.expectHealth();
        }
        EXPECT_GT(monkey.faults, 0);
    }

    INSTANTIATE_TEST_SUITE_P(Seeds, WholeProgramMonkey, testing::Values(1U, 20U, 300U, 4000U),
                             [](const auto& row) { return std::to_string(row.param); });
}
