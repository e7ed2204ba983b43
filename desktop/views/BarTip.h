#pragma once
#include "desktop/core/InputRouter.h"
#include "desktop/core/Lifetime.h"
#include "desktop/core/MenuBar.h"

#include <QObject>
#include <optional>
#include <qqml.h>

namespace brimshade::desktop {

// The tooltip of the bar's items: the text of the one that the pointer rests on, until it leaves or something is
// pressed. Main thread; display space.
class BarTip : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a desktop")
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QRectF itemFrame READ itemFrame NOTIFY changed)
    Q_PROPERTY(QRectF barFrame READ barFrame NOTIFY changed)

public:
    BarTip(const MenuBar &bar, const InputRouter &input, platform::Dispatch &dispatch);

    bool isShown() const { return m_isShown; }
    QString text() const { return m_text; }
    QRectF itemFrame() const { return m_itemFrame; }
    QRectF barFrame() const { return m_bar.frame(); }

Q_SIGNALS:
    void changed();

private:
    void pointerAt(QPointF point, Target target);
    void rested();
    void take(); // what the item says now
    void hide();

    const MenuBar &m_bar;
    platform::Dispatch &m_dispatch;
    MenuBar::EntryPointer m_item; // the one under the pointer; null for none
    int m_visit = 0; // counts visits to items; what was begun in an earlier one is outdated
    bool m_isShown = false;
    QString m_text;
    QRectF m_itemFrame;
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop
