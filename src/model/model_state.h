#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/course_state.h"
#include "model/long_loop.h"
#include "model/one_based.h"
#include "model/race_file_state.h"

// The one body of state that everything is computed from: the runner, the races, the curve, the results and flags.
// Metres, seconds, metres per second, kilograms and centimetres throughout.

inline constexpr int maxRaces = 5;
inline constexpr int tableDistances = 24;   // rows of the performance table
inline constexpr int tableColumns = 9;      // its columns: levels or ages

inline constexpr double standardWeightKg = 72.7;
inline constexpr double standardHeightCm = 178;
inline constexpr double standardBodyDrag = 60;

struct Runner
{
    std::string runnerName = "Joe Runner";
    double age = 0;            // years, any number
    char sex = 'm';            // 'm' or 'f'
    double weeklyMiles = 20;   // miles a week, a whole number from 0 to 150
    double weightKg = standardWeightKg;
    double heightCm = standardHeightCm;
    double bodyDrag = standardBodyDrag;   // follows weight and height, see `bodyDragOf`
    double maxHr = 0;                     // beats a minute
    double restHr = 0;
    double ageDistanceTerm = 0;   // miles a week: |age - 18| ^ 1.5 / 24
};

/// Marathon and half marathon are stored in a row's factor cell as these codes; they are never metres.
inline constexpr double marathonCode = 2;
inline constexpr double halfMarathonCode = 3;

struct Races
{
    std::array<double, maxRaces> unitFactor{};   // metres a unit of each form row, or a code; kept while no unit is on
    int rowsUsed = 0;                            // checked rows of the last run that passed its checks
    int raceCount = 0;                           // checked rows so far, later the races still in use
    OneBased<double, maxRaces> rowTime;          // s, in row order, never sorted or corrected
    OneBased<double, maxRaces> rowDist;          // m, likewise
    OneBased<double, maxRaces> entryTime;        // s, as entered, sorted with entryDist
    OneBased<double, maxRaces> entryDist;        // m, ascending; omitted races are gone from it
    OneBased<double, maxRaces> fitTime;          // s, without the finish corrections: what the fit uses
};

/// One runner's curve of speed against distance. Model power at v m/s is 140 + 60 * v ^ 2, in the model's own unit;
/// energy is that power times seconds.
struct Curve
{
    double aerobicPower = 0;      // sustained power
    double anaerobicEnergy = 0;   // energy beyond it over a race of refDistance
    double refDistance = 0;       // m
    double fatigueCoef = 0;       // see `fatigueCoefOf`
    double startDelay = 3;        // s, added to every race time
    double anaerobicExp = 0.65;   // anaerobic energy grows with distance to this power
    double humpCentre = 360;      // m, middle-distance correction
    double humpDepth = -0.02;
    double humpWidth = 1.15;      // natural log units, half the width
    double piValue = 3.1415926;   // the model's own pi, kept at these eight digits on purpose
};

struct Results
{
    double speedRatio = 0;      // speed at 800 m over speed at 5000 m
    double speedRatioAdj = 0;   // speedRatio ^ (level / 0.9)
    double time800 = 0;         // s, of the latest metric table
    double time5000 = 0;
    double level = 0;                 // last performance level computed by anyone: scratch
    double level5000 = 0;             // fraction, 1 at the record
    double levelIndex = 0;            // age-curve index of the runner; 0 until a first calculation ends
    double levelIndexFromLevel = 0;   // the same from level5000
    double curDistance = 0;           // m, of the time computation under way: scratch
};

