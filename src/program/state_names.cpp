#include "program/state_names.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "model/arithmetic.h"
#include "model/text.h"

namespace
{
    template <class Record>
    StateName number(std::string_view name, Record ModelState::*record, double Record::*member)
    {
        return {name, [=](const ModelState& state) -> StateValue { return state.*record.*member; },
                [=](ModelState& state, std::string_view text) {
                    if (!isNumeric(text))
                        return false;
                    state.*record.*member = val(text);
                    return true;
                }};
    }

    template <class Record>
    StateName whole(std::string_view name, Record ModelState::*record, int Record::*member)
    {
        return {name, [=](const ModelState& state) -> StateValue { return state.*record.*member; },
                [=](ModelState& state, std::string_view text) {
                    if (!isNumeric(text))
                        return false;
                    const double value = val(text);
                    if (value != roundHalfEven(value) || std::abs(value) > std::numeric_limits<int>::max())
                        return false;
                    state.*record.*member = static_cast<int>(value);
                    return true;
                }};
    }

    template <class Record>
    StateName letter(std::string_view name, Record ModelState::*record, char Record::*member, std::string_view letters)
    {
        return {name, [=](const ModelState& state) -> StateValue { return std::string(1, state.*record.*member); },
                [=](ModelState& state, std::string_view text) {
                    if (text.size() != 1 || letters.find(text) == std::string_view::npos)
                        return false;
                    state.*record.*member = text.front();
                    return true;
                }};
    }

    StateName text(std::string_view name, std::string Runner::*member)
    {
        return {name, [=](const ModelState& state) -> StateValue { return state.runner.*member; },
                [=](ModelState& state, std::string_view value) {
                    state.runner.*member = value;
                    return true;
                }};
    }

    template <int N>
    std::vector<double> firstOf(const OneBased<double, N>& numbers, int count)
    {
        const auto end = numbers.items.begin() + std::clamp(count, 0, N);
        return {numbers.items.begin(), end};
    }

    StateName races(std::string_view name, OneBased<double, maxRaces> Races::*member, int Races::*count)
    {
        return {name,
                [=](const ModelState& state) -> StateValue { return firstOf(state.races.*member, state.races.*count); },
                {}};
    }

    std::vector<StateName> runnerNames()
    {
        return {text("runnerName", &Runner::runnerName),
                number("age", &ModelState::runner, &Runner::age),
                letter("sex", &ModelState::runner, &Runner::sex, "mf"),
                number("weeklyMiles", &ModelState::runner, &Runner::weeklyMiles),
                number("weightKg", &ModelState::runner, &Runner::weightKg),
                number("heightCm", &ModelState::runner, &Runner::heightCm),
                number("bodyDrag", &ModelState::runner, &Runner::bodyDrag),
                number("maxHr", &ModelState::runner, &Runner::maxHr),
                number("restHr", &ModelState::runner, &Runner::restHr),
                number("ageDistanceTerm", &ModelState::runner, &Runner::ageDistanceTerm)};
    }

    std::vector<StateName> raceNames()
    {
        return {whole("rowsUsed", &ModelState::races, &Races::rowsUsed),
                whole("raceCount", &ModelState::races, &Races::raceCount),
                races("rowTime", &Races::rowTime, &Races::rowsUsed),
                races("rowDist", &Races::rowDist, &Races::rowsUsed),
                races("entryTime", &Races::entryTime, &Races::raceCount),
                races("entryDist", &Races::entryDist, &Races::raceCount),
                races("fitTime", &Races::fitTime, &Races::raceCount),
                {"unitFactor",
                 [](const ModelState& state) -> StateValue {
                     return std::vector<double>(state.races.unitFactor.begin(), state.races.unitFactor.end());
                 },
                 {}}};
    }

    std::vector<StateName> curveNames()
    {
        return {number("aerobicPower", &ModelState::curve, &Curve::aerobicPower),
                number("anaerobicEnergy", &ModelState::curve, &Curve::anaerobicEnergy),
                number("refDistance", &ModelState::curve, &Curve::refDistance),
                number("fatigueCoef", &ModelState::curve, &Curve::fatigueCoef),
                number("startDelay", &ModelState::curve, &Curve::startDelay),
                number("anaerobicExp", &ModelState::curve, &Curve::anaerobicExp),
                number("humpCentre", &ModelState::curve, &Curve::humpCentre),
                number("humpDepth", &ModelState::curve, &Curve::humpDepth),
                number("humpWidth", &ModelState::curve, &Curve::humpWidth),
                number("piValue", &ModelState::curve, &Curve::piValue)};
    }

