#pragma once

#include <string>

#include "forms/controls.h"
#include "forms/outside.h"

/// The about box: the program's name and version on a picture.
///
/// It refers to the outside, so that it stays where it was built.
struct AboutForm
{
    /// nameAndVersion: "Vantelos 9.3".
    AboutForm(Outside& formOutside, const std::string& nameAndVersion);
    AboutForm(const AboutForm&) = delete;
    AboutForm& operator=(const AboutForm&) = delete;

    Outside& outside;
    Picture Picture1{{.name = "Picture1", .tip = "The program's name and version"}};
    Button Command1{{.name = "Command1", .caption = "Close", .tip = "Close this form"}};

    Form form{"frmabout", "About Vantelos"};
};