struct Flags
{
    int tableMode = 0;             // 1 while the performance table runs `calculate`
    int warnedExtrapolation = 0;   // 1 once an extrapolation warning has been given
    int warnedProfile = 0;         // 1 once "Very unusual profile" has been said
    int ageCompareOn = 0;          // decided anew on each call of `recordTime`
    int ageCompareForced = 0;      // set by the performance table specification form
    int ageCompareLocal = 0;       // 1 while an index is worked out
    int agecomp = 0;               // the main form's "Use age-based comparisons"
    int oplev = 0;                 // the performance table's "Times by age for level"; 0 while its form is closed
    int calculatedOnce = 0;
    int performanceStart = 0;       // 1 when the menu has opened the performance table specification
    int performanceFromTable = 0;   // 1 while the performance form stands as opened from a table
    int reportToFile = 0;           // 0 full report to the printer, 1 to a text file
    int graphScale = 4;             // 1, 2, 3 linear ranges, 4 logarithmic
    char unitsMode = 'm';           // 'm' metric, 'e' English: graphs and the Units menu
};

/// What the performance table hands to `calculate` and gets from it.
struct TableRun
{
    double tableTime800 = 0;                      // s
    double tableTime5000 = 0;                     // s
    int tableRow = 0;                             // 0 to 8: the column of levels or ages under way
    OneBased<double, tableDistances> tableDist;   // m
    std::array<OneBased<double, tableDistances>, static_cast<std::size_t>(tableColumns)> tableTimes;   // s
};

/// What the conversions between slope and level share. Whoever sets a mode for a while sets it back to 0.
struct Incline
{
    int indoorMode = 0;     // 0 outdoors on both sides, 1 treadmill against outdoors, 2 treadmill against itself level
    double windSpeed = 0;   // m/s at the runner, positive is a head wind; of the slope side, outdoors
    int slopeDirection = 0;   // 1 slope costs at least as much as level, -1 less; left by the latest inverse conversion
    int zeroPowerFlag = 0;    // 1 when the latest net power was exactly 0
};

/// What the tools about power and slopes keep while the program runs.
struct SlopeTools
{
    double curSpeed = 0;       // m/s, level speed of the quick calculator, and of a course that is being solved
    double slopeValue = 0;     // its slope, a fraction
    int tmillMode = 1;         // 1 flat pace equal to a treadmill setting, 2 treadmill pace equal to a flat pace
    int tmillDisplay = 1;      // 1 paces, 2 speeds
    int hillScale = 2;         // 1 to 4: the range of the hill table's grades
    int gradeDefinition = 1;   // its grades: 1 over distance along the surface, 2 over horizontal distance
};

enum class SpecialUnit { none, miles, yards, kilometers, meters, marathon, halfMarathon };

/// The special information form's entries.
struct SpecialEntries
{
    std::string number;   // Text1: how many of the unit
    SpecialUnit unit = SpecialUnit::kilometers;
    std::string mode;         // "n" uneven splits, "c" constant, "r" out and back, "" level time or none
    bool levelOnly = false;   // whether "" was chosen, Option5
    std::string slope;        // Text3
    int wind = 0;             // tenths of m/s at 1 m above the ground
    bool tailWind = false;
};

/// What the analysis of hills, wind and uneven pacing keeps. Paces are seconds a mile, at all stages.
struct Special
{
    std::string analysisMode;     // "n", "c", "r" or empty, of the latest run
    double slope = 0;             // rise over distance along the surface, of the latest run
    double windBase = 0;          // m/s at 1 m above the ground, positive is a head wind
    double evenPace = 0;          // pace of a race over the full distance
    double fastHalfPace = 0;      // pace of a race over half of it
    double aerobicHalfPace = 0;   // aerobic pace for a half, raised with distance
    double pacingCentre = 0;      // (p - centre) (q - centre) = area, for the paces p and q of the halves
    double pacingArea = 0;
    double paceDivisor = 1;   // what course paces are divided by: 1, or 1.609344 for minutes per kilometer
    bool stored = false;      // whether a run has left its entries
    SpecialEntries entries;   // of the latest run that got as far as its level line
};

