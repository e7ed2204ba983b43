#pragma once
#include <QObject>
#include <memory>
#include <vector>

struct wl_buffer;
struct wl_surface;
class QScreen;

namespace brimshade::desktop::session {

class ShownSurfaces;
class WaylandGlobals;

// Clicks outside: one transparent pixel stretched over each screen, with holes where the program's own surfaces are.
// So it does not matter which surface lies above which. They come once what opens has been seen: for each the
// compositor paints its whole screen anew, and nobody clicks beside what is not there yet.
class WaylandOutside : public QObject {
    Q_OBJECT
public:
    WaylandOutside(const WaylandGlobals &globals, const ShownSurfaces &shown);
    ~WaylandOutside() override;

    void watch(bool on);
    bool hears() const; // presses on every screen
    void follow(); // what is shown, and what of it has been seen
    bool isOf(const wl_surface *surface) const; // one of the stretched pixels

private:
    class Sheet;

    void cover(QScreen *screen);
    void cutHoles();

    const WaylandGlobals &m_globals;
    const ShownSurfaces &m_shown;
    wl_buffer *m_pixel = nullptr;
    bool m_isOn = false;
    std::vector<std::unique_ptr<Sheet>> m_sheets;
};

} // namespace brimshade::desktop::session
