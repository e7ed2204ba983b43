#pragma once
#include "Geometry.h"

#include <QString>
#include <expected>
#include <memory>
#include <variant>
#include <vector>

namespace brimshade::platform {

// Codes as in AXError.h.
enum AXError : int {
    kAXErrorSuccess = 0,
    kAXErrorFailure = -25200,
    kAXErrorInvalidUIElement = -25202,
    kAXErrorCannotComplete = -25204,
    kAXErrorAttributeUnsupported = -25205,
    kAXErrorActionUnsupported = -25206,
    kAXErrorAPIDisabled = -25211,
    kAXErrorNoValue = -25212,
};

// A remote element. Copies share it; it stays valid as an object when its application quits,
// and calls on it then answer kAXErrorInvalidUIElement.
class AXUIElementObject {
public:
    virtual ~AXUIElementObject() = default;
};
using AXUIElement = std::shared_ptr<AXUIElementObject>;

// What an attribute can hold: a string, an element, an array of elements, an AXValue of a
// point (display space) or of a size (points).
using AXAttributeValue = std::variant<QString, AXUIElement, std::vector<AXUIElement>, QPointF, QSizeF>;

// Reads and presses other applications' elements. Every call may be made on any thread and blocks it until the
// answer, or the element's messaging timeout, arrives. A dead application answers kAXErrorInvalidUIElement, a
// missing permission kAXErrorAPIDisabled, a time-out kAXErrorCannotComplete.
class Accessibility {
public:
    virtual ~Accessibility() = default;

    virtual AXUIElement createApplication(int processIdentifier) = 0;
    // Seconds; holds for this element until set again. 0 restores the system's own (6 s). Elements read from an
    // application element do not inherit it.
    virtual AXError setMessagingTimeout(const AXUIElement &element, double seconds) = 0;
    virtual std::expected<AXAttributeValue, AXError> copyAttributeValue(const AXUIElement &element,
                                                                        const QString &attribute) = 0;
    virtual AXError performAction(const AXUIElement &element, const QString &action) = 0;

    // Whether a program needs the user's permission at all. False: it is always trusted.
    virtual bool needsPermission() const { return true; }
    virtual bool isProcessTrusted() = 0;
    // kAXTrustedCheckOptionPrompt: with prompt true the system shows its permission prompt when the
    // permission is missing. Returns at once with the present state.
    virtual bool isProcessTrustedWithOptions(bool prompt) = 0;
};

} // namespace brimshade::platform
