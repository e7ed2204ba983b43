#pragma once
#include "Waiting.h"

#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <functional>

namespace brimshade::desktop::session {

// This program on the bus, for desktop entries, key bindings and other programs. Main thread.
class ApplicationService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    struct Actions {
        std::function<void()> openPanel, togglePanel, openSettings, quit;
    };
    explicit ApplicationService(Waiting &waiting) : m_waiting(waiting) { } // outlives it

    void setActions(const Actions &actions) { m_actions = actions; } // call before Waiting::end()

public Q_SLOTS:
    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    Q_SCRIPTABLE void Open(const QStringList &uris, const QVariantMap &platformData);
    Q_SCRIPTABLE void ActivateAction(const QString &name, const QVariantList &parameter,
                                     const QVariantMap &platformData);

private:
    using Action = std::function<void()> Actions::*;
    void run(Action action);

    Waiting &m_waiting;
    Actions m_actions;
};

} // namespace brimshade::desktop::session
