#include "Pane.h"

#include <QQuickItem>

namespace brimshade::desktop::session {

Pane::Pane(const QString &name, InputRouter &router, MenuController &menu)
    : m_name(name), m_input(std::make_unique<WindowInput>(
                        m_window, [this](QPointF inWindow) { return toDisplay(inWindow); }, router, menu))
{
    m_window.contentItem()->setProperty("brimshadeWindow", name);
}

Pane::~Pane()
{
    m_input.reset();
}

void makeTransparent(QQuickWindow &window)
{
    QSurfaceFormat format = window.format();
    format.setAlphaBufferSize(8);
    window.setFormat(format);
    window.setColor(Qt::transparent);
}

} // namespace brimshade::desktop::session
