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
// It transforms nothing, but the software renderer puts a child added later in its place only under a node that could.
class NinePatchNode : public QSGTransformNode {
public:
    NinePatchNode();
    ~NinePatchNode() override;

    // border: how much of the picture belongs to its corners, in pixels.
    void setPicture(QQuickWindow *window, const QImage &picture, const QMarginsF &border);
    // The corners are `border` points large; where they would overlap, only their outer parts show. scale: device
    // pixels per point. The pieces meet on whole pixels where the target's edges lie on them.
    void setTarget(const QRectF &target, const QMarginsF &border, double scale);

private:
    static constexpr int kPieces = 8;

    void showPiece(std::size_t index, const QRectF &source, const QRectF &rect);

    QQuickWindow *m_window = nullptr;
    std::unique_ptr<QSGTexture> m_texture;
    QRectF m_picture; // pixels
    QMarginsF m_pictureBorder;
    std::array<QSGImageNode *, kPieces> m_pieces{}; // owned by the tree; null while it has no extent
};

} // namespace brimshade::ui
