#include "NotchTab.h"
#include "NotchTabNode.h"

#include <QMouseEvent>
#include <QQuickWindow>
#include <algorithm>
#include <cmath>

namespace brimshade::panel {

namespace {

// Content is padded by 22 points and ends 4 above the lower edge, where the largest corner is 13.4 points deep.
constexpr double kSideInset = 18;
constexpr double kBottomInset = 4;

} // namespace

NotchTab::NotchTab(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setAcceptedMouseButtons(Qt::AllButtons);
    connect(this, &NotchTab::sizesChanged, this, &NotchTab::place);
}

double NotchTab::scale() const
{
    return window() ? window()->effectiveDevicePixelRatio() : 1;
}

double NotchTab::snapped(double length) const
{
    return std::round(length * scale()) / scale();
}

void NotchTab::place()
{
    const QSizeF size = m_closedSize + (m_openSize - m_closedSize) * m_openness;
    const double middle = parentItem() ? parentItem()->width() / 2 : 0;
    const double left = snapped(middle - std::max(0.0, size.width()) / 2);
    NotchShape shape = NotchShape::between(kClosedShape, kOpenShape, m_openness);
    m_shape = {snapped(shape.top), snapped(shape.bottom)};
    setPosition({left, 0});
    setSize({2 * (middle - left), snapped(std::max(0.0, size.height()))});
    update();
    Q_EMIT interiorChanged();
}

QRectF NotchTab::interior() const
{
    const double inset = m_shape.top + kSideInset;
    return {x() + inset, 0, std::max(0.0, width() - 2 * inset), std::max(0.0, height() - kBottomInset)};
}

bool NotchTab::contains(const QPointF &point) const
{
    return m_shape.path(boundingRect()).contains(point);
}

void NotchTab::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

QSGNode *NotchTab::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *tab = static_cast<NotchTabNode *>(node);
    if (!tab)
        tab = new NotchTabNode(*window());
    const NotchShape shape{m_shape.top, snapped(m_shape.effectiveBottom(size()))};
    tab->show(shape, size(), std::clamp(m_openness, 0.0, 1.0), scale());
    return tab;
}

void NotchTab::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemParentHasChanged) {
        disconnect(m_parentWidth);
        if (data.item)
            m_parentWidth = connect(data.item, &QQuickItem::widthChanged, this, &NotchTab::place);
        place();
    }
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        place();
}

} // namespace brimshade::panel
