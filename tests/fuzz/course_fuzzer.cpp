#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>

#include "course/course_file.h"
#include "course/course_profile.h"
#include "course/course_solver.h"
#include "course/course_splits.h"
#include "model/arithmetic.h"
#include "model/units.h"

// Bytes as a course file: read whole, written and read again as the same, and solved and split to the end or to a fault;
// or refused with a reason.

namespace
{
    void check(bool good, const char* what)
    {
        if (good)
            return;
        std::cerr << what << '\n';
        std::abort();
    }

    void expectSameAgain(const CourseFile& file)
    {
        Messages said;
        const std::optional<CourseFile> again = readCourseFile(bytesOf(file), said);
        check(again.has_value(), "what was written is refused");
        check(again->pointX == file.pointX && again->pointY == file.pointY, "a point was changed");
        check(again->unitCode == file.unitCode && again->origElev == file.origElev, "a number was changed");
        check(again->distance.size() == file.distance.size(), "a text was changed");
    }

    void checkSplits(const Course& course)
    {
        for (const double unit : {metresPerMile, metresPerKilometre})
            for (const CourseSplit& split : courseSplits(course, unit))
                check(std::isfinite(split.place) && std::isfinite(split.elevation) && std::isfinite(split.time) &&
                          std::isfinite(split.split) && std::isfinite(split.perMile) &&
                          std::isfinite(split.perKilometer) && std::isfinite(split.grade),
                      "a split has what is no number");
    }

    void solve(const CourseFile& file)
    {
        ModelState state;
        state.curve.aerobicPower = 759;
        state.curve.anaerobicEnergy = 512138;
        state.curve.refDistance = 5000;
        state.curve.fatigueCoef = 0.1;
        int asked = 0;
        state.goOn = [&asked] { return ++asked < 3; };
        Messages said;
        try
        {
            const CourseEntries entries = entriesOf(file, {});
            (void)readCourseDistance(state, entries, said);
            (void)readCourseElevations(state, entries, said);
            takePoints(file, state.course);
            state.course.scur = entries.feet ? 1 : 0;
            solveAndSplit(state, {});
            checkSplits(state.course);
        }
        catch (const ArithmeticFault&)
        {
            check(state.course.pointCount >= 2, "the course has lost its points");
        }
        for (const double number : {state.course.flatTime, state.course.evenTime, state.course.strategicTime,
                                    state.course.timeAt.back(), state.course.slopeDist})
            check(std::isfinite(number), "a result is no number");
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Messages said;
    const std::optional<CourseFile> file = readCourseFile(std::string(data, data + size), said);
    check(file.has_value() == said.empty(), "a refusal without a reason, or a reason without a refusal");
    if (file)
    {
        expectSameAgain(*file);
        solve(*file);
    }
    return 0;
}
