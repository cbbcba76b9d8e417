#include "course/course_curve.h"

#include "course/course_profile.h"
#include "model/arithmetic.h"

namespace
{
    constexpr double smallestDeterminant = 0.00000001;   // stands for one that is exactly 0

    /// A matrix of three rows (a, b, 1), or with any third column.
    struct Column
    {
        double first = 0, second = 0, third = 0;
    };

    double determinant(const Column& a, const Column& b, const Column& c)
    {
        return checked(a.first * (b.second * c.third - b.third * c.second) -
                       b.first * (a.second * c.third - a.third * c.second) +
                       c.first * (a.second * b.third - a.third * b.second));
    }

    void fitParabola(Course& course, int c)
    {
        const Column x{placeAt(course.pointX, c), placeAt(course.pointX, c + 1), placeAt(course.pointX, c + 2)};
        const Column y{placeAt(course.pointY, c), placeAt(course.pointY, c + 1), placeAt(course.pointY, c + 2)};
        const Column squares{x.first * x.first, x.second * x.second, x.third * x.third};
        const Column ones{1, 1, 1};
        double D = determinant(squares, x, ones);
        if (D == 0)
            D = smallestDeterminant;
        placeAt(course.curveA, c) = quotient(determinant(y, x, ones), D);
        placeAt(course.curveB, c) = quotient(determinant(squares, y, ones), D);
        placeAt(course.curveC, c) = quotient(determinant(squares, x, y), D);
    }

    double elevationOf(const Course& course, int c, double x)
    {
        return placeAt(course.curveA, c) * x * x + placeAt(course.curveB, c) * x + placeAt(course.curveC, c);
    }

    double gradeOf(const Course& course, int c, double x)
    {
        return 2 * placeAt(course.curveA, c) * x + placeAt(course.curveB, c);
    }

    /// x of a point; the first one's is 0 whatever it is.
    double xOf(const Course& course, int i)
    {
        return i == 0 ? 0 : placeAt(course.pointX, i);
    }

    /// The value at x of the parabola, or of the blend of two, that holds there.
    template <class ValueOf>
    double blended(const Course& course, double x, ValueOf valueOf)
    {
        if (course.pointCount < 3)
            stopWith("an index out of range (a curve needs three points)");
        int i = course.pointCount - 1;
        while (i > 0 && !(xOf(course, i) <= x))
            --i;
        if (i == 0 || course.pointCount == 3)
            return checked(valueOf(course, 0, x));
        if (i >= course.pointCount - 2)
            return checked(valueOf(course, course.pointCount - 3, x));
        const double here = xOf(course, i);
        const double next = xOf(course, i + 1);
        return quotient(valueOf(course, i - 1, x) * (next - x) + valueOf(course, i, x) * (x - here), next - here);
    }
}

void fitCourseCurve(Course& course)
{
    for (int c = 0; c <= course.pointCount - 3; ++c)
        fitParabola(course, c);
}

double courseElevationAt(const Course& course, double x)
{
    return blended(course, x, elevationOf);
}

double courseGradeAt(const Course& course, double x)
{
    return blended(course, x, gradeOf);
}
