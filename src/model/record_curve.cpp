#include "model/record_curve.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "model/age_table.h"
#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/units.h"

namespace
{
    /// Fitted constants of one sex's record curve: speed is c0 + c1 * d ^ -e before its corrections.
    struct RecordConstants
    {
        double c0, c1, e;
        double longDistance;   // endurance coefficient above 6300 m
        double roadDip;        // lowest factor between 10000 m and the marathon
    };
    constexpr RecordConstants menRecord{6.052, 263, 0.725, 0.0515, 0.992};
    constexpr RecordConstants womenRecord{5.382, 231, 0.72, 0.0405, 0.988};

    bool ageCompareWanted(const Flags& flags)
    {
        return flags.agecomp == 1 || flags.ageCompareForced == 1 || flags.oplev == 1 || flags.ageCompareLocal == 1;
    }

    /// Record speed below 800 m from the speed v of the plain curve.
    double sprintRecordSpeed(double v, double d, bool female, double piValue)
    {
        const double L = naturalLog(385 / d);
        v = v * 1.03 * (1 - power(std::abs(L / 2.293), 2 - L * 0.4) * 0.4);
        if (d > 330)
            v = v * (1 - cosine((d - 575) * piValue / 490) * 0.0065);
        if (female)
            v = v * (1.016 - 0.016 * d / 820);
        return v;
    }

    double recordSpeed(const ModelState& state, double d, bool female)
    {
        const RecordConstants& record = female ? womenRecord : menRecord;
        const double piValue = state.curve.piValue;
        double v = record.c0 + record.c1 * power(d, -record.e);
        if (d < 800)
            v = sprintRecordSpeed(v, d, female, piValue);
        const double L550 = naturalLog(d / 550);
        if (std::abs(L550) < 0.35)
            v = v * (square(cosine(L550 * piValue / 0.7)) * 0.003 + 1);
        if (d > 6300)
            v = v * enduranceFactor(state, d, record.longDistance, 0);
        const double g = record.roadDip;
        if (10000 < d && d < marathonMetres)
            v = v * (g + (1 - g) * square(naturalLog(20541 / d)) / 0.5184);
        return v;
    }

    double timeOfLevel(double T, double distance, double targetLevel, char sex)
    {
        double R = T;
        double level = 0;
        int count = 0;
        do
        {
            level = performanceLevel(quotient(T, R), distance, sex);
            R = R * power(quotient(level, targetLevel), 0.5);
            count = count + 1;
        } while (!(level < targetLevel + 0.00001 || count > 100));
        return R;
    }

    double onParabola(const AgeParabola& row, double age)
    {
        return row.linear * age + row.quadratic * square(age) + row.constant;
    }

    /// The last step of all index formulas: what passes 50 creeps up to 100.
    double bent(double x)
    {
        return x > 50 ? 50 + (50 * (x - 50)) * (1 / x) : x;
    }

    double menIndex(double logarithm)
    {
        return bent(power(-logarithm / 0.3106, 1 / 0.24));
    }

    double womenIndex(double logarithm)
    {
        return bent(power(-logarithm / 0.3625, 1 / 0.2));
    }
}

double recordTime(ModelState& state, char sex, RecordMode mode, double distance, double targetLevel)
{
    state.flags.ageCompareOn = ageCompareWanted(state.flags) ? 1 : 0;
    const double v = recordSpeed(state, distance, sex == 'f');
    double A = 1;
    if (state.flags.ageCompareOn == 1)
        A = ageFactor(state, state.runner.age, distance, 1, sex);
    // a start delay of 2.04 s, added in two steps so that the last bit stays
    const double T = checked(A * (quotient(distance, v) + 2 + 0.04));
    return mode == RecordMode::timeOfLevel ? timeOfLevel(T, distance, targetLevel, sex) : T;
}

double performanceLevel(double ratio, double distance, char sex)
{
    const bool female = sex == 'f';
    const double s = female ? 0.9 : 1.25;
    const double e = 0.9 * (1 - quotient(s * naturalLog(distance / 1600), 5 + distance / 3000));
    double x = power(ratio, e);
    if (female)
        x = power(x, power(0.735, 1 + ratio - 0.76));
    return std::min(x, power(ratio, 0.5));
}

double levelOf(ModelState& state, double distance, double time)
{
    const char sex = state.runner.sex;
    const double record = recordTime(state, sex, RecordMode::record, distance, 1);
    return performanceLevel(quotient(record, time), distance, sex);
}

double ageFactor(const ModelState& state, double age, double distance, double /*ratio*/, char sex)
{
    const bool female = sex == 'f';
    const auto& table = female ? womenAges : menAges;
    double r = std::floor(age / 5) - 2;
    double r2 = r + 1;
    double w2 = (age - std::floor(age)) / 5;   // a whole-numbered age takes its row alone: this is the rule
    double w1 = 1 - w2;
    if (age <= 10)
    {
        r = r2 = 0;
        w1 = 1;
        w2 = 0;
    }
    if (age >= 85)
    {
        r = r2 = 15;
        w1 = 1;
        w2 = 0;
    }
    const AgeRow& row = table[static_cast<std::size_t>(r)];
    const AgeRow& next = table[static_cast<std::size_t>(r2)];
    double Y5 = w1 * onParabola(row.at5, age) + w2 * onParabola(next.at5, age);
    Y5 = power(Y5, female ? 0.985 : 0.95);
    const double Y30 = w1 * onParabola(row.at30, age) + w2 * onParabola(next.at30, age);
    double Y = ((30000 - distance) * Y5 + (distance - 5000) * Y30) / 25000;
    Y = power(Y, 1 + state.results.levelIndex / (female ? 480 : 120));
    return quotient(1, Y);
}

double topPercent(double level, char sex)
{
    if (sex == 'f')
        return womenIndex(naturalLog(power(level, 1.8)));
    return level < 1 ? menIndex(naturalLog(power(level, 1.413))) : 0;
}

double indexFromLevel(double level, char sex)
{
    return topPercent(level, sex);
}

double indexFromRatio(double ratio, char sex)
{
    if (sex == 'f')
        return womenIndex(naturalLog(ratio));
    return ratio < 1 ? menIndex(naturalLog(ratio)) : 0;
}
