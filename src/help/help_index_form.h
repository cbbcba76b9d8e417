#pragma once

#include <array>

#include "forms/controls.h"
#include "forms/outside.h"
#include "help/help_topics.h"

/// The index of the help: a picture a topic, which opens it.
///
/// It refers to the outside, so that it stays where it was built.
struct HelpIndexForm
{
    explicit HelpIndexForm(Outside& formOutside);
    HelpIndexForm(const HelpIndexForm&) = delete;
    HelpIndexForm& operator=(const HelpIndexForm&) = delete;

    Outside& outside;
    std::array<Picture, helpTopicCount> pictures;   // Picture1 to Picture12, their captions the topics' titles
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close this form"}};

    Form form{"vanthelp", "Vantelos Help"};
};
