#include "NinePatchNode.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>
#include <algorithm>
#include <cmath>

namespace brimshade::ui {

namespace {

QMarginsF shared(const QMarginsF &border, QSizeF share)
{
    return {border.left() * share.width(), border.top() * share.height(), border.right() * share.width(),
            border.bottom() * share.height()};
}

QMarginsF onPixels(const QMarginsF &border, double scale)
{
    const auto snapped = [scale](double length) { return std::round(length * scale) / scale; };
    return {snapped(border.left()), snapped(border.top()), snapped(border.right()), snapped(border.bottom())};
}

// The eight outer cells of a three by three grid over the rectangle, whose corners must not overlap.
std::array<QRectF, 8> cells(const QRectF &rect, const QMarginsF &border)
{
    const double left = rect.left() + border.left();
    const double right = std::max(left, rect.right() - border.right());
    const double top = rect.top() + border.top();
    const double bottom = std::max(top, rect.bottom() - border.bottom());
    const auto cell = [](double x, double y, double toX, double toY) { return QRectF(x, y, toX - x, toY - y); };
    return {cell(rect.left(), rect.top(), left, top),   cell(left, rect.top(), right, top),
            cell(right, rect.top(), rect.right(), top), cell(rect.left(), top, left, bottom),
            cell(right, top, rect.right(), bottom),     cell(rect.left(), bottom, left, rect.bottom()),
            cell(left, bottom, right, rect.bottom()),   cell(right, bottom, rect.right(), rect.bottom())};
}

// The middle of each source edge: one pixel is enough to stretch.
std::array<QRectF, 8> sources(const QRectF &picture, const QMarginsF &border)
{
    std::array<QRectF, 8> result = cells(picture, border);
    const double x = picture.center().x();
    const double y = picture.center().y();
    for (const std::size_t edge : {std::size_t(1), std::size_t(6)})
        result[edge] = QRectF(x, result[edge].y(), 1, result[edge].height());
    for (const std::size_t edge : {std::size_t(3), std::size_t(4)})
        result[edge] = QRectF(result[edge].x(), y, result[edge].width(), 1);
    return result;
}

} // namespace

NinePatchNode::NinePatchNode() = default;
NinePatchNode::~NinePatchNode() = default;

void NinePatchNode::setPicture(QQuickWindow *window, const QImage &picture, const QMarginsF &border)
{
    m_window = window;
    std::unique_ptr<QSGTexture> texture(window->createTextureFromImage(picture));
    for (QSGImageNode *piece : m_pieces) {
        if (piece)
            piece->setTexture(texture.get());
    }
    m_texture = std::move(texture);
    m_picture = QRectF(QPointF(), QSizeF(picture.size()));
    m_pictureBorder = border;
}

void NinePatchNode::setTarget(const QRectF &target, const QMarginsF &border, double scale)
{
    const QSizeF share(std::min(1.0, target.width() / std::max(1e-6, border.left() + border.right())),
                       std::min(1.0, target.height() / std::max(1e-6, border.top() + border.bottom())));
    const auto from = sources(m_picture, shared(m_pictureBorder, share));
    const auto to = cells(target, onPixels(shared(border, share), scale));
    for (std::size_t i = 0; i < m_pieces.size(); ++i)
        showPiece(i, from[i], to[i]);
}

// What is hidden leaves the tree: if a node merely became empty, the software renderer would not redraw its place.
void NinePatchNode::showPiece(std::size_t index, const QRectF &source, const QRectF &rect)
{
    QSGImageNode *&piece = m_pieces[index];
    if (rect.isEmpty()) {
        delete piece;
        piece = nullptr;
        return;
    }
    if (!piece) {
        piece = m_window->createImageNode();
        piece->setFiltering(QSGTexture::Nearest);
        piece->setTexture(m_texture.get());
        appendChildNode(piece);
    }
    piece->setSourceRect(source);
    piece->setRect(rect);
}

} // namespace brimshade::ui
