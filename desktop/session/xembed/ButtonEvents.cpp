#include "ButtonEvents.h"

#include <optional>
#include <xcb/shape.h>
#include <xcb/xtest.h>

namespace brimshade::desktop::session {

namespace {

constexpr int kDeepest = 8; // levels of nested windows

bool wantsPresses(const X11Connection &x11, xcb_window_t window)
{
    const auto cookie = xcb_get_window_attributes(x11.xcb(), window);
    const X11Reply<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(x11.xcb(), cookie, nullptr));
    return reply && (reply->all_event_masks & XCB_EVENT_MASK_BUTTON_PRESS);
}

// The innermost window at that point that wants presses; absent if none does, because its program reads the devices
// instead.
std::optional<xcb_window_t> listener(const X11Connection &x11, xcb_window_t outer, QPoint inside)
{
    std::optional<xcb_window_t> found;
    xcb_window_t window = outer;
    for (int depth = 0; depth < kDeepest && window != XCB_WINDOW_NONE; ++depth) {
        if (wantsPresses(x11, window))
            found = window;
        const auto cookie =
            xcb_translate_coordinates(x11.xcb(), outer, window, std::int16_t(inside.x()), std::int16_t(inside.y()));
        const X11Reply<xcb_translate_coordinates_reply_t> reply(
            xcb_translate_coordinates_reply(x11.xcb(), cookie, nullptr));
        window = reply ? reply->child : xcb_window_t(XCB_WINDOW_NONE);
    }
    return found;
}

xcb_button_press_event_t pressAt(const X11Connection &x11, const ButtonTarget &target, xcb_window_t window,
                                 std::uint8_t button, xcb_timestamp_t time)
{
    const QPoint at = target.area.center();
    xcb_button_press_event_t event{};
    event.response_type = XCB_BUTTON_PRESS;
    event.detail = button;
    event.time = time;
    event.root = x11.root();
    event.event = window;
    event.root_x = std::int16_t(at.x());
    event.root_y = std::int16_t(at.y());
    event.event_x = std::int16_t(at.x() - target.area.x());
    event.event_y = std::int16_t(at.y() - target.area.y());
    event.same_screen = true;
    return event;
}

// The pointer enters or leaves the window at the point of the press.
xcb_enter_notify_event_t crossing(const xcb_button_press_event_t &press, std::uint8_t type)
{
    xcb_enter_notify_event_t event{};
    event.response_type = type;
    event.detail = XCB_NOTIFY_DETAIL_NONLINEAR;
    event.time = press.time;
    event.root = press.root;
    event.event = press.event;
    event.root_x = press.root_x;
    event.root_y = press.root_y;
    event.event_x = press.event_x;
    event.event_y = press.event_y;
    event.mode = XCB_NOTIFY_MODE_NORMAL;
    event.same_screen_focus = 1; // the screen is the same
    return event;
}

template <class Event> void send(const X11Connection &x11, const Event &event, std::uint32_t mask)
{
    static_assert(sizeof(Event) == 32);
    xcb_send_event(x11.xcb(), false, event.event, mask, reinterpret_cast<const char *>(&event));
}

// Enters the window first: some toolkits accept a press only where they know the pointer to be.
void sendEvents(const X11Connection &x11, const ButtonTarget &target, xcb_window_t window, std::uint8_t button,
                xcb_timestamp_t time)
{
    xcb_button_press_event_t event = pressAt(x11, target, window, button, time);
    send(x11, crossing(event, XCB_ENTER_NOTIFY), XCB_EVENT_MASK_ENTER_WINDOW);
    send(x11, event, XCB_EVENT_MASK_BUTTON_PRESS);
    event.response_type = XCB_BUTTON_RELEASE;
    event.state = std::uint16_t(XCB_BUTTON_MASK_1 << (button - 1));
    send(x11, event, XCB_EVENT_MASK_BUTTON_RELEASE);
    send(x11, crossing(event, XCB_LEAVE_NOTIFY), XCB_EVENT_MASK_LEAVE_WINDOW);
}

void setShape(const X11Connection &x11, xcb_window_t frame, const std::vector<xcb_rectangle_t> &parts)
{
    xcb_shape_rectangles(x11.xcb(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, XCB_CLIP_ORDERING_UNSORTED, frame, 0, 0,
                         std::uint32_t(parts.size()), parts.data());
}

void place(const X11Connection &x11, xcb_window_t frame, QPoint corner)
{
    const std::uint32_t values[] = {std::uint32_t(corner.x()), std::uint32_t(corner.y()), XCB_STACK_MODE_ABOVE};
    xcb_configure_window(x11.xcb(), frame, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_STACK_MODE,
                         values);
}

// Moves the frame under the pointer, gives it a shape only while the server makes the click, and moves it back before
// anybody sees it or the program asks where it is.
void clickWithDevice(const X11Connection &x11, const ButtonTarget &target, std::uint8_t button)
{
    xcb_connection_t *connection = x11.xcb();
    const X11Reply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, x11.root()), nullptr));
    if (!pointer)
        return;
    const QPoint at(pointer->root_x, pointer->root_y);
    const auto width = std::uint16_t(target.area.width());
    const auto height = std::uint16_t(target.area.height());
    xcb_grab_server(connection);
    place(x11, target.frame, at - QPoint(width / 2, height / 2));
    setShape(x11, target.frame, {{0, 0, width, height}});
    for (const std::uint8_t type : {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE})
        xcb_test_fake_input(connection, type, button, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    setShape(x11, target.frame, {});
    place(x11, target.frame, target.area.topLeft());
    xcb_ungrab_server(connection);
}

} // namespace

void sendClick(X11Connection &x11, const ButtonTarget &target, std::uint8_t button, xcb_timestamp_t time)
{
    if (const auto window = listener(x11, target.window, target.area.center() - target.area.topLeft()))
        sendEvents(x11, target, *window, button, time);
    else
        clickWithDevice(x11, target, button);
}

} // namespace brimshade::desktop::session
