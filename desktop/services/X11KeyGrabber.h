#pragma once
#include "GlobalKeyGrabber.h"

#include <memory>

namespace brimshade::desktop {

// Grabs on the X server of DISPLAY, through a connection of its own: Command is Super, Option Alt. The state of Caps
// Lock and Num Lock does not matter. Follows changes of the keyboard mapping.
class X11KeyGrabber : public GlobalKeyGrabber {
public:
    static std::unique_ptr<X11KeyGrabber> create(); // null without an X server
    ~X11KeyGrabber() override;

    void setPressed(std::function<void(KeyCombination)> pressed) override;
    bool grab(KeyCombination combination) override;
    void release(KeyCombination combination) override;

private:
    class Private;
    explicit X11KeyGrabber(std::unique_ptr<Private> d);
    std::unique_ptr<Private> m_d;
};

} // namespace brimshade::desktop
