#pragma once
#include "desktop/core/DesktopWindow.h"

#include <QObject>
#include <QRectF>
#include <qqml.h>

namespace brimshade::desktop {

// One of the program's windows, as shown by its frame in the scene. Display space. Main thread.
class WindowState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a window")
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QRectF frame READ frame NOTIFY changed)
    Q_PROPERTY(double titleBarHeight READ titleBarHeight CONSTANT)
    Q_PROPERTY(bool isVisible READ isVisible NOTIFY changed)
    Q_PROPERTY(bool isKey READ isKey NOTIFY changed)
    Q_PROPERTY(double depth READ depth NOTIFY depthChanged)
    Q_PROPERTY(bool isPanel READ isPanel CONSTANT)
    Q_PROPERTY(bool isTitled READ isTitled CONSTANT)
    Q_PROPERTY(bool isClosable READ isClosable CONSTANT)
    Q_PROPERTY(bool isTitleHidden READ isTitleHidden CONSTANT)
    Q_PROPERTY(bool isTitleBarTransparent READ isTitleBarTransparent CONSTANT)
    Q_PROPERTY(bool isDark READ isDark CONSTANT)
    Q_PROPERTY(bool isOpaque READ isOpaque CONSTANT)
    Q_PROPERTY(bool hasShadow READ hasShadow CONSTANT)
    Q_PROPERTY(bool isMovable READ isMovable CONSTANT)
    Q_PROPERTY(bool isMovableByBackground READ isMovableByBackground CONSTANT)

public:
    explicit WindowState(DesktopWindow &window);

    QString name() const { return attributes().name; }
    QString title() const { return attributes().title; }
    QRectF frame() const { return m_window.displayFrame(); }
    double titleBarHeight() const { return m_window.titleBarHeight(); }
    bool isVisible() const { return m_window.isVisible(); }
    bool isKey() const { return m_window.isKeyWindow(); }
    double depth() const { return m_depth; } // larger is nearer
    bool isPanel() const { return attributes().isPanel; }
    bool isTitled() const { return attributes().styleMask & platform::kStyleTitled; }
    bool isClosable() const { return attributes().styleMask & platform::kStyleClosable; }
    bool isTitleHidden() const { return attributes().titleHidden; }
    bool isTitleBarTransparent() const { return attributes().titlebarAppearsTransparent; }
    bool isDark() const { return attributes().darkAppearance; }
    bool isOpaque() const { return attributes().isOpaque; }
    bool hasShadow() const { return attributes().hasShadow; }
    bool isMovable() const { return attributes().isMovable; }
    bool isMovableByBackground() const { return attributes().isMovableByWindowBackground; }

    void setDepth(double depth);

    Q_INVOKABLE void close();
    Q_INVOKABLE void moveBy(double dx, double dy); // y grows downwards

Q_SIGNALS:
    void changed();
    void depthChanged();

private:
    const platform::WindowAttributes &attributes() const { return m_window.attributes(); }

    DesktopWindow &m_window;
    double m_depth = 0;
};

} // namespace brimshade::desktop
