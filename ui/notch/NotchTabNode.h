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

    bool operator==(const NotchOutline &) const = default;
};

// What a tab looks like. Points from its own top left corner; all lengths lie on whole device pixels.
struct NotchForm {
    NotchShape shape;
    QSizeF size;
    NotchOutline outline;
    double scale = 1; // device pixels per point
    QRectF core; // inside the body, and left out

    bool operator==(const NotchForm &) const = default;

    double reach() const; // of the outline, on either side of the edge
    QRectF body() const; // from flare to flare and down to the lower corners: no outline touches it
};

// The tab in pieces that fit without overlap: plain black rectangles, and small pictures wherever the outline runs. So
// a frame of an animation draws a few thousand antialiased pixels instead of the whole tab. Scene graph thread. It
// transforms nothing, but the software renderer puts a child added later in its place only under a node that could.
class NotchTabNode : public QSGTransformNode {
public:
    explicit NotchTabNode(QQuickWindow &window);

    void show(const NotchForm &form);

private:
    static constexpr std::size_t kPictures = 8;
    static constexpr std::size_t kRectangles = 4;

    void showRectangle(std::size_t index, const QRectF &rect);
    void showPicture(std::size_t index, const QRectF &rect, const QImage &picture);

    QQuickWindow &m_window;
    std::array<QSGImageNode *, kPictures> m_pictures{}; // owned by the tree
    std::array<QSGRectangleNode *, kRectangles> m_rectangles{};
};

} // namespace brimshade::ui
