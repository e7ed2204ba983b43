// A virtual pointer and keyboard for wlroots compositors. Reads one command per line and answers "ok" once the
// compositor has processed it:
//     move X Y WIDTH HEIGHT    a point of the layout, and the layout's size
//     button CODE 0|1          Linux button codes; 1 is down
//     key CODE 0|1             Linux key codes on a US keyboard
// Started with "keyboard" it creates no pointer, with "pointer" no keyboard.
#include <cstdint>
#include <cstring>
#include <ctime>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>
#include <virtual-keyboard-unstable-v1-client.h>
#include <wayland-client.h>
#include <wlr-virtual-pointer-unstable-v1-client.h>
#include <xkbcommon/xkbcommon.h>

namespace {

struct Globals {
    wl_seat *seat = nullptr;
    zwlr_virtual_pointer_manager_v1 *pointers = nullptr;
    zwp_virtual_keyboard_manager_v1 *keyboards = nullptr;
};

std::uint32_t now()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return std::uint32_t(time.tv_sec * 1000 + time.tv_nsec / 1'000'000);
}

void bind(void *data, wl_registry *registry, std::uint32_t name, const char *offered, std::uint32_t)
{
    auto *globals = static_cast<Globals *>(data);
    const std::string_view interface(offered);
    const auto get = [&](const wl_interface &wanted) { return wl_registry_bind(registry, name, &wanted, 1); };
    if (interface == wl_seat_interface.name)
        globals->seat = static_cast<wl_seat *>(get(wl_seat_interface));
    else if (interface == zwlr_virtual_pointer_manager_v1_interface.name)
        globals->pointers =
            static_cast<zwlr_virtual_pointer_manager_v1 *>(get(zwlr_virtual_pointer_manager_v1_interface));
    else if (interface == zwp_virtual_keyboard_manager_v1_interface.name)
        globals->keyboards =
            static_cast<zwp_virtual_keyboard_manager_v1 *>(get(zwp_virtual_keyboard_manager_v1_interface));
}

class Keyboard {
public:
    explicit Keyboard(const Globals &globals)
        : m_keyboard(zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(globals.keyboards, globals.seat))
    {
        const xkb_rule_names names{nullptr, nullptr, "us", nullptr, nullptr};
        xkb_context *context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
        xkb_keymap *keymap = xkb_keymap_new_from_names(context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
        char *text = xkb_keymap_get_as_string(keymap, XKB_KEYMAP_FORMAT_TEXT_V1);
        const std::size_t size = std::strlen(text) + 1;
        const int file = memfd_create("keymap", MFD_CLOEXEC);
        if (write(file, text, size) != ssize_t(size))
            std::cerr << "the keymap cannot be written\n";
        zwp_virtual_keyboard_v1_keymap(m_keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file, std::uint32_t(size));
        close(file);
        std::free(text);
        m_state = xkb_state_new(keymap);
        xkb_keymap_unref(keymap);
        xkb_context_unref(context);
    }

    // The compositor must be told the modifiers in addition to their keys.
    void press(std::uint32_t code, bool down)
    {
        constexpr std::uint32_t kFromLinux = 8;
        zwp_virtual_keyboard_v1_key(m_keyboard, now(), code, down);
        xkb_state_update_key(m_state, code + kFromLinux, down ? XKB_KEY_DOWN : XKB_KEY_UP);
        zwp_virtual_keyboard_v1_modifiers(m_keyboard, xkb_state_serialize_mods(m_state, XKB_STATE_MODS_DEPRESSED),
                                          xkb_state_serialize_mods(m_state, XKB_STATE_MODS_LATCHED),
                                          xkb_state_serialize_mods(m_state, XKB_STATE_MODS_LOCKED),
                                          xkb_state_serialize_layout(m_state, XKB_STATE_LAYOUT_EFFECTIVE));
    }

private:
    zwp_virtual_keyboard_v1 *m_keyboard;
    xkb_state *m_state;
};

class Pointer {
public:
    explicit Pointer(const Globals &globals)
        : m_pointer(zwlr_virtual_pointer_manager_v1_create_virtual_pointer(globals.pointers, globals.seat))
    {
    }

    void move(std::uint32_t x, std::uint32_t y, std::uint32_t width, std::uint32_t height)
    {
        zwlr_virtual_pointer_v1_motion_absolute(m_pointer, now(), x, y, width, height);
        zwlr_virtual_pointer_v1_frame(m_pointer);
    }

    void press(std::uint32_t button, bool down)
    {
        zwlr_virtual_pointer_v1_button(m_pointer, now(), button,
                                       down ? WL_POINTER_BUTTON_STATE_PRESSED : WL_POINTER_BUTTON_STATE_RELEASED);
        zwlr_virtual_pointer_v1_frame(m_pointer);
    }

private:
    zwlr_virtual_pointer_v1 *m_pointer;
};

bool obey(const std::string &line, Pointer *pointer, Keyboard *keyboard)
{
    std::istringstream words(line);
    std::string command;
    std::uint32_t numbers[4] = {};
    words >> command;
    for (std::uint32_t &number : numbers)
        words >> number;
    if (command == "move" && pointer)
        pointer->move(numbers[0], numbers[1], numbers[2], numbers[3]);
    else if (command == "button" && pointer)
        pointer->press(numbers[0], numbers[1]);
    else if (command == "key" && keyboard)
        keyboard->press(numbers[0], numbers[1]);
    else
        return false;
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const std::string_view only = argc > 1 ? argv[1] : "";
    wl_display *display = wl_display_connect(nullptr);
    if (!display) {
        std::cerr << "inject: no compositor\n";
        return 1;
    }
    Globals globals;
    static constexpr wl_registry_listener kListener{bind, [](void *, wl_registry *, std::uint32_t) {}};
    wl_registry_add_listener(wl_display_get_registry(display), &kListener, &globals);
    wl_display_roundtrip(display);
    if (!globals.seat || !globals.pointers || !globals.keyboards) {
        std::cerr << "inject: the compositor does not support virtual devices\n";
        return 1;
    }
    const auto pointer = only == "keyboard" ? nullptr : std::make_unique<Pointer>(globals);
    const auto keyboard = only == "pointer" ? nullptr : std::make_unique<Keyboard>(globals);
    wl_display_roundtrip(display);
    std::cout << "ok" << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        const bool obeyed = obey(line, pointer.get(), keyboard.get());
        if (wl_display_roundtrip(display) < 0)
            return 1;
        std::cout << (obeyed ? "ok" : "unknown") << std::endl;
    }
    return 0;
}
