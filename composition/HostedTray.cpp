#include "HostedTray.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/KeptOrderFile.h"
#include "desktop/core/MenuBar.h"
#include "desktop/tray/TrayHost.h"

#include <cstdio>

namespace brimshade::composition {

namespace {

void say(const QString &text)
{
    std::fprintf(stderr, "brimshade: %s\n", qUtf8Printable(text));
}

} // namespace

HostedTray::HostedTray(desktop::Desktop &desktop, platform::Dispatch &dispatch,
                       desktop::tray::Surroundings surroundings, desktop::tray::ItemPlaces places,
                       const std::optional<QString> &stateFile)
    : m_desktop(desktop)
{
    if (stateFile)
        m_order = std::make_unique<desktop::KeptOrderFile>(*stateFile, desktop.menuBar(), dispatch, say);
    m_host = std::make_unique<desktop::TrayHost>(desktop, desktop::connectToSessionBus, dispatch, places,
                                                 std::move(surroundings));
    QObject::connect(m_host.get(), &desktop::TrayHost::message, m_host.get(), say);
}

HostedTray::~HostedTray() = default;

void HostedTray::dockIcons(desktop::session::XEmbedItems::ToScreen toScreen, double pixelsPerPoint)
{
    m_docked = std::make_unique<desktop::session::XEmbedItems>(m_desktop, m_host->programs(), std::move(toScreen),
                                                               pixelsPerPoint);
    QObject::connect(m_docked.get(), &desktop::session::XEmbedItems::message, m_docked.get(), say);
}

} // namespace brimshade::composition
