#include "NotchTabNode.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>
#include <cmath>

namespace brimshade::ui {

namespace {

constexpr double kLineWidth = 1;
constexpr double kLineOpacity = 0.12; // of the white at the lower end
constexpr double kMiterLimit = 10;
constexpr double kReach = 1; // points on either side of an edge that its line may touch, or a fraction of a pixel more

// How high the piece at the upper edge between the flares is: only a border runs there.
double upperEdge(const NotchForm &form)
{
    return form.outline.isBorder ? form.reach() : 0;
}

// The pieces that hold a part of the outline.
std::array<QRectF, 8> outlinePieces(const NotchForm &form)
{
    const double left = form.shape.top;
    const double right = form.size.width() - form.shape.top;
    const double r = form.shape.bottom;
    const double low = form.size.height() - r;
    const double bottom = form.size.height();
    const double reach = form.reach();
    const double flare = left + reach;
    return {QRectF(0, 0, flare, left),
            QRectF(form.size.width() - flare, 0, flare, left),
            QRectF(left - reach, left, 2 * reach, low - left),
            QRectF(right - reach, left, 2 * reach, low - left),
            QRectF(left - reach, low, r + reach, r + reach),
            QRectF(right - r, low, r + reach, r + reach),
            QRectF(left + r, bottom - reach, right - left - 2 * r, 2 * reach),
            QRectF(flare, 0, form.size.width() - 2 * flare, upperEdge(form))};
}

// What is inside all of them: below the body between the lower corners, and the body around its core.
std::array<QRectF, 4> innerPieces(const NotchForm &form)
{
    const QRectF body = form.body();
    const QRectF core = form.core.isValid() ? form.core : QRectF(body.topRight(), QSizeF(0, body.height()));
    const double r = form.shape.bottom;
    return {QRectF(QPointF(form.shape.top + r, body.bottom()),
                   QPointF(form.size.width() - form.shape.top - r, form.size.height() - form.reach())),
            QRectF(body.topLeft(), QPointF(core.left(), body.bottom())), QRectF(core.topRight(), body.bottomRight()),
            QRectF(core.bottomLeft(), QPointF(core.right(), body.bottom()))};
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

double NotchForm::reach() const
{
    return std::ceil(kReach * scale) / scale;
}

QRectF NotchForm::body() const
{
    return {QPointF(shape.top + reach(), upperEdge(*this)),
            QPointF(size.width() - shape.top - reach(), size.height() - shape.bottom)};
}

NotchTabNode::NotchTabNode(QQuickWindow &window) : m_window(window) { }

void NotchTabNode::show(const NotchForm &form)
{
    const auto inner = innerPieces(form);
    for (std::size_t i = 0; i < kRectangles; ++i)
        showRectangle(i, inner[i]);
    const QPainterPath path = form.shape.path(QRectF(QPointF(), form.size));
    const QPen pen = outlinePen(form.size, form.outline);
    const auto pieces = outlinePieces(form);
    for (std::size_t i = 0; i < kPictures; ++i) {
        const bool isThere = pieces[i].isValid();
        showPicture(i, pieces[i],
                    isThere ? paintedPiece(pieces[i], path, pen, form.outline.isBorder, form.scale) : QImage());
    }
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
