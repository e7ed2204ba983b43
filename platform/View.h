#pragma once
#include "Geometry.h"

#include <QPainter>
#include <QString>
#include <QVariantMap>
#include <memory>
#include <variant>
#include <vector>

namespace brimshade::platform {

// A declarative view: the type of a QML module, created with these initial properties. Objects among the
// properties stay owned by the caller and outlive the window.
struct HostedView {
    QString module; // "Brimshade.Panel"
    QString type; // "NotchRoot"
    QVariantMap properties;
};

// NSTrackingAreaOptions
inline constexpr unsigned kTrackingMouseEnteredAndExited = 0x01;
inline constexpr unsigned kTrackingActiveAlways = 0x80; // also while the application is inactive

struct TrackingArea {
    QRectF rect; // in the view, points
    unsigned options = 0;
};

// A view drawn and tracked by the program itself. Main thread.
class NativeView {
public:
    virtual ~NativeView() = default;
    virtual std::vector<TrackingArea> updateTrackingAreas(QSizeF size) = 0; // on showing and on every resize
    virtual void mouseEntered() = 0; // the pointer came into, or left, a tracking area
    virtual void mouseExited() = 0;
    virtual void draw(QPainter &painter, const QRectF &dirtyRect) = 0;
};

using ContentView = std::variant<HostedView, std::shared_ptr<NativeView>>;

} // namespace brimshade::platform
