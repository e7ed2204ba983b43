#pragma once
#include <algorithm>
#include <cmath>
#include <cstdint>

namespace brimshade::desktop {

// Time inside the queues: whole nanoseconds, so that 0.1 s and 0.2 s add up to exactly 0.3 s.
using Nanoseconds = std::int64_t;

inline constexpr Nanoseconds kSecond = 1'000'000'000;

// Negative values and NaN count as 0; anything longer than a century counts as one.
inline Nanoseconds toNanoseconds(double seconds)
{
    constexpr double century = 3.2e9;
    return seconds > 0 ? std::llround(std::min(seconds, century) * kSecond) : 0;
}
inline double toSeconds(Nanoseconds time)
{
    return static_cast<double>(time) / kSecond;
}

} // namespace brimshade::desktop
