#pragma once

#include <string>
#include <vector>

inline constexpr const char* programName = "Vantelos";

/// One message to the runner: shown in a box with an OK button.
struct Message
{
    std::string text;
    std::string title = programName;

    friend bool operator==(const Message&, const Message&) = default;
};

/// In the order in which they are to be shown.
using Messages = std::vector<Message>;