    std::vector<StateName> resultNames()
    {
        return {number("speedRatio", &ModelState::results, &Results::speedRatio),
                number("speedRatioAdj", &ModelState::results, &Results::speedRatioAdj),
                number("time800", &ModelState::results, &Results::time800),
                number("time5000", &ModelState::results, &Results::time5000),
                number("level", &ModelState::results, &Results::level),
                number("level5000", &ModelState::results, &Results::level5000),
                number("levelIndex", &ModelState::results, &Results::levelIndex),
                number("levelIndexFromLevel", &ModelState::results, &Results::levelIndexFromLevel),
                number("curDistance", &ModelState::results, &Results::curDistance)};
    }

    std::vector<StateName> flagNames()
    {
        return {whole("tableMode", &ModelState::flags, &Flags::tableMode),
                whole("warnedExtrapolation", &ModelState::flags, &Flags::warnedExtrapolation),
                whole("warnedProfile", &ModelState::flags, &Flags::warnedProfile),
                whole("ageCompareOn", &ModelState::flags, &Flags::ageCompareOn),
                whole("ageCompareForced", &ModelState::flags, &Flags::ageCompareForced),
                whole("ageCompareLocal", &ModelState::flags, &Flags::ageCompareLocal),
                whole("agecomp", &ModelState::flags, &Flags::agecomp),
                whole("oplev", &ModelState::flags, &Flags::oplev),
                whole("calculatedOnce", &ModelState::flags, &Flags::calculatedOnce),
                whole("reportToFile", &ModelState::flags, &Flags::reportToFile),
                whole("graphScale", &ModelState::flags, &Flags::graphScale),
                letter("unitsMode", &ModelState::flags, &Flags::unitsMode, "me")};
    }

    std::vector<StateName> slopeNames()
    {
        return {whole("indoorMode", &ModelState::incline, &Incline::indoorMode),
                number("windSpeed", &ModelState::incline, &Incline::windSpeed),
                whole("slopeDirection", &ModelState::incline, &Incline::slopeDirection),
                whole("zeroPowerFlag", &ModelState::incline, &Incline::zeroPowerFlag),
                number("curSpeed", &ModelState::slopeTools, &SlopeTools::curSpeed),
                number("slopeValue", &ModelState::slopeTools, &SlopeTools::slopeValue),
                whole("tmillMode", &ModelState::slopeTools, &SlopeTools::tmillMode),
                whole("tmillDisplay", &ModelState::slopeTools, &SlopeTools::tmillDisplay),
                whole("hillScale", &ModelState::slopeTools, &SlopeTools::hillScale),
                whole("gradeDefinition", &ModelState::slopeTools, &SlopeTools::gradeDefinition),
                {"analysisMode", [](const ModelState& state) -> StateValue { return state.special.analysisMode; }, {}},
                number("slope", &ModelState::special, &Special::slope),
                number("windBase", &ModelState::special, &Special::windBase),
                number("evenPace", &ModelState::special, &Special::evenPace),
                number("fastHalfPace", &ModelState::special, &Special::fastHalfPace),
                number("aerobicHalfPace", &ModelState::special, &Special::aerobicHalfPace),
                number("pacingCentre", &ModelState::special, &Special::pacingCentre),
                number("pacingArea", &ModelState::special, &Special::pacingArea),
                number("paceDivisor", &ModelState::special, &Special::paceDivisor)};
    }

