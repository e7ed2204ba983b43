#include "ShellSurface.h"

#include <QGuiApplication>
#include <QQuickWindow>

namespace brimshade::desktop::session {

ShellSurface::ShellSurface(QQuickWindow &window, Kind kind) : m_window(window), m_kind(kind) { }

ShellSurface::~ShellSurface() = default;

QRect ShellSurface::geometry() const
{
    return m_kind == Kind::Bar && m_screen ? QRect(0, 0, m_screen->size().width(), m_geometry.height()) : m_geometry;
}

QRegion ShellSurface::inputRegion() const
{
    return m_inputRegion.isEmpty() ? QRegion(QRect({}, geometry().size())) : m_inputRegion;
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
        Q_EMIT changed();
    }
}

template <class Value> void ShellSurface::set(Value &member, const Value &value, void (ShellSurface::*apply)())
{
    if (member == value)
        return;
    member = value;
    if (!m_isShown)
        return;
    (this->*apply)();
    Q_EMIT changed();
}

void ShellSurface::setGeometry(const QRect &geometry)
{
    set(m_geometry, geometry, &ShellSurface::applyGeometry);
}

void ShellSurface::setZone(int height)
{
    set(m_zone, height, &ShellSurface::applyGeometry);
}

void ShellSurface::setInputRegion(const QRegion &region)
{
    set(m_inputRegion, region, &ShellSurface::applyRegions);
}

void ShellSurface::setDrawnRegion(const QRegion &region)
{
    set(m_drawnRegion, region, &ShellSurface::applyRegions);
}

void ShellSurface::setTakesKeyboard(bool takes)
{
    set(m_takesKeyboard, takes, &ShellSurface::applyKeyboard);
}

void ShellSurface::show()
{
    if (m_isShown || !m_screen)
        return;
    m_isShown = true;
    map();
    Q_EMIT changed();
}

void ShellSurface::hide()
{
    if (!m_isShown)
        return;
    m_isShown = false;
    unmap();
    Q_EMIT changed();
}

void ShellSurface::close()
{
    if (!m_isShown)
        return;
    hide();
    Q_EMIT closed();
}

} // namespace brimshade::desktop::session
