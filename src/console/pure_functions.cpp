#include "console/pure_functions.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "analysis/distance_search.h"
#include "analysis/heart_rates.h"
#include "analysis/peak_distance.h"
#include "course/course_curve.h"
#include "course/course_solver.h"
#include "datafiles/race_list.h"
#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/record_curve.h"
#include "model/text.h"
#include "power/incline.h"
#include "power/running_power.h"
#include "special/special_analysis.h"
#include "weather/heat_table.h"
#include "weather/humidity.h"
#include "workouts/workout_plan.h"
#include "workouts/zone_sentence.h"

namespace
{
    using Json = nlohmann::ordered_json;
    using Words = std::vector<std::string>;

    double numberAt(const Words& words, std::size_t index)
    {
        if (!isNumeric(words[index]))
            throw CallMistake("\"" + words[index] + "\" is not a number");
        return val(words[index]);
    }

    int wholeAt(const Words& words, std::size_t index)
    {
        const double number = numberAt(words, index);
        if (number != roundHalfEven(number) || std::abs(number) > std::numeric_limits<int>::max())
            throw CallMistake("\"" + words[index] + "\" is not a whole number");
        return static_cast<int>(number);
    }

    char sexAt(const Words& words, std::size_t index)
    {
        if (words[index] != "m" && words[index] != "f")
            throw CallMistake("\"" + words[index] + "\" is neither m nor f");
        return words[index].front();
    }

    Json callFormatTime(ModelState&, const Words& words)
    {
        return formatTime(numberAt(words, 0));
    }

    Json callFormatNumber(ModelState&, const Words& words)
    {
        constexpr int widest = 1000;
        const int width = wholeAt(words, 1);
        if (width > widest)
            throw CallMistake("a width above " + std::to_string(widest) + " is too large");
        return formatNumber(numberAt(words, 0), width, wholeAt(words, 2));
    }

    Json callPadText(ModelState&, const Words& words)
    {
        constexpr int widest = 1000;
        const int width = wholeAt(words, 1);
        if (width > widest)
            throw CallMistake("a width above " + std::to_string(widest) + " is too large");
        return padText(words[0], width, wholeAt(words, 2));
    }

    Json callNumericEntry(ModelState&, const Words& words)
    {
        return numericEntry(words[0]);
    }

    Json callVal(ModelState&, const Words& words)
    {
        return val(words[0]);
    }

    Json callRaceTimeAt(ModelState& state, const Words& words)
    {
        if (words.size() == 1)
            return raceTimeAt(state, numberAt(words, 0));
        return raceTimeAt(state, numberAt(words, 0), numberAt(words, 1), numberAt(words, 2), numberAt(words, 3),
                          numberAt(words, 4), numberAt(words, 5));
    }

    Json callFinishTime(ModelState& state, const Words& words)
    {
        return finishTime(state, numberAt(words, 0), numberAt(words, 1),
                          words.size() > 2 ? numberAt(words, 2) : state.curve.fatigueCoef,
                          words.size() > 3 ? numberAt(words, 3) : state.curve.startDelay);
    }

    Json callEnduranceFactor(ModelState& state, const Words& words)
    {
        return enduranceFactor(state, numberAt(words, 0), numberAt(words, 1), wholeAt(words, 2));
    }

    Json callTimeStep(ModelState& state, const Words& words)
    {
        state.results.curDistance = numberAt(words, 0);
        const TimeStep step = timeStep(state);
        return {{"rawTime", step.rawTime},
                {"time", step.time},
                {"speed", step.speed},
                {"perMile", step.perMile},
                {"perKilometre", step.perKilometre},
                {"per400", step.per400}};
    }

    Json callStrippedTime(ModelState& state, const Words& words)
    {
        return strippedTime(state, numberAt(words, 0), numberAt(words, 1));
    }

