#pragma once
#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <functional>
#include <optional>
#include <vector>

namespace brimshade::desktop::session {

// What the bus sees of this program, as desktop entries, key bindings and other programs ask for it. Main thread.
class ApplicationService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    struct Actions {
        std::function<void()> openPanel, togglePanel, openSettings, quit;
    };
    void setActions(const Actions &actions); // what is asked for before waits for them

public Q_SLOTS:
    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    Q_SCRIPTABLE void Open(const QStringList &uris, const QVariantMap &platformData);
    Q_SCRIPTABLE void ActivateAction(const QString &name, const QVariantList &parameter,
                                     const QVariantMap &platformData);

private:
    using Action = std::function<void()> Actions::*;
    void run(Action action);

    std::optional<Actions> m_actions;
    std::vector<Action> m_waiting;
};

} // namespace brimshade::desktop::session
