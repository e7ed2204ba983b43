#pragma once
#include "platform/Accessibility.h"

#include <QRectF>
#include <vector>

namespace brimshade::menubar {

using platform::Accessibility;
using platform::AXUIElement;

// Reads the elements of one application. An attribute whose call fails or whose value is of another kind reads as
// empty, null or 0: no reader tells those apart. Every element that it finds gets a messaging timeout; after the first
// time-out the application counts as hung and nothing more is asked of it, so that it costs no more time. Any thread,
// one at a time.
class ElementReader {
public:
    explicit ElementReader(Accessibility &accessibility) : m_accessibility(accessibility) { }

    // That of an application, read with this messaging timeout in seconds. Null when it has none.
    AXUIElement extrasMenuBar(int processIdentifier, double messagingTimeout);
    // For an element found by another reader: sets the messaging timeout on it.
    void adopt(const AXUIElement &element);

    QString string(const AXUIElement &element, const QString &attribute);
    std::vector<AXUIElement> elements(const AXUIElement &element, const QString &attribute);
    QRectF frame(const AXUIElement &element); // display space; a part that is not finite is 0 too
    bool hasFailed() const { return m_hasFailed; } // some attribute so far could not be read

private:
    template <typename T> T value(const AXUIElement &element, const QString &attribute, T otherwise = {});

    Accessibility &m_accessibility;
    bool m_isHung = false;
    bool m_hasFailed = false;
};

} // namespace brimshade::menubar
