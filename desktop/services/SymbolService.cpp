#include "SymbolService.h"
#include "ui/symbols/SymbolTable.h"

#include <utility>

namespace brimshade::desktop {

namespace {

class SymbolSource : public platform::ImageSource {
public:
    SymbolSource(const QPainterPath &outline, const platform::SymbolConfiguration &configuration)
        : m_outline(outline), m_configuration(configuration)
    {
    }

    void draw(QPainter &painter, const QRectF &rect) const override
    {
        const double extent = ui::symbolExtent(m_configuration.pointSize);
        painter.save();
        painter.translate(rect.topLeft());
        painter.scale(rect.width() / extent, rect.height() / extent);
        ui::paintSymbol(painter, m_outline, m_configuration, Qt::black);
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
    QPainterPath m_outline;
    platform::SymbolConfiguration m_configuration;
};

} // namespace

platform::Image SymbolService::symbolImage(const QString &name, const QString &,
                                           const platform::SymbolConfiguration &configuration)
{
    QPainterPath outline = ui::symbolOutline(name);
    if (outline.isEmpty())
        return {};
    const double extent = ui::symbolExtent(configuration.pointSize);
    return {std::make_shared<SymbolSource>(std::move(outline), configuration), QSizeF(extent, extent), true};
}

} // namespace brimshade::desktop
