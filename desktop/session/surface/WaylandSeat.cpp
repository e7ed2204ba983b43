#include "WaylandSeat.h"

#include <utility>
#include <wayland-client.h>

namespace brimshade::desktop::session {

namespace {

constexpr std::uint32_t kReleaseVersion = 3;

} // namespace

WaylandSeat::WaylandSeat(wl_seat *seat, std::uint32_t name, Pressed pressed)
    : m_seat(seat), m_name(name), m_pressed(std::move(pressed))
{
    static constexpr wl_seat_listener kListener{[](void *self, wl_seat *, std::uint32_t capabilities) {
                                                    static_cast<WaylandSeat *>(self)->setCapabilities(capabilities);
                                                },
                                                [](void *, wl_seat *, const char *) {}};
    wl_seat_add_listener(seat, &kListener, this);
}

WaylandSeat::~WaylandSeat()
{
    setCapabilities(0);
    wl_seat_destroy(m_seat);
}

void WaylandSeat::setCapabilities(std::uint32_t capabilities)
{
    const bool hasPointer = capabilities & WL_SEAT_CAPABILITY_POINTER;
    if (hasPointer != bool(m_pointer))
        setPointer(hasPointer ? wl_seat_get_pointer(m_seat) : nullptr);
    const bool hasTouch = capabilities & WL_SEAT_CAPABILITY_TOUCH;
    if (hasTouch != bool(m_touch))
        setTouch(hasTouch ? wl_seat_get_touch(m_seat) : nullptr);
}

void WaylandSeat::setPointer(wl_pointer *pointer)
{
    if (m_pointer && wl_pointer_get_version(m_pointer) >= kReleaseVersion)
        wl_pointer_release(m_pointer);
    else if (m_pointer)
        wl_pointer_destroy(m_pointer);
    m_pointer = pointer;
    m_under = nullptr;
    if (!pointer)
        return;
    static const wl_pointer_listener kListener = [] {
        wl_pointer_listener listener{};
        listener.enter = [](void *self, wl_pointer *, std::uint32_t, wl_surface *surface, wl_fixed_t, wl_fixed_t) {
            static_cast<WaylandSeat *>(self)->m_under = surface;
        };
        listener.leave = [](void *self, wl_pointer *, std::uint32_t, wl_surface *) {
            static_cast<WaylandSeat *>(self)->m_under = nullptr;
        };
        listener.motion = [](void *, wl_pointer *, std::uint32_t, wl_fixed_t, wl_fixed_t) {};
        listener.button = [](void *self, wl_pointer *, std::uint32_t, std::uint32_t, std::uint32_t,
                             std::uint32_t state) {
            const auto *seat = static_cast<const WaylandSeat *>(self);
            if (state == WL_POINTER_BUTTON_STATE_PRESSED && seat->m_under)
                seat->m_pressed(seat->m_under);
        };
        listener.axis = [](void *, wl_pointer *, std::uint32_t, std::uint32_t, wl_fixed_t) {};
        return listener;
    }();
    wl_pointer_add_listener(pointer, &kListener, this);
}

void WaylandSeat::setTouch(wl_touch *touch)
{
    if (m_touch && wl_touch_get_version(m_touch) >= kReleaseVersion)
        wl_touch_release(m_touch);
    else if (m_touch)
        wl_touch_destroy(m_touch);
    m_touch = touch;
    if (!touch)
        return;
    static const wl_touch_listener kListener = [] {
        wl_touch_listener listener{};
        listener.down = [](void *self, wl_touch *, std::uint32_t, std::uint32_t, wl_surface *surface, std::int32_t,
                           wl_fixed_t, wl_fixed_t) { static_cast<const WaylandSeat *>(self)->m_pressed(surface); };
        listener.up = [](void *, wl_touch *, std::uint32_t, std::uint32_t, std::int32_t) {};
        listener.motion = [](void *, wl_touch *, std::uint32_t, std::int32_t, wl_fixed_t, wl_fixed_t) {};
        listener.frame = [](void *, wl_touch *) {};
        listener.cancel = [](void *, wl_touch *) {};
        return listener;
    }();
    wl_touch_add_listener(touch, &kListener, this);
}

} // namespace brimshade::desktop::session
