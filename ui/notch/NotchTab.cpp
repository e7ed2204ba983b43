#include "NotchTab.h"
#include "NotchTabNode.h"
#include "model/PanelMetrics.h"

#include <QMouseEvent>
#include <QQuickWindow>
#include <algorithm>
#include <cmath>

namespace brimshade::ui {

namespace {

using Metrics = model::PanelMetrics;

constexpr NotchShape kClosedShape{Metrics::closedFlare, Metrics::closedCorner};
constexpr NotchShape kOpenShape{Metrics::openFlare, Metrics::openCorner};
constexpr double kHalfPixel = 0.5; // points: how far the shape on whole pixels may be from the exact one

// How far above the lower edge a lower corner of that radius begins, at a distance from the body's side.
double cornerHeight(double radius, double distance)
{
    const double along = std::sqrt(std::clamp(distance / std::max(radius, 1e-6), 0.0, 1.0));
    return radius * (1 - along) * (1 - along);
}

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

// Smaller than the tab by a little at the sides, which are long, and by more at the bottom, where the panel has its
// footer.
QRectF NotchTab::interior() const
{
    const double radius = m_shape.effectiveBottom(size());
    const double side = radius / 8 + kHalfPixel;
    const double inset = m_shape.top + side;
    const double below = cornerHeight(radius + kHalfPixel, side - kHalfPixel);
    return {x() + inset, 0, std::max(0.0, width() - 2 * inset), std::max(0.0, height() - below)};
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
    tab->show(shape, size(),
              m_isBordered ? NotchOutline{1, true} : NotchOutline{std::clamp(m_openness, 0.0, 1.0), false}, scale());
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

} // namespace brimshade::ui
