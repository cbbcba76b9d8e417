#include "power/slope_tables.h"

#include <array>
#include <cstddef>

#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"
#include "power/incline.h"
#include "power/pace_and_weight_text.h"

namespace
{
    struct SpeedRange
    {
        double base, step;   // miles or kilometers per hour; row r shows base + r steps
    };

    struct GradeRange
    {
        double step, range;   // column k shows k steps - range
    };

    constexpr int treadmillRows = 41;
    constexpr int hillRows = 19;
    constexpr int hillGrades = 13;
    constexpr std::array<GradeRange, 4> hillScales{{{0.01, 0.06}, {0.02, 0.12}, {0.03, 0.18}, {0.06, 0.36}}};

    constexpr int paceColumn = 1;   // of the treadmill table; the inclines follow it
    constexpr std::array inclines{0.0, 0.01, 0.02, 0.03, 0.04, 0.05, 0.06, 0.07, 0.08, 0.1, 0.12, 0.14, 0.16, 0.18};
    constexpr int treadmillColumns = 2 + static_cast<int>(inclines.size());

    SpeedRange treadmillSpeeds(int tmillMode, bool kilometers)
    {
        if (kilometers)
            return tmillMode == 1 ? SpeedRange{4, 0.5} : SpeedRange{6, 0.5};
        return tmillMode == 1 ? SpeedRange{3.2, 0.2} : SpeedRange{4.4, 0.2};
    }

    double inclineOf(int c)
    {
        return inclines[static_cast<std::size_t>(c - paceColumn - 1)];
    }

    /// A grade in the heads, in the format "###0.00".
    std::string gradeText(double grade)
    {
        return formatNumber(grade, 0, 2);
    }

    void startTable(TextPage& page)
    {
        clear(page);
        for (int line = 0; line < 3; ++line)
            newLine(page);
    }

    void endHead(TextPage& page)
    {
        for (int line = 0; line < 3; ++line)   // the head's own end, and two empty lines
            newLine(page);
    }

    /// The speed of equal effort in column c for a speed of v m/s.
    double treadmillSpeed(ModelState& state, int c, double v, bool indoors)
    {
        const bool onTreadmill = c > paceColumn;
        const double g = onTreadmill ? gradeAlongSurface(inclineOf(c)) : 0;
        const int indoorMode = indoors ? 2 : 1;
        const IndoorComparison comparison(state, onTreadmill ? indoorMode : 0);
        return state.slopeTools.tmillMode == 1 ? levelSpeedForSlope(state, g, v) : slopeSpeedForLevel(state, g, v);
    }

    void printTreadmillRow(ModelState& state, double speed, double f, bool indoors, TextPage& page)
    {
        const double v = (speed * metresPerMile / secondsPerHour) / f;
        goToColumn(page, 3);
        print(page, formatNumber(speed, 4, 1));
        for (int c = paceColumn; c < treadmillColumns; ++c)
        {
            const double w = treadmillSpeed(state, c, v, indoors);
            const double p = quotient(metresPerMile, w) / f;
            const bool asSpeed = c > paceColumn && state.slopeTools.tmillDisplay == 2;
            goToColumn(page, 3 + 7 * c);
            print(page, asSpeed ? lastOf(formatNumber(quotient(secondsPerHour, p), 5, 2), 7) : paceText(p));
        }
        newLine(page);
    }

    void printHillRow(ModelState& state, const GradeRange& grades, double v, double f, TextPage& page)
    {
        print(page, "  ");
        for (int k = 0; k < hillGrades; ++k)
        {
            double g = grades.step * k - grades.range;
            if (state.slopeTools.gradeDefinition == 2)
                g = gradeAlongSurface(g);
            goToColumn(page, 4 + 8 * k);
            print(page, paceText(quotient(metresPerMile, slopeSpeedForLevel(state, g, v)) / f));
        }
        newLine(page);
    }

    GradeRange gradesOf(int hillScale)
    {
        if (hillScale < 1 || hillScale > static_cast<int>(hillScales.size()))
            stopWith("an index out of range");
        return hillScales[static_cast<std::size_t>(hillScale - 1)];
    }
}

void printTreadmillTable(ModelState& state, bool kilometers, bool indoors, TextPage& page)
{
    state.activity = "printing the treadmill table";
    const SpeedRange speeds = treadmillSpeeds(state.slopeTools.tmillMode, kilometers);
    const double f = kilometers ? kilometresPerMile : 1;
    startTable(page);
    goToColumn(page, 3);
    print(page, "Speed");
    goToColumn(page, 10);
    print(page, "Pace");
    for (int c = paceColumn + 1; c < treadmillColumns; ++c)
    {
        goToColumn(page, 4 + 7 * c);
        print(page, gradeText(inclineOf(c)));
    }
    endHead(page);
    for (int r = 1; r <= treadmillRows; ++r)
        printTreadmillRow(state, r * speeds.step + speeds.base, f, indoors, page);
}

void printHillTable(ModelState& state, bool kilometers, TextPage& page)
{
    state.activity = "printing the hill table";
    const double f = kilometers ? kilometresPerMile : 1;
    startTable(page);
    const GradeRange grades = gradesOf(state.slopeTools.hillScale);
    for (int k = 0; k < hillGrades; ++k)
    {
        const double grade = grades.step * k - grades.range;
        goToColumn(page, (grade < 0 ? 4 : 5) + 8 * k);
        print(page, gradeText(grade));
    }
    endHead(page);
    for (int e = 1; e <= hillRows; ++e)
    {
        const double pace = kilometers ? 150 + 20 * (e - 2.5) : 150 + 30 * e;
        printHillRow(state, grades, (metresPerMile / pace) / f, f, page);
    }
}
