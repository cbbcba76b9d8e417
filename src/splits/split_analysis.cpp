#include "splits/split_analysis.h"

#include <algorithm>
#include <cmath>

#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/text.h"

namespace
{
    /// One row of a pass.
    struct Split
    {
        int row = 0;
        double rawDistance = 0;   // in the unit of the entries
        double time = 0;          // s
        double metres = 0;
    };
    using Splits = std::vector<Split>;

    /// From the z at which it begins to count, a further factor on a time.
    struct Limit
    {
        double limit, exponent;
    };
    constexpr std::array<Limit, 10> method2Limits{{{0.74, -0.07},   // the first lowers, as it must
                                                   {0.67, 0.05},
                                                   {0.61, 0.05},
                                                   {0.55, 0.045},
                                                   {0.51, 0.03},
                                                   {0.47, 0.03},
                                                   {0.42, 0.03},
                                                   {0.38, 0.033},
                                                   {0.33, 0.033},
                                                   {0.29, 0.02}}};
    constexpr std::array<Limit, 5> method1Limits{
        {{0.63, 0.04}, {0.53, 0.02}, {0.43, 0.015}, {0.33, 0.025}, {0.29, 0.025}}};

    constexpr double noRatioYet = 999;

    /// What one pass works on.
    struct Pass
    {
        Splits splits;   // in row order
        double D = 0;    // m
        double T = 0;    // s
        double Q = 0;    // stress of method 2
        double Pt = 0;   // s
        double C = 0;    // Pt over the curve's time
    };

    double speedOf(const Split& split)
    {
        return quotient(split.rawDistance, split.time);
    }

    /// Takes the rows from..to. Returns whether they can be analysed.
    bool takeRows(Pass& pass, const SplitEntries& entries, double U, int from, int to, Messages& messages)
    {
        for (int i = from; i <= to; ++i)
        {
            const SplitEntry& entry = entries[static_cast<std::size_t>(i)];
            if (!hasDistance(entry))
                continue;
            const double value = val(entry.distance);
            const double d = checked(value * U);
            if (d > longestSplit)
            {
                messages.push_back(
                    {"Distance too big in row " + std::to_string(i + 1) + ".  Check units as well as number."});
                return false;
            }
            pass.D = pass.D + d;
            if (!hasTime(entry))
            {
                messages.push_back({"Missing times for entered split distance."});
                return false;
            }
            const double t = checked(val(entry.minutes) * 60 + val(entry.seconds));
            pass.T = pass.T + t;
            pass.Q = checked(pass.Q + t * power(quotient(d, t), 3.6));
            pass.splits.push_back({i, value, t, d});
        }
        if (pass.D == 0)
        {
            messages.push_back({"Please enter some data."});
            return false;
        }
        return true;
    }

    /// Method 2 before its corrections. The two exponents do not cancel exactly for even splits, and are to stay so.
    double method2Base(const Pass& pass)
    {
        return quotient(pass.T * pass.D, power(pass.Q * power(pass.T, 2.626), 1 / 3.626));
    }

    /// Method 1 before its corrections: T itself for even splits.
    double method1Base(const Pass& pass)
    {
        const double x = (10.8 - (std::abs(naturalLog(9000) - naturalLog(pass.D)) * 4.9) / 2.303) * 1.1;
        double W = 0;
        for (const Split& split : pass.splits)
            W = checked(W + split.time * power(quotient(split.metres, split.time), x));
        return quotient(pass.T * pass.D, power(W * power(pass.T, x - 1), quotient(1, x)));
    }

    /// How much the speed changes from row to row: the sum of the ratios of neighbours, faster over slower, less 1.
    double alternation(const Splits& splits)
    {
        std::vector<double> q;
        for (std::size_t i = 0; i + 1 < splits.size(); ++i)
        {
            const double ratio = quotient(speedOf(splits[i]), speedOf(splits[i + 1]));
            q.push_back(ratio < 1 ? quotient(1, ratio) : ratio);
        }
        std::sort(q.begin(), q.end());
        double Y = 0;
        for (const double ratio : q)
            Y = Y + (ratio - 1);
        return Y;
    }