    Json callRecordTime(ModelState& state, const Words& words)
    {
        const RecordMode mode = wholeAt(words, 1) == 0 ? RecordMode::timeOfLevel : RecordMode::record;
        return recordTime(state, sexAt(words, 0), mode, numberAt(words, 2), numberAt(words, 3));
    }

    Json callPerformanceLevel(ModelState&, const Words& words)
    {
        return performanceLevel(numberAt(words, 0), numberAt(words, 1), sexAt(words, 2));
    }

    Json callAgeFactor(ModelState& state, const Words& words)
    {
        return ageFactor(state, numberAt(words, 0), numberAt(words, 1), numberAt(words, 2), sexAt(words, 3));
    }

    Json callTopPercent(ModelState&, const Words& words)
    {
        return topPercent(numberAt(words, 0), sexAt(words, 1));
    }

    Json callIndexFromLevel(ModelState&, const Words& words)
    {
        return indexFromLevel(numberAt(words, 0), sexAt(words, 1));
    }

    Json callIndexFromRatio(ModelState&, const Words& words)
    {
        return indexFromRatio(numberAt(words, 0), sexAt(words, 1));
    }

    Json callEstimateMaxHr(ModelState&, const Words& words)
    {
        return estimateMaxHr(numberAt(words, 0), wholeAt(words, 1));
    }

    Json callBodyDrag(ModelState&, const Words& words)
    {
        return bodyDragOf(numberAt(words, 0), numberAt(words, 1));
    }

    Json callFatigueCoef(ModelState&, const Words& words)
    {
        return fatigueCoefOf(numberAt(words, 0), sexAt(words, 1) == 'f');
    }

    Json callAgeDistanceTerm(ModelState&, const Words& words)
    {
        return ageDistanceTermOf(numberAt(words, 0));
    }

    Json callRunEfficiency(ModelState&, const Words& words)
    {
        return runEfficiency(numberAt(words, 0));
    }

    Json callGrossPower(ModelState& state, const Words& words)
    {
        return grossPower(state, numberAt(words, 0), numberAt(words, 1), numberAt(words, 2), numberAt(words, 3));
    }

    Json callNetPower(ModelState& state, const Words& words)
    {
        return netPower(state, numberAt(words, 0), numberAt(words, 1), numberAt(words, 2), numberAt(words, 3),
                        numberAt(words, 4));
    }

    Json callPowerOutput(ModelState& state, const Words& words)
    {
        return powerOutput(state, numberAt(words, 0), numberAt(words, 1), numberAt(words, 2), numberAt(words, 3));
    }

    Json callLevelSpeedForSlope(ModelState& state, const Words& words)
    {
        return levelSpeedForSlope(state, numberAt(words, 0), numberAt(words, 1));
    }

    Json callSlopeSpeedForLevel(ModelState& state, const Words& words)
    {
        return slopeSpeedForLevel(state, numberAt(words, 0), numberAt(words, 1));
    }

    Json callRawSpeedAt(ModelState& state, const Words& words)
    {
        return rawSpeedAt(state, numberAt(words, 0));
    }

    Json callConstantSlopeTime(ModelState& state, const Words& words)
    {
        return constantSlopeTime(state, numberAt(words, 0), numberAt(words, 1));
    }

    Json callHrAtSpeed(ModelState& state, const Words& words)
    {
        if (words.size() == 1)
            return hrAtSpeed(state, numberAt(words, 0));
        return hrAtSpeed(numberAt(words, 0), numberAt(words, 1), numberAt(words, 2), numberAt(words, 3),
                         numberAt(words, 4), numberAt(words, 5), numberAt(words, 6), numberAt(words, 7));
    }

    Json callDistanceFor(ModelState& state, const Words& words)
    {
        const FoundDistance found = distanceFor(state, numberAt(words, 0), numberAt(words, 1));
        return {{"distance", found.distance}, {"time", found.time}, {"speed", found.speed}};
    }

    Json callPeakDistance(ModelState& state, const Words& words)
    {
        return peakDistance(state, words.empty() ? state.results.speedRatio : numberAt(words, 0));
    }

