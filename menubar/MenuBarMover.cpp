#include "MenuBarMover.h"
#include "DragPlan.h"
#include "MenuBarAccess.h"
#include "NotchGeometry.h"
#include "Text.h"
#include "platform/Dispatch.h"
#include "platform/EventServices.h"
#include "platform/Weakly.h"
#include "platform/WindowServer.h"

#include <algorithm>

namespace brimshade::menubar {

namespace {

// Seconds.
constexpr double kSettleAfterCollapse = 0.45;
constexpr double kSettleAfterDrag = 0.4;
constexpr double kPauseAfterMove = 0.04;
constexpr double kPauseAfterDown = 0.35;
constexpr double kPauseAfterDrag = 0.02;
constexpr double kPauseBeforeUp = 0.3;
constexpr int kDragSteps = 40;

QPointF centre(const QRectF &rect)
{
    return {platform::midX(rect), platform::midY(rect)};
}

} // namespace

struct MenuBarMover::Collapsed {
    QRectF frame;
    bool isVisible = false;
};

MenuBarMover::MenuBarMover(const platform::Platform &platform, std::shared_ptr<MenuBarAccess> access)
    : m_platform(platform), m_access(std::move(access))
{
}

MenuBarMover::Result MenuBarMover::move(const MenuExtra &extra, bool hide,
                                        const std::weak_ptr<DividerControl> &divider) const
{
    const std::optional<platform::Screen> screen = chooseScreen();
    if (!screen)
        return std::unexpected(Failure::menuBarHidden);
    if (isAlreadyThere(extra, hide, *screen, divider))
        return {};
    const Result result = moveAcross(extra, hide, *screen, divider);
    m_platform.dispatch.mainAsync(platform::weakly(divider, &DividerControl::release));
    return result;
}

// The one with a notch, else the first; absent when there is no screen at all.
std::optional<platform::Screen> MenuBarMover::chooseScreen() const
{
    std::optional<platform::Screen> chosen;
    m_platform.dispatch.mainSync([&] {
        const std::vector<platform::Screen> screens = m_platform.screens.screens();
        chosen = notchedScreen(screens);
        if (!chosen && !screens.empty())
            chosen = screens.front();
    });
    return chosen;
}

bool MenuBarMover::isAlreadyThere(const MenuExtra &extra, bool hide, const platform::Screen &screen,
                                  const std::weak_ptr<DividerControl> &divider) const
{
    const ExtraList extras = m_access->scan(screen, axFrame(divider));
    const auto found =
        std::ranges::find_if(extras, [&](const MenuExtra &other) { return isSameText(other.id, extra.id); });
    return found != extras.end() && found->isHidden == hide;
}

MenuBarMover::Result MenuBarMover::moveAcross(const MenuExtra &extra, bool hide, const platform::Screen &screen,
                                              const std::weak_ptr<DividerControl> &divider) const
{
    const Collapsed collapsed = collapse(divider);
    if (!isMenuBarShowing(collapsed))
        return std::unexpected(Failure::menuBarHidden);

    const std::optional<QRectF> item = m_access->frame(extra.element);
    const std::optional<QRectF> button = m_access->firstSystemButtonFrame();
    if (!hide && !canBeShown(item.value_or(QRectF()), collapsed.frame, button))
        return std::unexpected(Failure::noRoom);
    if (!item)
        return std::unexpected(Failure::didNotMove);

    const auto candidates = dropCandidates(m_access->scan(screen, std::nullopt), extra.id, button);
    dragAndPutPointerBack(centre(*item), dropPoint(candidates, collapsed.frame, hide));
    m_platform.dispatch.sleep(kSettleAfterDrag);

    const std::optional<QRectF> moved = m_access->frame(extra.element);
    if (!moved || isRightOfDivider(*moved, axFrame(divider)) == hide)
        return std::unexpected(Failure::didNotMove);
    return {};
}

// Makes every item reachable, and lets the bar lay them out again.
MenuBarMover::Collapsed MenuBarMover::collapse(const std::weak_ptr<DividerControl> &divider) const
{
    m_platform.dispatch.mainSync(platform::weakly(divider, &DividerControl::collapse));
    m_platform.dispatch.sleep(kSettleAfterCollapse);
    Collapsed collapsed;
    m_platform.dispatch.mainSync(platform::weakly(divider, [&collapsed](const DividerControl &control) {
        collapsed = {control.axFrame(), control.isWindowVisible()};
    }));
    return collapsed;
}

bool MenuBarMover::isMenuBarShowing(const Collapsed &divider) const
{
    if (isZero(divider.frame) || !divider.isVisible)
        return false;
    const int level = m_platform.windowServer.levelForKey(platform::kCGMainMenuWindowLevelKey);
    return std::ranges::any_of(m_platform.windowServer.copyWindowInfo(), [&](const QVariantMap &info) {
        return menuBarWindowCovers(info, centre(divider.frame), level);
    });
}

void MenuBarMover::dragAndPutPointerBack(QPointF from, QPointF to) const
{
    const std::optional<QPointF> pointer = m_platform.eventServices.pointerLocation();
    drag(from, to);
    if (pointer)
        m_platform.eventServices.warpMouseCursorPosition(*pointer);
}

void MenuBarMover::drag(QPointF from, QPointF to) const
{
    platform::EventServices &events = m_platform.eventServices;
    const auto post = [&](platform::CGEventType type, QPointF at) {
        const bool isMove = type == platform::kCGEventMouseMoved;
        events.post({type, at, platform::kCGEventFlagMaskCommand, isMove ? 0 : 1});
    };
    post(platform::kCGEventMouseMoved, from);
    m_platform.dispatch.sleep(kPauseAfterMove);
    post(platform::kCGEventLeftMouseDown, from);
    m_platform.dispatch.sleep(kPauseAfterDown);
    for (int i = 1; i <= kDragSteps; ++i) {
        post(platform::kCGEventLeftMouseDragged, from + (to - from) * (double(i) / kDragSteps));
        m_platform.dispatch.sleep(kPauseAfterDrag);
    }
    m_platform.dispatch.sleep(kPauseBeforeUp);
    post(platform::kCGEventLeftMouseUp, to);
}

QRectF MenuBarMover::axFrame(const std::weak_ptr<DividerControl> &divider) const
{
    QRectF frame;
    m_platform.dispatch.mainSync(
        platform::weakly(divider, [&frame](const DividerControl &control) { frame = control.axFrame(); }));
    return frame;
}

} // namespace brimshade::menubar