    std::vector<StateName> trainingNames()
    {
        return {number("aerobicTrainSpeed", &ModelState::training, &Training::aerobicTrainSpeed),
                number("thresholdSpeed", &ModelState::training, &Training::thresholdSpeed),
                number("vo2maxSpeed", &ModelState::training, &Training::vo2maxSpeed),
                number("vo2maxSpeedTop", &ModelState::training, &Training::vo2maxSpeedTop),
                number("intervalSpeed", &ModelState::training, &Training::intervalSpeed),
                number("vo2max", &ModelState::training, &Training::vo2max),
                number("repSlowTime", &ModelState::training, &Training::repSlowTime),
                number("repFastTime", &ModelState::training, &Training::repFastTime),
                number("repSlowSpeed", &ModelState::training, &Training::repSlowSpeed),
                number("repFastSpeed", &ModelState::training, &Training::repFastSpeed),
                number("time10k", &ModelState::training, &Training::time10k),
                number("peakSeed", &ModelState::training, &Training::peakSeed),
                number("aerobicHr", &ModelState::training, &Training::aerobicHr),
                number("aerobicHrLow", &ModelState::training, &Training::aerobicHrLow),
                number("aerobicHrHigh", &ModelState::training, &Training::aerobicHrHigh),
                number("thresholdHr", &ModelState::training, &Training::thresholdHr),
                number("thresholdHrLow", &ModelState::training, &Training::thresholdHrLow),
                number("thresholdHrHigh", &ModelState::training, &Training::thresholdHrHigh),
                number("aerobicSpeedLow", &ModelState::training, &Training::aerobicSpeedLow),
                number("aerobicSpeedHigh", &ModelState::training, &Training::aerobicSpeedHigh),
                number("thresholdSpeedLow", &ModelState::training, &Training::thresholdSpeedLow),
                number("thresholdSpeedHigh", &ModelState::training, &Training::thresholdSpeedHigh)};
    }

    template <std::size_t N>
    StateName places(std::string_view name, std::array<double, N> Course::*member)
    {
        return {name,
                [=](const ModelState& state) -> StateValue {
                    const auto& all = state.course.*member;
                    return std::vector<double>(all.begin(), all.end());
                },
                {}};
    }

    /// The points in use.
    StateName points(std::string_view name, std::array<double, std::size_t(mostCoursePoints)> Course::*member)
    {
        return {name,
                [=](const ModelState& state) -> StateValue {
                    const auto begin = (state.course.*member).begin();
                    return std::vector<double>(begin, begin + std::clamp(state.course.pointCount, 0, mostCoursePoints));
                },
                {}};
    }

    StateName marks(std::string_view name, OneBased<double, courseMarks> CourseMarks::*member)
    {
        return {name,
                [=](const ModelState& state) -> StateValue { return firstOf(state.course.marks.*member, courseMarks); },
                {}};
    }

    std::vector<StateName> courseNames()
    {
        return {number("courseDist", &ModelState::course, &Course::courseDist),
                number("maxElev", &ModelState::course, &Course::maxElev),
                number("minElev", &ModelState::course, &Course::minElev),
                number("startElev", &ModelState::course, &Course::startElev),
                number("endElev", &ModelState::course, &Course::endElev),
                number("xScale", &ModelState::course, &Course::xScale),
                number("yScale", &ModelState::course, &Course::yScale),
                points("pointX", &Course::pointX),
                points("pointY", &Course::pointY),
                {"pointCount", [](const ModelState& state) -> StateValue { return state.course.pointCount; }, {}},
                whole("origElev", &ModelState::course, &Course::origElev),
                number("perfScale", &ModelState::course, &Course::perfScale),
                whole("distanceValid", &ModelState::course, &Course::distanceValid),
                whole("courseLoading", &ModelState::course, &Course::courseLoading),
                whole("scur", &ModelState::course, &Course::scur),
                whole("courseSaved", &ModelState::course, &Course::courseSaved),
                number("netGrade", &ModelState::course, &Course::netGrade),
                number("slopeDist", &ModelState::course, &Course::slopeDist),
                number("totalRise", &ModelState::course, &Course::totalRise),
                number("totalDrop", &ModelState::course, &Course::totalDrop),
                number("flatTime", &ModelState::course, &Course::flatTime),
                number("evenTime", &ModelState::course, &Course::evenTime),
                number("strategicTime", &ModelState::course, &Course::strategicTime),
                number("courseLevelSpeed", &ModelState::course, &Course::courseLevelSpeed),
                number("evenFlatSpeed", &ModelState::course, &Course::evenFlatSpeed),
                places("distAt", &Course::distAt),
                places("timeAt", &Course::timeAt),
                marks("mileX", &CourseMarks::mileX),
                marks("mileTime", &CourseMarks::mileTime),
                marks("kmX", &CourseMarks::kmX),
                marks("kmTime", &CourseMarks::kmTime),
                places("curveA", &Course::curveA),
                places("curveB", &Course::curveB),
                places("curveC", &Course::curveC)};
    }

