#pragma once

#include <string>

#include "model/arithmetic.h"

/// Runs `action`. Returns the words of the fault that stopped it, or nothing.
template <class Action>
[[nodiscard]] std::string faultOf(Action&& action)
{
    try
    {
        action();
    }
    catch (const ArithmeticFault& fault)
    {
        return fault.what();
    }
    return {};
}
