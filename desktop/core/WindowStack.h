#pragma once
#include "DesktopWindow.h"

#include <QObject>
#include <vector>

namespace brimshade::desktop {

class SharedState;

// The program's windows by level, then by order; which of them has the keys; whether the program is the active one.
// Main thread.
class WindowStack : public QObject, public platform::Windows {
    Q_OBJECT
public:
    explicit WindowStack(SharedState &state);
    ~WindowStack() override;

    std::unique_ptr<platform::Window> createWindow(const platform::WindowAttributes &attributes,
                                                   const platform::ContentView &content) override;

    std::vector<DesktopWindow *> windows() const { return m_windows; } // all, in the order of creation
    std::vector<DesktopWindow *> onScreen() const { return m_onScreen; } // back to front
    DesktopWindow *windowAt(QPointF displayPoint) const; // the frontmost that takes clicks there, or null
    DesktopWindow *keyWindow() const { return m_keyWindow; } // null: another application has the keys
    DesktopWindow *named(const QString &name) const; // the latest of that name, or null
    void makeKey(DesktopWindow *window); // null gives the keys to another application; ignored where it cannot

    bool isActive() const { return m_isActive; }
    void activate();
    void deactivate(); // also gives the keys away

    void screensChanged(); // windows that no screen holds come back to the primary one

Q_SIGNALS:
    void
    windowAdded(brimshade::desktop::DesktopWindow *window); // its content may be created now: nothing has read it yet
    void windowRemoved(brimshade::desktop::DesktopWindow *window); // about to go; its content must be dropped now
    void orderChanged(); // a window was shown or hidden, too
    void keyChanged();

private:
    friend class DesktopWindow;
    void orderFront(DesktopWindow *window);
    void orderOut(DesktopWindow *window);
    void forget(DesktopWindow *window);
    void giveKeysOn(DesktopWindow *from);
    void publish();

    SharedState &m_state;
    std::vector<DesktopWindow *> m_windows;
    std::vector<DesktopWindow *> m_onScreen;
    DesktopWindow *m_keyWindow = nullptr;
    bool m_isActive = false;
};

} // namespace brimshade::desktop
