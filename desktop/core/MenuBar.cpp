#include "MenuBar.h"
#include "BarLayout.h"
#include "BarOrder.h"
#include "Lifetime.h"
#include "MenuHost.h"
#include "SharedState.h"

#include <algorithm>
#include <limits>

using namespace brimshade::platform;

namespace brimshade::desktop {

namespace {

constexpr double kSettleDelay = 0.1; // seconds
constexpr QRectF kNotYet(std::numeric_limits<float>::lowest(), 0, 0, 0); // left of everything

BarEntries entriesThatAre(bool away, const BarEntries &all)
{
    BarEntries entries;
    std::ranges::copy_if(all, std::back_inserter(entries), [away](const auto &entry) { return entry->isAway == away; });
    return entries;
}

std::vector<double> widthsOf(const BarEntries &entries)
{
    std::vector<double> widths;
    std::ranges::transform(entries, std::back_inserter(widths), [](const auto &entry) { return entry->width; });
    return widths;
}

} // namespace

struct MenuBar::Layout {
    std::vector<std::pair<EntryPointer, QRectF>> frames; // of each item that is laid out, right to left
    bool isCrowded = false;

    bool operator==(const Layout &) const = default;
};

// The item that is being dragged, and where.
struct Held {
    MenuBar::EntryPointer entry;
    QPointF at;
    double left; // of the item
};

struct MenuBar::Private {
    Dispatch &dispatch;
    SharedState &state;
    MenuHost &menus;
    BarOrder order = {};
    std::optional<BarGeometry> geometry = {}; // absent without a screen
    double applicationMenusWidth = std::numeric_limits<double>::infinity();
    Layout latest = {}; // shown once it has settled
    std::optional<Held> held = {};
    bool isRearranging = false;
    bool isCrowded = false; // as shown
    int settled = 0; // how often everything was shown at once; layouts that were waiting then are outdated
    int updates = 0; // nesting depth of update(), until whose end everything waits
    bool needsLayout = false;
    bool needsSignal = false;
    Lifetime lifetime = {};
};

MenuBar::MenuBar(Dispatch &dispatch, SharedState &state, MenuHost &menus)
    : m_d(new Private{.dispatch = dispatch, .state = state, .menus = menus})
{
    connect(&menus, &MenuHost::changed, this, &MenuBar::changed);
}

MenuBar::~MenuBar() = default;

QRectF MenuBar::frame() const
{
    return m_d->geometry ? m_d->geometry->frame : QRectF();
}

std::optional<std::pair<double, double>> MenuBar::notch() const
{
    return m_d->geometry ? m_d->geometry->notch : std::nullopt;
}

double MenuBar::applicationMenusEnd() const
{
    return m_d->geometry ? m_d->geometry->applicationMenusEnd : 0;
}

double MenuBar::ownItemLength() const
{
    const auto &entries = m_d->order.laidOut();
    const auto own = std::ranges::find(entries, BarEntry::Place::own, &BarEntry::place);
    return own == entries.end() ? 0 : (*own)->width;
}

std::vector<BarItem> MenuBar::items() const
{
    std::vector<BarItem> items;
    for (const auto *entries : {&m_d->order.laidOut(), &m_d->order.fixed()}) {
        for (const auto &entry : *entries) {
            if (entry->frame)
                items.push_back(shown(*entry));
        }
    }
    std::ranges::stable_sort(items, {}, [](const BarItem &item) { return minX(item.frame); });
    return items;
}

std::optional<BarItem> MenuBar::itemOf(const EntryPointer &entry) const
{
    const auto has = [&entry](const BarEntries &entries) { return std::ranges::find(entries, entry) != entries.end(); };
    const bool isHere = has(m_d->order.laidOut()) || has(m_d->order.fixed());
    return isHere && entry->frame ? std::optional(shown(*entry)) : std::nullopt;
}

BarItem MenuBar::shown(const BarEntry &e) const
{
    const bool isOwn = e.place == BarEntry::Place::own;
    const bool isMenuOpen = m_d->menus.openMenu() && m_d->menus.anchor() == *e.frame;
    return BarItem(e.pid, e.identifier, e.title, e.description, e.symbol, e.image, e.label, e.toolTip, *e.frame,
                   minX(*e.frame) + e.shift, isDrawn(e), isOwn, e.isPressed || isMenuOpen,
                   isOwn ? hiddenWantsAttention() : e.wantsAttention, e.dragOffset);
}

bool MenuBar::hiddenWantsAttention() const
{
    return std::ranges::any_of(m_d->order.laidOut(),
                               [this](const auto &entry) { return entry->wantsAttention && !isDrawn(*entry); });
}

void MenuBar::add(const EntryPointer &entry)
{
    m_d->order.add(entry);
    if (entry->place == BarEntry::Place::fixed)
        touch();
    else
        relayout();
    if (entry->kept)
        Q_EMIT keptOrderChanged();
}

void MenuBar::remove(const EntryPointer &entry)
{
    m_d->order.remove(entry);
    entry->element = nullptr; // layouts yet to be shown hold the entry
    relayout();
    touch(); // it goes at once; the others close the gap when they settle
    if (entry->kept)
        Q_EMIT keptOrderChanged();
}

void MenuBar::rename(const EntryPointer &entry, const KeptItem &who)
{
    if (!m_d->order.rename(entry, who))
        return;
    relayout();
    Q_EMIT keptOrderChanged();
}

const KeptOrder &MenuBar::keptOrder() const
{
    return m_d->order.kept();
}

void MenuBar::restore(KeptOrder order)
{
    m_d->order.restore(std::move(order));
    relayout();
    Q_EMIT keptOrderChanged();
}

void MenuBar::widthChanged()
{
    relayout();
}

void MenuBar::lookChanged()
{
    touch();
}

void MenuBar::placeOwn(const EntryPointer &entry, double pointsFromRight)
{
    m_d->order.placeOwn(entry, pointsFromRight);
    relayout();
}

void MenuBar::setScreens()
{
    m_d->geometry = m_d->state.read([this](const DisplayState &state) -> std::optional<BarGeometry> {
        const Screen *screen = barScreen(state.screens);
        if (!screen)
            return std::nullopt;
        return barGeometry(*screen, state.screens.front().frame.height(), m_d->applicationMenusWidth);
    });
    relayout();
    touch();
}

void MenuBar::setApplicationMenusWidth(double points)
{
    if (std::exchange(m_d->applicationMenusWidth, points) != points)
        settleNow([this] { setScreens(); }); // the name takes its room at once
}

void MenuBar::setShowing(bool showing)
{
    if (std::exchange(m_isShowing, showing) != showing)
        touch();
}

void MenuBar::update(const std::function<void()> &changes)
{
    ++m_d->updates;
    changes();
    if (--m_d->updates > 0)
        return;
    if (std::exchange(m_d->needsLayout, false))
        relayout();
    if (std::exchange(m_d->needsSignal, false))
        touch();
}

void MenuBar::settleNow(const std::function<void()> &changes)
{
    ++m_d->updates;
    changes();
    --m_d->updates;
    m_d->needsLayout = m_d->needsSignal = false;
    m_d->latest = layout(m_d->order);
    ++m_d->settled;
    apply(m_d->latest);
}

double MenuBar::room() const
{
    return m_d->geometry ? roomFor(*m_d->geometry) : std::numeric_limits<double>::infinity();
}

MenuBar::Layout MenuBar::layout(const BarOrder &order) const
{
    Layout layout;
    if (!m_d->geometry)
        return layout;
    const auto shown = order.shown(room());
    const auto inBar = entriesThatAre(false, shown), away = entriesThatAre(true, shown);
    const auto frames = layOut(widthsOf(inBar), *m_d->geometry);
    const auto awayFrames = layOutAway(widthsOf(away), frames, *m_d->geometry);
    for (std::size_t i = 0; i < inBar.size(); ++i)
        layout.frames.emplace_back(inBar[i], frames[i]);
    for (std::size_t i = 0; i < away.size(); ++i)
        layout.frames.emplace_back(away[i], awayFrames[i]);
    layout.isCrowded = shown != order.laidOut();
    return layout;
}

// Laid out now, shown later: two changes within the delay are shown one after the other, each as it was meant.
void MenuBar::relayout()
{
    if (m_d->updates > 0) {
        m_d->needsLayout = true;
        return;
    }
    Layout next = layout(m_d->order);
    if (next == m_d->latest)
        return;
    m_d->latest = next;
    const auto show = [this, next = std::move(next), settled = m_d->settled] {
        if (settled == m_d->settled)
            apply(next);
    };
    m_d->dispatch.mainAfter(kSettleDelay, m_d->lifetime.guard(show));
}

void MenuBar::touch()
{
    if (m_d->updates > 0)
        m_d->needsSignal = true;
    else
        Q_EMIT changed();
}

void MenuBar::apply(const Layout &layout)
{
    m_d->state.write([&](DisplayState &) {
        for (const auto &[entry, frame] : layout.frames) {
            entry->frame = frame;
            entry->shift = 0;
            if (entry->element)
                entry->element->frame = frame;
        }
    });
    m_d->isCrowded = layout.isCrowded;
    if (m_d->held)
        makeWay();
    Q_EMIT settled();
    Q_EMIT changed();
}

MenuBar::EntryPointer MenuBar::entryAt(QPointF point) const
{
    for (const auto *entries : {&m_d->order.laidOut(), &m_d->order.fixed()}) {
        for (const auto &entry : *entries) {
            if (entry->frame && containsPoint(*entry->frame, point))
                return entry;
        }
    }
    return nullptr;
}

MenuBar::EntryPointer MenuBar::drawnEntryAt(QPointF point) const
{
    const auto entry = entryAt(point);
    return entry && isDrawn(*entry) ? entry : nullptr;
}

bool MenuBar::isDrawn(const BarEntry &entry) const
{
    return m_isShowing && m_d->geometry && entry.frame && isDrawnAt(*entry.frame, *m_d->geometry);
}

bool MenuBar::containsRow(QPointF point) const
{
    return point.y() >= minY(frame()) && point.y() < maxY(frame());
}

bool MenuBar::drop(BarOrder &order, const EntryPointer &entry, double x) const
{
    if (!m_areMovesAccepted)
        return false;
    std::vector<QRectF> others;
    for (const auto &other : order.shown(room())) {
        if (other != entry)
            others.push_back(other->frame.value_or(kNotYet));
    }
    return order.drop(entry, dropIndex(others, x), room());
}

bool MenuBar::move(const EntryPointer &entry, double x)
{
    if (!drop(m_d->order, entry, x))
        return false;
    relayout();
    Q_EMIT keptOrderChanged();
    return true;
}

void MenuBar::hold(const EntryPointer &entry, QPointF at, double left)
{
    m_d->held = Held{.entry = entry, .at = at, .left = left};
    m_d->isRearranging = true;
    makeWay();
    touch();
}

// Decides as a drop would, by the settled frames, so that an item does not come back because it has made way.
void MenuBar::makeWay()
{
    const auto &[entry, at, left] = *m_d->held;
    BarOrder order = m_d->order;
    if (containsRow(at))
        drop(order, entry, at.x());
    showAt(layout(order));
    entry->shift = 0;
    entry->dragOffset = left - minX(*entry->frame);
}

void MenuBar::letGo()
{
    if (!m_d->held)
        return;
    m_d->held->entry->dragOffset = 0;
    showAt(m_d->latest);
    m_d->held.reset();
    touch();
    const auto settle = [this] {
        m_d->isRearranging = m_d->held.has_value();
        touch();
    };
    m_d->dispatch.mainAfter(kSettleDelay, m_d->lifetime.guard(settle));
}

bool MenuBar::isRearranging() const
{
    return m_d->isRearranging;
}

// Shows items where the layout will put them before it has settled. One that will not be drawn goes just out of sight.
void MenuBar::showAt(const Layout &layout)
{
    for (const auto &[entry, frame] : layout.frames) {
        const bool isSeen = isDrawn(*entry) || (m_d->held && m_d->held->entry == entry);
        if (entry->frame && isSeen)
            entry->shift = std::max(minX(frame), drawnFrom(*m_d->geometry) - frame.width()) - minX(*entry->frame);
    }
}

double MenuBar::pointsFromRight(const BarEntry &entry) const
{
    double kept = 0; // points that items right of it fill
    for (const auto &[laidOut, rect] : m_d->latest.frames) {
        if (laidOut.get() == &entry)
            return maxX(frame()) - maxX(rect) - kept;
        kept += laidOut->kept ? laidOut->width : 0;
    }
    return 0;
}

bool MenuBar::isCrowded() const
{
    return m_d->isCrowded;
}

} // namespace brimshade::desktop
