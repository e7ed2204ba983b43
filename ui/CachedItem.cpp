#include "CachedItem.h"

namespace brimshade::ui {

CachedItem::CachedItem(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void CachedItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemSceneChange)
        m_cache = data.window ? PictureCache::of(data.window) : nullptr;
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        update();
    QQuickItem::itemChange(change, data);
}

void CachedItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        update();
}

} // namespace brimshade::ui
