#pragma once
#include <QDBusContext>
#include <QObject>
#include <QStringList>

namespace brimshade::desktop::tray {

// What the bus sees of the watcher. It keeps the list that it publishes and passes on every registration. Programs look
// at the properties before they register, so it reports a host from the start.
class WatcherService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
public:
    QStringList items() const { return m_items; }
    bool hasHost() const { return true; }
    int protocolVersion() const { return 0; }

    void addItem(const QString &item);
    void removeItem(const QString &item);

public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString &argument);
    Q_SCRIPTABLE void RegisterStatusNotifierHost(const QString &service);

Q_SIGNALS:
    Q_SCRIPTABLE void StatusNotifierItemRegistered(const QString &item);
    Q_SCRIPTABLE void StatusNotifierItemUnregistered(const QString &item);
    Q_SCRIPTABLE void StatusNotifierHostRegistered();
    void registrationAsked(const QString &argument, const QString &sender);

private:
    QStringList m_items;
};

} // namespace brimshade::desktop::tray
