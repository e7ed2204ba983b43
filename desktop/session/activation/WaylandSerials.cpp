#include "WaylandSerials.h"

#include <unistd.h>
#include <wayland-client.h>

namespace brimshade::desktop::session {

WaylandSerials::WaylandSerials(wl_seat *seat, std::uint32_t name) : m_seat(seat), m_name(name)
{
    static constexpr wl_seat_listener kListener{[](void *self, wl_seat *, std::uint32_t capabilities) {
                                                    static_cast<WaylandSerials *>(self)->setCapabilities(capabilities);
                                                },
                                                [](void *, wl_seat *, const char *) {}};
    wl_seat_add_listener(seat, &kListener, this);
}

WaylandSerials::~WaylandSerials()
{
    setCapabilities(0);
    wl_seat_destroy(m_seat);
}

// A compositor ends the connection of who asks for a device that never was.
void WaylandSerials::setCapabilities(std::uint32_t capabilities)
{
    const bool hasPointer = capabilities & WL_SEAT_CAPABILITY_POINTER;
    if (hasPointer != bool(m_pointer))
        setPointer(hasPointer ? wl_seat_get_pointer(m_seat) : nullptr);
    const bool hasKeyboard = capabilities & WL_SEAT_CAPABILITY_KEYBOARD;
    if (hasKeyboard != bool(m_keyboard))
        setKeyboard(hasKeyboard ? wl_seat_get_keyboard(m_seat) : nullptr);
}

void WaylandSerials::setPointer(wl_pointer *pointer)
{
    if (m_pointer)
        wl_pointer_destroy(m_pointer);
    m_pointer = pointer;
    if (!pointer)
        return;
    static const wl_pointer_listener kListener = [] {
        wl_pointer_listener listener{};
        listener.enter = [](void *, wl_pointer *, std::uint32_t, wl_surface *, wl_fixed_t, wl_fixed_t) {};
        listener.leave = [](void *, wl_pointer *, std::uint32_t, wl_surface *) {};
        listener.motion = [](void *, wl_pointer *, std::uint32_t, wl_fixed_t, wl_fixed_t) {};
        listener.button = [](void *self, wl_pointer *, std::uint32_t serial, std::uint32_t, std::uint32_t,
                             std::uint32_t) { static_cast<WaylandSerials *>(self)->m_last = serial; };
        listener.axis = [](void *, wl_pointer *, std::uint32_t, std::uint32_t, wl_fixed_t) {};
        return listener;
    }();
    wl_pointer_add_listener(pointer, &kListener, this);
}

void WaylandSerials::setKeyboard(wl_keyboard *keyboard)
{
    if (m_keyboard)
        wl_keyboard_destroy(m_keyboard);
    m_keyboard = keyboard;
    if (!keyboard)
        return;
    static const wl_keyboard_listener kListener = [] {
        wl_keyboard_listener listener{};
        listener.keymap = [](void *, wl_keyboard *, std::uint32_t, int file, std::uint32_t) { ::close(file); };
        listener.enter = [](void *, wl_keyboard *, std::uint32_t, wl_surface *, wl_array *) {};
        listener.leave = [](void *, wl_keyboard *, std::uint32_t, wl_surface *) {};
        listener.key = [](void *self, wl_keyboard *, std::uint32_t serial, std::uint32_t, std::uint32_t,
                          std::uint32_t) { static_cast<WaylandSerials *>(self)->m_last = serial; };
        listener.modifiers = [](void *, wl_keyboard *, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t,
                                std::uint32_t) {};
        return listener;
    }();
    wl_keyboard_add_listener(keyboard, &kListener, this);
}

} // namespace brimshade::desktop::session
