#include "X11KeyGrabber.h"

#include "Keysyms.h"
#include "platform/HotkeyCenter.h"

#include <QObject>
#include <QSocketNotifier>
#include <array>
#include <cstdlib>
#include <map>
#include <string_view>
#include <utility>
#include <vector>
#include <xcb/xcb.h>

namespace brimshade::desktop {

namespace {

template <class T> using Reply = std::unique_ptr<T, decltype([](void *reply) { std::free(reply); })>;

using Keys = std::vector<xcb_grab_key_request_t>;

constexpr std::array<std::pair<std::uint32_t, std::uint16_t>, 4> kModifiers{
    {{platform::kCarbonCommand, XCB_MOD_MASK_4},
     {platform::kCarbonShift, XCB_MOD_MASK_SHIFT},
     {platform::kCarbonOption, XCB_MOD_MASK_1},
     {platform::kCarbonControl, XCB_MOD_MASK_CONTROL}}};

constexpr std::uint16_t kNumLock = XCB_MOD_MASK_2;
constexpr std::array<std::uint16_t, 4> kLocks{0, XCB_MOD_MASK_LOCK, kNumLock, XCB_MOD_MASK_LOCK | kNumLock};
constexpr std::uint16_t kNoLocks =
    XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_3 | XCB_MOD_MASK_4 | XCB_MOD_MASK_5;

std::uint16_t x11Modifiers(std::uint32_t carbon)
{
    std::uint16_t mask = 0;
    for (const auto &[bit, modifier] : kModifiers)
        mask |= carbon & bit ? modifier : 0;
    return mask;
}

xcb_atom_t internAtom(xcb_connection_t *connection, std::string_view name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

} // namespace

class X11KeyGrabber::Private {
public:
    Private(xcb_connection_t *connection, xcb_window_t window);
    ~Private() { xcb_disconnect(m_connection); }
    Q_DISABLE_COPY_MOVE(Private)

    std::function<void(HotkeyCombination)> pressed;

    bool grab(HotkeyCombination combination);
    void release(HotkeyCombination combination);

private:
    struct Key {
        xcb_keycode_t code = 0; // 0: the keyboard has none
        std::uint16_t modifiers = 0;
        auto operator<=>(const Key &) const = default;
    };

    Key keyOf(HotkeyCombination combination) const;
    xcb_keycode_t keycodeOf(xcb_keysym_t keysym) const;
    bool grabKey(Key key) const;
    void releaseKey(Key key) const;
    void readEvents();
    void handle(const xcb_generic_event_t &event);
    void keyPressed(const xcb_key_press_event_t &event);
    void activateWindow(xcb_timestamp_t time) const;
    void grabAgain();

    xcb_connection_t *const m_connection;
    const xcb_window_t m_root;
    const xcb_window_t m_window; // 0 for none
    const xcb_atom_t m_activeWindow;
    QSocketNotifier m_notifier;
    std::map<HotkeyCombination, Key> m_grabbed; // a key without a code waits for a mapping that has it
    std::pair<xcb_keycode_t, xcb_timestamp_t> m_released; // the latest
};

X11KeyGrabber::Private::Private(xcb_connection_t *connection, xcb_window_t window)
    : m_connection(connection), m_root(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root),
      m_window(window), m_activeWindow(internAtom(connection, "_NET_ACTIVE_WINDOW")),
      m_notifier(xcb_get_file_descriptor(connection), QSocketNotifier::Read)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { readEvents(); });
}

bool X11KeyGrabber::Private::grab(HotkeyCombination combination)
{
    const Key key = keyOf(combination);
    const bool isKey = keysymOf(combination.keyCode) != 0 && !xcb_connection_has_error(m_connection);
    const bool granted = isKey && (!key.code || grabKey(key));
    if (granted)
        m_grabbed.emplace(combination, key);
    // Events that came while we waited for the answer are already in the connection's queue, so its descriptor stays
    // silent.
    QMetaObject::invokeMethod(
        &m_notifier, [this] { readEvents(); }, Qt::QueuedConnection);
    return granted;
}

void X11KeyGrabber::Private::release(HotkeyCombination combination)
{
    if (const auto found = m_grabbed.extract(combination))
        releaseKey(found.mapped());
}

auto X11KeyGrabber::Private::keyOf(HotkeyCombination combination) const -> Key
{
    const xcb_keysym_t keysym = keysymOf(combination.keyCode);
    return keysym ? Key{keycodeOf(keysym), x11Modifiers(combination.modifiers)} : Key();
}

