#pragma once

#include <chrono>

/// How long something may go on, from its latest restart.
class TimeLimit
{
public:
    explicit TimeLimit(double limitSeconds) : seconds(limitSeconds) {}

    void restart() { begin = Clock::now(); }
    [[nodiscard]] bool reached() const
    {
        return std::chrono::duration<double>(Clock::now() - begin).count() >= seconds;
    }

private:
    using Clock = std::chrono::steady_clock;
    double seconds;
    Clock::time_point begin = Clock::now();
};
