#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <string>

// Checked arithmetic: the one place where an operation without a real, finite result stops a calculation.

/// Thrown where a calculation cannot go on; what() names the reason in plain words, e.g. "division by zero".
/// It is caught once, where an event enters a form or a command enters the console. Whatever was written before
/// it was thrown stays.
class ArithmeticFault : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Elementary functions that the benchmark suite counts, in the order of `callCounts`.
enum class ElementaryCall { power, naturalLog, exponential, squareRoot, cosine, sine, arctangent };
inline constexpr std::size_t elementaryCallKinds = 7;

#ifdef VANTELOS_COUNT_CALLS
inline thread_local std::array<long long, elementaryCallKinds> callCounts{};
inline void countCall(ElementaryCall call)
{
    ++callCounts[static_cast<std::size_t>(call)];
}
#else
inline void countCall(ElementaryCall) {}
#endif

[[noreturn]] void stopWith(const char* reason);

/// x itself. Faults: x is infinite ("an overflow") or no number.
[[nodiscard]] inline double checked(double x)
{
    if (!std::isfinite(x))
        stopWith(std::isnan(x) ? "a result that is no number" : "an overflow");
    return x;
}

/// numerator / denominator. Faults: a denominator of 0, a quotient beyond the range of a double.
[[nodiscard]] inline double quotient(double numerator, double denominator)
{
    if (denominator == 0)
        stopWith("division by zero");
    return checked(numerator / denominator);
}

[[nodiscard]] inline double square(double x)
{
    return x * x;
}

/// Faults: x below 0, or not finite.
[[nodiscard]] inline double squareRoot(double x)
{
    if (x < 0)
        stopWith("the square root of a negative number");
    countCall(ElementaryCall::squareRoot);
    return checked(std::sqrt(x));
}

/// Faults: x at or below 0, or not finite.
[[nodiscard]] inline double naturalLog(double x)
{
    if (x <= 0)
        stopWith("the logarithm of zero or of a negative number");
    countCall(ElementaryCall::naturalLog);
    return checked(std::log(x));
}

/// Logarithm to base 10.  Faults: as `naturalLog`.
[[nodiscard]] inline double decimalLog(double x)
{
    if (x <= 0)
        stopWith("the logarithm of zero or of a negative number");
    countCall(ElementaryCall::naturalLog);
    return checked(std::log10(x));
}

/// Faults: a result beyond the range of a double.
[[nodiscard]] inline double exponential(double x)
{
    countCall(ElementaryCall::exponential);
    return checked(std::exp(x));
}

/// base ^ exponent. Faults: a negative base with a fractional exponent, 0 with a negative one, an overflow.
[[nodiscard]] inline double power(double base, double exponent)
{
    if (base < 0 && exponent != std::floor(exponent))
        stopWith("a power without a real value");
    if (base == 0 && exponent < 0)
        stopWith("division by zero");
    countCall(ElementaryCall::power);
    return checked(std::pow(base, exponent));
}

/// Faults: x not finite; likewise `sine` and `arctangent`.
[[nodiscard]] inline double cosine(double x)
{
    countCall(ElementaryCall::cosine);
    return std::cos(checked(x));
}

[[nodiscard]] inline double sine(double x)
{
    countCall(ElementaryCall::sine);
    return std::sin(checked(x));
}

[[nodiscard]] inline double arctangent(double x)
{
    countCall(ElementaryCall::arctangent);
    return std::atan(checked(x));
}

/// x to the nearest whole number, a tie to the even one: 2.5 gives 2, 3.5 gives 4.
[[nodiscard]] inline double roundHalfEven(double x)
{
    return std::nearbyint(x);
}

/// -1, 0 or 1.
[[nodiscard]] inline double signOf(double x)
{
    return x > 0 ? 1 : (x < 0 ? -1 : 0);
}
