#pragma once
#include <QJsonArray>
#include <QJsonValue>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

// The shapes that answers are made of.
namespace brimshade::desktop::json {

inline QJsonArray rect(const QRectF &r)
{
    return {r.x(), r.y(), r.width(), r.height()};
}
inline QJsonArray point(QPointF p)
{
    return {p.x(), p.y()};
}
inline QJsonArray size(QSizeF s)
{
    return {s.width(), s.height()};
}
inline QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

} // namespace brimshade::desktop::json
