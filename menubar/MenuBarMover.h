#pragma once
#include "MenuExtra.h"

#include <expected>
#include <memory>

namespace brimshade::platform {
struct Platform;
}

namespace brimshade::menubar {

class MenuBarAccess;

// What the mover needs of the divider. Main thread; the mover gets there by itself.
class DividerControl {
public:
    virtual ~DividerControl() = default;
    virtual QRectF axFrame() const = 0; // display space; zero without a window
    virtual void collapse() = 0;
    virtual void reanchor() = 0;
    virtual bool isWindowVisible() const = 0; // its button's window reports the visible occlusion state
};

} // namespace brimshade::menubar
