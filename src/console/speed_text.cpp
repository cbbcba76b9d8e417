#include "console/speed_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "console/race_text.h"
#include "console/words.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    struct SpeedUnit
    {
        std::string_view word;
        double metresPerSecond;
    };

    constexpr std::array<SpeedUnit, 5> speedUnits{{{"mph", metresPerMile / secondsPerHour},
                                                   {"mi/h", metresPerMile / secondsPerHour},
                                                   {"km/h", metresPerKilometre / secondsPerHour},
                                                   {"kph", metresPerKilometre / secondsPerHour},
                                                   {"m/s", 1}}};

    constexpr std::string_view howSpeedsAreWritten = " is not a speed (a number above 0 and mph, km/h or m/s)";
    constexpr std::string_view howPacesAreWritten = " is not a pace (a time above 0, such as 6:40, and /mi or /km)";
    constexpr std::string_view howGradesAreWritten = " is not a grade (3% or 0.03)";

    std::optional<double> refused(std::string_view text, std::string_view why, std::string& wrong)
    {
        wrong = inQuotes(text) + std::string(why);
        return std::nullopt;
    }

    /// Seconds of a time as a race has it; nothing for a text that is none.
    std::optional<double> secondsOf(std::string_view time)
    {
        std::string ignored;
        const std::optional<RaceRow> row = readRace("1 km " + std::string(time), ignored);
        if (!row)
            return std::nullopt;
        return numberOf(row->hours).value_or(0) * secondsPerHour + numberOf(row->minutes).value_or(0) * 60 +
               numberOf(row->seconds).value_or(0);
    }

    bool isSpeed(double speed)
    {
        return speed > 0 && std::isfinite(speed);
    }
}

std::optional<double> readSpeed(std::string_view text, std::string& wrong)
{
    const std::string lower = lowerCase(trimmed(text));
    for (const SpeedUnit& unit : speedUnits)
    {
        if (!lower.ends_with(unit.word))
            continue;
        const std::optional<double> number =
            numberOf(std::string_view(lower).substr(0, lower.size() - unit.word.size()));
        if (number && isSpeed(*number * unit.metresPerSecond))
            return *number * unit.metresPerSecond;
    }
    return refused(text, howSpeedsAreWritten, wrong);
}

std::optional<double> readPace(std::string_view text, std::string& wrong)
{
    const std::string lower = lowerCase(trimmed(text));
    const std::size_t slash = std::min(lower.find('/'), lower.size());
    const std::string_view unit = trimmed(std::string_view(lower).substr(std::min(slash + 1, lower.size())));
    const std::optional<double> seconds = secondsOf(trimmed(std::string_view(lower).substr(0, slash)));
    if (seconds && *seconds > 0 && (unit == "mi" || unit == "km"))
    {
        const double speed = (unit == "mi" ? metresPerMile : metresPerKilometre) / *seconds;
        if (isSpeed(speed))
            return speed;
    }
    return refused(text, howPacesAreWritten, wrong);
}

std::optional<double> readGrade(std::string_view text, std::string& wrong)
{
    std::string_view number = trimmed(text);
    const bool percent = number.ends_with('%');
    if (percent)
        number.remove_suffix(1);
    if (const std::optional<double> grade = numberOf(number))
        return percent ? *grade / 100 : *grade;
    return refused(text, howGradesAreWritten, wrong);
}

std::string speedColumns(double speed)
{
    const double perMile = quotient(metresPerMile, speed);
    const double perKilometre = quotient(metresPerKilometre, speed);
    const double mph = speed * secondsPerHour / metresPerMile;
    return formatNumber(mph, 7, 2) + formatNumber(speed * 3.6, 8, 2) + formatTime(double(perMile)) + " " +
           formatTime(double(perKilometre));
}
