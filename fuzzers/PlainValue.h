#pragma once
#include <QCborArray>
#include <QCborMap>
#include <QVariant>

namespace brimshade::fuzz {

// Any plain value of the bus (desktop/tray/WireValue.h), written as CBOR: it can be corrupted as easily as the bus's
// own format, and reading it needs no bus.
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

// Invalid for anything that is not CBOR.
inline QVariant plainValue(const std::uint8_t *data, std::size_t size)
{
    QCborParserError error;
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QCborValue value = QCborValue::fromCbor(bytes, &error);
    return error.error == QCborError::NoError ? plainValue(value) : QVariant();
}

} // namespace brimshade::fuzz
