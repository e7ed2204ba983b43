#include "Gauges.h"

#include <filesystem>
#include <fstream>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // Debian ships its header only with clang
#else
#include <malloc.h>
#endif

namespace brimshade::soak {

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
std::size_t heapInUse()
{
    return __sanitizer_get_current_allocated_bytes();
}

std::size_t residentSize()
{
    return 0; // a sanitizer holds on to freed memory, so its pages mean nothing
}
#else
std::size_t heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

std::size_t residentSize()
{
    std::size_t total = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}
#endif

std::size_t entries(const char *folder)
{
    const std::filesystem::directory_iterator all(folder);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

} // namespace

Gauges Gauges::read(std::size_t queued)
{
    return {heapInUse(), residentSize(), entries("/proc/self/task"), entries("/proc/self/fd"), queued};
}

} // namespace brimshade::soak