    std::vector<StateName> heatNames()
    {
        return {number("airTempK", &ModelState::heat, &Heat::airTempK),
                number("wbgtC", &ModelState::heat, &Heat::wbgtC),
                number("heatFatigueCoef", &ModelState::heat, &Heat::heatFatigueCoef),
                number("paceBase", &ModelState::heat, &Heat::paceBase),
                number("paceSlope", &ModelState::heat, &Heat::paceSlope)};
    }

    std::vector<StateName> ageGraphNames()
    {
        return {whole("chosenRow", &ModelState::ageGraph, &AgeGraph::chosenRow),
                number("axisTop", &ModelState::ageGraph, &AgeGraph::axisTop),
                {"levelTimes", [](const ModelState& state) -> StateValue { return state.ageGraph.levelTimes; }, {}},
                {"individualTimes",
                 [](const ModelState& state) -> StateValue { return state.ageGraph.individualTimes; },
                 {}}};
    }

    /// Rows 0 to the last race of the file, as far as the table reaches.
    std::size_t rowsInUse(const RaceFileState& file)
    {
        return static_cast<std::size_t>(std::clamp<double>(std::floor(file.raceCount) + 1, 1, raceTableRows));
    }

    /// The same, and as far as marks of an earlier file reach beyond them.
    std::size_t rowsMarked(const RaceFileState& file)
    {
        const auto last =
            std::find_if(file.pickOrder.rbegin(), file.pickOrder.rend(), [](int pick) { return pick != 0; });
        return std::max(rowsInUse(file), static_cast<std::size_t>(file.pickOrder.rend() - last));
    }

    std::vector<StateName> raceFileNames()
    {
        return {{"raceTable",
                 [](const ModelState& state) -> StateValue {
                     std::vector<RaceTableRow> rows = state.raceFile.raceTable;
                     rows.resize(rowsInUse(state.raceFile));
                     return rows;
                 },
                 {}},
                {"fileRaceCount",   // the calculation has a raceCount of its own
                 [](const ModelState& state) -> StateValue { return state.raceFile.raceCount; },
                 {}},
                {"pickOrder",
                 [](const ModelState& state) -> StateValue {
                     const auto begin = state.raceFile.pickOrder.begin();
                     return std::vector<double>(begin, begin + static_cast<std::ptrdiff_t>(rowsMarked(state.raceFile)));
                 },
                 {}},
                {"nextSlot", [](const ModelState& state) -> StateValue { return state.raceFile.nextSlot; }, {}},
                {"pickedCount", [](const ModelState& state) -> StateValue { return state.raceFile.pickedCount; }, {}},
                {"listRow", [](const ModelState& state) -> StateValue { return state.raceFile.listRow; }, {}}};
    }

    std::vector<StateName> tableNames()
    {
        const auto times = [](const ModelState& state) -> StateValue {
            std::vector<std::vector<double>> columns;
            for (const auto& column : state.table.tableTimes)
                columns.push_back(firstOf(column, tableDistances));
            return columns;
        };
        return {number("tableTime800", &ModelState::table, &TableRun::tableTime800),
                number("tableTime5000", &ModelState::table, &TableRun::tableTime5000),
                whole("tableRow", &ModelState::table, &TableRun::tableRow),
                {"tableDist",
                 [](const ModelState& state) -> StateValue { return firstOf(state.table.tableDist, tableDistances); },
                 {}},
                {"tableTimes", times, {}}};
    }
}

const std::vector<StateName>& stateNames()
{
    static const std::vector<StateName> names = [] {
        std::vector<StateName> all;
        for (const std::vector<StateName>& some :
             {runnerNames(), raceNames(), curveNames(), resultNames(), flagNames(), tableNames(), slopeNames(),
              trainingNames(), courseNames(), heatNames(), ageGraphNames(), raceFileNames()})
            all.insert(all.end(), some.begin(), some.end());
        return all;
    }();
    return names;
}

const StateName* findStateName(std::string_view name)
{
    const auto found = std::find_if(stateNames().begin(), stateNames().end(),
                                    [&](const StateName& entry) { return entry.name == name; });
    return found == stateNames().end() ? nullptr : &*found;
}
