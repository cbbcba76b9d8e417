#include "console/race_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "console/words.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    struct UnitWord
    {
        std::string_view word;
        RaceUnit unit;
        double metres;
        const char* label;   // of the whole distance, where the unit takes no number
    };

    constexpr std::array<UnitWord, 6> unitWords{{
        {"mi", RaceUnit::miles, metresPerMile, nullptr},
        {"yd", RaceUnit::yards, metresPerYard, nullptr},
        {"km", RaceUnit::kilometers, metresPerKilometre, nullptr},
        {"m", RaceUnit::meters, 1, nullptr},
        {"marathon", RaceUnit::marathon, marathonMetres, "  marathon  "},
        {"half", RaceUnit::halfMarathon, halfMarathonMetres, " half mara. "},
    }};

    constexpr std::string_view howUnitsAreWritten = " is not a unit (mi, yd, km, m, marathon or half)";
    constexpr std::string_view howTimesAreWritten = " is not a time (s, m:s or h:m:s, below 60 behind a colon)";

    using Words = std::vector<std::string_view>;

    /// How far, as the first words of a text say it.
    struct Stretch
    {
        std::string number;   // empty for a marathon or half marathon
        UnitWord unit;
    };

    const UnitWord* unitOf(std::string_view word)
    {
        const auto* const unit = std::ranges::find(unitWords, lowerCase(word), &UnitWord::word);
        return unit == unitWords.end() ? nullptr : unit;
    }

    bool isWholeDistance(const UnitWord* unit)
    {
        return unit != nullptr && unit->label != nullptr;
    }

    /// Takes the words of a stretch off the front of `words`.
    std::optional<Stretch> takeStretch(Words& words, std::string& wrong)
    {
        if (words.empty())
        {
            wrong = "the distance is missing";
            return std::nullopt;
        }
        if (const UnitWord* unit = unitOf(words[0]); isWholeDistance(unit))
        {
            words.erase(words.begin());
            return Stretch{"", *unit};
        }
        if (!isNumeric(words[0]))
        {
            wrong = inQuotes(words[0]) + " is not a number, nor marathon or half";
            return std::nullopt;
        }
        if (words.size() < 2)
        {
            wrong = "the unit behind " + inQuotes(words[0]) + " is missing";
            return std::nullopt;
        }
        const UnitWord* unit = unitOf(words[1]);
        if (unit == nullptr)
        {
            wrong = inQuotes(words[1]) + std::string(howUnitsAreWritten);
            return std::nullopt;
        }
        if (isWholeDistance(unit))
        {
            wrong = inQuotes(words[0]) + " is one word too many: " + std::string(unit->word) + " takes no number";
            return std::nullopt;
        }
        Stretch stretch{std::string(words[0]), *unit};
        words.erase(words.begin(), words.begin() + 2);
        return stretch;
    }

    bool areDigits(std::string_view text)
    {
        return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
    }

    bool areSeconds(std::string_view text)
    {
        const std::size_t point = text.find('.');
        return areDigits(text.substr(0, point)) &&
               (point == std::string_view::npos || areDigits(text.substr(point + 1)));
    }

    std::vector<std::string_view> partsOf(std::string_view time)
    {
        std::vector<std::string_view> parts;
        for (std::size_t colon = time.find(':'); colon != std::string_view::npos; colon = time.find(':'))
        {
            parts.push_back(time.substr(0, colon));
            time.remove_prefix(colon + 1);
        }
        parts.push_back(time);
        return parts;
    }

    bool isTime(const std::vector<std::string_view>& parts)
    {
        if (parts.size() > 3 || !areSeconds(parts.back()))
            return false;
        if (!std::all_of(parts.begin(), parts.end() - 1, areDigits))
            return false;
        const auto below60 = [](std::string_view part) { return numberOf(part).value_or(60) < 60; };
        return std::all_of(parts.begin() + 1, parts.end(), below60);
    }

    /// Fills in hours, minutes and seconds. Returns whether the word is a time.
    bool readTime(std::string_view word, RaceRow& row)
    {
        const std::vector<std::string_view> parts = partsOf(word);
        if (!isTime(parts))
            return false;
        const std::size_t count = parts.size();
        row.seconds = parts[count - 1];
        row.minutes = count > 1 ? parts[count - 2] : "";
        row.hours = count > 2 ? parts[count - 3] : "";
        return true;
    }

    std::string labelOf(double number, std::string_view unit)
    {
        constexpr std::size_t numberColumns = 8;
        const std::string digits = plainText(number);
        const std::string blanks(numberColumns - std::min(digits.size(), numberColumns), ' ');
        return blanks + digits + " " + std::string(unit) + " ";
    }
}

std::optional<RaceRow> readRace(std::string_view text, std::string& wrong)
{
    Words words = wordsOf(text);
    const auto stretch = takeStretch(words, wrong);
    if (!stretch)
        return std::nullopt;
    RaceRow row;
    row.use = true;
    row.number = stretch->number;
    row.unit = stretch->unit.unit;
    if (words.empty())
        wrong = "the time is missing";
    else if (!readTime(words[0], row))
        wrong = inQuotes(words[0]) + std::string(howTimesAreWritten);
    else if (words.size() > 1)
        wrong = inQuotes(words[1]) + " is one word too many";
    else
        return row;
    return std::nullopt;
}

std::optional<NamedDistance> readDistance(std::string_view text, std::string& wrong)
{
    Words words = wordsOf(text);
    const auto stretch = takeStretch(words, wrong);
    if (!stretch)
        return std::nullopt;
    if (!words.empty())
    {
        wrong = inQuotes(words[0]) + " is one word too many";
        return std::nullopt;
    }
    if (isWholeDistance(&stretch->unit))
        return NamedDistance{stretch->unit.label, stretch->unit.metres};
    const double number = numberOf(stretch->number).value_or(0);
    const double metres = number * stretch->unit.metres;
    if (metres <= 0 || !std::isfinite(metres))
    {
        wrong = inQuotes(stretch->number) + " is no number above 0 that a distance can have";
        return std::nullopt;
    }
    return NamedDistance{labelOf(number, stretch->unit.word), metres};
}
