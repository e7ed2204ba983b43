#pragma once
#include "platform/Accessibility.h"

#include <QRectF>
#include <QString>
#include <optional>
#include <vector>

// What one application answers about its extras menu bar. Blocks its thread until it has answered; any thread.
namespace brimshade::menubar {

struct ItemReading {
    platform::AXUIElement element;
    QString title, description, identifier; // empty where they cannot be read
    QRectF frame; // display space; a part that cannot be read is 0
};

struct BarReading {
    std::vector<ItemReading> items; // depth first; groups are walked through
    std::optional<double> buttonEdge; // the right edge of the last plain button met
};

// Empty for an application that has no such bar or does not answer.
BarReading readBar(platform::Accessibility &accessibility, int processIdentifier);

// The frame of the first plain button directly in the bar, display space.
std::optional<QRectF> readFirstButton(platform::Accessibility &accessibility, int processIdentifier);

} // namespace brimshade::menubar
