#pragma once

#include <string>
#include <variant>
#include <vector>

#include "program/program.h"
#include "support/person.h"
#include "support/recorded_outside.h"
#include "support/scratch_folder.h"

/// A program in a folder of its own.
struct AnalysisProgram
{
    void run(const Person::Race& race)
    {
        person.enterRace(0, race);
        person.click("Command1");
        outside.forget();
    }

    /// The control of an open form.
    template <class Record>
    Record& control(const std::string& form, const std::string& name)
    {
        return *std::get<Record*>(*findControl(*findForm(program, form), name));
    }

    void press(const std::string& form, const std::string& button)
    {
        const Event clicked = control<Button>(form, button).clicked;
        enter(program, form + "." + button, false, clicked);
    }

    [[nodiscard]] Picture& pic() { return control<Picture>("anaform", "pic"); }
    [[nodiscard]] Picture& graph() { return control<Picture>("graphform", "Surface"); }
    [[nodiscard]] const std::vector<std::string>& lines()
    {
        return control<TextSurface>("anaform", "Surface").page.lines;
    }

    ScratchFolder folder;
    RecordedOutside outside;
    Program program{outside.dialogs(), outside.printer(), folder.path};
    Person person{program};
};

/// The same after a calculation for a man of 40: 10 km in 40:00 on 30 miles a week, heart rates of 185 and 50.
struct OpenAnalysis : AnalysisProgram
{
    OpenAnalysis()
    {
        person.type("txtage", "40");
        person.slide("HScroll1", 30);
        person.type("actmhrtx", "185");
        person.type("resthrtx", "50");
        person.click("Option9");
        person.click("Option8");
        run({"", "40", "", "10", 3});
    }
};

/// The shapes of one kind on a picture, in drawing order.
template <class Shape>
std::vector<Primitive> shapesOf(const Picture& picture)
{
    std::vector<Primitive> shapes;
    for (const Primitive& drawn : picture.primitives)
        if (std::holds_alternative<Shape>(drawn.shape))
            shapes.push_back(drawn);
    return shapes;
}

/// The texts drawn on a picture that read like that, blanks included.
inline std::vector<Primitive> textsLike(const Picture& picture, const std::string& words)
{
    std::vector<Primitive> found;
    for (const Primitive& drawn : picture.primitives)
        if (const auto* text = std::get_if<TextPrimitive>(&drawn.shape); text && text->text == words)
            found.push_back(drawn);
    return found;
}

/// Where the first of these stands. There must be one.
inline Point placeOf(const Picture& picture, const std::string& words)
{
    return std::get<TextPrimitive>(textsLike(picture, words).at(0).shape).at;
}