    /// Share of the time that lies between the middles of fast rows that follow each other, at least a quarter.
    double spacingOfFastRows(const Pass& pass)
    {
        const Splits& splits = pass.splits;
        const double meanSpeed = quotient(pass.D, pass.T);
        double S = 0;
        double elapsed = 0;
        double lastFastMiddle = 0;
        bool anyFast = false;
        for (const Split& split : splits)
        {
            elapsed = elapsed + split.time;
            const double middle = elapsed - split.time / 2;
            if (!(quotient(split.metres, split.time) > meanSpeed))
                continue;
            if (anyFast)
                S = S + (middle - lastFastMiddle);
            lastFastMiddle = middle;
            anyFast = true;
        }
        return std::max(quotient(S, pass.T), 0.25);
    }

    /// Mean speeds of the slow and the fast half of the rows, in units of the entries a second. With an odd count the
    /// middle row is half in either.
    struct Halves
    {
        double lo = 0, hi = 0;
    };

    Halves halvesOfRows(const Splits& slowFirst)
    {
        const std::size_t n = slowFirst.size();
        const std::size_t m = n / 2;
        Halves sum;
        for (std::size_t i = 0; i < m; ++i)
        {
            sum.lo = sum.lo + speedOf(slowFirst[i]);
            sum.hi = sum.hi + speedOf(slowFirst[n - 1 - i]);
        }
        if (n % 2 == 1)
        {
            sum.lo = sum.lo + 0.5 * speedOf(slowFirst[m]);
            sum.hi = sum.hi + 0.5 * speedOf(slowFirst[m]);
        }
        const double half = static_cast<double>(n) / 2;
        return {quotient(sum.lo, half), quotient(sum.hi, half)};
    }

    /// Speed over the slow half of the distance over that of the fast half, each weighted by its metres.
    double halvesOfDistance(const Splits& slowFirst, double D, double U)
    {
        double A = 0;
        double Bq = 0;
        double covered = 0;
        bool crossed = false;
        for (const Split& split : slowFirst)
        {
            const double speed = speedOf(split);
            const double before = covered;
            covered = covered + split.time * speed * U;
            if (!crossed && covered <= D / 2)
                A = A + split.metres * speed * U;
            else if (!crossed)
            {
                A = A + (D / 2 - before) * speed * U;
                Bq = Bq + (covered - D / 2) * speed * U;
                crossed = true;
            }
            else
                Bq = Bq + split.metres * speed * U;
        }
        const double V1 = quotient(A, D / 2);
        const double V2 = quotient(Bq, D / 2);
        return quotient(V1, V2);
    }

    template <std::size_t N>
    double limited(double time, double z, const std::array<Limit, N>& limits)
    {
        for (const auto& [limit, exponent] : limits)
            if (z < limit)
                time = checked(time * power(quotient(limit, z), exponent));
        return time;
    }

    double method2Time(double M2, double z)
    {
        M2 = checked(M2 * power(z, 0.62 - power(z, 0.4) / 2.22));
        return limited(M2, z, method2Limits);
    }

    double method1Time(double M1, double T, double Y, double G, const Halves& halves, double z)
    {
        double e = 2;
        if (halves.hi != halves.lo)
            e = quotient(Y, square(quotient(halves.hi, halves.lo)) - 1) + 1;
        if (e < 2)
            e = 2;
        double b = 8 / (e + 6);
        b = quotient(b * 2.5, 2 + G);
        if (b > 1)
            b = 1;
        M1 = b * M1 + (1 - b) * T;
        M1 = checked(M1 * power(z, 0.025));
        return limited(M1, z, method1Limits);
    }

