#pragma once
#include <QtGlobal>
#include <cstdint>
#include <functional>

struct wl_pointer;
struct wl_seat;
struct wl_surface;
struct wl_touch;

namespace brimshade::desktop::session {

// Where presses go, for as long as the seat has a pointer or a touch screen: a compositor ends the connection of who
// asks for one that never was.
class WaylandSeat {
public:
    using Pressed = std::function<void(wl_surface *)>;

    WaylandSeat(wl_seat *seat, std::uint32_t name, Pressed pressed); // owns the seat
    ~WaylandSeat();
    Q_DISABLE_COPY_MOVE(WaylandSeat)

    std::uint32_t name() const { return m_name; } // in the registry

private:
    void setCapabilities(std::uint32_t capabilities);
    void setPointer(wl_pointer *pointer);
    void setTouch(wl_touch *touch);

    wl_seat *const m_seat;
    const std::uint32_t m_name;
    const Pressed m_pressed;
    wl_pointer *m_pointer = nullptr;
    wl_touch *m_touch = nullptr;
    wl_surface *m_under = nullptr; // the pointer; only to compare, it may be gone
};

} // namespace brimshade::desktop::session
