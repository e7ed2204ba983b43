#pragma once
#include "platform/Dispatch.h"
#include "platform/Screens.h"

#include <memory>
#include <optional>

namespace brimshade::platform {
struct Platform;
class Window;
class Windows;
} // namespace brimshade::platform

namespace brimshade::controls {

// The invisible strip over the notch that opens the panel when the pointer rests on it. Made by std::make_shared.
// Main thread.
class HoverZone : public std::enable_shared_from_this<HoverZone> {
public:
    explicit HoverZone(const platform::Platform &platform);
    ~HoverZone();

    void setOnHover(platform::Work onHover) { m_onHover = std::move(onHover); } // also while a strip exists
    // Takes the strip down, and builds a new one when enabled and the screen has a notch.
    void update(bool enabled, const std::optional<platform::Screen> &screen);

private:
    void build(const QRectF &frame);

    platform::Dispatch &m_dispatch;
    platform::Windows &m_windows;
    std::unique_ptr<platform::Window> m_window;
    platform::Work m_onHover = [] {};
};

} // namespace brimshade::controls