    /// The lowest ratio of time to the curve's time over all stretches of consecutive rows.
    double bestStretch(const ModelState& state, const Splits& splits)
    {
        double low = noRatioYet;
        for (std::size_t a = 0; a < splits.size(); ++a)
        {
            double time = 0;
            double metres = 0;
            for (std::size_t b = a; b < splits.size(); ++b)
            {
                time = time + splits[b].time;
                metres = metres + splits[b].metres;
                low = std::min(low, quotient(time, raceTimeAt(state, metres)));
            }
        }
        return low;
    }

    /// Potential time and its ratio to the curve for rows that were taken.
    void analysePass(const ModelState& state, Pass& pass, double U, SplitMethod methodChoice)
    {
        double M2 = method2Base(pass);
        double M1 = method1Base(pass);
        const double Y = alternation(pass.splits);
        const double G = spacingOfFastRows(pass);
        Splits slowFirst = pass.splits;
        std::stable_sort(slowFirst.begin(), slowFirst.end(),   // equal speeds keep their order
                         [](const Split& a, const Split& b) { return speedOf(a) < speedOf(b); });
        const Halves halves = halvesOfRows(slowFirst);
        const double z = halvesOfDistance(slowFirst, pass.D, U);
        M2 = method2Time(M2, z);
        M1 = method1Time(M1, pass.T, Y, G, halves, z);
        if (methodChoice == SplitMethod::method1)
            pass.Pt = M1;
        else
            pass.Pt = methodChoice == SplitMethod::method2 ? M2 : 0.7 * M1 + 0.3 * M2;

        const double low = bestStretch(state, pass.splits);
        pass.C = quotient(pass.Pt, raceTimeAt(state, pass.D));
        if (pass.C > low)
        {
            pass.Pt = quotient(pass.Pt * low, pass.C);
            pass.C = low;
        }
    }

    struct RowRange
    {
        int from = 0, to = 0;
    };

    /// Rows of each pass: all rows when few are filled, else the trimmed ranges.
    std::vector<RowRange> rangesOf(const SplitEntries& entries)
    {
        int count = 0;
        int first = 0;
        int final = 0;
        for (int i = 0; i < splitRowCount; ++i)
        {
            if (!hasDistance(entries[static_cast<std::size_t>(i)]))
                continue;
            if (count == 0)
                first = i;
            final = i;
            ++count;
        }
        if (count <= 2)
            return {{0, splitRowCount - 1}};
        return {{first, final}, {first + 1, final}, {first, final - 1}, {first + 1, final - 1}, {first, final}};
    }

    SplitAnalysis resultOf(const Pass& last, double bestRatio, double firstRatio)
    {
        SplitAnalysis result{quotient(last.Pt * bestRatio, firstRatio), bestRatio, last.D, last.T, {}};
        for (const Split& split : last.splits)
            result.pieces.push_back({split.row, split.metres});
        return result;
    }
}

bool hasDistance(const SplitEntry& entry)
{
    return isNumeric(entry.distance);
}

bool hasTime(const SplitEntry& entry)
{
    return isNumeric(entry.minutes) || isNumeric(entry.seconds);
}

std::optional<SplitAnalysis> analyseSplits(ModelState& state, const SplitEntries& entries, double unitFactor,
                                           SplitMethod methodChoice, Messages& messages)
{
    state.activity = "analysing the splits";
    double bestRatio = noRatioYet;
    double firstRatio = 0;   // of the first pass
    bool isFirst = true;
    Pass pass;
    for (const RowRange& range : rangesOf(entries))
    {
        pass = {};
        if (!takeRows(pass, entries, unitFactor, range.from, range.to, messages))
            return std::nullopt;
        analysePass(state, pass, unitFactor, methodChoice);
        if (isFirst)
            firstRatio = pass.C;
        isFirst = false;
        bestRatio = std::min(bestRatio, pass.C);
    }
    return resultOf(pass, bestRatio, firstRatio);
}
