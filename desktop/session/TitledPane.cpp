#include "TitledPane.h"

#include <QIcon>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr QRgb kLightPlate = 0xfff2f2f4;
constexpr QRgb kDarkPlate = 0xff1e1e20;

} // namespace

TitledPane::TitledPane(DesktopWindow &window, const Parts &parts)
    : m_window(window), m_parts(parts), m_pane(window.attributes().name, parts.router, parts.menu)
{
    QQuickWindow &shown = m_pane.window();
    const platform::WindowAttributes &attributes = window.attributes();
    shown.setFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    shown.setTitle(attributes.title.isEmpty() ? u"Brimshade"_s : attributes.title);
    shown.setIcon(QIcon(u":/qt/qml/Brimshade/Session/icon.svg"_s)); // for X11; Wayland uses the desktop entry's
    shown.setColor(QColor::fromRgba(attributes.darkAppearance ? kDarkPlate : kLightPlate));
    m_holder.setParentItem(shown.contentItem());
    m_holder.setFlag(QQuickItem::ItemIsFocusScope);
    m_content = std::make_unique<HostedContent>(window, parts.engine, m_holder);
    shown.installEventFilter(this);
    connect(&shown, &QWindow::activeChanged, this, &TitledPane::activationChanged);
    connect(&window, &DesktopWindow::changed, this, &TitledPane::update);
    update();
}

TitledPane::~TitledPane() = default;

// The session has its own title bar above the content.
void TitledPane::update()
{
    const QRectF frame = m_window.displayFrame();
    const double title = m_window.titleBarHeight();
    const QSize size = QSizeF(frame.width(), frame.height() - title).toSize();
    QQuickWindow &shown = m_pane.window();
    m_holder.setSize(size);
    m_pane.setOrigin(frame.topLeft() + QPointF(0, title));
    if (shown.size() != size && !size.isEmpty()) {
        shown.setMinimumSize({});
        shown.setMaximumSize(size);
        shown.setMinimumSize(size);
        shown.resize(size);
    }
    if (m_window.isVisible() != shown.isVisible())
        shown.setVisible(m_window.isVisible());
}

void TitledPane::setKey(bool key)
{
    m_holder.setFocus(key);
    if (!key || m_pane.window().isActive())
        return;
    m_pane.window().raise();
    m_pane.window().requestActivate();
}

void TitledPane::activationChanged()
{
    if (m_pane.window().isActive()) {
        m_parts.stack.activate();
        m_parts.stack.makeKey(&m_window);
    } else if (m_parts.stack.keyWindow() == &m_window) {
        m_parts.stack.deactivate();
    }
}

bool TitledPane::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::Close)
        return false;
    event->ignore(); // it is only ordered out, and may come back
    m_window.close();
    return true;
}

} // namespace brimshade::desktop::session
