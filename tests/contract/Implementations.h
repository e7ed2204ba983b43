#pragma once
#include "DesktopDriver.h"

namespace brimshade::contract {

// Every implementation of the platform that can be driven here.
inline auto implementations()
{
    return testing::Values(DriverFactory(makeDesktopDriver));
}

inline std::string implementationName(const testing::TestParamInfo<DriverFactory> &implementation)
{
    static constexpr const char *kNames[] = {"Desktop"};
    return kNames[implementation.index];
}

} // namespace brimshade::contract
