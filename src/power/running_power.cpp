#include "power/running_power.h"

#include "model/arithmetic.h"

namespace
{
    constexpr double bodyKg = 68.2;          // the body that all terms are stated for
    constexpr double bodyForce = 668.36;     // N, its weight: 68.2 * 9.8
    constexpr double basePower = 80;         // W, its rate at rest
    constexpr double airEfficiency = 0.27;   // of the work against air
    constexpr double climbEfficiency = 0.275;

    /// W of mechanical power for running on the level in still air.
    double levelRunning(double speed)
    {
        return 35 * power(speed, 1.36);
    }
}

double runEfficiency(double grade)
{
    const double g = grade;
    if (g <= 0)
        return 0.21 * exponential(4 * g);
    double efficiency = 0.21 + 0.46 * power(g, 0.88);
    if (g > 0.106)
        efficiency = efficiency - 0.51 * power(g - 0.106, 0.8);
    return checked(efficiency);
}

double grossPower(const ModelState& state, double speed, double weight, double grade, double airFactor)
{
    const double v = speed;
    const double drag = square(quotient(v, state.runner.bodyDrag));
    const double running = quotient(levelRunning(v), runEfficiency(grade));
    const double air = (bodyForce * airFactor * drag * v) / airEfficiency;
    const double climbing = (bodyForce * v * grade) / climbEfficiency;
    return checked((weight / bodyKg) * (basePower + running + air + climbing));
}

double netPower(ModelState& state, double speed, double weight, double grade, double airFactor, double wind)
{
    const double v = speed;
    state.incline.zeroPowerFlag = 0;
    double sum = 0;
    if (v > 0)
    {
        // the force is square in the speed of the air and pushes when a tail wind outruns the runner
        const double s = signOf(v + wind);
        const double drag = square(quotient(v + wind, state.runner.bodyDrag));
        const double running = quotient(levelRunning(v), runEfficiency(grade));
        const double air = (bodyForce * airFactor * s * drag * v) / airEfficiency;
        const double climbing = (bodyForce * v * grade) / climbEfficiency;
        sum = running + air + climbing;
    }
    const double result = checked(sum * (weight / bodyKg));
    if (result == 0)
        state.incline.zeroPowerFlag = 1;
    return result;
}

double powerOutput(const ModelState& state, double speed, double weight, double grade, double airFactor)
{
    const double v = speed;
    double sum = 0;
    if (v > 0)
    {
        const double drag = square(quotient(v, state.runner.bodyDrag));
        sum = levelRunning(v) + bodyForce * airFactor * drag * v + bodyForce * v * grade;
    }
    return checked(sum * (weight / bodyKg));
}
