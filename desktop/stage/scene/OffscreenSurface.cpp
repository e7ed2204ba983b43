#include "OffscreenSurface.h"
#include "ui/PictureCache.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QQuickItem>
#include <QQuickRenderTarget>

namespace brimshade::desktop {

// The control is never initialized: only the other renderers need that, and it would pick up GL where there is a
// display.
OffscreenSurface::OffscreenSurface()
    : m_control(std::make_unique<QQuickRenderControl>()), m_window(std::make_unique<QQuickWindow>(m_control.get()))
{
    m_window->setColor(Qt::transparent);
    ui::PictureCache::of(m_window.get())->setAwaited(true);
    // No window system ever makes it the active window, and without being active no item gets a key.
    QFocusEvent focus(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(m_window.get(), &focus);
}

OffscreenSurface::~OffscreenSurface()
{
    m_window.reset(); // the control is documented to go first, but the window still uses it
}

void OffscreenSurface::setSize(QSize size, double scale)
{
    const QSize pixels = (QSizeF(size) * scale).toSize();
    if (m_image.size() == pixels && m_image.devicePixelRatio() == scale)
        return; // keep what was drawn: a frame draws only what has changed since the last one
    m_image = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    m_image.setDevicePixelRatio(scale);
    auto target = QQuickRenderTarget::fromPaintDevice(&m_image);
    target.setDevicePixelRatio(scale);
    m_window->setRenderTarget(target);
    m_window->setGeometry(QRect(QPoint(), size));
    m_window->contentItem()->setSize(size);
}

void OffscreenSurface::layOut()
{
    m_control->polishItems();
}

QImage OffscreenSurface::render()
{
    m_control->polishItems();
    if (m_image.isNull())
        return {}; // there was not enough memory for this size
    m_control->sync();
    m_control->render();
    return m_image.copy();
}

} // namespace brimshade::desktop
