#include "DockedWindow.h"

#include "ButtonEvents.h"
#include "desktop/tray/WireValue.h"

#include <algorithm>
#include <xcb/composite.h>
#include <xcb/res.h>
#include <xcb/shape.h>

namespace brimshade::desktop::session {

namespace {

constexpr std::uint32_t kEmbeddedNotify = 0; // XEMBED's message
constexpr std::uint32_t kXEmbedVersion = 0;
constexpr std::uint32_t kWantsToBeMapped = 1; // in _XEMBED_INFO's flags

bool isOwn(xcb_connection_t *connection, std::uint32_t id)
{
    const xcb_setup_t *setup = xcb_get_setup(connection);
    return (id & ~setup->resource_id_mask) == setup->resource_id_base;
}

} // namespace

std::unique_ptr<DockedWindow> DockedWindow::dock(X11Connection &x11, xcb_window_t window, int side)
{
    if (window == x11.root() || isOwn(x11.xcb(), window))
        return nullptr;
    // Selected before reading, so that no change is missed.
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(x11.xcb(), window, XCB_CW_EVENT_MASK, &mask);
    const auto cookie = xcb_get_window_attributes(x11.xcb(), window);
    const X11Reply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(x11.xcb(), cookie, nullptr));
    if (!attributes || attributes->_class != XCB_WINDOW_CLASS_INPUT_OUTPUT)
        return nullptr;
    const auto layout = layoutOf(*xcb_get_setup(x11.xcb()), x11.screen(), attributes->visual);
    if (!layout)
        return nullptr;
    return std::unique_ptr<DockedWindow>(new DockedWindow(x11, window, side, *layout, attributes->visual));
}

DockedWindow::DockedWindow(X11Connection &x11, xcb_window_t window, int side, const PixelLayout &layout,
                           xcb_visualid_t visual)
    : m_x11(x11), m_window(window), m_side(side), m_layout(layout), m_frame(xcb_generate_id(x11.xcb())),
      m_colours(xcb_generate_id(x11.xcb())), m_damage(xcb_generate_id(x11.xcb()))
{
    m_item.window = window;
    m_item.pid = processId();
    makeFrame(visual);
    embed();
    readTexts();
    followWish();
}

// If the window was destroyed, these requests do nothing.
DockedWindow::~DockedWindow()
{
    xcb_connection_t *connection = m_x11.xcb();
    const std::uint32_t none = XCB_EVENT_MASK_NO_EVENT;
    xcb_change_window_attributes(connection, m_window, XCB_CW_EVENT_MASK, &none);
    xcb_damage_destroy(connection, m_damage);
    if (m_isInFrame)
        xcb_unmap_window(connection, m_window);
    xcb_composite_unredirect_window(connection, m_window, XCB_COMPOSITE_REDIRECT_MANUAL);
    if (m_isInFrame)
        xcb_reparent_window(connection, m_window, m_x11.root(), 0, 0);
    xcb_change_save_set(connection, XCB_SET_MODE_DELETE, m_window);
    xcb_destroy_window(connection, m_frame);
    xcb_free_colormap(connection, m_colours);
}

// Without a background, nothing is painted during the instant in which a click needs the frame's shape; for windows
// without alpha, the frame's background may show: dark, like the bar.
void DockedWindow::makeFrame(xcb_visualid_t visual)
{
    xcb_connection_t *connection = m_x11.xcb();
    xcb_create_colormap(connection, XCB_COLORMAP_ALLOC_NONE, m_colours, m_x11.root(), visual);
    const std::uint32_t back = m_layout.hasAlpha() ? XCB_CW_BACK_PIXMAP : XCB_CW_BACK_PIXEL;
    const std::uint32_t values[] = {0, // the background: none, or black
                                    0,
                                    true,
                                    XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                                    XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE,
                                    m_colours};
    xcb_create_window(connection, std::uint8_t(m_layout.depth), m_frame, m_x11.root(), 0, 0, std::uint16_t(m_side),
                      std::uint16_t(m_side), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                      back | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK | XCB_CW_DONT_PROPAGATE
                          | XCB_CW_COLORMAP,
                      values);
    xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, XCB_CLIP_ORDERING_UNSORTED, m_frame, 0, 0,
                         0, nullptr);
}

