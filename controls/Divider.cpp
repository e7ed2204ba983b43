#include "Divider.h"

#include "menubar/MenuBarAccess.h"
#include "menubar/NotchGeometry.h"
#include "platform/Dispatch.h"
#include "platform/NotificationCenter.h"
#include "platform/Screens.h"
#include "platform/StatusBar.h"
#include "platform/Weakly.h"
#include "platform/Workspace.h"

#include <algorithm>
#include <cmath>

namespace brimshade::controls {

using platform::weakly;

namespace {

constexpr double kRestingLength = 28;
constexpr double kNotchGap = 30;
constexpr double kRightReserve = 160; // for the clock and its neighbours
constexpr double kLengthTolerance = 1;
constexpr double kImageInset = 8;
constexpr double kMinimumImageHeight = 16;
constexpr double kRemeasureDelay = 0.3; // the bar needs this long to lay out a changed length
constexpr double kClearanceDelay = 0.4;
constexpr double kApplicationChangeDelay = 1.0;
constexpr double kSlackStep = 40;
constexpr double kSlackLimit = 200;

// The symbol at the right end of an otherwise empty picture.
class TrailingSymbol : public platform::ImageSource {
public:
    TrailingSymbol(platform::Image symbol, QSizeF size) : m_symbol(std::move(symbol)), m_size(size) { }

    void draw(QPainter &painter, const QRectF &rect) const override
    {
        const QSizeF symbol = m_symbol.size();
        const double top = rect.y() + (rect.height() - symbol.height()) * 0.5;
        m_symbol.draw(painter, {QPointF(platform::maxX(rect) - symbol.width(), top), symbol});
    }

    QImage bitmap() const override
    {
        QImage image(m_size.toSize(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        draw(painter, {QPointF(), m_size});
        return image;
    }

private:
    const platform::Image m_symbol;
    const QSizeF m_size;
};

// A divider whose right edge is not right of a system button's has been pushed past the system's own buttons.
bool isTooLong(const QRectF &divider, const QRectF &systemButton)
{
    return menubar::isSameRow(divider, systemButton)
        && platform::maxX(divider) <= platform::maxX(systemButton) + menubar::kEdgeTolerance;
}

} // namespace

std::shared_ptr<Divider> Divider::create(const platform::Platform &platform,
                                         std::shared_ptr<menubar::MenuBarAccess> access,
                                         std::shared_ptr<platform::StatusItem> item, const platform::Image &symbol)
{
    std::shared_ptr<Divider> divider(new Divider(platform, std::move(access), std::move(item), symbol));
    divider->resize(kRestingLength);
    divider->observe();
    return divider;
}

Divider::Divider(const platform::Platform &platform, std::shared_ptr<menubar::MenuBarAccess> access,
                 std::shared_ptr<platform::StatusItem> item, const platform::Image &symbol)
    : m_platform(platform), m_access(std::move(access)), m_item(std::move(item)), m_symbol(symbol)
{
}

Divider::~Divider() = default;

void Divider::observe()
{
    m_platform.notificationCenter.addObserver(QString::fromLatin1(platform::kNSWindowDidChangeScreenNotification),
                                              window(), weakly(weak_from_this(), &Divider::reanchor));
    for (const char *name : {platform::kNSWorkspaceDidLaunchApplicationNotification,
                             platform::kNSWorkspaceDidTerminateApplicationNotification}) {
        m_platform.workspace.notificationCenter().addObserver(QString::fromLatin1(name), nullptr,
                                                              weakly(weak_from_this(), &Divider::applicationsChanged));
    }
}

void Divider::setEnabled(bool enabled)
{
    m_isEnabled = enabled;
    reanchor();
}

// Measures a second after the last of several changes, so that they share one measurement.
void Divider::applicationsChanged()
{
    later(m_applicationChange, kApplicationChangeDelay, &Divider::reanchor);
}

void Divider::reanchor()
{
    if (m_isMoving)
        return;
    m_slack = 0;
    shrink();
    later(m_measurement, kRemeasureDelay, &Divider::measure);
}

void Divider::measure()
{
    m_measurement.reset();
    if (const platform::Window *window = this->window()) {
        m_anchor = platform::maxX(window->frame());
        expand();
    }
}

void Divider::expand()
{
    m_isExpanded = true;
    if (!mayWiden())
        return;
    const std::optional<Room> room = this->room();
    if (!room || std::abs(m_item->length() - room->length) <= kLengthTolerance)
        return;
    resize(room->length);
    if (room->reachesNotch)
        later(m_clearanceCheck, kClearanceDelay, &Divider::checkClearance);
}

std::optional<Divider::Room> Divider::room() const
{
    const platform::Window *window = this->window();
    if (!m_isEnabled || !m_anchor || !window)
        return {};
    const std::optional<platform::Screen> screen = window->screen();
    const auto notch = screen ? menubar::notchExtent(*screen) : std::nullopt;
    if (!notch)
        return {};
    const double left = platform::minX(screen->frame) + notch->upper + kNotchGap;
    if (left + kRestingLength >= *m_anchor)
        return Room{kRestingLength, false};
    const double longest = platform::maxX(screen->frame) - left - kRightReserve;
    return Room{std::max(std::min(longest, *m_anchor - left - m_slack), kRestingLength), true};
}

void Divider::collapse()
{
    m_isMoving = true;
    if (m_measurement)
        std::exchange(m_measurement, nullptr)->cancel();
    shrink();
}

void Divider::release()
{
    m_isMoving = false;
    reanchor();
}

void Divider::shrink()
{
    m_isExpanded = false;
    resize(kRestingLength);
}

void Divider::resize(double length)
{
    m_item->setLength(length);
    const QSizeF size(std::max(length - kImageInset, m_symbol.size().width()),
                      std::max(m_symbol.size().height(), kMinimumImageHeight));
    if (platform::StatusBarButton *button = m_item->button())
        button->setImage({std::make_shared<TrailingSymbol>(m_symbol, size), size, true});
}

QRectF Divider::axFrame() const
{
    const platform::Window *window = this->window();
    if (!window)
        return {};
    const std::vector<platform::Screen> screens = m_platform.screens.screens();
    return platform::flipped(window->frame(), screens.empty() ? 0 : screens.front().frame.height());
}

bool Divider::isWindowVisible() const
{
    const platform::Window *window = this->window();
    return window && window->occlusionStateVisible();
}

void Divider::checkClearance()
{
    if (!m_isExpanded || !mayWiden() || m_slack >= kSlackLimit)
        return;
    // The probe asks another program and may wait for it.
    m_platform.dispatch.globalAsync(platform::QualityOfService::userInitiated,
                                    [giveWay = weakly(weak_from_this(), &Divider::giveWay), access = m_access,
                                     &dispatch = m_platform.dispatch, frame = axFrame()] {
                                        const std::optional<QRectF> button = access->firstSystemButtonFrame();
                                        if (button && isTooLong(frame, *button))
                                            dispatch.mainAsync(giveWay);
                                    });
}

void Divider::giveWay()
{
    if (!m_isExpanded || !mayWiden())
        return;
    m_slack += kSlackStep;
    expand();
}

void Divider::later(Step &pending, double seconds, void (Divider::*step)())
{
    if (pending)
        pending->cancel();
    pending = std::make_shared<platform::DispatchWorkItem>(weakly(weak_from_this(), step));
    m_platform.dispatch.mainAfter(seconds, [item = pending] { item->perform(); });
}

platform::Window *Divider::window() const
{
    platform::StatusBarButton *button = m_item->button();
    return button ? button->window() : nullptr;
}

} // namespace brimshade::controls
