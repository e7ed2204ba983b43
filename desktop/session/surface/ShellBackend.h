#pragma once
#include "Foreground.h"
#include "ShellSurface.h"
#include "ShownSurfaces.h"

#include <QList>
#include <expected>
#include <memory>

namespace brimshade::desktop::session {

// The desktop of the session that the program was started in: X11, or a Wayland compositor with layer-shell. Main
// thread; surfaces are destroyed before it, and it before the application object. When the display server dies, so does
// the process: exit status 1, without a core dump.
class ShellBackend : public QObject {
    Q_OBJECT
public:
    // Call before creating the application object: chooses Qt's platform and sets it up. Programs that we start must
    // not inherit QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT. The error is for standard error: no display.
    static std::expected<void, QString> prepareEnvironment();
    // Call after creating it. The error is for standard error: what the compositor lacks, and what works instead.
    static std::expected<std::unique_ptr<ShellBackend>, QString> create();

    // Call when all else has ended, instead of destroying the application object: when Qt 6.4 stops the threads that
    // read a Wayland connection, they sometimes deadlock.
    [[noreturn]] static void end(int status);

    // The screens that something can be shown on: none while all are switched off, even though Qt then makes one up.
    static QList<QScreen *> screens();

    virtual std::unique_ptr<ShellSurface> createSurface(QQuickWindow &window, ShellSurface::Kind kind) = 0;
    virtual Foreground &foreground() = 0;

    // While on, pressing a button outside the input regions of all shown surfaces, on any screen, emits pressedOutside.
    // On Wayland the press goes nowhere else; on X11 it also reaches what it hit.
    virtual void watchOutside(bool on) = 0;
    // Whether such a press would be told of by now. On Wayland that begins once what is shown has been seen.
    virtual bool hearsOutside() const = 0;

    // If false, transparent parts would be black: see ShellSurface::setDrawnRegion.
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
