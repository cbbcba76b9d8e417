#include "course/course_solver.h"

#include <cmath>

#include "course/course_curve.h"
#include "course/course_profile.h"
#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/units.h"
#include "power/incline.h"

namespace
{
    constexpr int rounds = 4;                 // of each pass
    constexpr double measureSlack = 1.0001;   // of the course's length, for the rounding of the steps
    constexpr double savedShare = 0.14;       // of what the ups and downs cost, that strategic pacing gives back

    void tell(const CourseShown& shown, CourseResult result)
    {
        if (shown)
            shown(result);
    }

    /// Length along the surface of a horizontal width on a grade.
    double alongSurface(double width, double grade)
    {
        return checked(width * power(1 + square(grade), 0.5));
    }

    void clearSums(Course& course)
    {
        course.slopeDist = 0;
        course.totalRise = 0;
        course.totalDrop = 0;
    }

    /// Adds a piece of the profile to the sums.
    void addPiece(Course& course, double width, double grade)
    {
        course.slopeDist = course.slopeDist + alongSurface(width, grade);
        const double rise = checked(width * grade);
        if (rise > 0)
            course.totalRise = course.totalRise + rise;
        else
            course.totalDrop = course.totalDrop - rise;
    }

    double segmentWidth(const Course& course, int i)
    {
        const double width = placeAt(course.pointX, i + 1) - placeAt(course.pointX, i);
        if (width == 0)
            stopWith("division by zero (two points of the course are at one distance; \"Clear\" takes them away)");
        return width;
    }

    double segmentGrade(const Course& course, int i)
    {
        return quotient(placeAt(course.pointY, i + 1) - placeAt(course.pointY, i), segmentWidth(course, i));
    }

    /// Marks the miles and kilometers that a segment passes. Whether a kilometer is passed is asked of the mile, so that
    /// these preliminary kilometers end before the course does.
    void markSegment(Course& course, int i, double before)
    {
        const double end = placeAt(course.pointX, i + 1);
        const double width = segmentWidth(course, i);
        for (int j = 1; j <= courseMarks; ++j)
        {
            if (!(course.slopeDist > j * metresPerMile))
                continue;
            const auto placeOf = [&](double mark) {
                return end - quotient((course.slopeDist - mark) * width, course.slopeDist - before);
            };
            if (course.marks.mileX[j] == 0)
                course.marks.mileX[j] = placeOf(j * metresPerMile);
            if (course.marks.kmX[j] == 0)
                course.marks.kmX[j] = placeOf(j * metresPerKilometre);
        }
    }

    void measurePoints(Course& course)
    {
        for (int i = 0; i < course.pointCount - 1; ++i)
        {
            const double before = course.slopeDist;
            addPiece(course, segmentWidth(course, i), course.netGrade + segmentGrade(course, i));
            markSegment(course, i, before);
        }
    }

    void measureCurve(Course& course)
    {
        walkCourse(course, measureSlack, [&course](double from, double to) {
            const double rise = courseElevationAt(course, to) - courseElevationAt(course, from);
            addPiece(course, to - from, course.netGrade + quotient(rise, to - from));
        });
    }

    /// A part of the course that is run at one speed.
    struct Step
    {
        double from = 0, to = 0;   // m horizontally
        double grade = 0;          // netGrade included
        double elevation = 0;      // m
    };

    template <class Run>
    void walkSteps(const Course& course, Run run)
    {
        if (isSmooth(course))
        {
            walkCourse(course, measureSlack, [&](double from, double to) {
                const double elevation = (courseElevationAt(course, from) + courseElevationAt(course, to)) / 2;
                run(Step{from, to, course.netGrade + courseGradeAt(course, (from + to) / 2), elevation});
            });
            return;
        }
        for (int i = 0; i < course.pointCount - 1; ++i)
            run(Step{placeAt(course.pointX, i), placeAt(course.pointX, i + 1),
                     course.netGrade + segmentGrade(course, i),
                     (placeAt(course.pointY, i) + placeAt(course.pointY, i + 1)) / 2});
    }

    void placeTimes(const OneBased<double, courseMarks>& places, OneBased<double, courseMarks>& times, const Step& step,
                    double before, double seconds)
    {
        for (int j = 1; j <= courseMarks; ++j)
            if (times[j] == 0 && places[j] > step.from && places[j] <= step.to)
                times[j] = before + seconds * ((places[j] - step.from) / (step.to - step.from));
    }

