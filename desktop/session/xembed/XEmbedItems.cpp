#include "XEmbedItems.h"

#include "TrayManager.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/PixelImage.h"
#include "desktop/tray/TrayPrograms.h"
#include "platform/Weakly.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr double kIconPoints = 22; // per side, like the pictures of other tray items
constexpr int kSmallestIcon = 16, kLargestIcon = 96; // pixels
constexpr int kNotch = 120;

int sideFor(double pixelsPerPoint)
{
    return std::clamp(int(std::lround(kIconPoints * pixelsPerPoint)), kSmallestIcon, kLargestIcon);
}

// Programs show their menu at a press of the right button.
std::uint8_t buttonOf(ItemGesture gesture)
{
    switch (gesture) {
    case ItemGesture::click:
    case ItemGesture::activate:
        return XCB_BUTTON_INDEX_1;
    case ItemGesture::secondary:
        return XCB_BUTTON_INDEX_2;
    case ItemGesture::menu:
    case ItemGesture::press:
        break;
    }
    return XCB_BUTTON_INDEX_3;
}

QString instanceOf(std::uint32_t window)
{
    return u"window 0x%1"_s.arg(window, 0, 16);
}

// An unknown process counts as one that has only this window.
int processOf(const DockedItem &item)
{
    return item.pid > 0 ? item.pid : -int(item.window);
}

// Subtracts the whole notches from what was scrolled.
int takeNotches(int &scrolled)
{
    const int notches = scrolled / kNotch;
    scrolled -= notches * kNotch;
    return notches;
}

} // namespace

XEmbedItems::XEmbedItems(Desktop &desktop, tray::TrayPrograms &programs, ToScreen toScreen, double pixelsPerPoint)
    : m_programs(programs), m_toScreen(std::move(toScreen)), m_manager(new TrayManager(sideFor(pixelsPerPoint)))
{
    m_manager->moveToThread(&m_thread);
    connect(&m_thread, &QThread::started, m_manager, &TrayManager::begin);
    connect(&m_thread, &QThread::finished, m_manager, &QObject::deleteLater);
    connect(m_manager, &TrayManager::changed, this, &XEmbedItems::show);
    connect(m_manager, &TrayManager::gone, this, &XEmbedItems::remove);
    connect(m_manager, &TrayManager::message, this, &XEmbedItems::message);
    connect(&desktop, &Desktop::acted, m_manager, &TrayManager::lapseClicks);
    m_thread.setObjectName(u"brimshade.xembed"_s);
    m_thread.start();
}

XEmbedItems::~XEmbedItems()
{
    m_thread.quit();
    m_thread.wait();
    for (const auto &[window, shown] : m_shown)
        m_programs.remove(processOf(shown.item), instanceOf(window));
}

void XEmbedItems::show(const DockedItem &item)
{
    Shown &shown = m_shown[item.window];
    if (item.picture != shown.item.picture)
        shown.picture =
            item.picture.isNull() ? platform::Image() : imageOf(item.picture, QSizeF(kIconPoints, kIconPoints));
    shown.item = item;
    m_programs.show(processOf(item), hosted(shown));
}

void XEmbedItems::remove(std::uint32_t window)
{
    const auto shown = m_shown.extract(window);
    if (!shown.empty())
        m_programs.remove(processOf(shown.mapped().item), instanceOf(window));
}

tray::HostedItem XEmbedItems::hosted(const Shown &shown)
{
    const std::uint32_t window = shown.item.window;
    tray::TrayItem item;
    item.id = shown.item.id;
    item.title = shown.item.title;
    return {.instance = instanceOf(window),
            .path = instanceOf(window),
            .item = item,
            .pictures = {.whole = shown.picture, .overlay = {}},
            .handler = platform::weakly(QPointer(this), &XEmbedItems::click, window),
            .scroller = platform::weakly(QPointer(this), &XEmbedItems::scroll, window),
            .canBeActivated = true};
}

// The menu of an item that is not in the bar opens at the bar's left end.
void XEmbedItems::click(std::uint32_t window, ItemGesture gesture, const QRectF &frame)
{
    const QPointF below(std::max(0.0, frame.center().x()), frame.bottom());
    send({.window = window, .button = buttonOf(gesture), .count = 1, .below = m_toScreen(below)});
}

void XEmbedItems::scroll(std::uint32_t window, QPoint by)
{
    const auto shown = m_shown.find(window);
    if (shown == m_shown.end())
        return;
    QPoint &scrolled = shown->second.scrolled;
    scrolled += by;
    if (const int up = takeNotches(scrolled.ry()))
        send({window, std::uint8_t(up > 0 ? 4 : 5), std::abs(up), {}});
    if (const int left = takeNotches(scrolled.rx()))
        send({window, std::uint8_t(left > 0 ? 6 : 7), std::abs(left), {}});
}

void XEmbedItems::send(const DockedClick &click)
{
    QMetaObject::invokeMethod(m_manager, [manager = m_manager, click] { manager->click(click); });
}

} // namespace brimshade::desktop::session
