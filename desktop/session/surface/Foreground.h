#pragma once
#include <QObject>
#include <QString>

class QScreen;

namespace brimshade::desktop::session {

// What the other programs of the session show. Main thread. Where the compositor does not tell, there is no application
// and no screen is covered. While a surface of Brimshade's has the keys, the application that had them stays the
// focused one.
class Foreground : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // Of the application with the focus, as its desktop entry says, else as it calls itself; empty for none.
    virtual QString applicationName() const = 0;
    virtual bool coversScreen(const QScreen *screen) const = 0; // by a full-screen window that is seen

Q_SIGNALS:
    void applicationNameChanged();
    void coveredScreensChanged();
};

} // namespace brimshade::desktop::session
