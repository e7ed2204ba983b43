#pragma once
#include "Attributes.h"

#include <optional>

namespace brimshade::menubar {

// The items of one extras menu bar, depth first. Groups are walked through; the right edge of each plain button met
// goes into buttonEdge, so that the last one stays. Blocks while the application answers.
std::vector<AXUIElement> collectItems(Accessibility &accessibility, const AXUIElement &menuBar,
                                      std::optional<double> &buttonEdge);

// The frame of the first plain button directly in a menu bar, display space.
std::optional<QRectF> firstButtonFrame(Accessibility &accessibility, const AXUIElement &menuBar);

} // namespace brimshade::menubar
