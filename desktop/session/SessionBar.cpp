#include "SessionBar.h"
#include "SessionScreens.h"
#include "desktop/core/MenuBar.h"
#include "desktop/views/HostedContent.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr std::size_t kMostWaiting = 64; // more than a person clicks in the second that a drag takes

bool isOfPointer(QEvent::Type type)
{
    return type == QEvent::MouseMove || type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease
        || type == QEvent::MouseButtonDblClick;
}

} // namespace

SessionBar::SessionBar(const Parts &parts)
    : m_parts(parts), m_pane(u"bar"_s, parts.router, parts.menu),
      m_surface(parts.shell.createSurface(m_pane.window(), ShellSurface::Kind::Bar))
{
    QQuickWindow &window = m_pane.window();
    makeTransparent(window);
    window.setTitle(u"Brimshade"_s);
    m_view = createItem(parts.engine, u"Brimshade.Session"_s, u"SessionBar"_s,
                        {{u"bar"_s, QVariant::fromValue(&parts.state)}});
    m_view->setParentItem(window.contentItem());
    const auto fill = [this] { m_view->setSize(m_pane.window().size()); };
    connect(&window, &QWindow::widthChanged, this, fill);
    connect(&window, &QWindow::heightChanged, this, fill);
    window.installEventFilter(this); // installed after the pane's own filter, so it is asked first
    connect(&parts.menuBar, &MenuBar::changed, this, &SessionBar::update);
    connect(&parts.screens, &SessionScreens::changed, this, &SessionBar::update);
    update();
}

SessionBar::~SessionBar() = default;

void SessionBar::update()
{
    QScreen *screen = m_parts.screens.barScreen();
    const QRectF frame = m_parts.menuBar.frame();
    if (!screen || frame.isEmpty() || !m_parts.menuBar.isShowing()) {
        m_surface->hide();
        return;
    }
    m_pane.setOrigin(frame.topLeft());
    m_surface->setScreen(screen);
    m_surface->setGeometry(frame.translated(-m_parts.screens.originOf(screen)).toRect());
    m_surface->setZone(qRound(frame.height()));
    if (!m_surface->isShown())
        m_surface->show();
}

void SessionBar::setWaiting(bool waiting)
{
    m_isWaiting = waiting;
    if (!waiting)
        replay();
}

bool SessionBar::eventFilter(QObject *, QEvent *event)
{
    if (!m_isWaiting || !isOfPointer(event->type()))
        return false;
    if (event->type() != QEvent::MouseMove && m_waiting.size() < kMostWaiting)
        m_waiting.emplace_back(event->clone());
    return true;
}

void SessionBar::replay()
{
    for (const auto &event : std::exchange(m_waiting, {}))
        QCoreApplication::sendEvent(&m_pane.window(), event.get());
}

} // namespace brimshade::desktop::session
