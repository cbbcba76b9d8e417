#include "console/drive.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <deque>
#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "console/control_values.h"
#include "console/json_text.h"
#include "console/pure_functions.h"
#include "console/script_line.h"
#include "console/time_limit.h"
#include "model/text.h"
#include "program/program.h"

namespace
{
    using Json = nlohmann::ordered_json;

    constexpr int wrongScript = 2;   // exit status

    /// What one script works on.
    struct Session
    {
        std::ostream& out;
        TimeLimit limit;
        std::unique_ptr<Program> program;
        std::deque<bool> answers;
        std::deque<std::optional<std::string>> files;   // to be chosen; nothing for none
        bool started = false;
    };

    /// A control as a script names it.
    struct Target
    {
        std::string name;   // "vantstart.Text1(0)"
        ControlRef control;
        std::string property;
    };

    void say(Session& session, const Json& json)
    {
        session.out << jsonText(json) << '\n';
    }

    Dialogs dialogsOf(Session& session)
    {
        Dialogs dialogs;
        dialogs.message = [&session](const Message& message) {
            say(session, {{"message", message.text}, {"title", message.title}});
        };
        dialogs.ask = [&session](const Message& question) {
            if (session.answers.empty())
                throw ScriptMistake("no answer is ready for the question \"" + question.text + "\"");
            const bool yes = session.answers.front();
            session.answers.pop_front();
            say(session, {{"question", question.text}, {"answer", yes ? "yes" : "no"}});
            return yes;
        };
        dialogs.beep = [&session] { say(session, {{"beep", true}}); };
        dialogs.fault = [&session](const FaultReport& fault) {
            say(session, {{"fault", fault.text}, {"in", fault.where}});
        };
        dialogs.chooseFile = [&session](const FileQuestion& question) {
            if (session.files.empty())
                throw ScriptMistake("no file is ready for \"" + question.title + "\"");
            std::optional<std::string> file = session.files.front();
            session.files.pop_front();
            say(session, {{"choose", question.title}, {"file", file ? Json(*file) : Json()}});
            return file;
        };
        return dialogs;
    }

    Printer printerOf(Session& session)
    {
        Printer printer;
        printer.printText = [&session](const std::vector<std::string>& lines) {
            say(session, {{"print", "text"}, {"lines", lines}});
        };
        printer.printForm = [&session](const FormImage& image) {
            say(session, {{"print", "form"},
                          {"form", image.form},
                          {"background", colourText(image.background)},
                          {"hidden", image.hidden}});
        };
        return printer;
    }

    void build(Session& session, const std::string& folder)
    {
        session.program = std::make_unique<Program>(dialogsOf(session), printerOf(session), folder);
        session.program->state.goOn = [&session] { return !session.limit.reached(); };
    }

    Form& openFormNamed(Session& session, const std::string& name)
    {
        Form* form = findForm(*session.program, name);
        if (!form)
            throw ScriptMistake(hasForm(*session.program, name) ? name + " is not open"
                                                                : "there is no form \"" + name + "\"");
        return *form;
    }

    Target targetOf(Session& session, const std::string& word)
    {
        const std::size_t dot = word.find('.');
        if (dot == std::string::npos)
            throw ScriptMistake("\"" + word + "\" names no control; a control is FORM.CONTROL");
        Form& form = openFormNamed(session, word.substr(0, dot));
        const std::size_t property = word.find('.', dot + 1);
        const std::string name = word.substr(dot + 1, property == std::string::npos ? property : property - dot - 1);
        const ControlRef* control = findControl(form, name);
        if (!control)
            throw ScriptMistake(form.name + " has no control \"" + name + "\"");
        return {form.name + "." + name, *control, property == std::string::npos ? "" : word.substr(property + 1)};
    }

    /// A control that a person could use.
    Target usableTarget(Session& session, const std::string& word)
    {
        Target target = targetOf(session, word);
        if (!target.property.empty())
            throw ScriptMistake("\"" + word + "\" is a property, not a control");
        if (!common(target.control).enabled)
            throw ScriptMistake(target.name + " is disabled");
        if (!common(target.control).visible)
            throw ScriptMistake(target.name + " is hidden");
        return target;
    }

