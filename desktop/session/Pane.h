#pragma once
#include "desktop/views/WindowInput.h"

#include <QQuickWindow>
#include <QRectF>
#include <QString>
#include <memory>

namespace brimshade::desktop::session {

// One of the toolkit's windows as a piece of the display: where its points are, and its input on the way to the router.
// Main thread. Whoever shows it keeps the frame; what it shows is in its contentItem() and goes before it.
class Pane {
public:
    Pane(const QString &name, InputRouter &router, MenuController &menu);
    ~Pane();
    Q_DISABLE_COPY_MOVE(Pane)

    QQuickWindow &window() { return m_window; }
    WindowInput &input() { return *m_input; }
    QString name() const { return m_name; } // "panel", "bar", "menu"

    QRectF frame() const { return {m_origin, QSizeF(m_window.size())}; } // display space
    void setOrigin(QPointF display) { m_origin = display; }
    QPointF toDisplay(QPointF inWindow) const { return m_origin + inWindow; }
    QPointF toWindow(QPointF display) const { return display - m_origin; }

    // What of it takes clicks, display space.
    QRectF hitFrame() const { return m_hitArea.isNull() ? frame() : m_hitArea.translated(m_origin); }
    void setHitArea(const QRectF &inWindow) { m_hitArea = inWindow; }

private:
    const QString m_name;
    QQuickWindow m_window;
    QPointF m_origin;
    QRectF m_hitArea;
    std::unique_ptr<WindowInput> m_input;
};

// Without a background: for what is drawn over other programs.
void makeTransparent(QQuickWindow &window);

} // namespace brimshade::desktop::session
