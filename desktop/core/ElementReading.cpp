#include "ElementReading.h"

using namespace brimshade::platform;
using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

using Answer = std::expected<AXAttributeValue, AXError>;

constexpr double kSystemTimeout = 6; // seconds, where an element has no messaging timeout of its own

const Responsiveness *responsivenessOf(const DisplayState &state, const Element &element)
{
    if (element.process)
        return element.process.get();
    const auto process = state.processes.find(element.pid);
    return process == state.processes.end() ? nullptr : process->second.responsiveness.get();
}

Answer textOrNothing(const std::optional<QString> &text)
{
    if (!text)
        return std::unexpected(kAXErrorNoValue);
    return *text;
}

Answer readApplication(const DisplayState &state, const Element &element, const QString &attribute)
{
    if (attribute == "AXExtrasMenuBar"_L1) {
        const auto process = state.processes.find(element.pid);
        if (process == state.processes.end() || !process->second.extrasMenuBar)
            return std::unexpected(kAXErrorNoValue);
        return process->second.extrasMenuBar;
    }
    if (attribute == "AXRole"_L1)
        return u"AXApplication"_s;
    return std::unexpected(kAXErrorAttributeUnsupported);
}

Answer readItem(const Element &element, const QString &attribute)
{
    if (attribute == "AXPosition"_L1 || attribute == "AXSize"_L1) {
        if (!element.frame)
            return std::unexpected(kAXErrorNoValue);
        return attribute == "AXSize"_L1 ? AXAttributeValue(element.frame->size()) : element.frame->topLeft();
    }
    if (attribute == "AXTitle"_L1)
        return textOrNothing(element.title);
    if (attribute == "AXDescription"_L1)
        return textOrNothing(element.description);
    if (attribute == "AXIdentifier"_L1)
        return textOrNothing(element.identifier);
    return std::unexpected(kAXErrorAttributeUnsupported);
}

} // namespace

Answer Admission::answer(const DisplayState &state, const Element &element, const QString &attribute) const
{
    if (error != kAXErrorSuccess)
        return std::unexpected(error);
    if (element.kind == Element::Kind::application)
        return readApplication(state, element, attribute);
    if (attribute == "AXRole"_L1)
        return element.role;
    if (attribute == "AXChildren"_L1)
        return element.children;
    return element.kind == Element::Kind::item ? readItem(element, attribute)
                                               : std::unexpected(kAXErrorAttributeUnsupported);
}

AXError Admission::answer(const Element &element, const QString &action) const
{
    if (error != kAXErrorSuccess)
        return error;
    if (!element.actions.contains(action))
        return kAXErrorActionUnsupported;
    return element.pressError.value_or(kAXErrorSuccess);
}

Admission admit(const DisplayState &state, const Element &element)
{
    if (!state.isTrusted)
        return {kAXErrorAPIDisabled};
    const Responsiveness *process = responsivenessOf(state, element);
    if (!process || !process->isRunning || !element.isAlive)
        return {kAXErrorInvalidUIElement};
    const double timeout = element.messagingTimeout > 0 ? element.messagingTimeout : kSystemTimeout;
    if (process->hangs || process->latency >= timeout)
        return {kAXErrorCannotComplete, timeout};
    return {kAXErrorSuccess, process->latency};
}

Admission admitted(const Admission &then, const DisplayState &state, const Element &element)
{
    const Admission now = admit(state, element);
    const bool isGone = now.error == kAXErrorAPIDisabled || now.error == kAXErrorInvalidUIElement;
    return isGone ? now : then;
}

} // namespace brimshade::desktop
