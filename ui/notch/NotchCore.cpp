#include "NotchCore.h"

#include <QQuickWindow>
#include <QSGRectangleNode>

namespace brimshade::ui {

NotchCore::NotchCore(QObject &owner)
{
    setParent(&owner);
    setFlag(ItemHasContents);
}

void NotchCore::show(const QRectF &rect)
{
    setVisible(rect.isValid());
    setPosition(rect.topLeft());
    setSize(rect.size());
}

QSGNode *NotchCore::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *rectangle = static_cast<QSGRectangleNode *>(node);
    if (!rectangle) {
        rectangle = window()->createRectangleNode();
        rectangle->setColor(Qt::black);
    }
    rectangle->setRect(boundingRect());
    return rectangle;
}

} // namespace brimshade::ui
