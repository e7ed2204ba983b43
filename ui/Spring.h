#pragma once

namespace brimshade::ui {

// A damped oscillator of mass 1 that pulls towards 0: response is the period without damping in seconds,
// dampingFraction 1 is critical damping. stiffness = (2π / response)², damping = 4π dampingFraction / response.
struct SpringParameters {
    double response = 0.5;
    double dampingFraction = 0.8;

    bool operator==(const SpringParameters &) const = default;
};

// Position and velocity (units per second) at one instant.
struct SpringState {
    double position = 0;
    double velocity = 0;

    bool operator==(const SpringState &) const = default;
};

// Where the spring is, seconds after it was let go at `start`. Exact for every time and every damping: it does not
// depend on how often it is asked. A response that is not positive arrives at once.
SpringState springAt(const SpringParameters &parameters, const SpringState &start, double seconds);

// Whether what is left of the motion is below `tolerance`, now and from here on.
bool springIsSettled(const SpringParameters &parameters, const SpringState &state, double tolerance);

} // namespace brimshade::ui
