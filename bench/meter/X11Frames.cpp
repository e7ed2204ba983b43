#include "Frames.h"

#include <algorithm>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

namespace brimshade::bench {

namespace {

using Clock = std::chrono::steady_clock;

struct Box {
    int left = INT_MAX, top = INT_MAX, right = 0, bottom = 0;

    void add(const xcb_rectangle_t &r)
    {
        left = std::min<int>(left, r.x);
        top = std::min<int>(top, r.y);
        right = std::max<int>(right, r.x + r.width);
        bottom = std::max<int>(bottom, r.y + r.height);
    }
    long area() const { return long(right - left) * (bottom - top); }
};

class X11Frames : public Frames {
public:
    bool connect();
    long next(double seconds) override;

private:
    xcb_connection_t *m_connection = nullptr;
    xcb_damage_damage_t m_damage = 0;
    std::uint8_t m_notify = 0;
    Box m_changed; // since the screen was last still: a frame comes in several pieces
};

bool X11Frames::connect()
{
    m_connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(m_connection))
        return false;
    const auto *extension = xcb_get_extension_data(m_connection, &xcb_damage_id);
    if (!extension || !extension->present)
        return false;
    m_notify = extension->first_event + XCB_DAMAGE_NOTIFY;
    std::free(xcb_damage_query_version_reply(m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));
    m_damage = xcb_generate_id(m_connection);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    xcb_damage_create(m_connection, m_damage, root, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    xcb_flush(m_connection);
    return true;
}

long X11Frames::next(double seconds)
{
    const auto end = Clock::now() + std::chrono::duration<double>(seconds);
    while (true) {
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
            const auto *notify = reinterpret_cast<const xcb_damage_notify_event_t *>(event);
            const bool isDamage = (event->response_type & 0x7f) == m_notify;
            if (isDamage)
                m_changed.add(notify->area);
            std::free(event);
            if (isDamage)
                return m_changed.area();
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        pollfd watched{xcb_get_file_descriptor(m_connection), POLLIN, 0};
        if (left < 0 || poll(&watched, 1, int(left) + 1) <= 0) {
            m_changed = {};
            return 0;
        }
    }
}

} // namespace

std::unique_ptr<Frames> x11Frames()
{
    auto frames = std::make_unique<X11Frames>();
    return frames->connect() ? std::move(frames) : nullptr;
}

} // namespace brimshade::bench
