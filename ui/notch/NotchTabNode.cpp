#include "NotchTabNode.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>

namespace brimshade::ui {

namespace {

constexpr double kLineWidth = 1;
constexpr double kLineOpacity = 0.12; // of the white at the lower end
constexpr double kMiterLimit = 10;
constexpr double kEdge = 1; // points on either side of an edge that its line may touch

// How high the piece at the upper edge between the flares is: only a border runs there.
double upperEdge(const NotchOutline &outline)
{
    return outline.isBorder ? kEdge : 0;
}

// The pieces that hold a part of the outline.
std::array<QRectF, 8> outlinePieces(const NotchShape &shape, QSizeF size, const NotchOutline &outline)
{
    const double left = shape.top;
    const double right = size.width() - shape.top;
    const double r = shape.bottom;
    const double low = size.height() - r;
    const double bottom = size.height();
    const double flare = left + kEdge;
    return {QRectF(0, 0, flare, shape.top),
            QRectF(size.width() - flare, 0, flare, shape.top),
            QRectF(left - kEdge, shape.top, 2 * kEdge, low - shape.top),
            QRectF(right - kEdge, shape.top, 2 * kEdge, low - shape.top),
            QRectF(left - kEdge, low, r + kEdge, r + kEdge),
            QRectF(right - r, low, r + kEdge, r + kEdge),
            QRectF(left + r, bottom - kEdge, right - left - 2 * r, 2 * kEdge),
            QRectF(flare, 0, size.width() - 2 * flare, upperEdge(outline))};
}

// What is inside all of them.
std::array<QRectF, 2> innerPieces(const NotchShape &shape, QSizeF size, const NotchOutline &outline)
{
    const double left = shape.top;
    const double right = size.width() - shape.top;
    const double low = size.height() - shape.bottom;
    return {QRectF(QPointF(left + kEdge, upperEdge(outline)), QPointF(right - kEdge, low)),
            QRectF(QPointF(left + shape.bottom, low), QPointF(right - shape.bottom, size.height() - kEdge))};
}

// A border's outer half is not drawn.
QPen outlinePen(QSizeF size, const NotchOutline &outline)
{
    const QColor lower = QColor::fromRgbF(1, 1, 1, float(kLineOpacity * outline.opacity));
    QLinearGradient fade(0, 0, 0, size.height());
    fade.setColorAt(0, outline.isBorder ? lower : QColor::fromRgbF(1, 1, 1, 0));
    fade.setColorAt(1, lower);
    QPen pen(QBrush(fade), outline.isBorder ? 2 * kLineWidth : kLineWidth);
    pen.setJoinStyle(Qt::MiterJoin);
    pen.setMiterLimit(kMiterLimit);
    return pen;
}

QImage paintedPiece(const QRectF &piece, const QPainterPath &path, const QPen &pen, bool isInside, double scale)
{
    QImage picture((piece.size() * scale).toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.translate(-piece.topLeft());
    painter.fillPath(path, Qt::black);
    if (isInside)
        painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.strokePath(path, pen);
    return picture;
}

} // namespace

NotchTabNode::NotchTabNode(QQuickWindow &window) : m_window(window) { }

void NotchTabNode::show(const NotchShape &shape, QSizeF size, const NotchOutline &outline, double scale)
{
    const auto inner = innerPieces(shape, size, outline);
    for (std::size_t i = 0; i < kRectangles; ++i)
        showRectangle(i, inner[i]);
    const QPainterPath path = shape.path(QRectF(QPointF(), size));
    const QPen pen = outlinePen(size, outline);
    const auto pieces = outlinePieces(shape, size, outline);
    for (std::size_t i = 0; i < kPictures; ++i)
        showPicture(i, pieces[i],
                    pieces[i].isValid() ? paintedPiece(pieces[i], path, pen, outline.isBorder, scale) : QImage());
}

// What is hidden leaves the tree: if a node merely became empty, the software renderer would not redraw its place.
void NotchTabNode::showRectangle(std::size_t index, const QRectF &rect)
{
    QSGRectangleNode *&node = m_rectangles[index];
    if (!rect.isValid()) {
        delete node;
        node = nullptr;
        return;
    }
    if (!node) {
        node = m_window.createRectangleNode();
        node->setColor(Qt::black);
        appendChildNode(node);
    }
    node->setRect(rect);
}

void NotchTabNode::showPicture(std::size_t index, const QRectF &rect, const QImage &picture)
{
    QSGImageNode *&node = m_pictures[index];
    if (picture.isNull()) {
        delete node;
        node = nullptr;
        return;
    }
    if (!node) {
        node = m_window.createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Nearest);
        appendChildNode(node);
    }
    node->setTexture(m_window.createTextureFromImage(picture));
    node->setRect(rect);
}

} // namespace brimshade::ui
