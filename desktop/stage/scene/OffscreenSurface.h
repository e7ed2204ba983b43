#pragma once
#include <QImage>
#include <QQuickRenderControl>
#include <QQuickWindow>
#include <memory>

namespace brimshade::desktop {

// A Qt Quick window that is on no screen: laid out at once, drawn when a picture is asked for. Always uses the software
// renderer.
class OffscreenSurface {
public:
    OffscreenSurface();
    ~OffscreenSurface();

    QQuickWindow &window() const { return *m_window; }
    void setSize(QSize size, double scale); // points; pixels per point
    void layOut();
    QImage render();

private:
    std::unique_ptr<QQuickRenderControl> m_control;
    std::unique_ptr<QQuickWindow> m_window;
    QImage m_image;
};

} // namespace brimshade::desktop
