#pragma once
#include "ShellSurface.h"

namespace brimshade::desktop::session {

class X11Backend;

// The bar is a dock managed by the window manager, which keeps the zone free; the others are unmanaged windows, which
// open faster and lie over everything.
class X11Surface : public ShellSurface {
    Q_OBJECT
public:
    X11Surface(QQuickWindow &window, Kind kind, X11Backend &backend);
    ~X11Surface() override;

private:
    void map() override;
    void unmap() override;
    void applyGeometry() override;
    void applyRegions() override;
    void applyKeyboard() override;
    void applyZone(const QRect &bar);

    X11Backend &m_backend;
    QMetaObject::Connection m_screenMoved;
    bool m_isMapped = false;
};

} // namespace brimshade::desktop::session
