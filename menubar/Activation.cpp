#include "MenuBarAccess.h"
#include "platform/Dispatch.h"
#include "platform/Log.h"

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;

constexpr double kPressTimeout = 0.5; // seconds; stays on the element

// An item without a press may still have a menu to show.
platform::AXError pressOrShowMenu(platform::Accessibility &accessibility, const platform::AXUIElement &element)
{
    accessibility.setMessagingTimeout(element, kPressTimeout);
    const platform::AXError error = accessibility.performAction(element, u"AXPress"_s);
    return error == platform::kAXErrorActionUnsupported ? accessibility.performAction(element, u"AXShowMenu"_s) : error;
}

void pressAndLog(platform::Accessibility &accessibility, platform::Log &log, const platform::AXUIElement &element,
                 const QString &name)
{
    const platform::AXError error = pressOrShowMenu(accessibility, element);
    // An application that is busy with the menu it opened does not answer in time: no failure.
    if (error != platform::kAXErrorSuccess && error != platform::kAXErrorCannotComplete)
        log.write(platform::LogLevel::error, "press failed for %{public}s: AXError %d", {name, int(error)});
}

} // namespace

void MenuBarAccess::activate(const MenuExtra &extra) const
{
    // Holds the services, not this object, which may be gone by then.
    m_dispatch.globalAsync(platform::QualityOfService::userInitiated,
                           [&accessibility = m_accessibility, &log = m_log, extra] {
                               pressAndLog(accessibility, log, extra.element, extra.name);
                           });
}

void MenuBarAccess::press(const platform::AXUIElement &element, const MenuExtra &extra) const
{
    pressAndLog(m_accessibility, m_log, element, extra.name);
}

} // namespace brimshade::menubar