    /// One round over the course at even effort. Returns its time.
    ///   duration   s, of the race as far as it is known
    ///   markTimes  whether the preliminary marks get their times
    double evenRound(ModelState& state, bool firstPass, double duration, bool markTimes)
    {
        Course& course = state.course;
        double timeSum = 0;
        walkSteps(course, [&](const Step& step) {
            const double e = firstPass ? 0 : step.elevation - course.origElev;
            const double adj = downhillGrade(step.grade, course.totalDrop);
            const double level = altitudeSpeed(state.slopeTools.curSpeed, course.perfScale * duration, e);
            const double speed = slopeSpeedForLevel(state, adj, level);
            const double seconds = quotient(alongSurface(step.to - step.from, step.grade), speed);
            if (markTimes)
            {
                placeTimes(course.marks.mileX, course.marks.mileTime, step, timeSum, seconds);
                placeTimes(course.marks.kmX, course.marks.kmTime, step, timeSum, seconds);
            }
            timeSum = timeSum + seconds;
        });
        return timeSum;
    }

    /// One pass: flatTime, and evenTime in four rounds. Returns the last round's time.
    double solvePass(ModelState& state, bool firstPass, const CourseShown& shown)
    {
        Course& course = state.course;
        double& curSpeed = state.slopeTools.curSpeed;
        measureCourse(state, shown);
        state.activity = "solving the course";
        course.flatTime = raceTimeAt(state, course.slopeDist);
        tell(shown, CourseResult::flatTime);
        curSpeed = quotient(course.slopeDist, course.flatTime);
        double timeSum = 0;
        for (int r = 0; r < rounds; ++r)
        {
            const bool markTimes = r == rounds - 1 && !isSmooth(course);
            timeSum = evenRound(state, firstPass, r == 0 ? course.flatTime : course.evenTime, markTimes);
            course.evenTime = timeSum;
            tell(shown, CourseResult::evenTime);
            const double D = checked(course.slopeDist * quotient(course.evenTime, course.flatTime));
            curSpeed = quotient(D, raceTimeAt(state, D));   // for the longer race
        }
        return timeSum;
    }

    void solve(ModelState& state, const CourseShown& shown)
    {
        Course& course = state.course;
        state.activity = "solving the course";
        course.netGrade = quotient(course.startElev - course.endElev, course.courseDist);
        const double levelTime = solvePass(state, true, shown);
        const double strategicGain = savedShare * (levelTime - course.flatTime);
        course.netGrade = 0;
        (void)solvePass(state, false, shown);
        course.strategicTime = course.evenTime - strategicGain;
        tell(shown, CourseResult::strategicTime);
        course.courseLevelSpeed = state.slopeTools.curSpeed;
        course.evenFlatSpeed = quotient(evenFlatDistance(state, course.slopeDist, course.evenTime), course.evenTime);
    }

    /// The place that stands for step k of the pacing, which ends at x.
    CoursePlace pacingPlace(const Course& course, double x)
    {
        if (isSmooth(course))
        {
            const double middle = x - course.courseDist / (2 * courseSteps);
            return {courseGradeAt(course, middle), courseElevationAt(course, middle)};
        }
        int end = 1;
        while (end < course.pointCount - 1 && !(placeAt(course.pointX, end) >= x))
            ++end;
        return placeInSegment(course, end, x);
    }

    /// Speed of strategic pacing at a place. The exponent has the mean grade of the course alone, unlike that of the
    /// read-out at one point; the two differ on purpose.
    ///   n  mean grade of the course, positive is downhill
    double strategicSpeed(ModelState& state, const CoursePlace& place, double n)
    {
        const Course& course = state.course;
        const double e = place.elevation - course.origElev;
        const double adj = downhillGrade(place.grade, course.totalDrop);
        const double level = altitudeSpeed(course.courseLevelSpeed, course.perfScale * course.strategicTime, e);
        const double evenSpeed = slopeSpeedForLevel(state, adj, level);
        const double ratio =
            quotient(slopeSpeedForLevel(state, adj + n, course.courseLevelSpeed), course.courseLevelSpeed);
        return quotient(evenSpeed * power(ratio, 0.79 + 0.52 * n), ratio);
    }

    /// Sets mark j of one kind if step k has passed it. Returns whether it has.
    bool mark(const Course& course, int k, double metres, double& place, double& time)
    {
        const double end = placeAt(course.distAt, k);
        if (!(end > metres) || place != 0)
            return false;
        const double beyond = end - metres;
        const double length = end - placeAt(course.distAt, k - 1);
        const double seconds = placeAt(course.timeAt, k) - placeAt(course.timeAt, k - 1);
        place = k * course.courseDist / courseSteps - quotient(beyond * (course.courseDist / courseSteps), length);
        time = placeAt(course.timeAt, k) - quotient(beyond * seconds, length);
        return true;
    }

