#include "help/help_form.h"

#include "help/topic_picture_form.h"

namespace
{
    /// Prints the wanted topic from its first line on. What was there before goes first, so that a window does not stay
    /// where that one was read.
    void showTopic(HelpForm& form)
    {
        const HelpTopic& topic = helpTopic(form.wanted);
        const std::vector<std::string> lines = linesOf(topic);
        if (form.topic.page.lines == lines)
            return;
        setTitle(form.form, std::string(topic.title));
        setSize(form.form, {topic.width, topic.height});
        clear(form.topic.page);
        notifyShown(form.topic);
        for (const std::string& line : lines)
            printLine(form.topic.page, line);
        notifyShown(form.topic);
        const bool tables = topic.name == HelpTopicName::performanceTables;
        setVisible(form.Picture1, tables);
        setVisible(form.Label1, tables);
    }
}

HelpForm::HelpForm(Outside& formOutside, const HelpTopicName& wantedTopic) : outside(formOutside), wanted(wantedTopic)
{
    drawTopic(Picture1, HelpTopicName::performanceLevels);
    Picture1.pressed = [this](Point) { outside.openForm(form.name); };
    Command1.clicked = [this] { outside.closeForm(form.name); };
    form.load = [this] { showTopic(*this); };
    form.opened = form.load;
    form.controls = {&topic, &Picture1, &Label1, &Command1};
}
