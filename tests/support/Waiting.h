#pragma once
#include <QString>
#include <chrono>
#include <functional>

namespace brimshade {

inline constexpr std::chrono::seconds kPatience{30}; // long for a busy machine, never reached where all is well

// Lets events come until the condition holds. When it does not in all that time it throws, which fails the test, and
// says what never came.
void waitFor(const QString &what, const std::function<bool()> &condition);

} // namespace brimshade
