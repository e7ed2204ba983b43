#include "Spring.h"

#include <cmath>
#include <numbers>

namespace brimshade::ui {

namespace {

double frequency(const SpringParameters &parameters)
{
    return 2 * std::numbers::pi / parameters.response;
}

SpringState underdamped(double frequency, double fraction, const SpringState &start, double t)
{
    const double decay = fraction * frequency;
    const double damped = frequency * std::sqrt(1 - fraction * fraction);
    const double a = start.position;
    const double b = (start.velocity + decay * a) / damped;
    const double envelope = std::exp(-decay * t);
    const double cosine = std::cos(damped * t);
    const double sine = std::sin(damped * t);
    return {envelope * (a * cosine + b * sine),
            envelope * ((b * damped - decay * a) * cosine - (a * damped + decay * b) * sine)};
}

SpringState critical(double frequency, const SpringState &start, double t)
{
    const double b = start.velocity + frequency * start.position;
    const double envelope = std::exp(-frequency * t);
    return {envelope * (start.position + b * t), envelope * (b - frequency * (start.position + b * t))};
}

SpringState overdamped(double frequency, double fraction, const SpringState &start, double t)
{
    const double root = std::sqrt(fraction * fraction - 1);
    const double fast = -frequency * (fraction + root);
    const double slow = -frequency / (fraction + root); // the other root, without cancellation
    const double b = (start.velocity - fast * start.position) / (slow - fast);
    const double a = start.position - b;
    const double x = a * std::exp(fast * t);
    const double y = b * std::exp(slow * t);
    return {x + y, fast * x + slow * y};
}

} // namespace

SpringState springAt(const SpringParameters &parameters, const SpringState &start, double seconds)
{
    if (!(parameters.response > 0))
        return {};
    if (seconds <= 0)
        return start;
    constexpr double nearCritical = 1e-6; // where the other two forms lose their digits
    if (std::abs(parameters.dampingFraction - 1) < nearCritical)
        return critical(frequency(parameters), start, seconds);
    if (parameters.dampingFraction < 1)
        return underdamped(frequency(parameters), parameters.dampingFraction, start, seconds);
    return overdamped(frequency(parameters), parameters.dampingFraction, start, seconds);
}

bool springIsSettled(const SpringParameters &parameters, const SpringState &state, double tolerance)
{
    if (!(parameters.response > 0))
        return true;
    // The energy never grows, so neither can the largest excursion still possible.
    return std::hypot(state.position, state.velocity / frequency(parameters)) < tolerance;
}

} // namespace brimshade::ui
