#include "FadeGround.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGRenderNode>
#include <QSGRendererInterface>

namespace brimshade::ui {

namespace {

// Draws with the painter of the frame.
class PaintedNode : public QSGRenderNode {
public:
    PaintedNode(QQuickWindow &window, std::shared_ptr<GroundPicture> picture)
        : m_window(window), m_picture(std::move(picture))
    {
    }

    void setRect(const QRectF &rect)
    {
        m_rect = rect;
        markDirty(DirtyGeometry);
    }

    void render(const RenderState *state) final
    {
        const auto resource = QSGRendererInterface::PainterResource;
        auto *painter = static_cast<QPainter *>(m_window.rendererInterface()->getResource(&m_window, resource));
        if (painter && painter->device()->devType() == QInternal::Image)
            paint(*painter, *state->clipRegion(), *m_picture);
    }
    RenderingFlags flags() const final { return BoundedRectRendering; }
    QRectF rect() const final { return m_rect; }

private:
    // region: the part of the rectangle that is redrawn, in scene coordinates.
    virtual void paint(QPainter &painter, const QRegion &region, GroundPicture &picture) = 0;

    QQuickWindow &m_window;
    const std::shared_ptr<GroundPicture> m_picture;
    QRectF m_rect;
};

class GroundNode : public PaintedNode {
    using PaintedNode::PaintedNode;

    void paint(QPainter &painter, const QRegion &region, GroundPicture &picture) override
    {
        const auto &frame = *static_cast<const QImage *>(painter.device());
        const double scale = frame.devicePixelRatio();
        const QRectF part(region.boundingRect());
        const QRect pixels = QRectF(part.topLeft() * scale, part.size() * scale).toAlignedRect() & frame.rect();
        picture.pixels = frame.copy(pixels);
        picture.at = QPointF(pixels.topLeft()) / scale;
    }
};

class VeilNode : public PaintedNode {
    using PaintedNode::PaintedNode;

    void paint(QPainter &painter, const QRegion &region, GroundPicture &picture) override
    {
        painter.setClipRegion(region, Qt::ReplaceClip);
        painter.setTransform({});
        painter.setOpacity(inheritedOpacity());
        painter.drawImage(picture.at, picture.pixels);
    }
};

template <class Node>
QSGNode *updated(QSGNode *node, const QQuickItem &item, const std::shared_ptr<GroundPicture> &picture)
{
    auto *painted = node ? static_cast<Node *>(node) : new Node(*item.window(), picture);
    painted->setRect(item.boundingRect());
    return painted;
}

} // namespace

FadeGround::FadeGround(std::shared_ptr<GroundPicture> picture, QQuickItem *parent)
    : QQuickItem(parent), m_picture(std::move(picture))
{
    setFlag(ItemHasContents);
}

QSGNode *FadeGround::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    return updated<GroundNode>(node, *this, m_picture);
}

FadeVeil::FadeVeil(std::shared_ptr<GroundPicture> picture, QQuickItem *parent)
    : QQuickItem(parent), m_picture(std::move(picture))
{
    setFlag(ItemHasContents);
}

QSGNode *FadeVeil::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    return updated<VeilNode>(node, *this, m_picture);
}

} // namespace brimshade::ui
