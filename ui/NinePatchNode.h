#pragma once
#include <QImage>
#include <QMarginsF>
#include <QRectF>
#include <QSGNode>
#include <array>
#include <memory>

class QQuickWindow;
class QSGImageNode;
class QSGTexture;

namespace brimshade::ui {

// A picture whose four corners keep their size while the sides between them stretch. The inside is left out: what
// casts a shadow covers it. Scene graph thread.
// It transforms nothing: the software renderer gives a child that comes later its place only under a node that could.
class NinePatchNode : public QSGTransformNode {
public:
    NinePatchNode();
    ~NinePatchNode() override;

    // border: what of the picture are corners, in pixels.
    void setPicture(QQuickWindow *window, const QImage &picture, const QMarginsF &border);
    // The corners are `border` points large; of those that would overlap the outer parts are shown. scale: device
    // pixels a point. The pieces meet on whole pixels where the target's edges lie on them.
    void setTarget(const QRectF &target, const QMarginsF &border, double scale);

private:
    static constexpr int kPieces = 8;

    void showPiece(std::size_t index, const QRectF &source, const QRectF &rect);

    QQuickWindow *m_window = nullptr;
    std::unique_ptr<QSGTexture> m_texture;
    QRectF m_picture; // pixels
    QMarginsF m_pictureBorder;
    std::array<QSGImageNode *, kPieces> m_pieces{}; // owned by the tree; null while there is nothing of it
};

} // namespace brimshade::ui
