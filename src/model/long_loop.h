#pragma once

#include <functional>

#include "model/arithmetic.h"

/// Asks whoever runs the model whether a very long loop shall go on; true means yes. Empty: it always goes on.
using GoOn = std::function<bool()>;

/// Counts the rounds of a loop that has no cap and asks now and then whether to go on.
class LongLoop
{
public:
    explicit LongLoop(const GoOn& ask) : goOn(ask) {}

    /// To be called once a round. Faults: the answer is no.
    void nextRound()
    {
        if (++rounds % roundsBetweenQuestions == 0 && goOn && !goOn())
            stopWith("a search that was stopped because it took too long");
    }

private:
    static constexpr long long roundsBetweenQuestions = 4096;
    const GoOn& goOn;
    long long rounds = 0;
};
