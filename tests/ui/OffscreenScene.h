#pragma once
#include "ManualAnimationDriver.h"

#include <QColor>
#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWindow>
#include <QVariantMap>
#include <memory>

namespace brimshade::ui {

inline constexpr QColor kBackground{0x80, 0x80, 0x80}; // where nothing is drawn

// A QML component rendered without a display by the software renderer, at any scale, under a clock of its own.
class OffscreenScene {
public:
    OffscreenScene(QSize size, double scale);
    ~OffscreenScene();

    // The root item fills the scene; null, with the errors printed, if it cannot be created.
    QQuickItem *load(const QByteArray &qml, const QVariantMap &properties = {});
    QQuickItem *root() const { return m_root.get(); }
    QQuickItem *find(const QString &objectName) const; // anywhere below the root; null if there is none
    QList<QQuickItem *> findAll(const QString &objectName) const;
    QQuickWindow *window() const { return m_window.get(); }

    // Opaque. Only what has changed since the last one is redrawn, as in a real window.
    QImage picture();
    void settle(); // completes bindings, polishing and delegates
    void renderFrame(int milliseconds); // one frame of that length, like a window's
    void advance(int milliseconds); // in frames of 16 ms, without rendering
    int framesAskedFor(int milliseconds); // how often the scene wanted to be drawn while that time passed
    QRectF frameOf(const QQuickItem *item) const; // in the scene, transforms applied
    void movePointer(QPointF to);
    void click(QPointF at, Qt::MouseButton button = Qt::LeftButton);

private:
    void send(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons);

    ManualAnimationDriver m_clock;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickRenderControl> m_control;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<QQuickItem> m_root;
    QImage m_image;
};

} // namespace brimshade::ui