    double numberOf(const std::string& word)
    {
        if (!isNumeric(word))
            throw ScriptMistake("\"" + word + "\" is not a number");
        try
        {
            return val(word);
        }
        catch (const ArithmeticFault&)
        {
            throw ScriptMistake("\"" + word + "\" is too large");
        }
    }

    long long wholeOf(const std::string& word)
    {
        const double number = numberOf(word);
        if (number != roundHalfEven(number) || std::abs(number) > 1e9)
            throw ScriptMistake("\"" + word + "\" is not a whole number");
        return static_cast<long long>(number);
    }

    template <class Action>
    void act(Session& session, const std::string& where, Action action)
    {
        enter(*session.program, where, false, action);
    }

    /// Sets a control as a person would: one function a kind that takes an entry.
    struct Entry
    {
        Session& session;
        const Target& target;
        const std::string& text;

        void operator()(TextBox* box) const
        {
            if (box->locked)
                throw ScriptMistake(target.name + " is only shown");
            act(session, target.name, [&] { setText(*box, text); });
        }
        void operator()(ScrollBar* bar) const
        {
            const long long value = wholeOf(text);
            act(session, target.name, [&] { setValue(*bar, value); });
        }
        void operator()(CheckBox* box) const
        {
            if (text != "0" && text != "1")
                throw ScriptMistake("a check box takes 0 or 1");
            act(session, target.name, [&] { setTicked(*box, text == "1"); });
        }
        template <class Other>
        void operator()(Other*) const
        {
            throw ScriptMistake(target.name + " takes no entry; click it");
        }
    };

    int itemIndex(const ListBox& list, const std::string& item)
    {
        if (item.size() > 1 && item.front() == '#')
        {
            const long long index = wholeOf(item.substr(1));
            if (index < 0 || index >= static_cast<long long>(list.items.size()))
                throw ScriptMistake("the list has no item " + item);
            return static_cast<int>(index);
        }
        for (std::size_t i = 0; i < list.items.size(); ++i)
            if (list.items[i] == item)
                return static_cast<int>(i);
        throw ScriptMistake("the list has no item \"" + item + "\"");
    }

    /// Clicks a control: one function a kind that can be clicked.
    struct Click
    {
        Session& session;
        const Target& target;
        const std::string& item;

        void operator()(Button* button) const { run(button->clicked); }
        void operator()(OptionButton* option) const
        {
            act(session, target.name, [&] { setChosen(*option, true); });
        }
        void operator()(CheckBox* box) const
        {
            act(session, target.name, [&] { setTicked(*box, !box->ticked); });
        }
        void operator()(MenuItem* menuItem) const
        {
            if (!menuItem->clicked)
                throw ScriptMistake(target.name + " is a menu; click one of its items");
            run(menuItem->clicked);
        }
        void operator()(ListBox* list) const
        {
            const int index = itemIndex(*list, item);
            act(session, target.name, [&] { select(*list, index); });
        }
        template <class Other>
        void operator()(Other*) const
        {
            throw ScriptMistake(target.name + " can't be clicked");
        }

    private:
        void run(const Event& clicked) const
        {
            const Event event = clicked;   // the event may end the form that holds it
            act(session, target.name, [&] {
                if (event)
                    event();
            });
        }
    };

    void doStart(Session& session, ScriptLine& line)
    {
        if (session.started && session.program->vantstart)
            throw ScriptMistake("the program has been started already");
        std::string folder = line.rest();
        if (folder.size() > 1 && folder.front() == '"' && folder.back() == '"')
            folder = folder.substr(1, folder.size() - 2);
        build(session, folder.empty() ? "." : folder);
        session.started = true;
        start(*session.program);
    }

    void doStop(Session& session, ScriptLine& line)
    {
        line.end();
        openFormNamed(session, "vantstart");
        act(session, "vantstart", [&] { closeForm(*session.program, "vantstart"); });
    }

    void doOpen(Session& session, ScriptLine& line)
    {
        const std::string name = line.word("a form");
        line.end();
        if (!hasForm(*session.program, name))
            throw ScriptMistake("there is no form \"" + name + "\"");
        openFormNamed(session, "vantstart");
        act(session, name, [&] { openForm(*session.program, name); });
    }

