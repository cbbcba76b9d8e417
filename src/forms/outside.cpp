#include "forms/outside.h"

#include <utility>

void showSaid(Outside& outside)
{
    const Messages said = std::exchange(outside.said, {});
    for (const Message& message : said)
        outside.dialogs.message(message);
}

bool ask(Outside& outside, const Message& question)
{
    showSaid(outside);
    return outside.dialogs.ask(question);
}

std::optional<std::string> chooseFile(Outside& outside, const FileQuestion& question)
{
    showSaid(outside);
    return outside.dialogs.chooseFile ? outside.dialogs.chooseFile(question) : std::nullopt;
}
