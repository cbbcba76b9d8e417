#pragma once

#include <string>
#include <vector>

#include "splits/splitform_form.h"
#include "support/planning.h"

inline std::string at(const char* name, int row)
{
    return arrayName(name, row);
}

/// The split form, open at its design values.
struct OpenSplits : PlanningProgram
{
    OpenSplits() : PlanningProgram("splitform") { open(); }

    void enterRow(int row, const char* distance, const char* minutes, const char* seconds)
    {
        type(at("splitdis", row), distance);
        type(at("splitmin", row), minutes);
        type(at("splitsec", row), seconds);
    }
    [[nodiscard]] std::vector<std::string> row(int i)
    {
        return {text(at("splitdis", i)), text(at("splitmin", i)), text(at("splitsec", i))};
    }
    [[nodiscard]] std::vector<std::string> said()
    {
        std::vector<std::string> texts;
        for (const Message& message : outside.messages)
            texts.push_back(message.text);
        outside.forget();
        return texts;
    }
};

inline const std::vector<std::string> blankRow{"", "", ""};
