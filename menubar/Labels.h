#pragma once
#include "platform/Image.h"

#include <QColor>
#include <QString>
#include <optional>

// What an item is called and looks like in the panel. Pure functions, any thread.
namespace brimshade::menubar {

// Of "/Applications/A.app/Contents/B.app": "/Applications/A.app". Absent for a path that lies in no bundle.
std::optional<QString> outerBundle(const QString &path);
// "Relay.app" → "Relay"
QString withoutBundleSuffix(QString displayName);

// A system symbol for an item of the system's menu bar agent, by keywords in its identifier.
QString symbolName(const QString &identifier);

// The average colour of the picture, made vivid; white for one that cannot be rendered.
QColor tint(const platform::Image &icon);
QColor tintWithoutIcon();

} // namespace brimshade::menubar
