#pragma once
#include "Geometry.h"

#include <QString>
#include <optional>
#include <vector>

namespace brimshade::platform {

// One screen as it is now; rectangles are in screen space.
struct Screen {
    QString localizedName;
    QRectF frame;
    QRectF visibleFrame; // less the menu bar
    std::optional<QRectF> auxiliaryTopLeftArea; // the menu bar left and right of the camera housing;
    std::optional<QRectF> auxiliaryTopRightArea; // absent on a screen without one
    double safeAreaTop = 0; // the height of the notch, 0 without one

    bool operator==(const Screen &) const = default;
};

// Any thread. The first screen is the primary one. A change of the arrangement posts
// kNSApplicationDidChangeScreenParametersNotification to the default notification centre.
class Screens {
public:
    virtual ~Screens() = default;
    virtual std::vector<Screen> screens() const = 0;
    virtual std::optional<Screen> mainScreen() const = 0; // the one with the key window
};

} // namespace brimshade::platform
