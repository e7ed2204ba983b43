#pragma once
#include <QObject>
#include <QQuickItem>
#include <QVariantMap>
#include <memory>

class QQmlEngine;

namespace brimshade::desktop {

class DesktopWindow;

// An instance of a module's type; null, with a warning, if it cannot be created.
std::unique_ptr<QQuickItem> createItem(QQmlEngine &engine, const QString &module, const QString &type,
                                       const QVariantMap &properties);

// What one of the program's windows shows, in an item that stands for the window's content area. A view either fills it
// or, if the window's attributes say so, sizes the window. Main thread; destroyed before the holder and the window.
class HostedContent {
public:
    HostedContent(DesktopWindow &window, QQmlEngine &engine, QQuickItem &holder);
    ~HostedContent();
    Q_DISABLE_COPY_MOVE(HostedContent)

    QQuickItem *view() const { return m_view.get(); } // the hosted view's root; null for a native view

private:
    void makeView(QQmlEngine &engine, QQuickItem &holder);
    void fit(QQuickItem &content, QQuickItem &holder);
    void measure();

    DesktopWindow &m_window;
    QObject m_context; // ends the connections
    std::unique_ptr<QQuickItem> m_view;
    std::unique_ptr<QQuickItem> m_native;
};

} // namespace brimshade::desktop
