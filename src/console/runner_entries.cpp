#include "console/runner_entries.h"

#include <algorithm>
#include <utility>

#include "console/words.h"
#include "model/arithmetic.h"
#include "model/text.h"

namespace
{
    using Wrong = std::optional<std::string>;

    constexpr double mostMiles = 150;
    constexpr double mostPercent = 110;

    std::string joined(const std::vector<std::string_view>& words)
    {
        std::string text;
        for (const std::string_view word : words)
            text += (text.empty() ? "" : " ") + std::string(word);
        return text;
    }

    Wrong setRace(RunnerEntries& entries, std::string_view text)
    {
        if (entries.races.size() >= maxRaces)
            return inQuotes(text) + " is one race too many: five can be entered";
        std::string wrong;
        const auto row = readRace(text, wrong);
        if (!row)
            return "in " + inQuotes(text) + ", " + wrong;
        entries.races.push_back({joined(wordsOf(text)), *row});
        return std::nullopt;
    }

    Wrong setDistance(RunnerEntries& entries, std::string_view text)
    {
        std::string wrong;
        const auto distance = readDistance(text, wrong);
        if (!distance)
            return "in " + inQuotes(text) + ", " + wrong;
        entries.distances.push_back({joined(wordsOf(text)), *distance});
        return std::nullopt;
    }

    Wrong setAge(RunnerEntries& entries, std::string_view text)
    {
        entries.age = text;
        return std::nullopt;
    }

    Wrong setName(RunnerEntries& entries, std::string_view text)
    {
        entries.name = text;
        return std::nullopt;
    }

    Wrong setSex(RunnerEntries& entries, std::string_view text)
    {
        const std::string sex = lowerCase(trimmed(text));
        if (sex != "m" && sex != "f")
            return inQuotes(text) + " is neither m nor f";
        entries.sex = sex.front();
        return std::nullopt;
    }

    Wrong setMiles(RunnerEntries& entries, std::string_view text)
    {
        const auto miles = numberOf(text);
        if (!miles || *miles < 0 || *miles > mostMiles || *miles != roundHalfEven(*miles))
            return inQuotes(text) + " is not a whole number from 0 to 150";
        entries.miles = static_cast<int>(*miles);
        return std::nullopt;
    }

    Wrong setLevel(RunnerEntries& entries, std::string_view text)
    {
        const auto percent = numberOf(text);
        if (!percent || *percent < 0 || *percent > mostPercent)
            return inQuotes(text) + " is not a number from 0 to 110";
        entries.level = static_cast<int>(roundHalfEven(10 * *percent));
        return std::nullopt;
    }

    template <std::optional<double> RunnerEntries::*member>
    Wrong setPositive(RunnerEntries& entries, std::string_view text)
    {
        const auto number = numberOf(text);
        if (!number || *number <= 0)
            return inQuotes(text) + " is not a number above 0";
        entries.*member = *number;
        return std::nullopt;
    }

    std::optional<bool> yesOrNo(std::string_view text)
    {
        const std::string word = lowerCase(trimmed(text));
        for (const char* yes : {"yes", "y", "true", "1"})
            if (word == yes)
                return true;
        for (const char* no : {"no", "n", "false", "0"})
            if (word == no)
                return false;
        return std::nullopt;
    }

    template <std::optional<bool> RunnerEntries::*member>
    Wrong setYesNo(RunnerEntries& entries, std::string_view text)
    {
        const auto answer = yesOrNo(text);
        if (!answer)
            return inQuotes(text) + " is neither yes nor no";
        entries.*member = *answer;
        return std::nullopt;
    }

    template <class T>
    void replaceBy(std::optional<T>& lower, const std::optional<T>& upper)
    {
        if (upper)
            lower = upper;
    }

    template <class T>
    void replaceBy(std::vector<T>& lower, const std::vector<T>& upper)
    {
        if (!upper.empty())
            lower = upper;
    }
}

