#pragma once
#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <functional>

namespace brimshade::desktop::session {

// What the bus sees of this program, as desktop entries, key bindings and other programs ask for it. Main thread.
class ApplicationService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    struct Actions {
        std::function<void()> openPanel, togglePanel, openSettings, quit;
    };
    void setActions(const Actions &actions) { m_actions = actions; } // before them everything is refused

public Q_SLOTS:
    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    Q_SCRIPTABLE void Open(const QStringList &uris, const QVariantMap &platformData);
    Q_SCRIPTABLE void ActivateAction(const QString &name, const QVariantList &parameter,
                                     const QVariantMap &platformData);

private:
    void run(const std::function<void()> &action);

    Actions m_actions;
};

} // namespace brimshade::desktop::session