    void doClose(Session& session, ScriptLine& line)
    {
        const std::string name = openFormNamed(session, line.word("a form")).name;
        line.end();
        act(session, name, [&] { closeForm(*session.program, name); });
    }

    void doSet(Session& session, ScriptLine& line)
    {
        const Target target = usableTarget(session, line.word("a control"));
        const std::string text = line.rest();
        std::visit(Entry{session, target, text}, target.control);
    }

    void doDrag(Session& session, ScriptLine& line)
    {
        const Target target = usableTarget(session, line.word("a scroll bar"));
        const long long value = wholeOf(line.word("a value"));
        line.end();
        ScrollBar* const* bar = std::get_if<ScrollBar*>(&target.control);
        if (!bar)
            throw ScriptMistake(target.name + " is no scroll bar");
        act(session, target.name, [&] { drag(**bar, value); });
    }

    void doClick(Session& session, ScriptLine& line)
    {
        const Target target = usableTarget(session, line.word("a control"));
        const std::string item = line.rest();
        if (!std::holds_alternative<ListBox*>(target.control))
            line.end();
        std::visit(Click{session, target, item}, target.control);
    }

    void useMouse(Session& session, ScriptLine& line, std::function<void(Point)> Picture::*event)
    {
        const Target target = usableTarget(session, line.word("a picture"));
        const double x = numberOf(line.word("a place across"));
        const double y = numberOf(line.word("a place down"));
        line.end();
        Picture* const* picture = std::get_if<Picture*>(&target.control);
        if (!picture)
            throw ScriptMistake(target.name + " is no picture");
        const std::function<void(Point)> handler = (**picture).*event;
        if (handler)
            act(session, target.name, [&] { handler({x, y}); });
    }

    void doPress(Session& session, ScriptLine& line)
    {
        useMouse(session, line, &Picture::pressed);
    }

    void doMove(Session& session, ScriptLine& line)
    {
        useMouse(session, line, &Picture::moved);
    }

    void doAnswer(Session& session, ScriptLine& line)
    {
        const std::string answer = line.word("yes or no");
        line.end();
        if (answer != "yes" && answer != "no")
            throw ScriptMistake("an answer is yes or no");
        session.answers.push_back(answer == "yes");
    }

    void doChoose(Session& session, ScriptLine& line)
    {
        const std::string file = line.rest();
        session.files.push_back(file.empty() ? std::nullopt : std::optional(file));
    }

    /// A text on one line of a script, in which \t, \n and \\ stand for a tab, a line end and a backslash.
    std::string unescaped(const std::string& text)
    {
        std::string plain;
        for (std::size_t i = 0; i < text.size(); ++i)
        {
            const bool escape = text[i] == '\\' && i + 1 < text.size();
            const char c = escape ? text[++i] : text[i];
            plain += escape && c == 't' ? '\t' : (escape && c == 'n' ? '\n' : c);
        }
        return plain;
    }

    void doPaste(Session& session, ScriptLine& line)
    {
        const Target target = usableTarget(session, line.word("a text box"));
        const std::string text = unescaped(line.rest());
        TextBox* const* found = std::get_if<TextBox*>(&target.control);
        if (!found)
            throw ScriptMistake(target.name + " is no text box");
        TextBox& box = **found;
        act(session, target.name, [&box, &text] {
            if (!box.pasted || !box.pasted(text))
                setText(box, text);
        });
    }

    const StateName& stateNamed(const std::string& word)
    {
        const StateName* entry = findStateName(word.substr(std::string_view("state.").size()));
        if (!entry)
            throw ScriptMistake("there is no \"" + word + "\"");
        return *entry;
    }

    /// Of a word without a control of that name: what Copy and Save as CSV give of a form that has a table.
    std::optional<Json> tableText(Session& session, const std::string& word)
    {
        const std::size_t dot = std::min(word.find('.'), word.size());
        const std::string what = word.substr(dot);
        if (what != ".table" && what != ".csv")
            return std::nullopt;
        const Form& form = openFormNamed(session, word.substr(0, dot));
        if (!form.table)
            return std::nullopt;
        Json text;   // null where a fault stops it
        act(session, word, [&] { text = what == ".csv" ? csvOf(form.table()) : textOf(form.table()); });
        return text;
    }

