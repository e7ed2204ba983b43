#pragma once
#include "GlobalKeyGrabber.h"

#include <QByteArray>
#include <memory>

namespace brimshade::desktop {

// Grabs keys on an X server, through a connection of its own: Command is Super (Mod4), Option is Alt (Mod1). The state
// of Caps Lock and Num Lock (Mod2) does not matter, a held key fires once, and changes of the keyboard mapping are
// followed. grab and release wait for one answer of the server. If the connection is lost, presses silently stop. The
// window manager is asked to activate the window with each press, so that what the press opens gets the keys.
class X11KeyGrabber : public GlobalKeyGrabber {
public:
    // window: 0 for none. Without a display name, DISPLAY is used; null if there is no server.
    static std::unique_ptr<X11KeyGrabber> create(std::uint32_t window, const QByteArray &display = {});
    ~X11KeyGrabber() override;

    void setPressed(std::function<void(HotkeyCombination)> pressed) override;
    bool grab(HotkeyCombination combination, const KeyUse &use) override;
    void release(HotkeyCombination combination) override;

private:
    class Private;
    explicit X11KeyGrabber(std::unique_ptr<Private> d);
    std::unique_ptr<Private> m_d;
};

} // namespace brimshade::desktop
