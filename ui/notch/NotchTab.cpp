#include "NotchTab.h"
#include "NotchCore.h"
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
constexpr double kCoreStep = 32; // points
constexpr double kOutlineSteps = 128; // of opacity: the line is so faint that finer ones are never seen
constexpr double kBorneLack = 6; // points of a width or height: half of it at either side, where the padding is wider

// How far above the lower edge a lower corner of that radius begins, at a distance from the body's side.
double cornerHeight(double radius, double distance)
{
    const double along = std::sqrt(std::clamp(distance / std::max(radius, 1e-6), 0.0, 1.0));
    return radius * (1 - along) * (1 - along);
}

} // namespace

NotchTab::NotchTab(QQuickItem *parent) : QQuickItem(parent), m_core(new NotchCore(*this))
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
    const NotchShape shape = NotchShape::between(kClosedShape, kOpenShape, m_openness);
    NotchForm form;
    form.size = {2 * (middle - left), snapped(std::max(0.0, size.height()))};
    form.shape.top = snapped(shape.top);
    form.shape.bottom = snapped(NotchShape{form.shape.top, snapped(shape.bottom)}.effectiveBottom(form.size));
    const double opacity = std::round(std::clamp(m_openness, 0.0, 1.0) * kOutlineSteps) / kOutlineSteps;
    form.outline = m_isBordered ? NotchOutline{1, true} : NotchOutline{opacity, false};
    form.scale = scale();
    const QRectF core = coreIn(form.body().translated(left, 0));
    if (core.isValid())
        form.core = core.translated(-left, 0);
    const QSizeF lack = m_openSize - size;
    if (std::exchange(m_holdsContent, std::max(lack.width(), lack.height()) < kBorneLack) != m_holdsContent)
        Q_EMIT holdsContentChanged();
    if (form == m_form && left == x())
        return;
    m_form = form;
    setPosition({left, 0});
    setSize(form.size);
    m_core->show(core);
    update();
    Q_EMIT interiorChanged();
}

// Its edges lie on a grid so coarse that most frames do not change them.
QRectF NotchTab::coreIn(const QRectF &body) const
{
    const double left = snapped(std::ceil(body.left() / kCoreStep) * kCoreStep);
    const double right = snapped(std::floor(body.right() / kCoreStep) * kCoreStep);
    const double bottom = snapped(std::floor(body.bottom() / kCoreStep) * kCoreStep);
    return {QPointF(left, body.top()), QPointF(right, bottom)};
}

// Smaller than the tab by a little at the sides, which are long, and by more at the bottom, where the panel has its
// footer.
QRectF NotchTab::interior() const
{
    const double radius = m_form.shape.bottom;
    const double side = radius / 8 + kHalfPixel;
    const double inset = m_form.shape.top + side;
    const double below = cornerHeight(radius + kHalfPixel, side - kHalfPixel);
    return {x() + inset, 0, std::max(0.0, width() - 2 * inset), std::max(0.0, height() - below)};
}

bool NotchTab::contains(const QPointF &point) const
{
    return m_form.shape.path(boundingRect()).contains(point);
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
    tab->show(m_form);
    return tab;
}

void NotchTab::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemParentHasChanged) {
        disconnect(m_parentWidth);
        m_core->setParentItem(data.item);
        if (data.item) {
            m_core->stackAfter(this);
            m_parentWidth = connect(data.item, &QQuickItem::widthChanged, this, &NotchTab::place);
        }
        place();
    }
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        place();
}

} // namespace brimshade::ui
