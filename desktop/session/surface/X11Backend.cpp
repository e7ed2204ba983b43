#include "X11Backend.h"

#include "X11Surface.h"

#include <QGuiApplication>
#include <xcb/xfixes.h>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr std::uint32_t kXFixesVersion = 2; // for the selection's events

} // namespace

std::expected<std::unique_ptr<ShellBackend>, QString> X11Backend::create()
{
    auto watching = X11Connection::open();
    if (!watching)
        return std::unexpected(u"no display: the X server does not answer"_s);
    return std::unique_ptr<ShellBackend>(new X11Backend(std::move(watching)));
}

X11Backend::X11Backend(std::unique_ptr<X11Connection> watching)
    : m_connection(qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection()),
      m_watching(std::move(watching)), m_focus(m_connection), m_foreground(*m_watching, shownSurfaces()),
      m_outside(*m_watching, shownSurfaces())
{
    connect(&m_outside, &X11Outside::pressed, this, [this](xcb_timestamp_t time) {
        m_focus.pressedElsewhere(time);
        Q_EMIT pressedOutside();
    });
    watchCompositingManager();
}

std::unique_ptr<ShellSurface> X11Backend::createSurface(QQuickWindow &window, ShellSurface::Kind kind)
{
    auto surface = std::make_unique<X11Surface>(window, kind, *this);
    shownSurfaces().add(*surface);
    return surface;
}

void X11Backend::watchCompositingManager()
{
    xcb_connection_t *connection = m_watching->xcb();
    xcb_discard_reply(connection, xcb_xfixes_query_version(connection, kXFixesVersion, 0).sequence);
    xcb_xfixes_select_selection_input(connection, m_watching->root(), atom(X11Atom::CompositingManager),
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                                          | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                                          | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    connect(m_watching.get(), &X11Connection::eventCame, this, [this](const xcb_generic_event_t &event) {
        if (m_watching->isEventOf(event, xcb_xfixes_id, XCB_XFIXES_SELECTION_NOTIFY))
            readCompositingManager();
    });
    readCompositingManager();
}

void X11Backend::readCompositingManager()
{
    xcb_connection_t *connection = m_watching->xcb();
    const auto cookie = xcb_get_selection_owner(connection, atom(X11Atom::CompositingManager));
    const X11Reply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(connection, cookie, nullptr));
    const bool isComposited = reply && reply->owner != XCB_WINDOW_NONE;
    if (std::exchange(m_isComposited, isComposited) != isComposited)
        Q_EMIT compositedChanged();
}

} // namespace brimshade::desktop::session
