#include "NinePatchNode.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>
#include <algorithm>

namespace brimshade::ui {

namespace {

// The eight outer cells of the rectangle's three by three.
std::array<QRectF, 8> cells(const QRectF &rect, const QMarginsF &border)
{
    const double share = std::min({1.0, rect.width() / std::max(1e-6, border.left() + border.right()),
                                   rect.height() / std::max(1e-6, border.top() + border.bottom())});
    const std::array xs{rect.left(), rect.left() + border.left() * share, rect.right() - border.right() * share,
                        rect.right()};
    const std::array ys{rect.top(), rect.top() + border.top() * share, rect.bottom() - border.bottom() * share,
                        rect.bottom()};
    std::array<QRectF, 8> result;
    std::size_t next = 0;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            if (row != 1 || column != 1)
                result[next++] = QRectF(QPointF(xs[column], ys[row]), QPointF(xs[column + 1], ys[row + 1]));
        }
    }
    return result;
}

} // namespace

NinePatchNode::NinePatchNode() = default;
NinePatchNode::~NinePatchNode() = default;

void NinePatchNode::setPicture(QQuickWindow *window, const QImage &picture, const QMarginsF &border)
{
    std::unique_ptr<QSGTexture> texture(window->createTextureFromImage(picture));
    const auto sources = cells(QRectF(QPointF(), QSizeF(picture.size())), border);
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        if (!m_pieces[i]) {
            m_pieces[i] = window->createImageNode();
            m_pieces[i]->setFiltering(QSGTexture::Linear);
            appendChildNode(m_pieces[i]);
        }
        m_pieces[i]->setTexture(texture.get());
        m_pieces[i]->setSourceRect(sources[i]);
    }
    m_texture = std::move(texture);
}

void NinePatchNode::setTarget(const QRectF &target, const QMarginsF &border)
{
    const auto targets = cells(target, border);
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        if (m_pieces[i])
            m_pieces[i]->setRect(targets[i]);
    }
}

} // namespace brimshade::ui
