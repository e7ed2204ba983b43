#include "ShellSurface.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <utility>

namespace brimshade::desktop::session {

ShellSurface::ShellSurface(QQuickWindow &window, Kind kind) : m_window(window), m_kind(kind) { }

ShellSurface::~ShellSurface() = default;

QRegion ShellSurface::inputRegion() const
{
    return m_inputRegion.isEmpty() ? QRegion(QRect({}, m_window.size())) : m_inputRegion;
}

void ShellSurface::setScreen(QScreen *screen)
{
    if (m_screen == screen)
        return;
    disconnect(m_screenGone);
    m_screen = screen;
    if (!screen)
        return hide();
    m_screenGone = connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this](const QScreen *removed) {
        if (removed == m_screen)
            close();
    });
    if (m_isShown) {
        unmap();
        map();
    }
}

void ShellSurface::setGeometry(const QRect &geometry)
{
    if (std::exchange(m_geometry, geometry) != geometry && m_isShown)
        applyGeometry();
}

void ShellSurface::setZone(int height)
{
    if (std::exchange(m_zone, height) != height && m_isShown)
        applyGeometry();
}

void ShellSurface::setInputRegion(const QRegion &region)
{
    if (std::exchange(m_inputRegion, region) != region && m_isShown)
        applyRegions();
}

void ShellSurface::setDrawnRegion(const QRegion &region)
{
    if (std::exchange(m_drawnRegion, region) != region && m_isShown)
        applyRegions();
}

void ShellSurface::setTakesKeyboard(bool takes)
{
    if (std::exchange(m_takesKeyboard, takes) != takes && m_isShown)
        applyKeyboard();
}

void ShellSurface::show()
{
    if (m_isShown || !m_screen)
        return;
    m_isShown = true;
    map();
}

void ShellSurface::hide()
{
    if (std::exchange(m_isShown, false))
        unmap();
}

void ShellSurface::close()
{
    if (!m_isShown)
        return;
    hide();
    Q_EMIT closed();
}

} // namespace brimshade::desktop::session
