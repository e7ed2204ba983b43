#include "X11Surface.h"

#include "NativePixels.h"
#include "X11Backend.h"

#include <QQuickWindow>
#include <initializer_list>
#include <xcb/shape.h>

namespace brimshade::desktop::session {

namespace {

void writeNumbers(const X11Backend &backend, const QWindow &window, X11Atom property, xcb_atom_t type,
                  std::initializer_list<std::uint32_t> values)
{
    xcb_change_property(backend.connection(), XCB_PROP_MODE_REPLACE, xcb_window_t(window.winId()),
                        backend.atom(property), type, 32, std::uint32_t(values.size()), values.begin());
}

} // namespace

X11Surface::X11Surface(QQuickWindow &window, Kind kind, X11Backend &backend)
    : ShellSurface(window, kind), m_backend(backend)
{
    window.setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus
                    | (kind == Kind::Bar ? Qt::WindowFlags() : Qt::X11BypassWindowManagerHint));
    connect(&backend, &ShellBackend::compositedChanged, this, [this] {
        if (isShown())
            applyRegions();
    });
    connect(&window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible && m_isMapped)
            close();
    });
}

X11Surface::~X11Surface()
{
    disconnect(&window(), nullptr, this, nullptr);
    hide();
}

void X11Surface::map()
{
    window().setScreen(screen());
    window().create();
    // Compositing managers draw no shadow around a dock.
    writeNumbers(m_backend, window(), X11Atom::NetWmWindowType, XCB_ATOM_ATOM,
                 {m_backend.atom(X11Atom::NetWmWindowTypeDock)});
    applyGeometry();
    applyRegions();
    m_screenMoved = connect(screen(), &QScreen::geometryChanged, this, [this] {
        applyGeometry();
        Q_EMIT changed();
        Q_EMIT configured(geometry().size());
    });
    m_isMapped = true;
    window().show();
    window().raise();
    applyKeyboard();
    Q_EMIT configured(geometry().size());
}

void X11Surface::unmap()
{
    m_isMapped = false;
    disconnect(m_screenMoved);
    m_backend.focus().giveBack(xcb_window_t(window().winId()));
    window().hide();
}

void X11Surface::applyGeometry()
{
    window().setGeometry(geometry().translated(screen()->geometry().topLeft()));
    if (kind() == Kind::Bar)
        applyZone(toNative(geometry(), screen()).translated(nativeGeometry(screen()).topLeft()));
    xcb_flush(m_backend.connection());
}

// Both properties count from the edges of the root window, which spans all screens.
void X11Surface::applyZone(const QRect &bar)
{
    const auto height = std::uint32_t(zone() ? bar.y() + toNative(QRect(0, 0, 1, zone()), screen()).height() : 0);
    writeNumbers(m_backend, window(), X11Atom::NetWmStrut, XCB_ATOM_CARDINAL, {0, 0, height, 0});
    writeNumbers(m_backend, window(), X11Atom::NetWmStrutPartial, XCB_ATOM_CARDINAL,
                 {0, 0, height, 0, 0, 0, 0, 0, std::uint32_t(bar.left()), std::uint32_t(bar.right()), 0, 0});
}

void X11Surface::applyRegions()
{
    window().setMask(m_backend.isComposited() ? QRegion() : drawnRegion());
    std::vector<xcb_rectangle_t> parts;
    for (const QRect &part : toNative(inputRegion(), screen()))
        parts.push_back({std::int16_t(part.x()), std::int16_t(part.y()), std::uint16_t(part.width()),
                         std::uint16_t(part.height())});
    xcb_shape_rectangles(m_backend.connection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED,
                         xcb_window_t(window().winId()), 0, 0, std::uint32_t(parts.size()), parts.data());
    xcb_flush(m_backend.connection());
}

void X11Surface::applyKeyboard()
{
    if (takesKeyboard())
        m_backend.focus().take(xcb_window_t(window().winId()));
    else
        m_backend.focus().giveBack(xcb_window_t(window().winId()));
}

} // namespace brimshade::desktop::session
