#pragma once
#include <QCborArray>
#include <QCborMap>
#include <QVariant>

namespace brimshade::fuzz {

// Any plain value of the bus (desktop/tray/WireValue.h), written as CBOR: it is as easily broken as the bus's own
// format, and no bus is needed to read it.
inline QVariant plainValue(const QCborValue &value)
{
    if (value.isInteger()) {
        const qint64 number = value.toInteger();
        return number == static_cast<int>(number) ? QVariant(static_cast<int>(number)) : QVariant(number);
    }
    if (value.isArray()) {
        QVariantList list;
        for (const QCborValue each : value.toArray())
            list.append(plainValue(each));
        return list;
    }
    if (value.isMap()) {
        QVariantMap map;
        for (const auto [key, each] : value.toMap())
            map.insert(key.toString(), plainValue(each));
        return map;
    }
    return value.toVariant();
}

// Nothing of what is no CBOR.
inline QVariant plainValue(const std::uint8_t *data, std::size_t size)
{
    QCborParserError error;
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QCborValue value = QCborValue::fromCbor(bytes, &error);
    return error.error == QCborError::NoError ? plainValue(value) : QVariant();
}

} // namespace brimshade::fuzz
