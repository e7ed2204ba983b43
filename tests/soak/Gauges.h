#pragma once
#include <cstddef>

namespace brimshade::soak {

// What this process holds at a given moment.
struct Gauges {
    std::size_t heap = 0; // bytes handed out by the allocator
    std::size_t resident = 0; // bytes
    std::size_t threads = 0;
    std::size_t files = 0; // open descriptors
    std::size_t queued = 0; // pieces of work

    static Gauges read(std::size_t queued);
};

} // namespace brimshade::soak
