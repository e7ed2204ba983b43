#pragma once
#include "Pane.h"
#include "desktop/core/DesktopWindow.h"

namespace brimshade::desktop::session {

// How one of the program's windows is shown in the session. Main thread; destroyed before the window.
class WindowPane : public QObject {
    Q_OBJECT
public:
    virtual Pane &pane() = 0;
    virtual QQuickItem *content() const = 0; // the view's root
    virtual bool isShown() const = 0;
    virtual bool isOverlay() const = 0; // over everything; the session does not manage it
    virtual bool takesInput() const = 0;
    virtual bool takesKeyboard() const = 0; // from every program of the session
    virtual void setKey(bool key) = 0; // it has got or lost the program's keys
};

} // namespace brimshade::desktop::session
