#pragma once
#include <QString>
#include <chrono>
#include <functional>

namespace brimshade {

inline constexpr std::chrono::seconds kPatience{30}; // long enough for a busy machine; never reached if all is well

// Lets events come until the condition holds. If it does not hold in time, it throws, which fails the test and says
// what never came.
void waitFor(const QString &what, const std::function<bool()> &condition);

} // namespace brimshade
