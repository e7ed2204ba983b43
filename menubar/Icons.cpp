#include "Labels.h"
#include "Owner.h"

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;

constexpr QSizeF kIconSize{128, 128}; // points

QColor tintOf(const platform::Image &image)
{
    return image.isNull() ? tintWithoutIcon() : tint(image);
}

} // namespace

QString MenuBarAccess::appName(const Owner &owner) const
{
    if (owner.outerBundle)
        return withoutBundleSuffix(m_workspace.displayNameAtPath(*owner.outerBundle));
    return owner.application.localizedName.value_or(u"App"_s);
}

MenuBarAccess::Icon MenuBarAccess::appIcon(const Owner &owner)
{
    if (owner.isSystemAgent)
        return {{}, tintWithoutIcon()};
    if (const auto &path = owner.application.bundlePath)
        return cachedIcon(owner.outerBundle.value_or(*path));
    const platform::Image &image = owner.application.icon;
    return {image, tintOf(image)};
}

// Pictures never change, so the colour is as good as the picture it came from.
const MenuBarAccess::Icon &MenuBarAccess::cachedIcon(const QString &bundlePath)
{
    auto found = m_icons.constFind(bundlePath);
    if (found == m_icons.constEnd()) {
        const platform::Image image = m_workspace.iconForFile(bundlePath).resized(kIconSize);
        found = m_icons.insert(bundlePath, {image, tintOf(image)});
    }
    return *found;
}

} // namespace brimshade::menubar
