#pragma once
#include "desktop/core/DesktopDescription.h"

#include <QByteArray>
#include <QJsonValue>
#include <expected>

// Reads desktop files, and the same pieces in scripts. An error is one sentence that starts with the place,
// "applications[2].extras[0].width: expected a number".
namespace brimshade::desktop {

std::expected<DesktopDescription, QString> readDesktopFile(const QString &path); // errors start with the path
std::expected<DesktopDescription, QString> parseDesktop(const QByteArray &json);

// path: the value's, for messages.
std::expected<ApplicationDescription, QString> parseApplication(const QJsonValue &value, const QString &path);
std::expected<std::vector<ScreenDescription>, QString> parseScreens(const QJsonValue &value, const QString &path);

} // namespace brimshade::desktop
