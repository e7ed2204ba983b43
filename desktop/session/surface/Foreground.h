#pragma once
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

class QScreen;

namespace brimshade::desktop::session {

// What the session's other programs show. Main thread. If the compositor does not say, there is no application and no
// screen is covered. While one of Brimshade's surfaces has the keys, the application that had them counts as focused.
class Foreground : public QObject {
    Q_OBJECT
public:
    // What the focused application's windows call it: their app_id or, on X11, class; empty for none.
    QString applicationId() const { return m_applicationId; }
    bool coversScreen(const QScreen *screen) const { return m_covered.contains(screen); } // by a full-screen window

Q_SIGNALS:
    void applicationChanged();
    void coveredScreensChanged();

protected:
    Foreground();
    void setApplication(const QString &id);
    void setCoveredScreens(const QSet<const QScreen *> &screens);

private:
    void showApplication();

    QString m_application; // now
    QTimer m_settled;
    QString m_applicationId;
    QSet<const QScreen *> m_covered;
};

} // namespace brimshade::desktop::session