// Column by column, because on a keyboard of another script other groups have the letter, too.
xcb_keycode_t X11KeyGrabber::Private::keycodeOf(xcb_keysym_t keysym) const
{
    const xcb_setup_t *setup = xcb_get_setup(m_connection);
    const int count = setup->max_keycode - setup->min_keycode + 1;
    const auto cookie = xcb_get_keyboard_mapping(m_connection, setup->min_keycode, static_cast<std::uint8_t>(count));
    const Reply<xcb_get_keyboard_mapping_reply_t> mapping(
        xcb_get_keyboard_mapping_reply(m_connection, cookie, nullptr));
    if (!mapping)
        return 0;
    const xcb_keysym_t *keysyms = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const int columns = mapping->keysyms_per_keycode;
    for (int column = 0; column < columns; ++column) {
        for (int row = 0; row < count; ++row) {
            if (keysyms[row * columns + column] == keysym)
                return static_cast<xcb_keycode_t>(setup->min_keycode + row);
        }
    }
    return 0;
}

// False when another client has one of them; then none is kept.
bool X11KeyGrabber::Private::grabKey(Key key) const
{
    if (!key.code)
        return false;
    std::array<xcb_void_cookie_t, kLocks.size()> cookies{};
    for (std::size_t i = 0; i < kLocks.size(); ++i)
        cookies[i] = xcb_grab_key_checked(m_connection, 0, m_root, key.modifiers | kLocks[i], key.code,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    bool granted = true;
    for (const xcb_void_cookie_t cookie : cookies)
        granted &= !Reply<xcb_generic_error_t>(xcb_request_check(m_connection, cookie));
    if (!granted)
        releaseKey(key);
    return granted;
}

void X11KeyGrabber::Private::releaseKey(Key key) const
{
    if (!key.code)
        return;
    for (const std::uint16_t locks : kLocks)
        xcb_ungrab_key(m_connection, key.code, m_root, key.modifiers | locks);
    xcb_flush(m_connection);
}

void X11KeyGrabber::Private::readEvents()
{
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)})
        handle(*event);
    if (xcb_connection_has_error(m_connection))
        m_notifier.setEnabled(false);
}

void X11KeyGrabber::Private::handle(const xcb_generic_event_t &event)
{
    switch (event.response_type & 0x7f) { // the high bit marks events sent by a client
    case XCB_KEY_PRESS:
        return keyPressed(reinterpret_cast<const xcb_key_press_event_t &>(event));
    case XCB_KEY_RELEASE: {
        const auto &release = reinterpret_cast<const xcb_key_release_event_t &>(event);
        m_released = {release.detail, release.time};
        return;
    }
    case XCB_MAPPING_NOTIFY:
        return grabAgain();
    default:
        return;
    }
}

void X11KeyGrabber::Private::keyPressed(const xcb_key_press_event_t &event)
{
    // Auto-repeat sends a release and a press with the same time.
    if (std::pair(event.detail, event.time) == m_released)
        return;
    const Key key{event.detail, static_cast<std::uint16_t>(event.state & kNoLocks)};
    for (const auto &[combination, grabbed] : m_grabbed) {
        if (grabbed != key || !pressed)
            continue;
        activateWindow(event.time);
        const HotkeyCombination found = combination; // the handler may remove the map's entry
        return pressed(found);
    }
}

// With the time of the press, since window managers refuse the keys to a window that no person asked for.
void X11KeyGrabber::Private::activateWindow(xcb_timestamp_t time) const
{
    constexpr std::uint32_t kFromApplication = 1;
    if (!m_window)
        return;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_window;
    message.type = m_activeWindow;
    message.data.data32[0] = kFromApplication;
    message.data.data32[1] = time;
    xcb_send_event(m_connection, 0, m_root, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(m_connection);
}

void X11KeyGrabber::Private::grabAgain()
{
    for (const auto &[combination, key] : m_grabbed)
        releaseKey(key);
    for (auto &[combination, key] : m_grabbed) {
        key = keyOf(combination);
        if (!grabKey(key))
            key.code = 0;
    }
}

X11KeyGrabber::X11KeyGrabber(std::unique_ptr<Private> d) : m_d(std::move(d)) { }

X11KeyGrabber::~X11KeyGrabber() = default;

std::unique_ptr<X11KeyGrabber> X11KeyGrabber::create(std::uint32_t window, const QByteArray &display)
{
    xcb_connection_t *connection = xcb_connect(display.isEmpty() ? nullptr : display.constData(), nullptr);
    if (!xcb_connection_has_error(connection))
        return std::unique_ptr<X11KeyGrabber>(new X11KeyGrabber(std::make_unique<Private>(connection, window)));
    xcb_disconnect(connection);
    return nullptr;
}

void X11KeyGrabber::setPressed(std::function<void(HotkeyCombination)> pressed)
{
    m_d->pressed = std::move(pressed);
}

bool X11KeyGrabber::grab(HotkeyCombination combination, const KeyUse &)
{
    return m_d->grab(combination);
}

void X11KeyGrabber::release(HotkeyCombination combination)
{
    m_d->release(combination);
}

} // namespace brimshade::desktop
