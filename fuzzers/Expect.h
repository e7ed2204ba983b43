#pragma once
#include <cstdio>
#include <cstdlib>

namespace brimshade::fuzz {

// What holds for every input. libFuzzer takes an abort for a crash and keeps the input.
inline void expect(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "expected: %s\n", what);
    std::abort();
}

} // namespace brimshade::fuzz
