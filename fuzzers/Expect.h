#pragma once
#include <cstdio>
#include <cstdlib>

namespace brimshade::fuzz {

// Checks what must hold for every input. libFuzzer treats an abort as a crash and keeps the input.
inline void expect(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "expected: %s\n", what);
    std::abort();
}

} // namespace brimshade::fuzz
