#pragma once
#include "platform/Accessibility.h"

#include <QRectF>
#include <optional>
#include <vector>

// Reads of Accessibility attributes: absent when the call fails or the value is of another kind. Any thread.
namespace brimshade::menubar {

using platform::Accessibility;
using platform::AXUIElement;

std::optional<QString> stringAttribute(Accessibility &accessibility, const AXUIElement &element, const QString &name);
AXUIElement elementAttribute(Accessibility &accessibility, const AXUIElement &element, const QString &name); // or null
std::vector<AXUIElement> elementsAttribute(Accessibility &accessibility, const AXUIElement &element,
                                           const QString &name); // or empty

// Display space. A part that cannot be read, or is not finite, is 0.
QRectF frameOf(Accessibility &accessibility, const AXUIElement &element);

// The extras menu bar of a process. The application element gets that messaging timeout, in seconds, first: one that
// hangs costs no more. Null when there is none.
AXUIElement extrasMenuBar(Accessibility &accessibility, int processIdentifier, double messagingTimeout);

} // namespace brimshade::menubar
