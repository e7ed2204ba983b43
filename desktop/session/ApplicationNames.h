#pragma once
#include "desktop/services/DesktopEntry.h"
#include "platform/Dispatch.h"

#include <QHash>
#include <QObject>

namespace brimshade::desktop::session {

// How well the entry fits an application whose windows have that id: higher is better, 0 means not at all.
int fit(const DesktopEntry &entry, const QString &id);

// Turns what an application's windows call it, an app_id or on X11 a class, into what people call it. Main thread. The
// files are read on another thread, once for each application.
class ApplicationNames : public QObject {
    Q_OBJECT
public:
    explicit ApplicationNames(platform::Dispatch &dispatch) : m_dispatch(dispatch) { }

    // Until its desktop entry has been read, or if it has none, a word of the id itself.
    QString nameOf(const QString &id);

Q_SIGNALS:
    void found();

private:
    void keep(const QString &id, const QString &name);

    platform::Dispatch &m_dispatch;
    QHash<QString, QString> m_names; // by id
};

} // namespace brimshade::desktop::session
