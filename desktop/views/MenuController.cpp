#include "MenuController.h"

#include "platform/KeyCodes.h"

using namespace brimshade::platform;

namespace brimshade::desktop {

namespace {

constexpr double kEdgeStep = MenuMetrics::rowHeight; // a pointer at the end of a cut list scrolls it by a row

const std::vector<MenuEntry> *entriesOf(const std::vector<MenuEntry> &entries, int owner)
{
    for (const MenuEntry &each : entries) {
        if (each.id == owner)
            return each.hasSubmenu && each.isEnabled ? &each.submenu : nullptr;
    }
    return nullptr;
}

} // namespace

MenuController::MenuController(MenuHost &host, ScreenAt screenAt) : m_host(host), m_screenAt(std::move(screenAt))
{
    connect(&host, &MenuHost::changed, this, &MenuController::hostChanged);
}

MenuController::~MenuController() = default;

void MenuController::hostChanged()
{
    const bool wasOpen = isOpen();
    if (m_host.openMenu() != m_source || m_levels.empty())
        reopen();
    else
        refresh();
    if (isOpen() != wasOpen)
        Q_EMIT isOpenChanged();
}

void MenuController::reopen()
{
    truncate(0);
    m_source = m_host.openMenu();
    if (!m_source)
        return;
    beginInsertRows({}, 0, 0);
    m_levels.push_back(std::make_unique<MenuLevel>(0));
    m_levels.back()->setEntries(m_source->entries());
    place(0);
    endInsertRows();
}

// A list closes if the entry that opened it is gone; the others keep their chosen row.
void MenuController::refresh()
{
    const std::vector<MenuEntry> *entries = &m_source->entries();
    for (std::size_t depth = 0; depth < m_levels.size(); ++depth) {
        if (depth > 0)
            entries = entriesOf(*entries, m_levels[depth]->owner());
        if (!entries) {
            truncate(int(depth));
            return;
        }
        m_levels[depth]->setEntries(*entries);
        place(int(depth));
    }
}

void MenuController::place(int depth)
{
    MenuLevel &level = *m_levels[depth];
    const QSizeF size = level.entries().empty() ? QSizeF() : menuSize(level.entries());
    const QRectF anchor = m_host.anchor();
    const QRectF screen = m_screenAt(anchor.topLeft());
    if (depth == 0) {
        level.setFrame(placeMenu(anchor, size, screen));
        return;
    }
    const MenuLevel &parent = *m_levels[depth - 1];
    if (parent.current() >= 0)
        level.setFrame(placeSubmenu(parent.rowFrame(parent.current()), size, screen));
}

void MenuController::truncate(int depth)
{
    if (int(m_levels.size()) <= depth)
        return;
    std::vector<std::unique_ptr<MenuLevel>> gone;
    beginRemoveRows({}, depth, int(m_levels.size()) - 1);
    std::move(m_levels.begin() + depth, m_levels.end(), std::back_inserter(gone));
    m_levels.resize(depth);
    endRemoveRows();
    // The views of a list, and then of its rows, are destroyed in later turns of the event loop; the list must outlive
    // them.
    for (auto &level : gone)
        QMetaObject::invokeMethod(level.release(), &QObject::deleteLater, Qt::QueuedConnection);
}

void MenuController::openSubmenu(int depth)
{
    const MenuEntry *entry = m_levels[depth]->currentEntry();
    if (!entry || !entry->hasSubmenu)
        return;
    const int owner = entry->id;
    const std::vector<MenuEntry> entries = entry->submenu;
    beginInsertRows({}, depth + 1, depth + 1);
    m_levels.push_back(std::make_unique<MenuLevel>(owner));
    m_levels.back()->setEntries(entries);
    place(depth + 1);
    endInsertRows();
    m_source->aboutToShow(owner); // last: it may change the entries at once
}

int MenuController::depthAt(QPointF point) const
{
    for (int depth = int(m_levels.size()) - 1; depth >= 0; --depth) {
        if (m_levels[depth]->frame().contains(point))
            return depth;
    }
    return -1;
}

void MenuController::select(int depth, int row)
{
    MenuLevel &level = *m_levels[depth];
    if (row >= 0 && !MenuLevel::isChoosable(level.entries()[row]))
        row = -1;
    if (level.current() == row && int(m_levels.size()) > depth + 1)
        return; // its submenu is open already
    truncate(depth + 1);
    level.setCurrent(row);
}

void MenuController::pointerMoved(QPointF to)
{
    if (!isOpen())
        return;
    const int depth = depthAt(to);
    if (depth < 0) {
        m_levels.back()->setCurrent(-1);
        return;
    }
    MenuLevel &level = *m_levels[depth];
    if (level.canScrollUp() && to.y() < level.frame().top() + MenuMetrics::rowHeight)
        level.scrollBy(-kEdgeStep);
    else if (level.canScrollDown() && to.y() > level.frame().bottom() - MenuMetrics::rowHeight)
        level.scrollBy(kEdgeStep);
    select(depth, level.rowAt(to));
    if (int(m_levels.size()) == depth + 1)
        openSubmenu(depth);
}

void MenuController::pressed(QPointF at)
{
    pointerMoved(at);
    if (isOpen() && depthAt(at) < 0)
        m_host.dismiss();
}

void MenuController::released(QPointF at)
{
    const int depth = isOpen() ? depthAt(at) : -1;
    if (depth >= 0 && depth == int(m_levels.size()) - 1 && m_levels[depth]->rowAt(at) == m_levels[depth]->current())
        choose();
}

void MenuController::wheel(QPointF at, double points)
{
    const int depth = isOpen() ? depthAt(at) : -1;
    if (depth < 0)
        return;
    m_levels[depth]->scrollBy(-points);
    select(depth, m_levels[depth]->rowAt(at));
}

void MenuController::choose()
{
    const MenuEntry *entry = m_levels.back()->currentEntry();
    if (entry && !entry->hasSubmenu)
        m_host.choose(entry->id);
}

void MenuController::step(int by)
{
    MenuLevel &level = *m_levels.back();
    level.setCurrent(level.neighbour(level.current(), by));
}

void MenuController::enterSubmenu()
{
    const std::size_t before = m_levels.size();
    openSubmenu(int(before) - 1);
    if (m_levels.size() > before)
        step(1);
}

void MenuController::key(const platform::Event &event)
{
    if (!isOpen())
        return;
    const MenuEntry *entry = m_levels.back()->currentEntry();
    switch (event.keyCode) {
    case kVK_DownArrow:
        return step(1);
    case kVK_UpArrow:
        return step(-1);
    case kVK_RightArrow:
        return enterSubmenu();
    case kVK_LeftArrow:
        return truncate(std::max(1, int(m_levels.size()) - 1));
    case kVK_Return:
    case kVK_ANSI_KeypadEnter:
    case kVK_Space:
        return entry && entry->hasSubmenu ? enterSubmenu() : choose();
    case kVK_Escape:
        return m_host.dismiss();
    default:
        if (!event.characters.isEmpty())
            m_levels.back()->setCurrent(m_levels.back()->rowStartingWith(event.characters));
    }
}

QVariant MenuController::value(int row, int role) const
{
    return role == LevelRole ? QVariant::fromValue(m_levels[std::size_t(row)].get()) : QVariant();
}

QHash<int, QByteArray> MenuController::roleNames() const
{
    return {{LevelRole, "level"}};
}

} // namespace brimshade::desktop
