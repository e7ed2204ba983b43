#pragma once
#include "FadeGround.h"

#include <memory>
#include <qqml.h>

namespace brimshade::ui {

// Fades its contents as one: overlapping parts do not show through, as they would with the item's own opacity. The
// software renderer has no layer for that. There the group is drawn opaque and what was there before is laid over it
// again, with the same result, provided that is opaque itself. Other renderers give the group an opacity.
class FadingGroup : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double shown READ shown WRITE setShown NOTIFY shownChanged) // 0 to 1, instead of an opacity
    Q_PROPERTY(double reach MEMBER m_reach NOTIFY changed) // points beyond the item that it also draws in
    Q_PROPERTY(bool asOne MEMBER m_isAsOne NOTIFY changed) // false where nothing overlaps: that is cheaper
    // For those who ask what can be seen, which the opacities of the item and its ancestors do not tell.
    Q_PROPERTY(double groupOpacity READ groupOpacity NOTIFY shownChanged)

public:
    explicit FadingGroup(QQuickItem *parent = nullptr);
    ~FadingGroup() override;

    double shown() const { return m_shown; }
    void setShown(double shown);
    double groupOpacity() const { return m_veil ? m_shown : 1; }

Q_SIGNALS:
    void shownChanged();
    void changed();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    bool isVeiled() const;
    void fade();
    void layOut();

    double m_shown = 1;
    double m_reach = 4;
    bool m_isAsOne = true;
    std::unique_ptr<FadeGround> m_ground; // this and the veil exist while it is veiled
    std::unique_ptr<FadeVeil> m_veil;
};

} // namespace brimshade::ui
