#pragma once
#include <QString>
#include <compare>
#include <cstdint>
#include <functional>

namespace brimshade::desktop {

struct HotkeyCombination {
    std::uint32_t keyCode = 0; // the Mac's virtual key code
    std::uint32_t modifiers = 0; // Carbon modifier bits
    auto operator<=>(const HotkeyCombination &) const = default;
};

// What a grabbed combination is for, in case the session asks the user.
struct KeyUse {
    std::uint32_t number = 0; // for the same purpose the same in every run
    QString purpose = {}; // in the user's language
};

// Takes key combinations from the whole session. Main thread.
class GlobalKeyGrabber {
public:
    virtual ~GlobalKeyGrabber() = default;
    virtual void setPressed(std::function<void(HotkeyCombination)> pressed) = 0; // called on the main thread
    // False if another program has it, or if no keyboard has such a key. A key that the current keyboard lacks is
    // grabbed once a keyboard has it.
    virtual bool grab(HotkeyCombination combination, const KeyUse &use) = 0;
    virtual void release(HotkeyCombination combination) = 0;
};

} // namespace brimshade::desktop
