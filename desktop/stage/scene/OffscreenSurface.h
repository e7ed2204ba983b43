#pragma once
#include <QImage>
#include <QQuickRenderControl>
#include <QQuickWindow>
#include <memory>

namespace brimshade::desktop {

// A Qt Quick window that no screen shows: laid out at once, drawn when a picture is asked for. Software renderer only,
// whatever else there is to draw with.
class OffscreenSurface {
public:
    OffscreenSurface();
    ~OffscreenSurface();

    QQuickWindow &window() const { return *m_window; }
    void setSize(QSize size, double scale); // points; pixels a point
    void layOut();
    QImage render();

private:
    std::unique_ptr<QQuickRenderControl> m_control;
    std::unique_ptr<QQuickWindow> m_window;
    QImage m_image;
};

} // namespace brimshade::desktop
