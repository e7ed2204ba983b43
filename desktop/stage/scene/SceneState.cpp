#include "SceneState.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/InputRouter.h"
#include "platform/Screens.h"
#include "platform/Workspace.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

SceneState::SceneState(Desktop &desktop, WallClock::Now now, bool alwaysDrawsPointer)
    : m_desktop(desktop), m_alwaysDrawsPointer(alwaysDrawsPointer),
      m_clock(desktop.platform().dispatch, std::move(now)), m_bar(desktop.menuBar(), m_clock),
      m_barTip(desktop.menuBar(), desktop.input(), desktop.platform().dispatch),
      m_menu(desktop.menus(), [this](QPointF point) { return screenAt(point); }), m_banners(desktop)
{
    connect(&desktop, &Desktop::changed, this, &SceneState::desktopChanged);
    connect(&desktop.input(), &InputRouter::pointerWarped, this, [this] {
        m_wasWarped = true;
        Q_EMIT pointerChanged();
    });
}

void SceneState::desktopChanged()
{
    Q_EMIT screensChanged();
    Q_EMIT applicationsChanged();
}

QList<QRectF> SceneState::screenFrames() const
{
    const std::vector<platform::Screen> screens = m_desktop.platform().screens.screens();
    QList<QRectF> frames;
    for (const platform::Screen &each : screens)
        frames.append(platform::flipped(each.frame, screens.front().frame.height()));
    return frames;
}

QVariantList SceneState::screens() const
{
    const QList<QRectF> frames = screenFrames();
    return {frames.begin(), frames.end()};
}

QRectF SceneState::bounds() const
{
    QRectF bounds;
    for (const QRectF &frame : screenFrames())
        bounds |= frame;
    return bounds;
}

// Points off every screen belong to the one with the bar: a menu may hang from an item that is off-screen.
QRectF SceneState::screenAt(QPointF point) const
{
    QRectF withBar;
    for (const QRectF &frame : screenFrames()) {
        if (frame.contains(point))
            return frame;
        if (withBar.isNull() || frame.contains(m_bar.frame().center()))
            withBar = frame;
    }
    return withBar;
}

QVariantList SceneState::dockImages() const
{
    constexpr qsizetype most = 12;
    QVariantList images;
    for (const platform::RunningApplication &each : m_desktop.platform().workspace.runningApplications()) {
        const bool isProgram = each.bundlePath && each.bundlePath->startsWith(u"/Applications/"_s)
            && !each.bundlePath->contains(u".app/"_s); // a helper has its application's icon, too
        if (isProgram && !each.icon.isNull() && images.size() < most)
            images.append(QVariant::fromValue(each.icon));
    }
    return images;
}

QPointF SceneState::pointer() const
{
    return m_desktop.input().pointer();
}

void SceneState::handMoved()
{
    m_wasWarped = false;
    Q_EMIT pointerChanged();
}

Permission *SceneState::permission() const
{
    return &m_desktop.permission();
}

} // namespace brimshade::desktop
