#pragma once
#include <QObject>
#include <QRectF>

namespace brimshade::desktop {

class SharedState;

// The Accessibility permission and the two small windows that belong to it. They are the system's, not the program's:
// they stand above every window, and a press on them counts as a press in another application. Main thread; frames in
// display space.
class Permission : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isTrusted READ isTrusted WRITE setTrusted NOTIFY changed)
    Q_PROPERTY(bool isPromptOpen READ isPromptOpen NOTIFY changed)
    Q_PROPERTY(bool isPageOpen READ isPageOpen NOTIFY changed)
    Q_PROPERTY(QRectF promptFrame READ promptFrame NOTIFY changed)
    Q_PROPERTY(QRectF pageFrame READ pageFrame NOTIFY changed)

public:
    Permission(SharedState &state, bool isNeeded) : m_state(state), m_isNeeded(isNeeded) { }

    bool isNeeded() const
    {
        return m_isNeeded;
    } // false where every program may read the bar: it is always granted then

    bool isTrusted() const;
    void setTrusted(bool trusted); // granting closes the prompt

    bool isPromptOpen() const { return m_isPromptOpen; }
    void openPrompt(); // does nothing if it is open already
    Q_INVOKABLE void closePrompt(); // the prompt's "Deny" button
    Q_INVOKABLE void openSettingsFromPrompt(); // its other button: closes the prompt and opens the page

    bool isPageOpen() const { return m_isPageOpen; }
    void openPage();
    Q_INVOKABLE void closePage();

    void screensChanged() { Q_EMIT changed(); } // the frames follow the primary one

    QRectF promptFrame() const; // on the primary screen, also while closed
    QRectF pageFrame() const;
    bool takesPoint(QPointF displayPoint) const; // whether one of the two is open there

Q_SIGNALS:
    void changed();

private:
    void set(bool &flag, bool value);

    SharedState &m_state;
    const bool m_isNeeded;
    bool m_isPromptOpen = false;
    bool m_isPageOpen = false;
};

} // namespace brimshade::desktop
