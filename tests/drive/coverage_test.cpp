#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "console/pure_functions.h"
#include "console/script_line.h"
#include "program/program.h"
#include "program/state_names.h"
#include "script_files.h"
#include "support/scratch_folder.h"

namespace
{
    /// What all scripts together touch.
    struct Touched
    {
        std::set<std::string> words;
        std::set<std::string> used;     // "click vantstart.Check1": word and control, without a control array's row
        std::set<std::string> called;   // "raceTimeAt 1": function and how many arguments
        std::set<std::string> got;      // "state.age"
    };

    std::string withoutRow(const std::string& control)
    {
        return control.substr(0, control.find('('));
    }

    void touch(Touched& touched, ScriptLine line)
    {
        const std::string word = line.word("a word");
        touched.words.insert(word);
        if (word == "set" || word == "drag" || word == "click" || word == "press" || word == "move")
            touched.used.insert(word + " " + withoutRow(line.word("a control")));
        else if (word == "get")
            touched.got.insert(line.word("a name"));
        else if (word == "call")
        {
            const std::string name = line.word("a function");
            touched.called.insert(name + " " + std::to_string(line.words().size()));
        }
    }

    Touched touchedByScripts()
    {
        Touched touched;
        for (const auto& file : scriptFiles())
        {
            std::istringstream script(readBytes(file));
            for (std::string text; std::getline(script, text);)
                if (const ScriptLine line(text); !line.isBlank())
                    touch(touched, line);
        }
        return touched;
    }

    /// How a person uses a control, as the words of a script; empty for what is only looked at.
    struct Uses
    {
        std::vector<std::string> operator()(const TextBox* box) const
        {
            return box->locked ? std::vector<std::string>{} : std::vector<std::string>{"set"};
        }
        std::vector<std::string> operator()(const ScrollBar*) const { return {"set", "drag"}; }
        std::vector<std::string> operator()(const CheckBox* box) const
        {
            // one that is disabled from the beginning is a mark
            return box->enabled ? std::vector<std::string>{"set", "click"} : std::vector<std::string>{};
        }
        std::vector<std::string> operator()(const OptionButton*) const { return {"click"}; }
        std::vector<std::string> operator()(const Button*) const { return {"click"}; }
        std::vector<std::string> operator()(const ListBox*) const { return {"click"}; }
        std::vector<std::string> operator()(const MenuItem* item) const
        {
            return item->clicked ? std::vector<std::string>{"click"} : std::vector<std::string>{};
        }
        template <class Other>
        std::vector<std::string> operator()(const Other*) const
        {
            return {};
        }
    };

    void expectUsed(const Touched& touched, const Form& form)
    {
        for (const ControlRef& control : form.controls)
            for (const std::string& word : std::visit(Uses{}, control))
            {
                const std::string used = word + " " + withoutRow(form.name + "." + common(control).name);
                EXPECT_TRUE(touched.used.contains(used)) << "no script has: " << used;
            }
    }

    TEST(EveryScriptTogether, UsesEveryControlOfEveryForm)
    {
        const Touched touched = touchedByScripts();
        Program program({}, {}, "");
        expectUsed(touched, program.vantstart->form);
        for (const FormPlace& place : program.forms)
        {
            place.build();
            expectUsed(touched, *place.find());
        }
    }

    TEST(EveryScriptTogether, MovesAndPressesTheMouseOnEveryPictureThatTakesIt)
    {
        const Touched touched = touchedByScripts();
        Program program({}, {}, "");
        for (const FormPlace& place : program.forms)
        {
            place.build();
            for (const ControlRef& control : place.find()->controls)
                if (Picture* const* picture = std::get_if<Picture*>(&control))
                {
                    const std::string name = place.find()->name + "." + (**picture).name;
                    EXPECT_TRUE(!(**picture).moved || touched.used.contains("move " + name)) << name;
                    EXPECT_TRUE(!(**picture).pressed || touched.used.contains("press " + name)) << name;
                }
        }
    }

    TEST(EveryScriptTogether, HasEveryWord)
    {
        const std::set<std::string> words{"start", "stop",   "open",   "close", "set", "drag", "click", "press",
                                          "move",  "answer", "choose", "paste", "get", "dump", "let",   "call"};
        Touched touched = touchedByScripts();
        EXPECT_EQ(touched.words.erase("push"), 1U) << "one script has a word that there is not";
        EXPECT_EQ(touched.words, words);
    }

    TEST(EveryScriptTogether, GetsEveryStateName)
    {
        const std::set<std::string> got = touchedByScripts().got;
        for (const StateName& entry : stateNames())
            EXPECT_TRUE(got.contains("state." + std::string(entry.name))) << entry.name;
    }

    TEST(EveryScriptTogether, CallsEveryFunction)
    {
        const std::set<std::string> called = touchedByScripts().called;
        const auto isCalled = [&](const std::string& name, std::size_t arguments) {
            return called.contains(name + " " + std::to_string(arguments));
        };
        for (const PureFunction& function : pureFunctions())
        {
            std::istringstream words{std::string(function.arguments)};
            std::size_t least = 0;
            std::size_t most = 0;
            bool optional = false;
            for (std::string word; words >> word; ++most)
            {
                optional = optional || word.front() == '[';
                least += optional ? 0 : 1;
            }
            EXPECT_TRUE(isCalled(std::string(function.name), least)) << function.name << ' ' << function.arguments;
            EXPECT_TRUE(isCalled(std::string(function.name), most)) << function.name << ' ' << function.arguments;
        }
    }
}
