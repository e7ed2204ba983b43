#pragma once
#include <QImage>
#include <QPointF>
#include <QQuickItem>
#include <memory>

namespace brimshade::ui {

// What was drawn before a group, copied while the frame is drawn, and used only then.
struct GroundPicture {
    QImage pixels;
    QPointF at; // in the scene, points
};

// Drawn before a group, it remembers what is there. As large as all that the group draws. Software renderer only.
class FadeGround : public QQuickItem {
public:
    FadeGround(std::shared_ptr<GroundPicture> picture, QQuickItem *parent);

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;

private:
    const std::shared_ptr<GroundPicture> m_picture;
};

// Drawn after the group, and as large, it covers the group again with what was there before, at its own opacity.
class FadeVeil : public QQuickItem {
public:
    FadeVeil(std::shared_ptr<GroundPicture> picture, QQuickItem *parent);

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;

private:
    const std::shared_ptr<GroundPicture> m_picture;
};

} // namespace brimshade::ui
