#include "TipPane.h"
#include "SessionScreens.h"
#include "desktop/views/HostedContent.h"

#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr int kShadowRoom = 12; // around the bubble, for its shadow
constexpr QRect kNowhere(-2, -2, 1, 1); // outside the window, so every click goes through

} // namespace

TipPane::TipPane(const Parts &parts)
    : m_parts(parts), m_pane(u"tip"_s, parts.router, parts.menu), m_space(std::make_unique<QQuickItem>()),
      m_surface(parts.shell.createSurface(m_pane.window(), ShellSurface::Kind::Overlay))
{
    makeTransparent(m_pane.window());
    m_space->setParentItem(m_pane.window().contentItem());
    m_view = createItem(parts.engine, u"Brimshade.Desktop"_s, u"BarTipView"_s,
                        {{u"tip"_s, QVariant::fromValue(&parts.tip)}});
    m_view->setParentItem(m_space.get());
    m_surface->setInputRegion(kNowhere);
    connect(&parts.tip, &BarTip::changed, this, &TipPane::update);
}

TipPane::~TipPane() = default;

void TipPane::update()
{
    QScreen *screen = m_parts.screens.barScreen();
    if (!m_parts.tip.isShown() || !screen) {
        m_surface->hide();
        return;
    }
    const QRect bubble = QRectF(m_view->position(), m_view->size()).toAlignedRect();
    const QRect whole = bubble.adjusted(-kShadowRoom, 0, kShadowRoom, kShadowRoom); // nothing over the bar
    m_pane.setOrigin(whole.topLeft());
    m_space->setPosition(-whole.topLeft());
    m_surface->setScreen(screen);
    m_surface->setGeometry(whole.translated(-m_parts.screens.originOf(screen).toPoint()));
    m_surface->setDrawnRegion(bubble.translated(-whole.topLeft()));
    if (!m_surface->isShown())
        m_surface->show();
}

} // namespace brimshade::desktop::session
