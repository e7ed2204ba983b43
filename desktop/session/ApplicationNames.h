#pragma once
#include "desktop/services/DesktopEntry.h"
#include "platform/Dispatch.h"

#include <QHash>
#include <QObject>

namespace brimshade::desktop::session {

// How well the entry fits an application whose windows call it that: the greater the better, 0 for not at all.
int fit(const DesktopEntry &entry, const QString &id);

// What people call an application, by what its windows call it: an app_id, or a class on X11. Main thread. The
// files are read on another thread, once for each application.
class ApplicationNames : public QObject {
    Q_OBJECT
public:
    explicit ApplicationNames(platform::Dispatch &dispatch) : m_dispatch(dispatch) { }

    // Until its desktop entry has been read, and where it has none, a word of the id itself.
    QString nameOf(const QString &id);

Q_SIGNALS:
    void found();

private:
    void keep(const QString &id, const QString &name);

    platform::Dispatch &m_dispatch;
    QHash<QString, QString> m_names; // by id
};

} // namespace brimshade::desktop::session
