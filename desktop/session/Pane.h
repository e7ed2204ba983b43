#pragma once
#include "desktop/views/WindowInput.h"

#include <QQuickWindow>
#include <QRectF>
#include <QString>
#include <memory>

namespace brimshade::desktop::session {

// One of the toolkit's windows as a piece of the display: where its points are, and how its input reaches the router.
// Main thread. Its owner keeps the frame; what it shows is in its contentItem() and is destroyed before it.
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

    // The part that takes clicks, in display space.
    QRectF hitFrame() const { return m_hitArea.isNull() ? frame() : m_hitArea.translated(m_origin); }
    void setHitArea(const QRectF &inWindow) { m_hitArea = inWindow; }

private:
    const QString m_name;
    QQuickWindow m_window;
    QPointF m_origin;
    QRectF m_hitArea;
    std::unique_ptr<WindowInput> m_input;
};

// Removes the background, for windows that are drawn over other programs.
void makeTransparent(QQuickWindow &window);

} // namespace brimshade::desktop::session
