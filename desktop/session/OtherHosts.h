#pragma once
#include <QDBusConnection>
#include <QObject>
#include <QStringList>

namespace brimshade::desktop::session {

// Other programs of the session that show tray items: bars and tray hosts. It follows the names on the bus, one round
// of questions at a time, without waiting for anything. Main thread; the connection outlives it.
class OtherHosts : public QObject {
    Q_OBJECT
public:
    explicit OtherHosts(const QDBusConnection &bus);

    QStringList programs() const { return m_programs; } // "plasmashell", "waybar"; sorted

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void ownerChanged(const QString &name);

private:
    void look();
    void looked(const QStringList &names);
    void asked(const QString &program);

    QDBusConnection m_bus;
    QStringList m_programs;
    QStringList m_found; // in the current round
    int m_open = 0; // questions of that round not yet answered
    bool m_isLooking = false;
    bool m_needsAnother = false;
};

} // namespace brimshade::desktop::session