    Json valueNamed(Session& session, const std::string& word)
    {
        if (word.rfind("state.", 0) == 0)
            return stateJson(stateNamed(word).get(session.program->state));
        const std::size_t dot = word.find('.');
        if (dot != std::string::npos && word.substr(dot) == ".title")
            return openFormNamed(session, word.substr(0, dot)).title;
        if (const std::optional<Json> table = tableText(session, word))
            return *table;
        const Target target = targetOf(session, word);
        if (target.property.empty())
            return valueOf(target.control);
        const std::optional<Json> property = propertyOf(target.control, target.property);
        if (!property)
            throw ScriptMistake(target.name + " has no property \"" + target.property + "\"");
        return *property;
    }

    void doGet(Session& session, ScriptLine& line)
    {
        const std::string word = line.word("a name");
        line.end();
        say(session, {{"get", word}, {"value", valueNamed(session, word)}});
    }

    void doDump(Session& session, ScriptLine& line)
    {
        const Form& form = openFormNamed(session, line.word("a form"));
        line.end();
        Json controls = Json::array();
        for (const ControlRef& control : form.controls)
            controls.push_back(describe(control));
        say(session, {{"dump", form.name}, {"title", form.title}, {"controls", controls}});
    }

    bool isLet(const StateName& entry, ModelState& state, const std::string& text)
    {
        try
        {
            return entry.let(state, text);
        }
        catch (const ArithmeticFault&)
        {
            return false;   // a number too large to be held
        }
    }

    void doLet(Session& session, ScriptLine& line)
    {
        const std::string word = line.word("a state name");
        if (word.rfind("state.", 0) != 0)
            throw ScriptMistake("only state.NAME can be let");
        const StateName& entry = stateNamed(word);
        if (!entry.let)
            throw ScriptMistake(word + " can only be read");
        const std::string text = line.rest();
        if (!isLet(entry, session.program->state, text))
            throw ScriptMistake(word + " can't be \"" + text + "\"");
    }

    void doCall(Session& session, ScriptLine& line)
    {
        const std::string name = line.word("a function");
        const std::vector<std::string> arguments = line.words();
        act(session, "call " + name, [&] {
            session.program->state.activity = "calling " + name;
            say(session, {{"call", name}, {"value", callFunction(session.program->state, name, arguments)}});
        });
    }

    struct Word
    {
        const char* word;
        void (*run)(Session&, ScriptLine&);
    };
    constexpr std::array<Word, 16> words{{{"start", doStart},
                                          {"stop", doStop},
                                          {"open", doOpen},
                                          {"close", doClose},
                                          {"set", doSet},
                                          {"drag", doDrag},
                                          {"click", doClick},
                                          {"press", doPress},
                                          {"move", doMove},
                                          {"answer", doAnswer},
                                          {"choose", doChoose},
                                          {"paste", doPaste},
                                          {"get", doGet},
                                          {"dump", doDump},
                                          {"let", doLet},
                                          {"call", doCall}}};

    void runLine(Session& session, ScriptLine line)
    {
        const std::string first = line.word("a word");
        for (const auto& [word, run] : words)
        {
            if (first == word)
            {
                session.limit.restart();
                run(session, line);
                return;
            }
        }
        throw ScriptMistake("there is no word \"" + first + "\"");
    }
}

int drive(std::istream& script, std::ostream& out, double limitSeconds)
{
    Session session{out, TimeLimit(limitSeconds), {}, {}, {}, false};
    build(session, ".");
    std::string text;
    for (int number = 1; std::getline(script, text); ++number)
    {
        const ScriptLine line(text);
        if (line.isBlank())
            continue;
        try
        {
            runLine(session, line);
        }
        catch (const ScriptMistake& mistake)
        {
            say(session, {{"error", "line " + std::to_string(number) + ": " + mistake.what()}});
            return wrongScript;
        }
        catch (const CallMistake& mistake)
        {
            say(session, {{"error", "line " + std::to_string(number) + ": " + mistake.what()}});
            return wrongScript;
        }
        out.flush();
    }
    if (script.bad())
    {
        say(session, {{"error", "the script can't be read any further"}});
        return wrongScript;
    }
    return 0;
}
