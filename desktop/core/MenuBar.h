#pragma once
#include "platform/Image.h"

#include <QObject>
#include <QRectF>
#include <QString>
#include <optional>
#include <utility>
#include <vector>

namespace brimshade::desktop {

// One item as the bar shows it now.
struct BarItem {
    int pid = 0;
    QString identifier, title, description; // empty where absent
    QString symbol;                         // drawn when not empty, else the image
    platform::Image image;
    QRectF frame;        // display space; the settled one
    bool drawn = false;  // also: takes clicks
    bool isOwn = false;  // this program's own status item
    bool isHighlighted = false; // its menu is open or it is pressed
};

// The bar with status items. Main thread.
class MenuBar : public QObject
{
    Q_OBJECT
public:
    std::vector<BarItem> items() const; // left to right
    QRectF frame() const;               // of the bar on its screen, display space
    std::optional<std::pair<double, double>> notch() const; // x of its edges, display space
    bool isShowing() const;

Q_SIGNALS:
    void changed(); // once a layout has settled, or an item's look changed
};

} // namespace brimshade::desktop
