#include "PanelPlacement.h"

#include "NotchPanel.h"
#include "menubar/NotchGeometry.h"
#include "platform/Application.h"

#include <algorithm>

namespace brimshade::app {

namespace {

constexpr double kPointerMargin = 1; // a pointer pushed against an edge is still on the screen
constexpr double kFallbackNotchWidth = 180;
constexpr double kFallbackNotchHeight = 24;

platform::Screen initialScreen(const platform::Screens &screens)
{
    if (const auto main = screens.mainScreen())
        return *main;
    const std::vector<platform::Screen> all = screens.screens();
    return all.empty() ? platform::Screen() : all.front();
}

} // namespace

PanelPlacement::PanelPlacement(const platform::Screens &screens, const platform::Application &application)
    : m_screens(screens), m_application(application), m_screen(initialScreen(screens))
{
}

platform::Screen PanelPlacement::currentScreen() const
{
    std::optional<platform::Screen> chosen = menubar::notchedScreen(m_screens.screens());
    if (!chosen)
        chosen = screenUnderPointer();
    if (!chosen)
        chosen = m_screens.mainScreen();
    return chosen.value_or(m_screen);
}

std::optional<platform::Screen> PanelPlacement::screenUnderPointer() const
{
    const QPointF pointer = m_application.mouseLocation();
    for (const platform::Screen &screen : m_screens.screens()) {
        const QRectF grown = screen.frame.adjusted(-kPointerMargin, -kPointerMargin, kPointerMargin, kPointerMargin);
        if (platform::containsPoint(grown, pointer))
            return screen;
    }
    return {};
}

QSizeF PanelPlacement::notchSize() const
{
    const double menuBarHeight = platform::maxY(m_screen.frame) - platform::maxY(m_screen.visibleFrame);
    if (const auto notch = menubar::notchExtent(m_screen))
        return {notch->upper - notch->lower, std::max(menuBarHeight, m_screen.safeAreaTop)};
    return {kFallbackNotchWidth, std::max(menuBarHeight, kFallbackNotchHeight)};
}

QRectF PanelPlacement::panelFrame() const
{
    const auto notch = menubar::notchExtent(m_screen);
    const double centre =
        notch ? platform::minX(m_screen.frame) + (notch->lower + notch->upper) / 2 : platform::midX(m_screen.frame);
    return {centre - kPanelSize.width() / 2, platform::maxY(m_screen.frame) - kPanelSize.height(), kPanelSize.width(),
            kPanelSize.height()};
}

} // namespace brimshade::app
