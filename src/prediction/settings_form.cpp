#include "prediction/settings_form.h"

#include <limits>
#include <utility>
#include <vector>

#include "model/arithmetic.h"
#include "model/text.h"

namespace
{
    /// The number that a field stands for, where it stands for one.
    std::optional<double> numberOf(const FieldValue& field)
    {
        if (const bool* choice = std::get_if<bool>(&field))
            return *choice ? -1 : 0;
        if (const double* number = std::get_if<double>(&field))
            return *number;
        const std::string* text = std::get_if<std::string>(&field);
        if (text && isNumeric(*text))
            return val(*text);
        return {};
    }

    std::string textOf(const FieldValue& field)
    {
        if (const bool* choice = std::get_if<bool>(&field))
            return *choice ? "True" : "False";
        if (const double* number = std::get_if<double>(&field))
            return plainText(*number);
        const std::string* text = std::get_if<std::string>(&field);
        return text ? *text : "";
    }

    bool isEmpty(const FieldValue& field)
    {
        return std::holds_alternative<std::monostate>(field);
    }

    void assign(OptionButton& option, const FieldValue& field)
    {
        const std::optional<double> number = numberOf(field);
        if (isEmpty(field) || number)
            setChosen(option, number.value_or(0) != 0);
    }

    void assign(CheckBox& box, const FieldValue& field)
    {
        const double number = isEmpty(field) ? 0 : roundHalfEven(numberOf(field).value_or(-1));
        if (number == 0 || number == 1)
            setTicked(box, number == 1);
    }

    void assign(ScrollBar& bar, const FieldValue& field)
    {
        const double number = numberOf(field).value_or(std::numeric_limits<double>::lowest());
        const double whole = roundHalfEven(number);
        if (whole >= bar.min && whole <= bar.max)
            setValue(bar, static_cast<long long>(whole));
    }

    void assign(TextBox& box, const FieldValue& field)
    {
        setText(box, textOf(field));
    }

    void assign(std::string& text, const FieldValue& field)
    {
        text = textOf(field);
    }

    void assign(std::optional<double>& number, const FieldValue& field)
    {
        const std::optional<double> value = numberOf(field);
        if (isEmpty(field) || value)
            number = value;
    }

    /// Reads the next field and assigns it; what fails is passed over.
    template <class... Targets>
    void readInto(FieldReader& reader, Targets&... targets)
    {
        const auto one = [&reader](auto& target) {
            const FieldValue& field = reader.next();
            try
            {
                assign(target, field);
            }
            catch (const ArithmeticFault&)
            {
                // the entry's own event could not compute with it; the next field is read all the same
            }
        };
        (one(targets), ...);
    }

    void readRunner(VantstartForm& form, FieldReader& reader)
    {
        readInto(reader, form.optmale, form.optfemale, form.HScroll1, form.txtage, form.wtscrl, form.HScroll2,
                 form.agecomp, form.Option7, form.Option8, form.Option9, form.Option10);
    }

    void readRaces(VantstartForm& form, FieldReader& reader)
    {
        for (RaceControls& race : form.races)
            readInto(reader, race.Check1, race.Text1, race.Text2, race.Text3, race.Text4, race.Option1, race.Option2,
                     race.Option3, race.Option4, race.Option5, race.Option6);
    }

    void readStored(StoredState& stored, FieldReader& reader)
    {
        StoredPlanner& planner = stored.planner;
        readInto(reader, planner.workoutMode);
        reader.next();   // an empty field
        readInto(reader, planner.repvoscrl, planner.recovpace, planner.pctmax, planner.perfadj);
        for (StoredPlanner::Row& row : planner.rows)
            readInto(reader, row.dist, row.num, row.wrp);
        readInto(reader, stored.splits.distanceUnit, stored.splits.method);
        for (StoredSplits::Row& row : stored.splits.rows)
            readInto(reader, row.splitdis, row.splitmin, row.splitsec);
    }

