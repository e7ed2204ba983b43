#include "SettingsFormat.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace brimshade::desktop {

QByteArray writeSettings(const QVariantMap &values)
{
    return QJsonDocument(QJsonObject::fromVariantMap(values)).toJson();
}

std::optional<QVariantMap> readSettings(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return std::nullopt;
    return document.object().toVariantMap();
}

} // namespace brimshade::desktop
