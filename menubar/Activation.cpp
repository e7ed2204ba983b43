#include "Activation.h"
#include "MenuExtra.h"
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

} // namespace

void pressItem(platform::Accessibility &accessibility, platform::Log &log, const MenuExtra &extra)
{
    const platform::AXError error = pressOrShowMenu(accessibility, extra.element);
    // An application busy with the menu it opened does not answer in time: that is no failure.
    if (error != platform::kAXErrorSuccess && error != platform::kAXErrorCannotComplete)
        log.write(platform::LogLevel::error, "press failed for %{public}s: AXError %d", {extra.name, int(error)});
}

} // namespace brimshade::menubar
