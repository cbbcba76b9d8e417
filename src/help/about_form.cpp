#include "help/about_form.h"

#include "forms/drawing.h"
#include "help/topic_picture_form.h"

namespace
{
    constexpr Point size{5400, 3000};

    void draw(Picture& picture, const std::string& nameAndVersion)
    {
        picture.size = size;
        // a runner's speed against distance, and the races that it is fitted to
        drawCurve(picture, {600, 500}, {4800, 1500});
        const Drawing name{picture, 520};
        name.text({600, 1750}, nameAndVersion);
        const Drawing words{picture, 210, {80, 80, 80}};
        words.text({620, 2450}, "Predicts and analyzes running performance.");
    }
}

AboutForm::AboutForm(Outside& formOutside, const std::string& nameAndVersion) : outside(formOutside)
{
    Picture1.caption = nameAndVersion;
    draw(Picture1, nameAndVersion);
    Command1.clicked = [this] { outside.closeForm(form.name); };
    form.controls = {&Picture1, &Command1};
}
