#pragma once
#include <QtGlobal>
#include <cstdint>

struct wl_keyboard;
struct wl_pointer;
struct wl_seat;

namespace brimshade::desktop::session {

// The serial of the last button or key that a seat gave this program.
class WaylandSerials {
public:
    WaylandSerials(wl_seat *seat, std::uint32_t name); // owns the seat
    ~WaylandSerials();
    Q_DISABLE_COPY_MOVE(WaylandSerials)

    wl_seat *seat() const { return m_seat; }
    std::uint32_t name() const { return m_name; } // in the registry
    std::uint32_t last() const { return m_last; } // 0 for none

private:
    void setCapabilities(std::uint32_t capabilities);
    void setPointer(wl_pointer *pointer);
    void setKeyboard(wl_keyboard *keyboard);

    wl_seat *const m_seat;
    const std::uint32_t m_name;
    wl_pointer *m_pointer = nullptr;
    wl_keyboard *m_keyboard = nullptr;
    std::uint32_t m_last = 0;
};

} // namespace brimshade::desktop::session
