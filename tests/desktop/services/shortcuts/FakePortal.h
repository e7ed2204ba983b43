#pragma once
#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QStringList>

namespace brimshade::desktop {

// A portal with global shortcuts. It records what it is asked for, and reports the outcome of each request at once.
class FakePortal : public QDBusVirtualObject {
    Q_OBJECT
public:
    explicit FakePortal(const QDBusConnection &connection);
    ~FakePortal() override;

    uint version = 1;
    uint response = 0; // 0 done, 1 cancelled
    bool isSilent = false; // the user has not answered yet
    QStringList known; // ids bound in an earlier run

    // "Register org.brimshade.Brimshade", "CreateSession brimshade", "ListShortcuts", "BindShortcuts id=trigger
    // id=trigger", "Close session", "Close request", in order. They are then forgotten.
    QStringList takeCalls() { return std::exchange(m_calls, {}); }
    bool has(const QString &call) const { return m_calls.contains(call); }
    QString session() const { return m_session; }

    void press(const QString &id) { press(m_session, id); }
    void press(const QString &session, const QString &id);
    void closeSession();

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
    QString introspect(const QString &) const override { return {}; }

private:
    QVariantMap outcome(const QString &method, const QString &sender, const QVariantMap &options);

    QDBusConnection m_connection;
    QStringList m_calls;
    QString m_session;
};

} // namespace brimshade::desktop
