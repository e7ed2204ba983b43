#pragma once
#include "platform/Accessibility.h"

#include <QRectF>
#include <vector>

// Reads of Accessibility attributes. An attribute whose call fails or whose value is of another kind reads as empty,
// null or 0: no reader tells those apart. Any thread.
namespace brimshade::menubar {

using platform::Accessibility;
using platform::AXUIElement;

QString stringAttribute(Accessibility &accessibility, const AXUIElement &element, const QString &name);
AXUIElement elementAttribute(Accessibility &accessibility, const AXUIElement &element, const QString &name);
std::vector<AXUIElement> elementsAttribute(Accessibility &accessibility, const AXUIElement &element,
                                           const QString &name);

// Display space. A part that cannot be read, or is not finite, is 0.
QRectF frameOf(Accessibility &accessibility, const AXUIElement &element);

// The extras menu bar of a process. The application element gets that messaging timeout, in seconds, first: one that
// hangs costs no more. Null when there is none.
AXUIElement extrasMenuBar(Accessibility &accessibility, int processIdentifier, double messagingTimeout);

} // namespace brimshade::menubar
