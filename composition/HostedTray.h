#pragma once
#include "desktop/session/xembed/XEmbedItems.h"
#include "desktop/tray/Surroundings.h"

#include <QString>
#include <memory>
#include <optional>

namespace brimshade::platform {
class Dispatch;
}

namespace brimshade::desktop {
class Desktop;
class KeptOrderFile;
class TrayHost;
namespace tray {
enum class ItemPlaces;
}
} // namespace brimshade::desktop

namespace brimshade::composition {

// The session's tray in a desktop's bar. Its messages go to standard error. Main thread; the desktop and the
// dispatch outlive it.
class HostedTray {
public:
    // stateFile keeps the order of the items; without one the order is forgotten.
    HostedTray(desktop::Desktop &desktop, platform::Dispatch &dispatch, desktop::tray::Surroundings surroundings,
               desktop::tray::ItemPlaces places, const std::optional<QString> &stateFile);
    ~HostedTray();
    Q_DISABLE_COPY_MOVE(HostedTray)

    // Also shows what programs dock into the tray of the X server.
    void dockIcons(desktop::session::XEmbedItems::ToScreen toScreen, double pixelsPerPoint);

private:
    desktop::Desktop &m_desktop;
    std::unique_ptr<desktop::KeptOrderFile> m_order;
    std::unique_ptr<desktop::TrayHost> m_host;
    std::unique_ptr<desktop::session::XEmbedItems> m_docked;
};

} // namespace brimshade::composition
