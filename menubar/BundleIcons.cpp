#include "BundleIcons.h"
#include "Labels.h"
#include "platform/Workspace.h"

namespace brimshade::menubar {

namespace {

constexpr QSizeF kIconSize{128, 128}; // points

}

TintedIcon tinted(const platform::Image &image)
{
    return {image, image.isNull() ? tintWithoutIcon() : tint(image)};
}

// Pictures never change, so the colour is as good as the picture it came from.
const TintedIcon &BundleIcons::find(const QString &bundlePath)
{
    auto found = m_icons.constFind(bundlePath);
    if (found == m_icons.constEnd())
        found = m_icons.insert(bundlePath, tinted(m_workspace.iconForFile(bundlePath).resized(kIconSize)));
    return *found;
}

} // namespace brimshade::menubar
