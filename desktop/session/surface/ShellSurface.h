#pragma once
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QRegion>
#include <QScreen>

class QQuickWindow;

namespace brimshade::desktop::session {

// A window's place on the desktop: the bar at the top edge of a screen, or something over everything, full-screen
// windows included. Main thread. The window is not owned and outlives this; only this shows and hides it. Lengths are
// points, from the top left corner of the screen (geometry) or of the window (regions). Everything may be set before
// and while it is shown.
class ShellSurface : public QObject {
    Q_OBJECT
public:
    enum class Kind {
        Bar, // as wide as the screen; only the height of its geometry counts
        Overlay, // panel, menu: where its geometry says
    };

    ~ShellSurface() override;
    Q_DISABLE_COPY_MOVE(ShellSurface)

    QQuickWindow &window() const { return m_window; }
    Kind kind() const { return m_kind; }
    QScreen *screen() const { return m_screen; } // null once that screen is gone
    QRect geometry() const; // a bar's has the width of its screen and the height that was set
    QRegion inputRegion() const; // never empty: the whole window if none was set
    bool takesKeyboard() const { return m_takesKeyboard; }
    bool isShown() const { return m_isShown; } // show() was called; the window is visible after configured

    void setScreen(QScreen *screen);
    void setGeometry(const QRect &geometry);
    void setZone(int height); // kept free of other windows at the screen's top edge; 0 for none
    void setInputRegion(const QRegion &region); // clicks elsewhere go through; empty: the whole window
    // Without a compositing manager (on X11) the window is cut to this region; empty: not cut.
    void setDrawnRegion(const QRegion &region);
    // While shown, it takes all keys; when hidden, it gives them back to the window that had them.
    void setTakesKeyboard(bool takes);

    // Needs a screen. On Wayland configured comes later, when the compositor has decided.
    void show();
    void hide(); // at once, and without a signal

Q_SIGNALS:
    void configured(const QSize &size); // the window is visible and has this size
    void closed(); // hidden because its screen went away or the compositor said so; may be shown again
    void changed(); // whether or where it is shown, or what input it takes

protected:
    ShellSurface(QQuickWindow &window, Kind kind);
    int zone() const { return m_zone; }
    const QRegion &wantedInputRegion() const { return m_inputRegion; } // empty: the whole window
    const QRegion &drawnRegion() const { return m_drawnRegion; }
    void close(); // hides and emits closed

private:
    template <class Value> void set(Value &member, const Value &value, void (ShellSurface::*apply)());
    // map() must apply everything that was set; the others are called only while it is mapped.
    virtual void map() = 0;
    virtual void unmap() = 0;
    virtual void applyGeometry() = 0; // and the zone
    virtual void applyRegions() = 0;
    virtual void applyKeyboard() = 0;

    QQuickWindow &m_window;
    const Kind m_kind;
    QPointer<QScreen> m_screen;
    QMetaObject::Connection m_screenGone;
    QRect m_geometry;
    int m_zone = 0;
    QRegion m_inputRegion;
    QRegion m_drawnRegion;
    bool m_takesKeyboard = false;
    bool m_isShown = false;
};

} // namespace brimshade::desktop::session
