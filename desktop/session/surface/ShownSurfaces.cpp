#include "ShownSurfaces.h"

#include <algorithm>

namespace brimshade::desktop::session {

void ShownSurfaces::add(ShellSurface &surface)
{
    connect(&surface, &ShellSurface::changed, this, [this, added = &surface] { follow(added); });
    connect(&surface, &QObject::destroyed, this, [this, added = &surface] { std::erase(m_shown, added); });
}

void ShownSurfaces::follow(ShellSurface *surface)
{
    const auto known = std::ranges::find(m_shown, surface);
    if (surface->isShown() && known == m_shown.end())
        m_shown.push_back(surface);
    else if (!surface->isShown() && known != m_shown.end())
        m_shown.erase(known);
    Q_EMIT changed();
}

QRegion ShownSurfaces::inputRegion(const QScreen *screen) const
{
    QRegion region;
    for (const ShellSurface *surface : m_shown) {
        if (surface->screen() == screen)
            region += surface->inputRegion().translated(surface->geometry().topLeft());
    }
    return region;
}

bool ShownSurfaces::haveKeyboard() const
{
    return std::ranges::any_of(m_shown, &ShellSurface::takesKeyboard);
}

} // namespace brimshade::desktop::session
