#pragma once
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

class QScreen;

namespace brimshade::desktop::session {

// What the other programs of the session show. Main thread. Where the compositor does not tell, there is no application
// and no screen is covered. While a surface of Brimshade's has the keys, the application that had them stays the
// focused one.
class Foreground : public QObject {
    Q_OBJECT
public:
    // Of the application with the focus, as its desktop entry says, else as it calls itself; empty for none.
    QString applicationName() const { return m_applicationName; }
    bool coversScreen(const QScreen *screen) const { return m_covered.contains(screen); } // by a full-screen window

Q_SIGNALS:
    void applicationNameChanged();
    void coveredScreensChanged();

protected:
    Foreground();
    void setApplication(const QString &id); // its app_id or class
    void setCoveredScreens(const QSet<const QScreen *> &screens);

private:
    void showApplication();

    QString m_application; // now
    QTimer m_settled;
    QString m_applicationName;
    QSet<const QScreen *> m_covered;
};

} // namespace brimshade::desktop::session
