#pragma once

#include <string>
#include <vector>

#include "forms/controls.h"
#include "support/planning.h"

/// The course form of the man who runs 5000 m in 20:00, open.
struct OpenProfile : PlanningProgram
{
    OpenProfile() : PlanningProgram("profile") { open(); }

    [[nodiscard]] Course& course() { return state().course; }
    void press(double x, double y)
    {
        const auto pressed = usable<Picture>("p1").pressed;
        enter(program, "profile.p1", false, [&] { pressed({x, y}); });
    }
    void move(double x, double y)
    {
        const auto moved = usable<Picture>("p1").moved;
        enter(program, "profile.p1", true, [&] { moved({x, y}); });
    }
    void enterPoint(const std::string& x, const std::string& y)
    {
        type("distx", x);
        type("eletx", y);
        click("Command4");
    }
    /// Three points that make rolling hills of the default course.
    void enterHills()
    {
        enterPoint("1", "300");
        enterPoint("2", "230");
        enterPoint("3.5", "310");
    }
    void retrieve(const std::string& name)
    {
        type("retname", name);
        click("Command5");
    }
    /// The messages since they were asked for last.
    [[nodiscard]] std::vector<std::string> said()
    {
        std::vector<std::string> texts;
        for (const Message& message : outside.messages)
            texts.push_back(message.text);
        outside.forget();
        return texts;
    }
    [[nodiscard]] std::vector<double> xs()
    {
        return {course().pointX.begin(), course().pointX.begin() + course().pointCount};
    }
    [[nodiscard]] std::vector<Primitive> drawn(Colour colour)
    {
        std::vector<Primitive> some;
        for (const Primitive& primitive : get<Picture>("p1").primitives)
            if (primitive.colour == colour)
                some.push_back(primitive);
        return some;
    }
    [[nodiscard]] std::vector<std::vector<std::string>> rows() { return findForm(program, "profile")->table().rows; }
    void write(const std::string& name, const std::string& bytes) { writeBytes(folder.path / name, bytes); }
};
