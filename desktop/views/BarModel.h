#pragma once
#include "desktop/core/MenuBar.h"
#include "ui/binding/ListModel.h"

#include <qqml.h>

namespace brimshade::desktop {

class WallClock;

QString barItemName(const BarItem &item); // for people

// The bar with status items as the views show it: the items that are drawn or dragged, left to right. Display space.
// The base class is spelled out in full because the QML type registrar looks it up by its spelling.
class BarModel : public brimshade::ui::ListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a scene")
    Q_PROPERTY(QRectF frame READ frame NOTIFY changed)
    Q_PROPERTY(bool isShowing READ isShowing NOTIFY changed)
    Q_PROPERTY(bool isRearranging READ isRearranging NOTIFY changed) // changes of place are animated
    Q_PROPERTY(bool hasNotch READ hasNotch NOTIFY changed)
    Q_PROPERTY(double notchLeft READ notchLeft NOTIFY changed)
    Q_PROPERTY(double notchRight READ notchRight NOTIFY changed)
    Q_PROPERTY(double menusEnd READ menusEnd NOTIFY changed)

public:
    // Text is only the clock's, which is drawn as text; name is what the item is called.
    enum Role {
        FrameRole = Qt::UserRole + 1,
        PlaceRole,
        NameRole,
        DescriptionRole,
        TextRole,
        LabelRole,
        SymbolRole,
        ImageRole,
        ImageSizeRole,
        ImageLeftRole, // in the item
        LabelLeftRole,
        HighlightedRole,
        ToolTipRole,
        AttentionRole,
        DragOffsetRole
    };

    BarModel(const MenuBar &bar, const WallClock &clock);

    QRectF frame() const { return m_bar.frame(); }
    bool isShowing() const { return m_bar.isShowing(); }
    bool isRearranging() const { return m_bar.isRearranging(); }
    bool hasNotch() const { return m_bar.notch().has_value(); }
    double notchLeft() const { return m_bar.notch().value_or(std::pair(0.0, 0.0)).first; }
    double notchRight() const { return m_bar.notch().value_or(std::pair(0.0, 0.0)).second; }
    double menusEnd() const { return m_bar.applicationMenusEnd(); }

    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

protected:
    int count() const override { return int(m_items.size()); }
    QVariant value(int row, int role) const override;

private:
    void refresh();
    QString text(const BarItem &item) const;

    const MenuBar &m_bar;
    const WallClock &m_clock;
    std::vector<BarItem> m_items;
};

} // namespace brimshade::desktop