    Json callStandardLoad(ModelState&, const Words& words)
    {
        return standardLoad(numberAt(words, 0));
    }

    Json callAutomaticRatio(ModelState&, const Words& words)
    {
        return automaticRatio(numberAt(words, 0));
    }

    Json callZoneSentence(ModelState& state, const Words& words)
    {
        const ZoneSentence sentence = zoneSentence(state.training, numberAt(words, 0), numberAt(words, 1));
        return {{"sentence", sentence.text}, {"colour", {sentence.red, sentence.green, sentence.blue}}};
    }

    Json callDownhillGrade(ModelState&, const Words& words)
    {
        return downhillGrade(numberAt(words, 0), numberAt(words, 1));
    }

    Json callAltitudeSpeed(ModelState&, const Words& words)
    {
        return altitudeSpeed(numberAt(words, 0), numberAt(words, 1), numberAt(words, 2));
    }

    Json callCourseElevationAt(ModelState& state, const Words& words)
    {
        fitCourseCurve(state.course);   // the form fits it only where it draws it
        return courseElevationAt(state.course, numberAt(words, 0));
    }

    Json callCourseGradeAt(ModelState& state, const Words& words)
    {
        fitCourseCurve(state.course);
        return courseGradeAt(state.course, numberAt(words, 0));
    }

    Json callSaturationPressure(ModelState&, const Words& words)
    {
        return saturationPressure(numberAt(words, 0));
    }

    Json callSaturationTemp(ModelState&, const Words& words)
    {
        return saturationTemp(numberAt(words, 0));
    }

    Json callDewPoint(ModelState&, const Words& words)
    {
        return dewPoint(numberAt(words, 0), numberAt(words, 1));
    }

    Json callWetBulb(ModelState&, const Words& words)
    {
        return wetBulb(numberAt(words, 0), numberAt(words, 1));
    }

    Json callApproximateWbgt(ModelState&, const Words& words)
    {
        return approximateWbgt(numberAt(words, 0), numberAt(words, 1), numberAt(words, 2));
    }

    Json callHeatIndex(ModelState&, const Words& words)
    {
        return heatIndex(numberAt(words, 0), numberAt(words, 1));
    }

    Json callHumidex(ModelState&, const Words& words)
    {
        return humidexOf(numberAt(words, 0), numberAt(words, 1));
    }

    Json callHeatFatigueCoef(ModelState&, const Words& words)
    {
        return heatFatigueCoefOf(numberAt(words, 0), sexAt(words, 1) == 'f');
    }

    Json callIdealWbgt(ModelState&, const Words& words)
    {
        return idealWbgt(numberAt(words, 0), numberAt(words, 1), numberAt(words, 2));
    }

    Json callHeatDecrement(ModelState&, const Words& words)
    {
        return heatDecrement(numberAt(words, 0), numberAt(words, 1), numberAt(words, 2), sexAt(words, 3) == 'f');
    }

    struct WordCount
    {
        std::size_t least = 0, most = 0;
    };

    WordCount countOf(std::string_view arguments)
    {
        WordCount count;
        bool inWord = false;
        bool optional = false;
        for (const char c : arguments)
        {
            optional = optional || c == '[';
            if (c != ' ' && !inWord)
            {
                ++count.most;
                count.least += optional ? 0 : 1;
            }
            inWord = c != ' ';
        }
        return count;
    }
}

