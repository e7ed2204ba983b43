#pragma once
#include "NotchShape.h"

#include <QImage>
#include <QSGNode>
#include <array>

class QQuickWindow;
class QSGImageNode;
class QSGRectangleNode;

namespace brimshade::ui {

// A thin white line along the tab: even and inside its edge, or on its edge and fading upwards.
struct NotchOutline {
    double opacity = 1;
    bool isBorder = false;
};

// The tab in pieces that fit without overlap: plain black rectangles, and small pictures wherever the outline runs. So
// a frame of an animation draws a few thousand antialiased pixels instead of the whole tab. Scene graph thread. It
// transforms nothing, but the software renderer puts a child added later in its place only under a node that could.
class NotchTabNode : public QSGTransformNode {
public:
    explicit NotchTabNode(QQuickWindow &window);

    // Shape and size lie on whole device pixels.
    void show(const NotchShape &shape, QSizeF size, const NotchOutline &outline, double scale);

private:
    static constexpr std::size_t kPictures = 8;
    static constexpr std::size_t kRectangles = 2;

    void showRectangle(std::size_t index, const QRectF &rect);
    void showPicture(std::size_t index, const QRectF &rect, const QImage &picture);

    QQuickWindow &m_window;
    std::array<QSGImageNode *, kPictures> m_pictures{}; // owned by the tree
    std::array<QSGRectangleNode *, kRectangles> m_rectangles{};
};

} // namespace brimshade::ui
