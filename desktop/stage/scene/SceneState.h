#pragma once
#include "BannerModel.h"
#include "ForeignTypes.h"
#include "desktop/views/BarModel.h"
#include "desktop/views/BarTip.h"
#include "desktop/views/MenuController.h"
#include "desktop/views/WallClock.h"

#include <QPointF>
#include <QRectF>
#include <qqml.h>

namespace brimshade::desktop {

class Desktop;

// Everything that the desktop's own views show, except the program's windows. Display space. Main thread.
class SceneState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a scene")
    Q_PROPERTY(QRectF bounds READ bounds NOTIFY screensChanged)
    Q_PROPERTY(QVariantList screens READ screens NOTIFY screensChanged) // rectangles
    Q_PROPERTY(brimshade::desktop::BarModel *bar READ bar CONSTANT)
    Q_PROPERTY(brimshade::desktop::BarTip *barTip READ barTip CONSTANT)
    Q_PROPERTY(brimshade::desktop::MenuController *menu READ menu CONSTANT)
    Q_PROPERTY(brimshade::desktop::BannerModel *banners READ banners CONSTANT)
    Q_PROPERTY(brimshade::desktop::Permission *permission READ permission CONSTANT)
    Q_PROPERTY(QVariantList dockImages READ dockImages NOTIFY applicationsChanged)
    Q_PROPERTY(QPointF pointer READ pointer NOTIFY pointerChanged)
    Q_PROPERTY(bool isPointerDrawn READ isPointerDrawn NOTIFY pointerChanged)

public:
    // alwaysDrawsPointer: there is no real pointer to show where it is.
    SceneState(Desktop &desktop, WallClock::Now now, bool alwaysDrawsPointer);

    QRectF bounds() const; // of all screens together
    QVariantList screens() const;
    BarModel *bar() { return &m_bar; }
    BarTip *barTip() { return &m_barTip; }
    MenuController *menu() { return &m_menu; }
    BannerModel *banners() { return &m_banners; }
    Permission *permission() const;
    QVariantList dockImages() const;
    QPointF pointer() const;
    bool isPointerDrawn() const { return m_alwaysDrawsPointer || m_wasWarped; }

    void handMoved(); // the pointer follows the hand again

Q_SIGNALS:
    void screensChanged();
    void applicationsChanged();
    void pointerChanged();

private:
    QList<QRectF> screenFrames() const;
    QRectF screenAt(QPointF point) const;
    void desktopChanged();

    Desktop &m_desktop;
    const bool m_alwaysDrawsPointer;
    bool m_wasWarped = false;
    WallClock m_clock;
    BarModel m_bar;
    BarTip m_barTip;
    MenuController m_menu;
    BannerModel m_banners;
};

} // namespace brimshade::desktop
