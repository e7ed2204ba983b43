#include "PixelImage.h"

#include <QPainter>

namespace brimshade::desktop {

namespace {

class PixelSource : public platform::ImageSource {
public:
    explicit PixelSource(QImage pixels) : m_pixels(std::move(pixels)) { }

    void draw(QPainter &painter, const QRectF &rect) const override
    {
        painter.save();
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(rect, m_pixels);
        painter.restore();
    }
    QImage bitmap() const override { return m_pixels; }

private:
    const QImage m_pixels;
};

} // namespace

platform::Image imageOf(const QImage &pixels, QSizeF size, bool isTemplate)
{
    if (pixels.isNull())
        return {};
    return {std::make_shared<PixelSource>(pixels), size, isTemplate};
}

} // namespace brimshade::desktop
