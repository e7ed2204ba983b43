#include "X11Connection.h"

#include <QAbstractEventDispatcher>
#include <string>

namespace brimshade::desktop::session {

namespace {

constexpr std::uint32_t kMostNumbers = 4096; // read of one property
constexpr std::uint32_t kLongestText = 64; // in words of four bytes

std::array<std::string, std::size_t(X11Atom::Count)> atomNames(int screenNumber)
{
    const std::string number = std::to_string(screenNumber);
    return {"MANAGER",
            "_NET_ACTIVE_WINDOW",
            "_NET_CLIENT_LIST_STACKING",
            "_NET_CURRENT_DESKTOP",
            "_NET_SYSTEM_TRAY_OPCODE",
            "_NET_SYSTEM_TRAY_ORIENTATION",
            "_NET_SYSTEM_TRAY_VISUAL",
            "_NET_WM_DESKTOP",
            "_NET_WM_NAME",
            "_NET_WM_STATE",
            "_NET_WM_STATE_FULLSCREEN",
            "_NET_WM_STATE_HIDDEN",
            "_NET_WM_STRUT",
            "_NET_WM_STRUT_PARTIAL",
            "_NET_WM_WINDOW_TYPE",
            "_NET_WM_WINDOW_TYPE_DESKTOP",
            "_NET_WM_WINDOW_TYPE_DOCK",
            "_XEMBED",
            "_XEMBED_INFO",
            "_NET_WM_CM_S" + number,
            "_NET_SYSTEM_TRAY_S" + number};
}

const xcb_screen_t *screenOf(xcb_connection_t *connection, int screenNumber)
{
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    while (screens.rem > 1 && screenNumber-- > 0)
        xcb_screen_next(&screens);
    return screens.data;
}

} // namespace

std::unique_ptr<X11Connection> X11Connection::open()
{
    int screenNumber = 0;
    xcb_connection_t *connection = xcb_connect(nullptr, &screenNumber);
    if (!xcb_connection_has_error(connection))
        return std::unique_ptr<X11Connection>(new X11Connection(connection, screenNumber));
    xcb_disconnect(connection);
    return nullptr;
}

X11Connection::X11Connection(xcb_connection_t *connection, int screenNumber)
    : m_connection(connection), m_screen(screenOf(connection, screenNumber)),
      m_notifier(xcb_get_file_descriptor(connection), QSocketNotifier::Read)
{
    const auto names = atomNames(screenNumber);
    std::array<xcb_intern_atom_cookie_t, std::size_t(X11Atom::Count)> cookies{};
    for (std::size_t i = 0; i < names.size(); ++i)
        cookies[i] = xcb_intern_atom(connection, 0, std::uint16_t(names[i].size()), names[i].data());
    for (std::size_t i = 0; i < names.size(); ++i) {
        const X11Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookies[i], nullptr));
        m_atoms[i] = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }
    connect(&m_notifier, &QSocketNotifier::activated, this, &X11Connection::readEvents);
    // Waiting for an answer takes events off the socket without the notifier noticing, so look for them here. This also
    // sends pending requests.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &X11Connection::readEvents);
}

X11Connection::~X11Connection()
{
    m_notifier.setEnabled(false);
    xcb_disconnect(m_connection);
}

std::vector<std::uint32_t> X11Connection::numbers(xcb_get_property_cookie_t cookie) const
{
    const X11Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *values = static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get()));
    return {values, values + xcb_get_property_value_length(reply.get()) / sizeof(std::uint32_t)};
}

QByteArray X11Connection::bytes(xcb_get_property_cookie_t cookie) const
{
    const X11Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != 8)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(reply.get())), xcb_get_property_value_length(reply.get())};
}

xcb_get_property_cookie_t X11Connection::requestNumbers(xcb_window_t window, X11Atom property) const
{
    return xcb_get_property(m_connection, 0, window, atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, kMostNumbers);
}

xcb_get_property_cookie_t X11Connection::requestText(xcb_window_t window, xcb_atom_t property) const
{
    return xcb_get_property(m_connection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, kLongestText);
}

bool X11Connection::isEventOf(const xcb_generic_event_t &event, const xcb_extension_t &extension, int number) const
{
    auto *known = const_cast<xcb_extension_t *>(&extension);
    const xcb_query_extension_reply_t *data = xcb_get_extension_data(m_connection, known);
    const int type = event.response_type & 0x7f; // the high bit marks events sent by a client
    if (!data || !data->present)
        return false;
    if (type != XCB_GE_GENERIC)
        return data->first_event && type == data->first_event + number;
    const auto &generic = reinterpret_cast<const xcb_ge_generic_event_t &>(event);
    return generic.extension == data->major_opcode && generic.event_type == number;
}

void X11Connection::readEvents()
{
    while (const X11Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)})
        Q_EMIT eventCame(*event);
    xcb_flush(m_connection);
    if (xcb_connection_has_error(m_connection))
        m_notifier.setEnabled(false);
}

} // namespace brimshade::desktop::session
