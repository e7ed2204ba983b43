#include "AccessibilityService.h"
#include "ElementReading.h"
#include "Permission.h"

using namespace brimshade::platform;

namespace brimshade::desktop {

AccessibilityService::AccessibilityService(Dispatch &dispatch, SharedState &state, Permission &permission,
                                           Handlers handlers)
    : m_dispatch(dispatch), m_state(state), m_permission(permission), m_handlers(std::move(handlers))
{
}

AXUIElement AccessibilityService::createApplication(int processIdentifier)
{
    return std::make_shared<Element>(Element::Kind::application, processIdentifier);
}

AXError AccessibilityService::setMessagingTimeout(const AXUIElement &element, double seconds)
{
    if (!element || !(seconds >= 0))
        return kAXErrorFailure;
    m_state.write([&](DisplayState &) { static_cast<Element &>(*element).messagingTimeout = seconds; });
    return kAXErrorSuccess;
}

std::expected<AXAttributeValue, AXError> AccessibilityService::copyAttributeValue(const AXUIElement &object,
                                                                                  const QString &attribute)
{
    using Answer = std::expected<AXAttributeValue, AXError>;
    if (!object)
        return std::unexpected(kAXErrorInvalidUIElement);
    const auto &element = static_cast<const Element &>(*object);
    Admission admission;
    Answer answer = m_state.write([&](DisplayState &state) -> Answer {
        ++state.attributeReads;
        admission = admit(state, element);
        return admission.wait > 0 ? Answer() : admission.answer(state, element, attribute);
    });
    if (admission.wait <= 0)
        return answer;
    wait(admission.wait);
    return m_state.read([&](const DisplayState &state) {
        return admitted(admission, state, element).answer(state, element, attribute);
    });
}

AXError AccessibilityService::performAction(const AXUIElement &object, const QString &action)
{
    const auto element = std::static_pointer_cast<Element>(object);
    if (!element)
        return kAXErrorInvalidUIElement;
    const Admission admission = m_state.read([&](const DisplayState &state) { return admit(state, *element); });
    wait(admission.wait);
    const AXError result = m_state.write([&](DisplayState &state) {
        const AXError answer = admitted(admission, state, *element).answer(*element, action);
        record(state.actions, {element->pid, element->identifier.value_or(QString()), action, answer});
        return answer;
    });
    if (result == kAXErrorSuccess)
        m_dispatch.mainAsync(m_lifetime.guard([this, element] { m_handlers.pressed(element); }));
    else if (result == kAXErrorInvalidUIElement)
        m_dispatch.mainAsync(m_lifetime.guard([this, element] { m_handlers.pressedInVain(element); }));
    return result;
}

void AccessibilityService::wait(double seconds) const
{
    if (seconds > 0 && !m_dispatch.isMainThread())
        m_dispatch.sleep(seconds);
}

bool AccessibilityService::needsPermission() const
{
    return m_permission.isNeeded();
}

bool AccessibilityService::isProcessTrusted()
{
    return isProcessTrustedWithOptions(false);
}

bool AccessibilityService::isProcessTrustedWithOptions(bool prompt)
{
    const bool isTrusted = m_state.write([prompt](DisplayState &state) {
        state.promptCount += prompt && !state.isTrusted;
        return state.isTrusted;
    });
    if (prompt && !isTrusted)
        m_dispatch.mainAsync(m_lifetime.guard([this] { m_permission.openPrompt(); }));
    return isTrusted;
}

} // namespace brimshade::desktop
