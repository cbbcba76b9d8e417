#include "prediction/settings_file.h"

#include <algorithm>

#include "model/arithmetic.h"
#include "model/text.h"

namespace
{
    std::string_view trimmed(std::string_view line)
    {
        const std::size_t from = line.find_first_not_of(' ');
        if (from == std::string_view::npos)
            return {};
        return line.substr(from, line.find_last_not_of(' ') - from + 1);
    }

    bool holds(const std::optional<double>& choice, double from, double to)
    {
        return choice && *choice >= from && *choice <= to && *choice == roundHalfEven(*choice);
    }
}

const FieldValue& FieldReader::next()
{
    if (!file || atEnd())
        return variable;
    const std::size_t end = std::min(file->find('\n', position), file->size());
    std::string_view line(file->data() + position, end - position);
    position = std::min(end + 1, file->size());
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    try
    {
        variable = fieldOfLine(line);
    }
    catch (const ArithmeticFault&)
    {
        // a number that can't be held fails to be read, like a line that isn't there
    }
    return variable;
}

FieldValue fieldOfLine(std::string_view line)
{
    const std::size_t quote = line.find('"');
    if (quote != std::string_view::npos)
    {
        const std::size_t last = line.rfind('"');
        const std::size_t length = last > quote ? last - quote - 1 : std::string_view::npos;
        return std::string(line.substr(quote + 1, length));
    }
    line = trimmed(line);
    if (line.empty())
        return std::monostate{};
    if (line == "#TRUE#" || line == "#FALSE#")
        return line == "#TRUE#";
    if (isNumeric(line))
        return val(line);
    return std::string(line);
}

std::string lineOfField(const FieldValue& field)
{
    if (const bool* choice = std::get_if<bool>(&field))
        return *choice ? "#TRUE#" : "#FALSE#";
    if (const double* number = std::get_if<double>(&field))
        return exactText(*number);
    if (const std::string* text = std::get_if<std::string>(&field))
    {
        std::string line = *text;
        std::replace_if(
            line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
        return '"' + line + '"';
    }
    return {};
}

std::string settingsText(const std::vector<FieldValue>& fields)
{
    std::string text;
    for (const FieldValue& field : fields)
        text += lineOfField(field) + "\r\n";
    return text;
}

bool isPresent(const StoredPlanner& planner)
{
    return holds(planner.workoutMode, 1, 2);
}

bool isPresent(const StoredSplits& splits)
{
    return holds(splits.distanceUnit, 1, 3) && holds(splits.method, 1, 3);
}
