#include <array>
#include <cmath>
#include <cstddef>

#include <benchmark/benchmark.h>

#include "timings.h"

namespace
{
    /// Arguments as the model has them: ratios of distances around 1 with exponents of either sign.
    constexpr std::size_t argumentCount = 1024;

    /// Too small to change an argument, yet each call waits for the one before it, as the model's steps do.
    constexpr double waiting = 1e-300;

    template <class Function>
    void timeFunction(benchmark::State& state, Function function)
    {
        std::array<double, argumentCount> arguments{};
        for (std::size_t i = 0; i < argumentCount; ++i)
            arguments[i] = 0.2 + 0.003 * static_cast<double>(i);
        for (auto _ : state)
        {
            double result = 0;
            for (const double argument : arguments)
                result = function(argument + result * waiting);
            benchmark::DoNotOptimize(result);
        }
        state.SetItemsProcessed(static_cast<std::int64_t>(argumentCount) * state.iterations());
    }

    template <class Function>
    void add(const char* name, Function function)
    {
        benchmark::RegisterBenchmark(name, [function](benchmark::State& state) { timeFunction(state, function); });
    }
}

void registerElementaryFunctions()
{
    add("elementary/power", [](double x) { return std::pow(x, 0.65 + 0.001 * x); });
    add("elementary/naturalLog", [](double x) { return std::log(x); });
    add("elementary/exponential", [](double x) { return std::exp(x); });
    add("elementary/squareRoot", [](double x) { return std::sqrt(x); });
    add("elementary/cosine", [](double x) { return std::cos(x); });
    add("elementary/sine", [](double x) { return std::sin(x); });
    add("elementary/arctangent", [](double x) { return std::atan(x); });
}
