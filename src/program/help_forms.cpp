#include "program/help_forms.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <string_view>
#include <variant>

#include "help/about_form.h"
#include "help/help_form.h"
#include "help/help_index_form.h"
#include "help/references_form.h"
#include "program/tool_place.h"

namespace
{
    using enum HelpTopicName;

    struct NamedTopic
    {
        std::string_view place;
        HelpTopicName topic;
    };

    constexpr std::array openers{
        NamedTopic{"anaform.Command2", trainingAnalysis},   NamedTopic{"vantstart.Command8", performanceLevels},
        NamedTopic{"helpform.Picture1", performanceLevels}, NamedTopic{"fileacc.Command6", savedFiles},
        NamedTopic{"vantstart.Command5", mainEntryForm},    NamedTopic{"specinfo.Command2", specialInformation},
        NamedTopic{"vantstart.ppinfo", programOverview},    NamedTopic{"pertabspec.Command2", performanceTables},
        NamedTopic{"workouts.Command2", workoutPlanner},    NamedTopic{"splitform.Command4", splitsAnalysis},
        NamedTopic{"profile.Command7", courseProfile},      NamedTopic{"heathum.Command3", heatAndHumidity},
        NamedTopic{"vanthelp.Picture1", trainingAnalysis},  NamedTopic{"vanthelp.Picture2", performanceLevels},
        NamedTopic{"vanthelp.Picture3", savedFiles},        NamedTopic{"vanthelp.Picture4", mainEntryForm},
        NamedTopic{"vanthelp.Picture5", predictedTable},    NamedTopic{"vanthelp.Picture6", specialInformation},
        NamedTopic{"vanthelp.Picture7", programOverview},   NamedTopic{"vanthelp.Picture8", performanceTables},
        NamedTopic{"vanthelp.Picture9", workoutPlanner},    NamedTopic{"vanthelp.Picture10", splitsAnalysis},
        NamedTopic{"vanthelp.Picture11", courseProfile},    NamedTopic{"vanthelp.Picture12", heatAndHumidity},
    };

    /// What F1 opens. A form without a topic of its own has that of the form which it goes with.
    constexpr std::array topicsOfForms{
        NamedTopic{"vantstart", mainEntryForm},      NamedTopic{"graphform", predictedTable},
        NamedTopic{"anaform", trainingAnalysis},     NamedTopic{"workouts", workoutPlanner},
        NamedTopic{"splitform", splitsAnalysis},     NamedTopic{"specinfo", specialInformation},
        NamedTopic{"pstrat", specialInformation},    NamedTopic{"quickcalcs", specialInformation},
        NamedTopic{"powen", specialInformation},     NamedTopic{"tmill", specialInformation},
        NamedTopic{"eqpace", specialInformation},    NamedTopic{"profile", courseProfile},
        NamedTopic{"working", courseProfile},        NamedTopic{"heathum", heatAndHumidity},
        NamedTopic{"pertabspec", performanceTables}, NamedTopic{"perflevform", performanceTables},
        NamedTopic{"perfgraph", performanceTables},  NamedTopic{"fileacc", savedFiles},
    };

    template <class Topics>
    std::optional<HelpTopicName> topicAt(const Topics& topics, std::string_view place)
    {
        const auto found = std::find_if(topics.begin(), topics.end(),
                                        [place](const NamedTopic& named) { return named.place == place; });
        return found == topics.end() ? std::nullopt : std::optional(found->topic);
    }
}

void addHelpForms(Program& program)
{
    program.forms.push_back(toolPlace("helpform", emptySlot<HelpForm>(), [&program] {
        return std::make_unique<HelpForm>(program.outside, program.helpTopic);
    }));
    program.forms.push_back(toolPlace("vanthelp", emptySlot<HelpIndexForm>(),
                                      [&program] { return std::make_unique<HelpIndexForm>(program.outside); }));
    program.forms.push_back(toolPlace("frmabout", emptySlot<AboutForm>(), [&program] {
        return std::make_unique<AboutForm>(program.outside, program.vantstart->form.title);
    }));
    program.forms.push_back(toolPlace("refform", emptySlot<ReferencesForm>(),
                                      [&program] { return std::make_unique<ReferencesForm>(program.outside); }));
}

void chooseTopic(Program& program, const std::string& where)
{
    program.helpTopic = topicAt(openers, where).value_or(program.helpTopic);
}

void connectHelp(Program& program, Form& form)
{
    for (const ControlRef& control : form.controls)
        if (Button* const* button = std::get_if<Button*>(&control);
            button && (**button).opens == "helpform" && !(**button).clicked)
            (**button).clicked = [&program] { program.outside.openForm("helpform"); };
}

void openHelpOn(Program& program, const std::string& form)
{
    const std::optional<HelpTopicName> topic = topicAt(topicsOfForms, form);
    program.helpTopic = topic.value_or(program.helpTopic);
    program.outside.openForm(topic ? "helpform" : "vanthelp");
}
