#pragma once

#include <array>
#include <cstddef>

#include "model/arithmetic.h"

/// N numbers that are counted from 1, as runners count races. Faults: an index below 1 or above N.
template <class T, int N>
struct OneBased
{
    std::array<T, static_cast<std::size_t>(N)> items{};

    static constexpr int size = N;

    [[nodiscard]] T& operator[](int index) { return items[position(index)]; }
    [[nodiscard]] const T& operator[](int index) const { return items[position(index)]; }

private:
    static std::size_t position(int index)
    {
        if (index < 1 || index > N)
            stopWith("an index out of range");
        return static_cast<std::size_t>(index - 1);
    }
};
