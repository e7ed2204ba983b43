#include "WaylandTokens.h"

#include <algorithm>
#include <cstring>
#include <wayland-client.h>
#include <xdg-activation-v1-client.h>

namespace brimshade::desktop::session {

WaylandTokens::WaylandTokens(wl_display *display) : m_registry(wl_display_get_registry(display))
{
    static constexpr wl_registry_listener kListener{
        [](void *self, wl_registry *, std::uint32_t name, const char *interface, std::uint32_t version) {
            static_cast<WaylandTokens *>(self)->add(name, interface, version);
        },
        [](void *self, wl_registry *, std::uint32_t name) { static_cast<WaylandTokens *>(self)->remove(name); }};
    wl_registry_add_listener(m_registry, &kListener, this);
}

WaylandTokens::~WaylandTokens()
{
    for (const Request &request : m_requests)
        xdg_activation_token_v1_destroy(request.token);
    m_seats.clear();
    if (m_activation)
        xdg_activation_v1_destroy(m_activation);
    wl_registry_destroy(m_registry);
}

void WaylandTokens::add(std::uint32_t name, const char *interface, std::uint32_t version)
{
    const auto bind = [&](const wl_interface &known, std::uint32_t most) {
        return wl_registry_bind(m_registry, name, &known, std::min(version, most));
    };
    if (std::strcmp(interface, xdg_activation_v1_interface.name) == 0 && !m_activation)
        m_activation = static_cast<xdg_activation_v1 *>(bind(xdg_activation_v1_interface, 1));
    else if (std::strcmp(interface, wl_seat_interface.name) == 0)
        m_seats.push_back(std::make_unique<WaylandSeat>(
            static_cast<wl_seat *>(bind(wl_seat_interface, WaylandSeat::kVersion)), name));
}

void WaylandTokens::remove(std::uint32_t name)
{
    std::erase_if(m_seats, [name](const auto &seat) { return seat->name() == name; });
}

void WaylandTokens::request(Give give)
{
    const WaylandSeat *used = lastUsed();
    if (!m_activation || !used)
        return give({});
    static constexpr xdg_activation_token_v1_listener kListener{
        [](void *data, xdg_activation_token_v1 *, const char *token) {
            auto *request = static_cast<Request *>(data);
            request->owner->done(request, QString::fromUtf8(token));
        }};
    m_requests.push_back({this, xdg_activation_v1_get_activation_token(m_activation), std::move(give)});
    Request &request = m_requests.back();
    xdg_activation_token_v1_add_listener(request.token, &kListener, &request);
    xdg_activation_token_v1_set_serial(request.token, used->lastSerial(), used->seat());
    xdg_activation_token_v1_commit(request.token);
}

void WaylandTokens::done(Request *request, const QString &token)
{
    const Give give = std::move(request->give);
    xdg_activation_token_v1_destroy(request->token);
    m_requests.remove_if([request](const Request &each) { return &each == request; });
    give(token);
}

const WaylandSeat *WaylandTokens::lastUsed() const
{
    const auto used = std::ranges::max_element(m_seats, {}, [](const auto &seat) { return seat->lastSerial(); });
    return used == m_seats.end() || (*used)->lastSerial() == 0 ? nullptr : used->get();
}

} // namespace brimshade::desktop::session