    /// Sets the first mark that step k has passed and that is not set yet.
    void markStep(Course& course, int k)
    {
        CourseMarks& marks = course.marks;
        for (int j = 1; j <= courseMarks; ++j)
            if (mark(course, k, j * metresPerMile, marks.mileX[j], marks.mileTime[j]) ||
                mark(course, k, j * metresPerKilometre, marks.kmX[j], marks.kmTime[j]))
                return;
    }
}

double downhillGrade(double grade, double drop)
{
    if (grade >= 0)
        return grade;
    return (grade * 0.66 * naturalLog(quotient(7000, drop + 150))) / std::log(10.0);
}

double altitudeSpeed(double speed, double seconds, double elevationDifference)
{
    const double v = speed;
    const double t = seconds;
    const double mph = v * secondsPerHour / metresPerMile;
    const double feet = elevationDifference * feetPerMetre;
    const double ground = 11.64 * power(mph, 1.37);
    const double air = 0.0125 * power(mph, 3);
    const double total = ground + air;
    const double airThin = air * exponential(-feet / 29224);
    double aerobicShare = 1 - quotient(2, 2.6 + t / 60);
    if (t < 75)
        aerobicShare = aerobicShare / (2 - t / 75);
    const double aerobic = total * aerobicShare;
    const double aerobicKept = (aerobic * (100 - signOf(feet) * power(std::abs(feet) / 1140.6, 1.3))) / 100;
    const double oxygenLoss = aerobic - aerobicKept;
    const double airGain = air - airThin;
    const double available = (total - oxygenLoss) + airGain;
    return checked(v * power(quotient(available, total), 1 / 1.385));
}

double evenFlatDistance(ModelState& state, double start, double evenTime)
{
    double& curDistance = state.results.curDistance;
    curDistance = start;
    double previous = 0;
    double remembered = curDistance;   // a round depends on the distance alone: one that comes back has no end
    long long round = 0;
    long long nextMemory = 2;
    LongLoop loop(state.goOn);
    while (!(std::abs(previous - evenTime) < 1))
    {
        loop.nextRound();
        if (round > 0 && curDistance == remembered)
            stopWith("a search without an end (its distance comes back)");
        if (++round == nextMemory)
        {
            remembered = curDistance;
            nextMemory = nextMemory * 2;
        }
        const double t = raceTimeAt(state, curDistance);
        curDistance = checked((curDistance * (1 + quotient(evenTime, t))) / 2);
        previous = t;
    }
    return curDistance;
}

CoursePlace placeInSegment(const Course& course, int end, double x)
{
    const double from = placeAt(course.pointX, end - 1);
    const double fromY = placeAt(course.pointY, end - 1);
    const double grade = segmentGrade(course, end - 1);
    return {grade, checked(fromY + grade * (x - from))};
}

void measureCourse(ModelState& state, const CourseShown& shown)
{
    Course& course = state.course;
    state.activity = "measuring the course";
    clearSums(course);
    measurePoints(course);
    tell(shown, CourseResult::slopeDist);
    if (isSmooth(course))
    {
        clearSums(course);
        fitCourseCurve(course);
        measureCurve(course);
        tell(shown, CourseResult::slopeDist);
    }
    tell(shown, CourseResult::climbs);
}

void solveCourse(ModelState& state, const CourseShown& shown)
{
    const CourseMarks before = state.course.marks;
    try
    {
        solve(state, shown);
    }
    catch (const ArithmeticFault&)
    {
        state.course.marks = before;
        throw;
    }
}

void strategicSplits(ModelState& state, const CourseShown& shown)
{
    Course& course = state.course;
    state.activity = "pacing the course";
    course.marks = {};
    course.distAt[0] = 0;
    course.timeAt[0] = 0;
    const double n = quotient(course.startElev - course.endElev, course.courseDist);
    for (int k = 1; k <= courseSteps; ++k)
    {
        const CoursePlace place = pacingPlace(course, k * course.courseDist / courseSteps);
        const double before = placeAt(course.distAt, k - 1);
        const double end = before + alongSurface(course.courseDist / courseSteps, place.grade);
        placeAt(course.distAt, k) = end;
        const double speed = strategicSpeed(state, place, n);
        placeAt(course.timeAt, k) = checked(placeAt(course.timeAt, k - 1) + quotient(end - before, speed));
        markStep(course, k);
    }
    tell(shown, CourseResult::pacedTime);
}

void solveAndSplit(ModelState& state, const CourseShown& shown)
{
    solveCourse(state, shown);
    measureCourse(state, shown);
    strategicSplits(state, shown);
}
