#pragma once

#include <optional>
#include <string>

#include "model/arithmetic.h"
#include "model/model_state.h"

/// Holds the first fault of several writes, with what was under way, so that the others are made all the same.
class FirstFault
{
public:
    explicit FirstFault(ModelState& modelState) : state(modelState) {}

    template <class Write>
    void hold(Write write)
    {
        try
        {
            write();
        }
        catch (const ArithmeticFault& fault)
        {
            if (held)
                return;
            held = fault;
            activity = state.activity;
        }
    }

    /// Faults: the first that was held.
    void raise() const
    {
        if (!held)
            return;
        state.activity = activity;
        throw ArithmeticFault(*held);
    }

private:
    ModelState& state;
    std::optional<ArithmeticFault> held;
    std::string activity;
};
