#include "WaylandSeat.h"

#include <unistd.h>
#include <utility>
#include <wayland-client.h>

namespace brimshade::desktop::session {

namespace {

constexpr std::uint32_t kReleaseVersion = 3; // the seat's; earlier versions cannot release devices

template <class Device> void giveBack(Device *device, void (*release)(Device *), void (*destroy)(Device *))
{
    if (device && wl_proxy_get_version(reinterpret_cast<wl_proxy *>(device)) >= kReleaseVersion)
        release(device);
    else if (device)
        destroy(device);
}

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

// A compositor ends the connection of a client that asks for a device that never existed.
void WaylandSeat::setCapabilities(std::uint32_t capabilities)
{
    const bool hasPointer = capabilities & WL_SEAT_CAPABILITY_POINTER;
    if (hasPointer != bool(m_pointer))
        setPointer(hasPointer ? wl_seat_get_pointer(m_seat) : nullptr);
    const bool hasKeyboard = capabilities & WL_SEAT_CAPABILITY_KEYBOARD;
    if (hasKeyboard != bool(m_keyboard))
        setKeyboard(hasKeyboard ? wl_seat_get_keyboard(m_seat) : nullptr);
    const bool hasTouch = capabilities & WL_SEAT_CAPABILITY_TOUCH;
    if (hasTouch != bool(m_touch))
        setTouch(hasTouch ? wl_seat_get_touch(m_seat) : nullptr);
}

void WaylandSeat::press(wl_surface *surface, std::uint32_t serial)
{
    m_lastSerial = serial;
    if (surface && m_pressed)
        m_pressed(surface);
}

void WaylandSeat::setPointer(wl_pointer *pointer)
{
    giveBack(std::exchange(m_pointer, pointer), wl_pointer_release, wl_pointer_destroy);
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
        listener.button = [](void *self, wl_pointer *, std::uint32_t serial, std::uint32_t, std::uint32_t,
                             std::uint32_t state) {
            auto *seat = static_cast<WaylandSeat *>(self);
            seat->press(state == WL_POINTER_BUTTON_STATE_PRESSED ? seat->m_under : nullptr, serial);
        };
        listener.axis = [](void *, wl_pointer *, std::uint32_t, std::uint32_t, wl_fixed_t) {};
        return listener;
    }();
    wl_pointer_add_listener(pointer, &kListener, this);
}

void WaylandSeat::setKeyboard(wl_keyboard *keyboard)
{
    giveBack(std::exchange(m_keyboard, keyboard), wl_keyboard_release, wl_keyboard_destroy);
    if (!keyboard)
        return;
    static const wl_keyboard_listener kListener = [] {
        wl_keyboard_listener listener{};
        listener.keymap = [](void *, wl_keyboard *, std::uint32_t, int file, std::uint32_t) { ::close(file); };
        listener.enter = [](void *, wl_keyboard *, std::uint32_t, wl_surface *, wl_array *) {};
        listener.leave = [](void *, wl_keyboard *, std::uint32_t, wl_surface *) {};
        listener.key = [](void *self, wl_keyboard *, std::uint32_t serial, std::uint32_t, std::uint32_t,
                          std::uint32_t) { static_cast<WaylandSeat *>(self)->m_lastSerial = serial; };
        listener.modifiers = [](void *, wl_keyboard *, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t,
                                std::uint32_t) {};
        return listener;
    }();
    wl_keyboard_add_listener(keyboard, &kListener, this);
}

void WaylandSeat::setTouch(wl_touch *touch)
{
    giveBack(std::exchange(m_touch, touch), wl_touch_release, wl_touch_destroy);
    if (!touch)
        return;
    static const wl_touch_listener kListener = [] {
        wl_touch_listener listener{};
        listener.down = [](void *self, wl_touch *, std::uint32_t serial, std::uint32_t, wl_surface *surface,
                           std::int32_t, wl_fixed_t,
                           wl_fixed_t) { static_cast<WaylandSeat *>(self)->press(surface, serial); };
        listener.up = [](void *, wl_touch *, std::uint32_t, std::uint32_t, std::int32_t) {};
        listener.motion = [](void *, wl_touch *, std::uint32_t, std::int32_t, wl_fixed_t, wl_fixed_t) {};
        listener.frame = [](void *, wl_touch *) {};
        listener.cancel = [](void *, wl_touch *) {};
        return listener;
    }();
    wl_touch_add_listener(touch, &kListener, this);
}

} // namespace brimshade::desktop::session
