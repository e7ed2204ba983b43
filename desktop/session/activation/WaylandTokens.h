#pragma once
#include "ActivationTokens.h"
#include "desktop/session/wayland/WaylandSeat.h"

#include <list>
#include <vector>

struct wl_display;
struct wl_registry;
struct xdg_activation_token_v1;
struct xdg_activation_v1;

namespace brimshade::desktop::session {

// The compositor's tokens, through xdg-activation. Qt reads the connection and calls all listeners on the main thread.
class WaylandTokens : public ActivationTokens {
public:
    explicit WaylandTokens(wl_display *display);
    ~WaylandTokens() override;
    Q_DISABLE_COPY_MOVE(WaylandTokens)

    void request(Give give) override;

private:
    struct Request {
        WaylandTokens *owner;
        xdg_activation_token_v1 *token;
        Give give;
    };
    void add(std::uint32_t name, const char *interface, std::uint32_t version);
    void remove(std::uint32_t name);
    void done(Request *request, const QString &token);
    const WaylandSeat *lastUsed() const; // null while nothing was pressed

    wl_registry *const m_registry;
    xdg_activation_v1 *m_activation = nullptr;
    std::vector<std::unique_ptr<WaylandSeat>> m_seats;
    std::list<Request> m_requests;
};

} // namespace brimshade::desktop::session