void DockedWindow::embed()
{
    xcb_connection_t *connection = m_x11.xcb();
    xcb_change_save_set(connection, XCB_SET_MODE_INSERT, m_window);
    xcb_unmap_window(connection, m_window);
    xcb_reparent_window(connection, m_window, m_frame, 0, 0);
    const std::uint32_t geometry[] = {0, 0, std::uint32_t(m_side), std::uint32_t(m_side), 0};
    xcb_configure_window(connection, m_window,
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT
                             | XCB_CONFIG_WINDOW_BORDER_WIDTH,
                         geometry);
    // Nothing of it is drawn on the screen.
    xcb_composite_redirect_window(connection, m_window, XCB_COMPOSITE_REDIRECT_MANUAL);
    xcb_damage_create(connection, m_damage, m_window, XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_window;
    message.type = m_x11.atom(X11Atom::XEmbed);
    message.data.data32[0] = XCB_CURRENT_TIME;
    message.data.data32[1] = kEmbeddedNotify;
    message.data.data32[3] = m_frame;
    message.data.data32[4] = kXEmbedVersion;
    xcb_send_event(connection, false, m_window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char *>(&message));
    xcb_map_window(connection, m_frame);
}

void DockedWindow::followWish()
{
    const auto info = m_x11.numbers(m_x11.requestNumbers(m_window, X11Atom::XEmbedInfo)); // version, flags
    if (info.size() < 2 || (info[1] & kWantsToBeMapped))
        xcb_map_window(m_x11.xcb(), m_window);
    else
        xcb_unmap_window(m_x11.xcb(), m_window);
}

void DockedWindow::readTexts()
{
    const auto classRead = m_x11.requestText(m_window, XCB_ATOM_WM_CLASS); // the instance and the class
    const auto nameRead = m_x11.requestText(m_window, m_x11.atom(X11Atom::NetWmName));
    const auto oldNameRead = m_x11.requestText(m_window, XCB_ATOM_WM_NAME);
    const auto classes = m_x11.bytes(classRead).split('\0');
    const auto name = QString::fromUtf8(m_x11.bytes(nameRead));
    const auto oldName = QString::fromLatin1(m_x11.bytes(oldNameRead));
    m_item.id = tray::lineOf(QString::fromUtf8(classes.value(0)));
    m_item.title = tray::lineOf(name.isEmpty() ? oldName : name);
    if (m_item.title.isEmpty())
        m_item.title = tray::lineOf(QString::fromUtf8(classes.value(1)));
}

void DockedWindow::readPicture()
{
    xcb_connection_t *connection = m_x11.xcb();
    xcb_damage_subtract(connection, m_damage, XCB_NONE, XCB_NONE);
    const auto side = std::uint16_t(m_side);
    const auto cookie = xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, 0, 0, side, side, ~0U);
    const X11Reply<xcb_get_image_reply_t> reply(xcb_get_image_reply(connection, cookie, nullptr));
    if (!reply || reply->depth != m_layout.depth)
        return;
    const QByteArrayView pixels(xcb_get_image_data(reply.get()), xcb_get_image_data_length(reply.get()));
    const QImage picture = pictureOf(pixels, {m_side, m_side}, m_layout);
    if (picture != m_item.picture)
        m_item.picture = picture;
}

void DockedWindow::refuseGeometry() const
{
    xcb_configure_notify_event_t notify{};
    notify.response_type = XCB_CONFIGURE_NOTIFY;
    notify.event = notify.window = m_window;
    notify.x = std::int16_t(m_corner.x());
    notify.y = std::int16_t(m_corner.y());
    notify.width = notify.height = std::uint16_t(m_side);
    xcb_send_event(m_x11.xcb(), false, m_window, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&notify));
}

void DockedWindow::moveBelow(QPoint point)
{
    const auto &screen = m_x11.screen();
    m_corner = {std::clamp(point.x() - m_side / 2, 0, std::max(0, screen.width_in_pixels - m_side)),
                std::clamp(point.y() - m_side, 0, std::max(0, screen.height_in_pixels - m_side))};
    const std::uint32_t corner[] = {std::uint32_t(m_corner.x()), std::uint32_t(m_corner.y())};
    xcb_configure_window(m_x11.xcb(), m_frame, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, corner);
    refuseGeometry();
}

void DockedWindow::click(const DockedClick &click, xcb_timestamp_t time)
{
    if (click.below)
        moveBelow(*click.below);
    const ButtonTarget target{m_window, m_frame, QRect(m_corner, QSize(m_side, m_side))};
    for (int i = 0; i < click.count; ++i)
        sendClick(m_x11, target, click.button, time);
}

int DockedWindow::processId() const
{
    const xcb_res_client_id_spec_t spec{m_window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto cookie = xcb_res_query_client_ids(m_x11.xcb(), 1, &spec);
    const X11Reply<xcb_res_query_client_ids_reply_t> reply(
        xcb_res_query_client_ids_reply(m_x11.xcb(), cookie, nullptr));
    if (!reply)
        return 0;
    const auto ids = xcb_res_query_client_ids_ids_iterator(reply.get());
    const bool isTold = ids.rem && xcb_res_client_id_value_value_length(ids.data) == 1;
    return isTold ? int(*xcb_res_client_id_value_value(ids.data)) : 0;
}

} // namespace brimshade::desktop::session
