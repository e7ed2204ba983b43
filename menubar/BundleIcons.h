#pragma once
#include "platform/Image.h"

#include <QColor>
#include <QHash>

namespace brimshade::platform {
class Workspace;
}

namespace brimshade::menubar {

struct TintedIcon {
    platform::Image image;
    QColor tint; // of the image
};

TintedIcon tinted(const platform::Image &image); // any thread

// The icons of application bundles, 128 × 128 points, each read once. It has no lock: one thread at a time.
class BundleIcons {
public:
    explicit BundleIcons(platform::Workspace &workspace) : m_workspace(workspace) { }

    const TintedIcon &find(const QString &bundlePath);

private:
    platform::Workspace &m_workspace;
    QHash<QString, TintedIcon> m_icons; // by bundle path; never emptied
};

} // namespace brimshade::menubar
