#include "DesktopWindow.h"
#include "ScreenGeometry.h"
#include "SharedState.h"
#include "WindowStack.h"

#include <cmath>

using namespace brimshade::platform;

namespace brimshade::desktop {

namespace {

constexpr double kTitleBarHeight = 28;

} // namespace

DesktopWindow::DesktopWindow(WindowStack &stack, const WindowAttributes &attributes, const ContentView &content)
    : m_stack(&stack), m_attributes(attributes), m_content(content)
{
    m_frame = attributes.contentRect;
    m_frame.setHeight(m_frame.height() + titleBarHeight());
}

DesktopWindow::~DesktopWindow()
{
    if (m_stack)
        m_stack->forget(this);
}

QRectF DesktopWindow::displayFrame() const
{
    return flipped(m_frame, m_stack ? m_stack->m_state.primaryHeight() : 0);
}

bool DesktopWindow::takesClickAt(QPointF displayPoint) const
{
    const QRectF frame = displayFrame();
    return containsPoint(m_hitArea.isNull() ? frame : m_hitArea.translated(frame.topLeft()), displayPoint);
}

double DesktopWindow::titleBarHeight() const
{
    const bool isTitled = m_attributes.styleMask & kStyleTitled;
    return isTitled && !(m_attributes.styleMask & kStyleFullSizeContentView) ? kTitleBarHeight : 0;
}

// The title bar stays where it is, unless the window has been centred and not been shown yet.
void DesktopWindow::setContentSize(QSizeF size)
{
    const QSizeF whole(size.width(), size.height() + titleBarHeight());
    if (!m_attributes.contentSizesWindow || whole == m_frame.size())
        return;
    applyFrame(m_isCentred ? centred(whole) : QRectF({minX(m_frame), maxY(m_frame) - whole.height()}, whole));
}

void DesktopWindow::setFrame(const QRectF &frame)
{
    m_isCentred = false;
    applyFrame(frame);
}

void DesktopWindow::applyFrame(const QRectF &frame)
{
    const QRectF next = constrained(frame);
    if (next == m_frame)
        return;
    m_frame = next;
    if (m_stack)
        m_stack->publish();
    Q_EMIT changed();
}

// A title bar stays below the menu bar.
QRectF DesktopWindow::constrained(QRectF frame) const
{
    if (!m_attributes.constrainsFrame || !(m_attributes.styleMask & kStyleTitled) || !m_stack)
        return frame;
    const auto on =
        m_stack->m_state.read([&](const DisplayState &state) { return screenHolding(state.screens, frame); });
    if (on && maxY(frame) > maxY(on->visibleFrame))
        frame.moveTop(maxY(on->visibleFrame) - frame.height());
    return frame;
}

void DesktopWindow::center()
{
    applyFrame(centred(m_frame.size()));
    m_isCentred = !m_isVisible;
}

// On its screen and on whole points, with twice as much room below it as above.
QRectF DesktopWindow::centred(QSizeF size) const
{
    auto on = screen();
    if (!on && m_stack)
        on = m_stack->m_state.read([](const DisplayState &state) {
            return state.screens.empty() ? std::nullopt : std::optional(state.screens.front());
        });
    const QRectF area = on ? on->visibleFrame : QRectF(m_frame.topLeft(), size);
    return {
        {std::round(midX(area) - size.width() / 2), std::round(minY(area) + (area.height() - size.height()) * 2 / 3)},
        size};
}

std::optional<Screen> DesktopWindow::screen() const
{
    if (!m_stack)
        return std::nullopt;
    return m_stack->m_state.read([this](const DisplayState &state) { return screenHolding(state.screens, m_frame); });
}

void DesktopWindow::orderFrontRegardless()
{
    if (m_stack)
        m_stack->orderFront(this);
}

void DesktopWindow::makeKeyAndOrderFront()
{
    if (!m_stack)
        return;
    m_stack->orderFront(this);
    m_stack->makeKey(this);
}

void DesktopWindow::orderOut()
{
    if (m_stack)
        m_stack->orderOut(this);
}

void DesktopWindow::close()
{
    orderOut();
}

bool DesktopWindow::isKeyWindow() const
{
    return m_stack && m_stack->keyWindow() == this;
}

bool DesktopWindow::occlusionStateVisible() const
{
    return m_isVisible && !m_frame.isEmpty() && screen();
}

} // namespace brimshade::desktop
