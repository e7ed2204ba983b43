#include "OverlayPane.h"
#include "SessionScreens.h"

#include <QMetaProperty>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr QSizeF kRehearsedSize(640, 480); // about the size of a panel
const QRegion kNoInput(-2, -2, 1, 1); // an empty region would mean the whole window

// The rectangle with its lower corners rounded.
QRegion roundedBelow(const QRect &rect, int radius)
{
    if (radius <= 0 || rect.height() < 2 * radius || rect.width() < 2 * radius)
        return rect;
    const QRect corner(0, 0, 2 * radius, 2 * radius);
    QRegion region(rect.adjusted(0, 0, 0, -radius));
    region += rect.adjusted(radius, 0, -radius, 0);
    region += QRegion(corner.translated(rect.left(), rect.bottom() + 1 - 2 * radius), QRegion::Ellipse);
    region +=
        QRegion(corner.translated(rect.right() + 1 - 2 * radius, rect.bottom() + 1 - 2 * radius), QRegion::Ellipse);
    return region;
}

} // namespace

OverlayPane::OverlayPane(DesktopWindow &window, const Parts &parts)
    : m_window(window), m_parts(parts), m_pane(window.attributes().name, parts.router, parts.menu),
      m_surface(parts.shell.createSurface(m_pane.window(), ShellSurface::Kind::Overlay))
{
    makeTransparent(m_pane.window());
    m_holder.setParentItem(m_pane.window().contentItem());
    m_holder.setFlag(QQuickItem::ItemIsFocusScope);
    m_holder.setSize(window.frame().size());
    m_content = std::make_unique<HostedContent>(window, parts.engine, m_holder);
    tellView("paced", true);
    followView();
    connect(&m_pane.window(), &QQuickWindow::frameSwapped, this, [this] { tellView("unseen", false); });
    connect(&window, &DesktopWindow::changed, this, &OverlayPane::update);
    connect(&parts.screens, &SessionScreens::changed, this, &OverlayPane::update);
    update();
    QMetaObject::invokeMethod(this, &OverlayPane::rehearse, Qt::QueuedConnection);
}

OverlayPane::~OverlayPane() = default;

// Does in advance most of what would slow down the first frame: the native window, the scene and its texts.
void OverlayPane::rehearse()
{
    if (!m_content->view() || m_window.isVisible())
        return;
    m_holder.setSize(kRehearsedSize);
    m_pane.window().resize(kRehearsedSize.toSize());
    tellView("rehearsing", true);
    m_pane.window().grabWindow();
    tellView("rehearsing", false);
    m_holder.setSize(m_window.frame().size());
}

void OverlayPane::tellView(const char *property, bool value)
{
    QQuickItem *view = m_content->view();
    if (view && view->metaObject()->indexOfProperty(property) >= 0)
        view->setProperty(property, value);
}

void OverlayPane::followView()
{
    const QQuickItem *view = m_content->view();
    const int index = view ? view->metaObject()->indexOfProperty("hitArea") : -1;
    if (index < 0)
        return;
    const QMetaMethod changed = view->metaObject()->property(index).notifySignal();
    connect(view, changed, this, metaObject()->method(metaObject()->indexOfSlot("update()")));
}

std::optional<QRectF> OverlayPane::area(const char *property) const
{
    const QQuickItem *view = m_content->view();
    const QVariant area = view ? view->property(property) : QVariant();
    return area.isValid() ? std::optional(area.toRectF()) : std::nullopt;
}

QRect OverlayPane::drawnArea() const
{
    const QRect whole({}, m_window.frame().size().toSize());
    const auto open = area("openArea");
    if (!open)
        return whole;
    const double margin = m_content->view()->property("drawnMargin").toDouble();
    return open->adjusted(-margin, -margin, margin, margin).toAlignedRect() & whole;
}

void OverlayPane::update()
{
    m_holder.setSize(m_window.frame().size());
    QScreen *screen = m_parts.screens.screenAt(m_window.displayFrame().center());
    m_drawn |= drawnArea();
    if (!m_window.isVisible() || !screen || m_drawn.isEmpty()) {
        m_surface->hide();
        m_drawn = {};
        if (takeInput(false))
            Q_EMIT takesInputChanged();
        return;
    }
    place(*screen);
    const bool isNew = takeInput(!hitArea() || !hitArea()->isEmpty());
    if (!m_surface->isShown()) {
        tellView("unseen", true);
        m_surface->show();
    }
    if (isNew) // after it is shown, since clicks beside it are watched for once it is seen
        Q_EMIT takesInputChanged();
}

void OverlayPane::place(QScreen &screen)
{
    const QPointF origin = m_window.displayFrame().topLeft();
    m_holder.setPosition(-m_drawn.topLeft());
    m_pane.setOrigin(origin + m_drawn.topLeft());
    m_surface->setScreen(&screen);
    m_surface->setGeometry(m_drawn.translated((origin - m_parts.screens.originOf(&screen)).toPoint()));
    const QRectF hit = hitArea().value_or(QRectF());
    if (hit.isEmpty()) {
        m_surface->setInputRegion(hitArea() ? kNoInput : QRegion());
        return;
    }
    m_window.setHitArea(hit);
    m_pane.setHitArea(hit.translated(-m_drawn.topLeft()));
    const QRect inWindow = hit.translated(-m_drawn.topLeft()).toAlignedRect();
    m_surface->setInputRegion(inWindow);
    m_surface->setDrawnRegion(roundedBelow(inWindow, m_content->view()->property("hitRadius").toInt()));
}

void OverlayPane::setKey(bool key)
{
    m_isKey = key;
    giveKeys();
}

bool OverlayPane::takeInput(bool takes)
{
    const bool did = std::exchange(m_takesInput, takes);
    giveKeys();
    return did != takes;
}

// A window that is not shown loses the focus, so that no caret keeps blinking in it.
void OverlayPane::giveKeys()
{
    m_surface->setTakesKeyboard(takesKeyboard());
    m_holder.setFocus(m_isKey && m_window.isVisible());
}

} // namespace brimshade::desktop::session
