#include "datafiles/personal_commands_form.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "datafiles/personal_file.h"
#include "datafiles/race_commands_form.h"
#include "forms/files.h"
#include "forms/on_leaving.h"
#include "model/text.h"

namespace
{
    constexpr const char* ending = ".vtd";

    PersonalData dataOf(const VantstartForm& main)
    {
        return {main.txtname.text,     main.txtage.text,   main.wtscrl.value,  main.htscrl.value,  main.optmale.chosen,
                main.optfemale.chosen, main.actmhrtx.text, main.resthrtx.text, main.HScroll1.value};
    }

    void give(TextBox& box, const std::string& field)
    {
        setText(box, field);
    }
    void give(ScrollBar& bar, const std::string& field)
    {
        setValue(bar, scrollValueOf(field, bar.min, bar.max));
    }
    void give(OptionButton& option, const std::string& field)
    {
        setChosen(option, truthOf(field));
    }

    using PersonalControl = std::variant<TextBox*, ScrollBar*, OptionButton*>;

    /// The main form's controls in the order of the file.
    std::array<PersonalControl, static_cast<std::size_t>(personalFields)> controlsOf(VantstartForm& main)
    {
        return {&main.txtname,   &main.txtage,   &main.wtscrl,   &main.htscrl,  &main.optmale,
                &main.optfemale, &main.actmhrtx, &main.resthrtx, &main.HScroll1};
    }
}

void saveNewPersonalData(FileaccForm& form)
{
    closeRaceFile(form);
    if (form.Text6.text.empty())
    {
        form.outside.said.push_back({"You must specify a file name in the box to create a new file."});
        return;
    }
    std::string name = form.Text6.text;
    if (!name.ends_with(ending))
        name += ending;
    const std::filesystem::path path = pathOf(form, name);
    if (const std::optional<std::string> failure = replaceFile(path, bytesOf(dataOf(form.vantstart))))
    {
        form.outside.said.push_back(
            {"The personal data could not be saved to " + path.string() + ": " + *failure + ".", "Data not saved"});
        return;
    }
    form.outside.said.push_back(
        {"Personal (non-race) data for " + form.vantstart.txtname.text + " now saved as " + name + "."});
    listFiles(form);
}

void readPersonalData(FileaccForm& form)
{
    closeRaceFile(form);
    if (form.Text6.text.empty())
    {
        form.outside.said.push_back({"Please select a file."});
        return;
    }
    const std::filesystem::path path = pathOf(form, form.Text6.text);
    const std::optional<std::string> bytes = readFile(path, personalFileLimit);
    if (!bytes)
    {
        form.outside.said.push_back({"The personal data file " + path.string() +
                                         " can't be opened: " + whyUnread(path).value_or("It can't be read") + ".",
                                     "File not opened"});
        return;
    }
    if (bytes->empty())
    {
        form.outside.said.push_back(
            {"The personal data file " + path.string() + " is empty. The main form stays as it is."});
        return;
    }
    const std::vector<std::string> fields = personalFieldsOf(*bytes);
    const auto controls = controlsOf(form.vantstart);
    for (std::size_t i = 0; i < fields.size(); ++i)
    {
        const std::string reading = "reading line " + std::to_string(i + 1) + " of the personal data file";
        form.state.activity = reading;
        const OnLeaving tellTheLine([&] { form.state.activity = reading; });   // where a change of the main form stops
        std::visit([&](auto* control) { give(*control, fields[i]); }, controls[i]);
    }
    if (fields.size() < controls.size())
        form.outside.said.push_back({"The personal data file " + path.string() + " ends after " +
                                     std::to_string(fields.size()) +
                                     " of its 9 values; these are now on the main form."});
    else
        form.outside.said.push_back(
            {"Personal (non-race) data for " + form.vantstart.txtname.text + " now listed on main form."});
}