const std::array<EntryName, entryNameCount> entryNames{{
    {"race", EntryKind::text, true, "RACE",
     "A race: number, unit (mi yd km m) and time, or marathon or half and time; up to five", setRace},
    {"age", EntryKind::numberOrText, false, "YEARS", "The runner's age, fractions allowed", setAge},
    {"sex", EntryKind::text, false, "m|f", "m (the default) or f", setSex},
    {"miles", EntryKind::number, false, "MILES", "Miles run in a usual week, 0 to 150; 20 unless given", setMiles},
    {"name", EntryKind::text, false, "NAME", "The runner's name, for reports; Joe Runner unless given", setName},
    {"max-hr", EntryKind::number, false, "BEATS", "Maximum heart rate, for the training analysis; 180 unless given",
     setPositive<&RunnerEntries::maxHr>},
    {"rest-hr", EntryKind::number, false, "BEATS", "Resting heart rate, for the training analysis; 60 unless given",
     setPositive<&RunnerEntries::restHr>},
    {"kg-weight", EntryKind::number, false, "KG", "Weight in kilograms; 72.7 unless given",
     setPositive<&RunnerEntries::kgWeight>},
    {"cm-height", EntryKind::number, false, "CM", "Height in centimeters; 178 unless given",
     setPositive<&RunnerEntries::cmHeight>},
    {"best-two", EntryKind::yesNo, false, "", "Fit the best two races instead of using all data",
     setYesNo<&RunnerEntries::bestTwo>},
    {"english", EntryKind::yesNo, false, "", "The table from 440 yards to the marathon",
     setYesNo<&RunnerEntries::english>},
    {"all-distances", EntryKind::yesNo, false, "", "The rows of the metric and the English table, by distance",
     setYesNo<&RunnerEntries::allDistances>},
    {"level", EntryKind::number, false, "PERCENT", "Level of the Record column, 0 to 110 in tenths; 100 unless given",
     setLevel},
    {"age-compare", EntryKind::yesNo, false, "", "Compare with records of the runner's age",
     setYesNo<&RunnerEntries::ageCompare>},
    {"distance", EntryKind::text, true, "DISTANCE", "One more distance for the table, such as \"15 km\" or half",
     setDistance},
}};

std::optional<std::string> setEntry(RunnerEntries& entries, std::string_view key, std::string_view text)
{
    const auto* const name = std::ranges::find(entryNames, key, &EntryName::key);
    return name == entryNames.end() ? inQuotes(key) + " is not known" : name->set(entries, text);
}

std::optional<std::string> contradictionIn(const RunnerEntries& entries)
{
    if (entries.english.value_or(false) && entries.allDistances.value_or(false))
        return "english and all-distances exclude each other";
    return std::nullopt;
}

RunnerEntries overlaid(const RunnerEntries& lower, const RunnerEntries& upper)
{
    RunnerEntries both = lower;
    if (upper.english.value_or(false))
        both.allDistances = false;
    if (upper.allDistances.value_or(false))
        both.english = false;
    replaceBy(both.races, upper.races);
    replaceBy(both.age, upper.age);
    replaceBy(both.sex, upper.sex);
    replaceBy(both.miles, upper.miles);
    replaceBy(both.name, upper.name);
    replaceBy(both.maxHr, upper.maxHr);
    replaceBy(both.restHr, upper.restHr);
    replaceBy(both.kgWeight, upper.kgWeight);
    replaceBy(both.cmHeight, upper.cmHeight);
    replaceBy(both.bestTwo, upper.bestTwo);
    replaceBy(both.english, upper.english);
    replaceBy(both.allDistances, upper.allDistances);
    replaceBy(both.level, upper.level);
    replaceBy(both.ageCompare, upper.ageCompare);
    replaceBy(both.distances, upper.distances);
    return both;
}

CalculationInput inputOf(const RunnerEntries& entries)
{
    CalculationInput input;
    for (std::size_t i = 0; i < std::min(entries.races.size(), input.rows.size()); ++i)
        input.rows[i] = entries.races[i].row;
    input.age = entries.age.value_or("");
    input.weeklyMiles = entries.miles.value_or(input.weeklyMiles);
    input.sex = entries.sex.value_or('m') == 'f' ? SexChoice::female : SexChoice::male;
    input.fit = entries.bestTwo.value_or(false) ? FitMode::bestTwo : FitMode::allData;
    input.output = entries.english.value_or(false) ? OutputMode::english : OutputMode::metric;
    input.comparisonLevel = entries.level.value_or(fullComparisonLevel);
    return input;
}

void describeRunner(ModelState& state, const RunnerEntries& entries)
{
    Runner& runner = state.runner;
    const std::string age = entries.age.value_or("");
    state.activity = "reading the age";
    if (isNumeric(age))
        runner.ageDistanceTerm = ageDistanceTermOf(val(age));   // which only a one-race fit works out by itself
    state.activity = "taking in the runner's weight and height";
    runner.runnerName = entries.name.value_or(runner.runnerName);
    runner.maxHr = entries.maxHr.value_or(standardMaxHr);
    runner.restHr = entries.restHr.value_or(standardRestHr);
    runner.weightKg = entries.kgWeight.value_or(standardWeightKg);
    runner.heightCm = entries.cmHeight.value_or(standardHeightCm);
    runner.bodyDrag = bodyDragOf(runner.weightKg, runner.heightCm);
    state.flags.agecomp = entries.ageCompare.value_or(false) ? 1 : 0;
}
