#pragma once

#include "forms/controls.h"

/// The sixteen colours of the desktop, in the order of their numbers, 0 to 15.
namespace classic
{
    inline constexpr Colour black{0, 0, 0};
    inline constexpr Colour blue{0, 0, 128};
    inline constexpr Colour green{0, 128, 0};
    inline constexpr Colour cyan{0, 128, 128};
    inline constexpr Colour red{128, 0, 0};
    inline constexpr Colour magenta{128, 0, 128};
    inline constexpr Colour brown{128, 128, 0};
    inline constexpr Colour grey{192, 192, 192};
    inline constexpr Colour darkGrey{128, 128, 128};
    inline constexpr Colour lightBlue{0, 0, 255};
    inline constexpr Colour lightGreen{0, 255, 0};
    inline constexpr Colour lightCyan{0, 255, 255};
    inline constexpr Colour lightRed{255, 0, 0};
    inline constexpr Colour lightMagenta{255, 0, 255};
    inline constexpr Colour yellow{255, 255, 0};
    inline constexpr Colour white{255, 255, 255};
}
