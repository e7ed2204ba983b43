#pragma once
#include "platform/Window.h"

#include <QObject>

namespace brimshade::desktop {

class WindowStack;

// One of the program's windows. The scene shows its content; the stack keeps its order, level and key state.
// Main thread.
class DesktopWindow : public QObject, public platform::Window {
    Q_OBJECT
public:
    DesktopWindow(WindowStack &stack, const platform::WindowAttributes &attributes,
                  const platform::ContentView &content);
    ~DesktopWindow() override;

    const platform::WindowAttributes &attributes() const { return m_attributes; }
    const platform::ContentView &content() const { return m_content; }
    QRectF displayFrame() const; // frame() in display space, title bar included
    double titleBarHeight() const; // above the content; 0 with a full-size content view or without a title bar
    // The part of the window that takes clicks, from its top left corner; null, the initial value, means all of it.
    void setHitArea(const QRectF &area) { m_hitArea = area; }
    bool takesClickAt(QPointF displayPoint) const;
    void setContentSize(QSizeF size); // by the scene: the size of a hosted view that sizes its window

    QRectF frame() const override { return m_frame; }
    void setFrame(const QRectF &frame) override;
    void center() override;
    std::optional<platform::Screen> screen() const override;
    void orderFrontRegardless() override;
    void makeKeyAndOrderFront() override;
    void orderOut() override;
    void close() override;
    bool isVisible() const override { return m_isVisible; }
    bool isKeyWindow() const override;
    bool occlusionStateVisible() const override;

Q_SIGNALS:
    void changed(); // frame, visibility or key state

private:
    friend class WindowStack;
    void applyFrame(const QRectF &frame);
    QRectF constrained(QRectF frame) const;
    QRectF centred(QSizeF size) const;

    WindowStack *m_stack; // null once the stack is gone
    const platform::WindowAttributes m_attributes;
    const platform::ContentView m_content;
    QRectF m_frame;
    QRectF m_hitArea;
    bool m_isVisible = false;
    bool m_isCentred = false; // by center(), and not moved or shown since
};

} // namespace brimshade::desktop
