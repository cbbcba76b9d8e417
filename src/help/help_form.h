#pragma once

#include "forms/controls.h"
#include "forms/outside.h"
#include "help/help_topics.h"

/// Prints one help topic, in the size that goes with it. Asked for while it is open it prints the topic that is wanted
/// by then.
///
/// It refers to the outside and to the topic, so that it stays where it was built.
struct HelpForm
{
    /// wantedTopic: what is to be printed whenever the form is asked for.
    HelpForm(Outside& formOutside, const HelpTopicName& wantedTopic);
    HelpForm(const HelpForm&) = delete;
    HelpForm& operator=(const HelpForm&) = delete;

    Outside& outside;
    const HelpTopicName& wanted;

    TextSurface topic{{.name = "topic", .tip = "The help; Ctrl+C copies what is marked"}};
    Picture Picture1{
        {.name = "Picture1", .caption = "Performance levels", .tip = "Opens the help on performance levels"}};
    Label Label1{{.name = "Label1", .caption = "Performance levels"}};   // beside the picture
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close this form"}};

    Form form{"helpform", "Help"};
};
