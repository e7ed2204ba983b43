#pragma once
#include <QtGlobal>
#include <cstdint>
#include <functional>

struct wl_keyboard;
struct wl_pointer;
struct wl_seat;
struct wl_surface;
struct wl_touch;

namespace brimshade::desktop::session {

// What this program learns from a seat's devices: where presses go, and the serial of the last press or key. Main
// thread.
class WaylandSeat {
public:
    using Pressed = std::function<void(wl_surface *)>;

    static constexpr std::uint32_t kVersion = 3; // the version whose events we handle

    WaylandSeat(wl_seat *seat, std::uint32_t name, Pressed pressed = {}); // owns the seat
    ~WaylandSeat();
    Q_DISABLE_COPY_MOVE(WaylandSeat)

    wl_seat *seat() const { return m_seat; }
    std::uint32_t name() const { return m_name; } // in the registry
    std::uint32_t lastSerial() const { return m_lastSerial; } // 0 for none

private:
    void setCapabilities(std::uint32_t capabilities);
    void setPointer(wl_pointer *pointer);
    void setKeyboard(wl_keyboard *keyboard);
    void setTouch(wl_touch *touch);
    void press(wl_surface *surface, std::uint32_t serial);

    wl_seat *const m_seat;
    const std::uint32_t m_name;
    const Pressed m_pressed;
    wl_pointer *m_pointer = nullptr;
    wl_keyboard *m_keyboard = nullptr;
    wl_touch *m_touch = nullptr;
    wl_surface *m_under = nullptr; // the pointer is on it; only for comparison, it may be gone
    std::uint32_t m_lastSerial = 0;
};

} // namespace brimshade::desktop::session
