#pragma once
#include "platform/Accessibility.h"
#include "platform/Image.h"

#include <QColor>
#include <QRectF>
#include <QString>
#include <optional>
#include <vector>

namespace brimshade::menubar {

// One menu bar extra as a scan found it. A plain value; image and element are shared by every copy.
struct MenuExtra {
    // "pid-position-identifier": stable while the process lives and no item comes or goes ahead of it.
    QString id;
    QString name;
    QString detail;
    platform::Image icon; // 128 × 128 points; null for the system's menu bar agent
    std::optional<QString> symbol; // only for the system's menu bar agent
    QColor tint;
    QRectF frame; // display space; a part that could not be read is 0
    bool isHidden = false;
    bool canMove = true;
    platform::AXUIElement element;
};

// Left to right: ascending frame minimum x, ties by name.
using ExtraList = std::vector<MenuExtra>;

} // namespace brimshade::menubar
