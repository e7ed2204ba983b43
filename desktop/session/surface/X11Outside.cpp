#include "X11Outside.h"

#include "NativePixels.h"
#include "ShownSurfaces.h"

#include <QGuiApplication>
#include <xcb/xinput.h>

namespace brimshade::desktop::session {

namespace {

// From 2.1 on, raw events come even while another program has grabbed the pointer.
constexpr std::uint16_t kMajorVersion = 2;
constexpr std::uint16_t kMinorVersion = 2;
constexpr std::uint32_t kFirstWheelButton = 4;
constexpr std::uint32_t kLastWheelButton = 7;

} // namespace

X11Outside::X11Outside(X11Connection &connection, const ShownSurfaces &shown) : m_connection(connection), m_shown(shown)
{
    const auto cookie = xcb_input_xi_query_version(connection.xcb(), kMajorVersion, kMinorVersion);
    xcb_discard_reply(connection.xcb(), cookie.sequence);
    connect(&connection, &X11Connection::eventCame, this, &X11Outside::handle);
}

void X11Outside::watch(bool on)
{
    m_isOn = on;
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } selected{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, on ? std::uint32_t(XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS) : 0};
    xcb_input_xi_select_events(m_connection.xcb(), m_connection.root(), 1, &selected.head);
    xcb_flush(m_connection.xcb());
}

void X11Outside::handle(const xcb_generic_event_t &event)
{
    if (!m_connection.isEventOf(event, xcb_input_id, XCB_INPUT_RAW_BUTTON_PRESS))
        return;
    const auto &press = reinterpret_cast<const xcb_input_raw_button_press_event_t &>(event);
    const bool isWheel = press.detail >= kFirstWheelButton && press.detail <= kLastWheelButton;
    if (!isWheel && isPointerOutside())
        Q_EMIT pressed(press.time);
}

// A raw event does not say where it happened.
bool X11Outside::isPointerOutside() const
{
    const X11Reply<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
        m_connection.xcb(), xcb_query_pointer(m_connection.xcb(), m_connection.root()), nullptr));
    if (!pointer)
        return false;
    const QPoint position(pointer->root_x, pointer->root_y);
    for (const QScreen *screen : QGuiApplication::screens()) {
        const QPoint corner = nativeGeometry(screen).topLeft();
        if (toNative(m_shown.inputRegion(screen), screen).contains(position - corner))
            return false;
    }
    return true;
}

} // namespace brimshade::desktop::session