const std::vector<PureFunction>& pureFunctions()
{
    static const std::vector<PureFunction> functions{
        {"formatTime", "seconds", callFormatTime},
        {"formatNumber", "value width decimals", callFormatNumber},
        {"numericEntry", "value", callNumericEntry},
        {"val", "text", callVal},
        {"padText", "text width leftPad", callPadText},
        {"raceTimeAt", "distance", callRaceTimeAt},
        {"raceTimeAt", "anaerobicEnergy aerobicPower refDistance distance fatigueCoef startDelay", callRaceTimeAt},
        {"finishTime", "distance speed [fatigueCoef startDelay]", callFinishTime},
        {"enduranceFactor", "distance coefficient mode", callEnduranceFactor},
        {"timeStep", "distance", callTimeStep},
        {"strippedTime", "time distance", callStrippedTime},
        {"recordTime", "sex mode distance targetLevel", callRecordTime},
        {"performanceLevel", "ratio distance sex", callPerformanceLevel},
        {"ageFactor", "age distance ratio sex", callAgeFactor},
        {"topPercent", "level sex", callTopPercent},
        {"indexFromLevel", "level sex", callIndexFromLevel},
        {"indexFromRatio", "ratio sex", callIndexFromRatio},
        {"estimateMaxHr", "age female", callEstimateMaxHr},
        {"bodyDrag", "weightKg heightCm", callBodyDrag},
        {"fatigueCoef", "weeklyMiles sex", callFatigueCoef},
        {"ageDistanceTerm", "age", callAgeDistanceTerm},

        {"runEfficiency", "grade", callRunEfficiency},
        {"grossPower", "speed weight grade airFactor", callGrossPower},
        {"netPower", "speed weight grade airFactor wind", callNetPower},
        {"powerOutput", "speed weight grade airFactor", callPowerOutput},
        {"levelSpeedForSlope", "grade speed", callLevelSpeedForSlope},
        {"slopeSpeedForLevel", "grade levelSpeed", callSlopeSpeedForLevel},
        {"rawSpeedAt", "distance", callRawSpeedAt},
        {"constantSlopeTime", "distance slope", callConstantSlopeTime},
        {"hrAtSpeed", "speed", callHrAtSpeed},
        {"hrAtSpeed", "speed aerobicTrainSpeed thresholdSpeed vo2maxSpeed restHr aerobicHr thresholdHr maxHr",
         callHrAtSpeed},
        {"distanceFor", "target seed", callDistanceFor},
        {"peakDistance", "[speedRatio]", callPeakDistance},
        {"standardLoad", "weeklyMiles", callStandardLoad},
        {"automaticRatio", "distance", callAutomaticRatio},
        {"zoneSentence", "speed percentOfStandard", callZoneSentence},

        {"downhillGrade", "grade drop", callDownhillGrade},
        {"altitudeSpeed", "speed seconds elevationDifference", callAltitudeSpeed},
        {"courseElevationAt", "x", callCourseElevationAt},
        {"courseGradeAt", "x", callCourseGradeAt},

        {"saturationPressure", "T", callSaturationPressure},
        {"saturationTemp", "e", callSaturationTemp},
        {"dewPoint", "T rh", callDewPoint},
        {"wetBulb", "T rh", callWetBulb},
        {"approximateWbgt", "sun airC wetBulbC", callApproximateWbgt},
        {"heatIndex", "T rh", callHeatIndex},
        {"humidex", "T rh", callHumidex},
        {"heatFatigueCoef", "weeklyMiles sex", callHeatFatigueCoef},
        {"idealWbgt", "seconds weightKg heightCm", callIdealWbgt},
        {"heatDecrement", "seconds marathonSeconds stray sex", callHeatDecrement},
    };
    return functions;
}

Json callFunction(const ModelState& state, const std::string& name, const std::vector<std::string>& arguments)
{
    std::string usage;
    for (const PureFunction& function : pureFunctions())
    {
        if (function.name != name)
            continue;
        const WordCount count = countOf(function.arguments);
        if (arguments.size() >= count.least && arguments.size() <= count.most)
        {
            ModelState scratch = state;
            return function.call(scratch, arguments);
        }
        usage += (usage.empty() ? "" : ", or ") + std::string(function.arguments);
    }
    if (usage.empty())
        throw CallMistake("there is no function \"" + name + "\"");
    throw CallMistake(name + " takes " + usage);
}
