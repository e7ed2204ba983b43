#pragma once
#include <compare>
#include <cstdint>
#include <functional>

namespace brimshade::desktop {

struct KeyCombination {
    std::uint32_t keyCode = 0; // the Mac's virtual key code
    std::uint32_t modifiers = 0; // Carbon modifier bits
    auto operator<=>(const KeyCombination &) const = default;
};

// Takes key combinations from the whole session. Main thread.
class GlobalKeyGrabber {
public:
    virtual ~GlobalKeyGrabber() = default;
    virtual void setPressed(std::function<void(KeyCombination)> pressed) = 0; // called on the main thread
    virtual bool grab(KeyCombination combination) = 0; // false: refused, or no such key
    virtual void release(KeyCombination combination) = 0;
};

} // namespace brimshade::desktop
