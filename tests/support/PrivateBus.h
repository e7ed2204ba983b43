#pragma once
#include "Test.h"

#include <QDBusConnection>
#include <QSet>

namespace brimshade {

// A message bus that nobody else is on. Connections made here are closed with it.
class PrivateBus {
public:
    explicit PrivateBus(const QString &serviceFolder = {}); // of the programs that it starts when they are called
    ~PrivateBus();
    Q_DISABLE_COPY_MOVE(PrivateBus)

    QString address() const { return m_address; }
    QDBusConnection connection(const QString &name);
    void disconnect(const QString &name);

private:
    QString qualified(const QString &name) const;

    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    QSet<QString> m_names;
};

} // namespace brimshade
