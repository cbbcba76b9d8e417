#include "help/help_index_form.h"

#include <cstddef>
#include <string>

#include "help/topic_picture_form.h"

HelpIndexForm::HelpIndexForm(Outside& formOutside) : outside(formOutside)
{
    for (std::size_t i = 0; i < pictures.size(); ++i)
    {
        const HelpTopic& topic = helpTopics().at(i);
        pictures[i].name = "Picture" + std::to_string(i + 1);
        pictures[i].caption = topic.title;
        pictures[i].tip = "Opens the help on \"" + std::string(topic.title) + "\"";
        pictures[i].pressed = [this](Point) { outside.openForm("helpform"); };
        drawTopic(pictures[i], topic.name);
        form.controls.emplace_back(&pictures[i]);
    }
    Command1.clicked = [this] { outside.closeForm(form.name); };
    form.controls.emplace_back(&Command1);
}
