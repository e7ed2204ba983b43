#pragma once
#include "Test.h"

#include <QDBusConnection>
#include <QSet>

namespace brimshade {

// A message bus that nobody else uses. Connections made here are closed with it.
class PrivateBus {
public:
    explicit PrivateBus(const QString &serviceFolder = {}); // has the programs that the bus starts when they are called
    ~PrivateBus();
    Q_DISABLE_COPY_MOVE(PrivateBus)

    QString address() const { return m_address; }
    void end(); // every connection to it is lost
    void startAgain(); // at the same address
    QDBusConnection connection(const QString &name);
    void disconnect(const QString &name);

private:
    void start();
    QString qualified(const QString &name) const;

    QTemporaryDir m_folder;
    const QString m_address = u"unix:path="_s + m_folder.filePath(u"bus"_s);
    QProcess m_daemon;
    QSet<QString> m_names;
};

} // namespace brimshade
