#pragma once
#include "Foreground.h"
#include "ShellSurface.h"
#include "ShownSurfaces.h"

#include <QList>
#include <expected>
#include <memory>

namespace brimshade::desktop::session {

// The desktop of the session that the program was started in: X11, or a Wayland compositor with layer-shell. Main
// thread; surfaces go before it, and it before the application object. When the display server dies, so does the
// process: exit status 1, without a core.
class ShellBackend : public QObject {
    Q_OBJECT
public:
    // Before the application object: chooses the platform Qt runs on, and how it does. Whoever starts another program
    // takes QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT out of its environment. The error is for standard error: no display.
    static std::expected<void, QString> prepareEnvironment();
    // After it. The error is for standard error: what the compositor lacks, and what works instead.
    static std::expected<std::unique_ptr<ShellBackend>, QString> create();

    // Instead of the application object's end, when all else has ended: Qt 6.4 takes down the threads that read a
    // Wayland connection so that now and then one waits for another for good.
    [[noreturn]] static void end(int status);

    // The screens that something can be shown on: none while every one is switched off, when Qt makes one up.
    static QList<QScreen *> screens();

    virtual std::unique_ptr<ShellSurface> createSurface(QQuickWindow &window, ShellSurface::Kind kind) = 0;
    virtual Foreground &foreground() = 0;

    // While on, a press of a button outside the input regions of all shown surfaces, on any screen, gives
    // pressedOutside. On Wayland the press goes nowhere else, on X11 also to what it hit.
    virtual void watchOutside(bool on) = 0;
    // Whether such a press would be told of by now. On Wayland that begins once what is shown has been seen.
    virtual bool hearsOutside() const = 0;

    // False: transparent parts would be black, see ShellSurface::setDrawnRegion.
    virtual bool isComposited() const = 0;

Q_SIGNALS:
    void pressedOutside();
    void compositedChanged();

protected:
    ShownSurfaces &shownSurfaces() { return m_shown; }

private:
    ShownSurfaces m_shown;
};

} // namespace brimshade::desktop::session
