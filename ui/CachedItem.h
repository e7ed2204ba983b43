#pragma once
#include "PictureCache.h"

#include <QPointer>
#include <QQuickItem>
#include <qqml.h>

namespace brimshade::ui {

// An item whose picture comes from its window's cache. It is shown anew when its size, window or device pixel ratio
// changes.
class CachedItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit CachedItem(QQuickItem *parent = nullptr);

protected:
    PictureCache *cache() const { return m_cache; } // null without a window

    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    QPointer<PictureCache> m_cache;
};

} // namespace brimshade::ui
