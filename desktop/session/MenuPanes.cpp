#include "MenuPanes.h"
#include "SessionScreens.h"
#include "desktop/views/HostedContent.h"
#include "desktop/views/MenuController.h"

#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr int kShadowRoom = 40; // around the list, for its shadow

} // namespace

class MenuPanes::List {
public:
    List(const Parts &parts, MenuLevel &level, bool takesKeys);

    Pane &pane() { return m_pane; }
    void hide() { m_surface->hide(); }

private:
    void place();

    const Parts &m_parts;
    MenuLevel &m_level;
    Pane m_pane;
    QQuickItem m_space; // laid out in display space, as the list's view is
    std::unique_ptr<QQuickItem> m_view;
    std::unique_ptr<ShellSurface> m_surface;
};

MenuPanes::List::List(const Parts &parts, MenuLevel &level, bool takesKeys)
    : m_parts(parts), m_level(level), m_pane(u"menu"_s, parts.router, parts.menu),
      m_surface(parts.shell.createSurface(m_pane.window(), ShellSurface::Kind::Overlay))
{
    makeTransparent(m_pane.window());
    m_space.setParentItem(m_pane.window().contentItem());
    m_view =
        createItem(parts.engine, u"Brimshade.Desktop"_s, u"MenuView"_s, {{u"level"_s, QVariant::fromValue(&level)}});
    m_view->setParentItem(&m_space);
    m_surface->setTakesKeyboard(takesKeys);
    QObject::connect(&level, &MenuLevel::geometryChanged, &m_space, [this] { place(); });
    place();
}

void MenuPanes::List::place()
{
    const QRect list = m_level.frame().toAlignedRect();
    QScreen *screen = m_parts.screens.screenAt(list.center());
    if (!screen || list.isEmpty()) { // it has no entries yet, or there is nowhere to show it
        m_surface->hide();
        return;
    }
    const QRect whole = list.adjusted(-kShadowRoom, -kShadowRoom, kShadowRoom, kShadowRoom);
    const QRect hit(QPoint(kShadowRoom, kShadowRoom), list.size());
    m_pane.setOrigin(whole.topLeft());
    m_pane.setHitArea(hit);
    m_space.setPosition(-whole.topLeft());
    m_surface->setScreen(screen);
    m_surface->setGeometry(whole.translated(-m_parts.screens.originOf(screen).toPoint()));
    m_surface->setInputRegion(hit);
    m_surface->setDrawnRegion(hit);
    if (!m_surface->isShown())
        m_surface->show();
}

MenuPanes::MenuPanes(const Parts &parts) : m_parts(parts)
{
    connect(&parts.menu, &MenuController::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { add(first, last); });
    connect(&parts.menu, &MenuController::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &, int first, int) { truncate(first); });
}

MenuPanes::~MenuPanes() = default;

void MenuPanes::add(int first, int last)
{
    for (int depth = first; depth <= last; ++depth)
        m_lists.push_back(std::make_unique<List>(m_parts, m_parts.menu.level(depth), depth == 0));
}

// A choice closes the menu in the middle of an event of its window, so the window is destroyed in a later turn.
void MenuPanes::truncate(int count)
{
    while (m_lists.size() > std::size_t(count)) {
        m_lists.back()->hide();
        m_leaving.push_back(std::move(m_lists.back()));
        m_lists.pop_back();
    }
    QMetaObject::invokeMethod(
        this, [this] { m_leaving.clear(); }, Qt::QueuedConnection);
}

std::vector<Pane *> MenuPanes::panes() const
{
    std::vector<Pane *> panes;
    panes.reserve(m_lists.size());
    for (const auto &list : m_lists)
        panes.push_back(&list->pane());
    return panes;
}

} // namespace brimshade::desktop::session
