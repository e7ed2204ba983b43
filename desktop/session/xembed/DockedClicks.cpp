#include "DockedClicks.h"

#include <xcb/xinput.h>

namespace brimshade::desktop::session {

namespace {

// From 2.1 on, raw events come even while another program has grabbed the pointer.
constexpr std::uint16_t kMajorVersion = 2;
constexpr std::uint16_t kMinorVersion = 2;
constexpr std::size_t kMostWaiting = 32;
constexpr std::uint16_t kHeldButtons = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;

} // namespace

DockedClicks::DockedClicks(X11Connection &x11) : m_x11(x11)
{
    xcb_discard_reply(x11.xcb(), xcb_input_xi_query_version(x11.xcb(), kMajorVersion, kMinorVersion).sequence);
    connect(&x11, &X11Connection::eventCame, this, &DockedClicks::handle);
}

void DockedClicks::ask(const DockedClick &click)
{
    if (m_waiting.size() < kMostWaiting)
        m_waiting.push_back(click);
    proceed();
}

void DockedClicks::lapse()
{
    m_waiting.clear();
    watchReleases(false);
}

void DockedClicks::proceed()
{
    watchReleases(true); // before looking, so that no release is missed
    if (isAnyHeld())
        return;
    watchReleases(false);
    Q_EMIT timeNeeded();
}

void DockedClicks::makeAt(xcb_timestamp_t time)
{
    if (m_isWatching)
        return; // a button has been pressed again meanwhile
    for (const DockedClick &click : std::exchange(m_waiting, {}))
        Q_EMIT due(click, time);
}

void DockedClicks::handle(const xcb_generic_event_t &event)
{
    if (m_isWatching && m_x11.isEventOf(event, xcb_input_id, XCB_INPUT_RAW_BUTTON_RELEASE))
        proceed();
}

bool DockedClicks::isAnyHeld() const
{
    const auto cookie = xcb_query_pointer(m_x11.xcb(), m_x11.root());
    const X11Reply<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(m_x11.xcb(), cookie, nullptr));
    return pointer && (pointer->mask & kHeldButtons);
}

void DockedClicks::watchReleases(bool on)
{
    if (std::exchange(m_isWatching, on) == on)
        return;
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } selected{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, on ? std::uint32_t(XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE) : 0};
    xcb_input_xi_select_events(m_x11.xcb(), m_x11.root(), 1, &selected.head);
}

} // namespace brimshade::desktop::session
