#include "program/program.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "forms/files.h"
#include "forms/folders.h"
#include "forms/on_leaving.h"
#include "program/analysis_forms.h"
#include "program/course_forms.h"
#include "program/datafile_forms.h"
#include "program/help_forms.h"
#include "program/planning_forms.h"
#include "program/power_forms.h"
#include "program/table_forms.h"
#include "program/weather_forms.h"

namespace
{
    constexpr const char* mainForm = "vantstart";

    void fire(const Event& event)
    {
        if (event)
            event();
    }

    void show(Program& program, Form& form)
    {
        if (program.shown)
            program.shown(form);
    }

    const FormPlace* placeOf(const Program& program, std::string_view name)
    {
        const auto place = std::find_if(program.forms.begin(), program.forms.end(),
                                        [name](const FormPlace& form) { return form.name == name; });
        return place == program.forms.end() ? nullptr : &*place;
    }

    /// Runs an event to its end or to its fault, then shows what was said and what stopped it.
    void happen(Program& program, const std::string& where, bool keystroke, const Event& event)
    {
        program.state.activity.clear();
        fire(program.beginning);
        std::optional<FaultReport> stopped;
        try
        {
            fire(event);
        }
        catch (const ArithmeticFault& fault)
        {
            stopped = FaultReport{faultText(fault, program.state.activity), where, keystroke};
        }
        fire(program.ending);
        showSaid(program.outside);
        if (stopped)
            program.outside.dialogs.fault(*stopped);
    }

    void drop(Program& program, const FormPlace& place)
    {
        if (program.unloading)
            program.unloading(*place.find());
        place.drop();
    }

    void unload(Program& program, const FormPlace& place)
    {
        Form* const form = place.find();
        if (!form)
            return;
        happen(program, form->name, false, form->unloaded);
        drop(program, place);
    }

    /// A form that another one closes, and that has nothing to do before it goes, need not wait for the event's end: it
    /// is away before messages and faults are shown.
    bool goesAtOnce(const Program& program, const FormPlace& place)
    {
        const Form* const form = place.find();
        return form && !form->unloaded && program.underWay && place.name != program.atWork;
    }

    /// Writes the settings, as often as the runner asks for. Returns when they are written or given up.
    void saveSettings(Program& program)
    {
        const std::filesystem::path path = program.folder / settingsFileName;
        const std::string text = settingsOf(*program.vantstart, program.stored);
        while (const std::optional<std::string> failure = replaceFile(path, text))
        {
            const Message question{"The settings could not be saved to " + path.string() + ": " + *failure +
                                       ".\nTry again? With No the program ends without saving.",
                                   "Settings not saved"};
            if (!ask(program.outside, question))
                return;
        }
    }
}

Program::Program(Dialogs dialogs, Printer printer, std::filesystem::path settingsFolder)
    : folder(std::move(settingsFolder)), startFolder(fromRoot(folder)), currentFolder(folder)
{
    outside.dialogs = std::move(dialogs);
    outside.printer = std::move(printer);
    outside.openForm = [this](const std::string& name) { openForm(*this, name); };
    outside.closeForm = [this](const std::string& name) {
        const FormPlace* const place = placeOf(*this, name);
        if (place && goesAtOnce(*this, *place))
            drop(*this, *place);
        else
            closeForm(*this, name);
    };
    vantstart = std::make_unique<VantstartForm>(state, outside);
    setLoadDefaults(*vantstart);
    addAnalysisForms(*this);
    addPowerForms(*this);
    addPlanningForms(*this);
    addCourseForms(*this);
    addWeatherForms(*this);
    addTableForms(*this);
    addHelpForms(*this);
    addDatafileForms(*this);
}

void start(Program& program)
{
    enter(program, mainForm, false, [&] {
        load(*program.vantstart, program.stored, readFile(program.folder / settingsFileName, settingsFileLimit));
    });
}

void stop(Program& program)
{
    if (!program.vantstart)
        return;
    program.stopping = true;
    for (const FormPlace& place : program.forms)
        unload(program, place);   // first, for what they store is saved
    saveSettings(program);
    showSaid(program.outside);
    if (program.unloading)
        program.unloading(program.vantstart->form);
    program.vantstart.reset();
}

Form* findForm(Program& program, std::string_view name)
{
    if (program.vantstart && name == mainForm)
        return &program.vantstart->form;
    const FormPlace* const place = placeOf(program, name);
    return place ? place->find() : nullptr;
}

bool hasForm(const Program& program, std::string_view name)
{
    return name == mainForm || placeOf(program, name);
}

void openForm(Program& program, const std::string& name)
{
    Form* form = findForm(program, name);
    if (form)
        show(program, *form);
    else if (const FormPlace* const place = placeOf(program, name))
    {
        place->build();
        form = place->find();
        connectHelp(program, *form);
        const OnLeaving showIt([&] { show(program, *form); });
        fire(form->load);
    }
    else
        program.outside.said.push_back({"This version of Vantelos has no form \"" + name + "\"."});
    if (form)
        fire(form->opened);
}

void closeForm(Program& program, const std::string& name)
{
    program.closing.push_back(name);
}

std::string faultText(const ArithmeticFault& fault, const std::string& activity)
{
    std::string text = std::string("The calculation stopped: ") + fault.what();
    if (!activity.empty())
        text += " while " + activity;
    return text + ".";
}

void enter(Program& program, const std::string& where, bool keystroke, const Event& event)
{
    if (program.underWay)
        return;
    program.underWay = true;
    program.atWork = where.substr(0, where.find('.'));
    const OnLeaving over([&program] { program.underWay = false; });
    chooseTopic(program, where);
    happen(program, where, keystroke, event);
    while (!program.closing.empty())
    {
        const std::string name = program.closing.front();
        program.closing.erase(program.closing.begin());
        if (name == mainForm)
            stop(program);
        else if (const FormPlace* const place = placeOf(program, name))
            unload(program, *place);
    }
}
