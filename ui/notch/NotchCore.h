#pragma once
#include <QQuickItem>

namespace brimshade::ui {

// The middle of a tab: a plain black rectangle, beside the tab in the tree and not in it, so that it stays the same
// while the tab's edges move by a few points. Whatever is drawn over it then need not be drawn again.
class NotchCore : public QQuickItem {
public:
    explicit NotchCore(QObject &owner);

    // In the parent's coordinates; an invalid one: there is no middle.
    void show(const QRectF &rect);

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;
};

} // namespace brimshade::ui