    void write(std::vector<FieldValue>& fields, const OptionButton& option)
    {
        fields.emplace_back(option.chosen);
    }
    void write(std::vector<FieldValue>& fields, const CheckBox& box)
    {
        fields.emplace_back(box.ticked ? 1.0 : 0.0);
    }
    void write(std::vector<FieldValue>& fields, const ScrollBar& bar)
    {
        fields.emplace_back(double(bar.value));
    }
    void write(std::vector<FieldValue>& fields, const TextBox& box)
    {
        fields.emplace_back(box.text);
    }
    void write(std::vector<FieldValue>& fields, const std::string& text)
    {
        fields.emplace_back(text);
    }
    void write(std::vector<FieldValue>& fields, double number)
    {
        fields.emplace_back(number);
    }
    void write(std::vector<FieldValue>& fields, const std::optional<double>& number)
    {
        fields.push_back(number ? FieldValue(*number) : FieldValue());
    }

    template <class... Sources>
    void writeFrom(std::vector<FieldValue>& fields, const Sources&... sources)
    {
        (write(fields, sources), ...);
    }

    /// A blank heart rate, or one that reads as 0, gives way to a usual one.
    void fillHeartRate(TextBox& box, const char* usual)
    {
        double rate = 0;
        try
        {
            rate = val(box.text);
        }
        catch (const ArithmeticFault&)
        {
            rate = 0;   // more digits than a number holds
        }
        if (rate == 0)
            setText(box, usual);
    }
}

void setLoadDefaults(VantstartForm& form)
{
    ModelState& state = form.state;
    resetCurveConstants(state);
    state.flags.graphScale = 4;
    state.flags.unitsMode = 'm';
    state.runner.sex = 'm';
    state.runner.bodyDrag = standardBodyDrag;
    setText(form.txtname, "Joe Runner");
    state.runner.weightKg = standardWeightKg;
    state.runner.heightCm = standardHeightCm;
    setChosen(form.optmale, true);
}

void readSettings(VantstartForm& form, StoredState& stored, std::optional<std::string> bytes)
{
    FieldReader reader(std::move(bytes));
    readRunner(form, reader);
    readRaces(form, reader);
    if (!reader.atEnd())
        readInto(reader, form.actmhrtx, form.resthrtx);
    if (!reader.atEnd())
        readInto(reader, form.htscrl);
    stored = {};
    if (!reader.atEnd())
        readStored(stored, reader);
}

void load(VantstartForm& form, StoredState& stored, std::optional<std::string> bytes)
{
    setLoadDefaults(form);
    readSettings(form, stored, std::move(bytes));
    fillHeartRate(form.actmhrtx, "180");
    fillHeartRate(form.resthrtx, "60");
    form.state.runner.maxHr = val(form.actmhrtx.text);
    form.state.runner.restHr = val(form.resthrtx.text);
    recalculate(form);
}

std::string settingsOf(const VantstartForm& form, const StoredState& stored)
{
    std::vector<FieldValue> fields;
    fields.reserve(static_cast<std::size_t>(settingsFieldCount));
    writeFrom(fields, form.optmale, form.optfemale, form.HScroll1, form.txtage, form.wtscrl, form.HScroll2,
              form.agecomp, form.Option7, form.Option8, form.Option9, form.Option10);
    for (const RaceControls& race : form.races)
        writeFrom(fields, race.Check1, race.Text1, race.Text2, race.Text3, race.Text4, race.Option1, race.Option2,
                  race.Option3, race.Option4, race.Option5, race.Option6);
    writeFrom(fields, form.state.runner.maxHr, form.state.runner.restHr, form.htscrl);

    const StoredPlanner& planner = stored.planner;
    writeFrom(fields, planner.workoutMode, std::optional<double>{}, planner.repvoscrl, planner.recovpace,
              planner.pctmax, planner.perfadj);
    for (const StoredPlanner::Row& row : planner.rows)
        writeFrom(fields, row.dist, row.num, row.wrp);
    writeFrom(fields, stored.splits.distanceUnit, stored.splits.method);
    for (const StoredSplits::Row& row : stored.splits.rows)
        writeFrom(fields, row.splitdis, row.splitmin, row.splitsec);
    return settingsText(fields);
}
