#include "course/course_file.h"

#include <algorithm>
#include <cmath>

#include "course/course_profile.h"
#include "model/arithmetic.h"
#include "model/text.h"

namespace
{
    constexpr double farthestPoint = 1e9;   // m, from start or sea level
    constexpr const char* lineEnd = "\r\n";

    /// A number as it is printed, in as many digits as it takes.
    std::string printedNumber(double number)
    {
        std::string digits = exactText(std::abs(number));
        if (digits.starts_with("0."))
            digits.erase(0, 1);
        return (number < 0 ? "-" : " ") + digits + " ";
    }

    std::string oneLine(std::string text)
    {
        std::replace_if(
            text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
        return text;
    }

    /// Whether a text begins with a number, as a text of an elevation has to unless it is blank.
    bool beginsWithNumber(std::string_view text)
    {
        const std::size_t digit = text.find_first_of("0123456789");
        return digit != std::string_view::npos && text.substr(0, digit).find_first_not_of(" +-.") == text.npos;
    }

    /// Takes the lines of a file one by one and keeps the first mistake.
    class CourseReader
    {
    public:
        explicit CourseReader(std::string_view bytes) : left(bytes) {}

        std::string text()
        {
            if (left.empty())
                return refuse("the file breaks off");
            const std::size_t end = left.find('\n');
            ended = end != std::string_view::npos;
            std::string_view line = left.substr(0, end);
            left.remove_prefix(ended ? end + 1 : left.size());
            ++number;
            if (line.ends_with('\r'))
            {
                line.remove_suffix(1);
                ended = true;
            }
            return std::string(line);
        }

        /// A text that a number can be read from, or a blank one.
        std::string elevation()
        {
            std::string line = text();
            if (wrong.empty() && line.find_first_not_of(' ') != std::string::npos && !beginsWithNumber(line))
                return refuse("a number is wanted");
            (void)within(line);
            return line;
        }

        /// A text whose number, if it has one, no course exceeds.
        std::string distance()
        {
            std::string line = text();
            (void)within(line);
            return line;
        }

        double value()
        {
            const std::string line = text();
            if (!wrong.empty())
                return 0;
            if (!isNumeric(line))
                refuse("a number is wanted");
            else if (!ended && !line.ends_with(' '))
                refuse("the file breaks off");
            else
                return within(line);
            return 0;
        }

        int count()
        {
            const double read = value();
            if (wrong.empty() && !(read >= 2 && read <= mostCoursePoints && read == std::floor(read)))
                refuse("a course has 2 to 100 points");
            return wrong.empty() ? static_cast<int>(read) : 0;
        }

        [[nodiscard]] const std::string& whatIsWrong() const { return wrong; }

    private:
        double within(const std::string& line)
        {
            try
            {
                if (const double read = val(line); std::abs(read) <= farthestPoint)
                    return read;
            }
            catch (const ArithmeticFault&)   // beyond the range of a double
            {}
            refuse("the number is larger than any course");
            return 0;
        }

        std::string refuse(const std::string& why)
        {
            if (wrong.empty())
                wrong = why + " (line " + std::to_string(std::max(number, 1)) + ")";
            return {};
        }

        std::string_view left;
        bool ended = true;   // whether the line under way has its line end
        int number = 0;
        std::string wrong;
    };
}

std::string bytesOf(const CourseFile& file)
{
    std::string bytes;
    const auto add = [&bytes](const std::string& line) { bytes += line + lineEnd; };
    add(oneLine(file.distance));
    add(printedNumber(file.unitCode));
    for (const std::string* text : {&file.maxElev, &file.minElev, &file.startElev, &file.endElev})
        add(oneLine(*text));
    add(printedNumber(file.elevationCode));
    add(printedNumber(file.paceCode));
    add(printedNumber(file.origElev));
    add(printedNumber(static_cast<double>(file.pointX.size())));
    for (std::size_t i = 0; i < file.pointX.size(); ++i)
    {
        add(printedNumber(file.pointX[i]));
        add(printedNumber(file.pointY[i]));
    }
    return bytes;
}

std::optional<CourseFile> readCourseFile(std::string_view bytes, Messages& said)
{
    if (bytes.size() > longestCourseFile)
    {
        said.push_back({"The course can't be read: the file is larger than any course."});
        return std::nullopt;
    }
    CourseReader reader(bytes);
    CourseFile file;
    file.distance = reader.distance();
    file.unitCode = reader.value();
    for (std::string* text : {&file.maxElev, &file.minElev, &file.startElev, &file.endElev})
        *text = reader.elevation();
    file.elevationCode = reader.value();
    file.paceCode = reader.value();
    file.origElev = reader.value();
    const int count = reader.count();
    for (int i = 0; i < count; ++i)
    {
        file.pointX.push_back(reader.value());
        file.pointY.push_back(reader.value());
    }
    if (reader.whatIsWrong().empty())
        return file;
    said.push_back({"The course can't be read: " + reader.whatIsWrong() + "."});
    return std::nullopt;
}

CourseFile courseFileOf(const CourseEntries& entries, const Course& course)
{
    CourseFile file;
    file.distance = entries.distance;
    file.unitCode = static_cast<double>(entries.unit);
    file.maxElev = entries.maxElev;
    file.minElev = entries.minElev;
    file.startElev = entries.startElev;
    file.endElev = entries.endElev;
    file.elevationCode = entries.feet ? 1 : 2;
    file.paceCode = entries.perKilometer ? 2 : 1;
    file.origElev = entries.origElev;
    file.pointX.assign(course.pointX.begin(), course.pointX.begin() + course.pointCount);
    file.pointY.assign(course.pointY.begin(), course.pointY.begin() + course.pointCount);
    return file;
}

CourseEntries entriesOf(const CourseFile& file, const CourseEntries& before)
{
    CourseEntries entries = before;
    entries.distance = file.distance;
    for (int code = 1; code <= static_cast<int>(CourseUnit::halfMarathon); ++code)
        if (file.unitCode == code)
            entries.unit = static_cast<CourseUnit>(code);
    entries.maxElev = file.maxElev;
    entries.minElev = file.minElev;
    entries.startElev = file.startElev;
    entries.endElev = file.endElev;
    if (file.elevationCode == 1 || file.elevationCode == 2)
        entries.feet = file.elevationCode == 1;
    if (file.paceCode == 1 || file.paceCode == 2)
        entries.perKilometer = file.paceCode == 2;
    entries.origElev =
        static_cast<int>(std::clamp<double>(roundHalfEven(file.origElev), lowestOrigElev, highestOrigElev));
    return entries;
}

void takePoints(const CourseFile& file, Course& course)
{
    clearCoursePlaces(course);
    std::copy(file.pointX.begin(), file.pointX.end(), course.pointX.begin());
    std::copy(file.pointY.begin(), file.pointY.end(), course.pointY.begin());
    course.pointCount = static_cast<int>(file.pointX.size());
}