/// What the training analysis leaves. Speeds in m/s, heart rates in beats a minute.
struct Training
{
    double aerobicTrainSpeed = 0;   // fully aerobic training
    double thresholdSpeed = 0;      // anaerobic threshold
    double vo2maxSpeed = 0;
    double vo2maxSpeedTop = 0;   // 0.98 of it
    double intervalSpeed = 0;    // 0.96 of it: slow end of efforts of 3 to 5 minutes
    double vo2max = 0;           // ml/kg/min
    double repSlowTime = 0;      // s, 400 m repetitions
    double repFastTime = 0;
    double repSlowSpeed = 0;
    double repFastSpeed = 0;
    double time10k = 0;    // s, the curve's
    double peakSeed = 0;   // km, where the search for the peak distance begins
    double aerobicHr = 0, aerobicHrLow = 0, aerobicHrHigh = 0;
    double thresholdHr = 0, thresholdHrLow = 0, thresholdHrHigh = 0;
    double aerobicSpeedLow = 0, aerobicSpeedHigh = 0;   // the speeds at the ends of the heart rate zones
    double thresholdSpeedLow = 0, thresholdSpeedHigh = 0;
};

/// Samples of the heart rate graph, index 0 to 4500: speed (m/s), heart rate, and place across the picture. A new
/// graph writes over the old one's from the start, so that samples of a longer old one stay behind it.
struct HeartRateSamples
{
    std::vector<double> curveSpeed, curveHr, curveX;   // as long as the longest graph so far
};

/// What the temperature and humidity form keeps.
struct Heat
{
    double airTempK = 0;          // kelvin, freezing point at 273
    double wbgtC = 0;             // approximate wet bulb globe temperature, degrees C
    double heatFatigueCoef = 0;   // long-distance coefficient of the runner there, see `heatFatigueCoefOf`
    double paceBase = 0;          // s/m at the distance of the reference race
    double paceSlope = 0;         // growth of s/m for each unit of the natural logarithm of distance
};

/// What the graph of performance by age keeps. Index 0 of an array is age 5.
struct AgeGraph
{
    int chosenRow = 15;                            // row of `tableDist` that is drawn, 1 to 24
    double axisTop = 0;                            // s at the top of the axis
    std::vector<std::vector<double>> levelTimes;   // s, by age and curve
    std::vector<double> individualTimes;           // s, by age
};

struct ModelState
{
    Runner runner;
    Races races;
    Curve curve;
    Results results;
    Flags flags;
    TableRun table;
    Incline incline;
    SlopeTools slopeTools;
    Special special;
    Training training;
    HeartRateSamples heartRateSamples;
    Course course;
    Heat heat;
    AgeGraph ageGraph;
    RaceFileState raceFile;

    std::string activity;   // what is under way, for the words of a fault: "fitting the race over 5000 m"
    GoOn goOn;              // asked in very long loops
};

/// Sets what a new search for a curve starts from: the exponent and the middle-distance correction.
void resetCurveConstants(ModelState& state);

/// Weight and height as a drag figure: 60 * ((kg / 72.7) / (cm / 178)) ^ (1 / 4), 60 for the standard runner.
///   weightKg  kg, > 0
///   heightCm  cm, > 0
[[nodiscard]] double bodyDragOf(double weightKg, double heightCm);

/// How much a runner fades over long distances, from the weekly distance.
///   weeklyMiles  miles a week, 0 to 150
///   female       0.022 less
/// Source: 0.08 - Sqr(miles + 1) / 420 + 62.97 * (miles + 20) ^ -1.73 - 0.03, fitted to runners' results.
[[nodiscard]] double fatigueCoefOf(double weeklyMiles, bool female);

/// Weekly miles that age stands for: |age - 18| ^ 1.5 / 24.
[[nodiscard]] double ageDistanceTermOf(double age);

/// Estimate of the maximum heart rate, beats a minute.
///   age     years
///   female  1 takes 3 off
/// Two published estimates, blended 0.6 to 0.4, and 1 more.
[[nodiscard]] double estimateMaxHr(double age, int female);
