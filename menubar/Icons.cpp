#include "Labels.h"
#include "MenuBarAccess.h"
#include "platform/Workspace.h"

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;

constexpr QSizeF kIconSize{128, 128}; // points

QColor tintOf(const platform::Image &image)
{
    return image.isNull() ? tintWithoutIcon() : tint(image);
}

} // namespace

QString MenuBarAccess::appName(const platform::RunningApplication &application) const
{
    if (application.bundlePath && isInsideBundle(*application.bundlePath))
        return withoutBundleSuffix(m_workspace.displayNameAtPath(outerBundlePath(*application.bundlePath)));
    return application.localizedName.value_or(u"App"_s);
}

platform::Image MenuBarAccess::appIcon(const platform::RunningApplication &application)
{
    return iconOf(application).image;
}

MenuBarAccess::Icon MenuBarAccess::iconOf(const platform::RunningApplication &application)
{
    if (application.bundlePath)
        return cachedIcon(outerBundlePath(*application.bundlePath));
    return {application.icon, tintOf(application.icon)};
}

// Pictures never change, so the colour is as good as the picture it came from.
const MenuBarAccess::Icon &MenuBarAccess::cachedIcon(const QString &bundlePath)
{
    const auto found = m_icons.find(bundlePath);
    if (found != m_icons.end())
        return found->second;
    const platform::Image image = m_workspace.iconForFile(bundlePath).resized(kIconSize);
    return m_icons.emplace(bundlePath, Icon{image, tintOf(image)}).first->second;
}

} // namespace brimshade::menubar
