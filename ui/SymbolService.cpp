#include "SymbolService.h"
#include "SymbolTable.h"

#include <QPainterPath>
#include <utility>

namespace brimshade::ui {

namespace {

class SymbolSource : public platform::ImageSource {
public:
    SymbolSource(QPainterPath path, double extent) : m_path(std::move(path)), m_extent(extent) { }

    void draw(QPainter &painter, const QRectF &rect) const override
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(rect.topLeft());
        painter.scale(rect.width() / m_extent, rect.height() / m_extent);
        painter.fillPath(m_path, Qt::black);
        painter.restore();
    }

    QImage bitmap() const override
    {
        constexpr int side = 128;
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        draw(painter, QRectF(0, 0, side, side));
        return image;
    }

private:
    QPainterPath m_path;
    double m_extent; // side of the square that the path is drawn in, points
};

} // namespace

platform::Image SymbolService::symbolImage(const QString &name, const QString &,
                                           const platform::SymbolConfiguration &configuration)
{
    QPainterPath path = symbolPath(name, configuration);
    if (path.isEmpty())
        return {};
    const double extent = symbolExtent(configuration.pointSize);
    return {std::make_shared<SymbolSource>(std::move(path), extent), QSizeF(extent, extent), true};
}

} // namespace brimshade::ui
