#include "WireValue.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusSignature>
#include <QDBusVariant>

namespace brimshade::desktop::tray {

namespace {

QVariant plain(const QVariant &value, int &budget);

QVariantList plainSequence(const QDBusArgument &argument, bool isArray, int &budget)
{
    QVariantList result;
    isArray ? argument.beginArray() : argument.beginStructure();
    while (!argument.atEnd() && budget > 0)
        result.append(plain(argument.asVariant(), budget));
    isArray ? argument.endArray() : argument.endStructure();
    return result;
}

QVariantMap plainMap(const QDBusArgument &argument, int &budget)
{
    QVariantMap result;
    argument.beginMap();
    while (!argument.atEnd() && budget > 0) {
        argument.beginMapEntry();
        const auto key = plain(argument.asVariant(), budget);
        result.insert(key.toString(), plain(argument.asVariant(), budget));
        argument.endMapEntry();
    }
    argument.endMap();
    return result;
}

QVariant plainArgument(const QDBusArgument &argument, int &budget)
{
    switch (argument.currentType()) {
    case QDBusArgument::ArrayType:
        return plainSequence(argument, true, budget);
    case QDBusArgument::StructureType:
        return plainSequence(argument, false, budget);
    case QDBusArgument::MapType:
        return plainMap(argument, budget);
    default:
        return {};
    }
}

QVariantMap plainValues(QVariantMap map, int &budget)
{
    for (auto &value : map)
        value = plain(value, budget);
    return map;
}

// The bus limits the nesting of a message to 64 levels, so this cannot recurse endlessly.
QVariant plain(const QVariant &value, int &budget)
{
    if (--budget < 0)
        return {};
    const auto type = value.metaType();
    if (type == QMetaType::fromType<QDBusArgument>())
        return plainArgument(value.value<QDBusArgument>(), budget);
    if (type == QMetaType::fromType<QDBusVariant>())
        return plain(value.value<QDBusVariant>().variant(), budget);
    if (type == QMetaType::fromType<QDBusObjectPath>())
        return value.value<QDBusObjectPath>().path();
    if (type == QMetaType::fromType<QDBusSignature>())
        return value.value<QDBusSignature>().signature();
    if (type == QMetaType::fromType<QVariantMap>())
        return plainValues(value.toMap(), budget);
    return value;
}

} // namespace

QVariantList plainArguments(const QVariantList &arguments)
{
    int budget = kMostWireValues;
    QVariantList result;
    for (const auto &argument : arguments)
        result.append(plain(argument, budget));
    return result;
}

QString lineOf(const QVariant &value, int longest)
{
    if (value.metaType() != QMetaType::fromType<QString>())
        return {};
    auto line = value.toString().left(4 * longest).simplified();
    line.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
    return line.size() <= longest ? line : line.left(longest - 1) + u'…';
}

std::optional<bool> boolOf(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<bool>())
        return {};
    return value.toBool();
}

std::optional<qint64> integerOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return value.toLongLong();
    default:
        return {};
    }
}

QVariantList listOf(const QVariant &value)
{
    if (value.typeId() == QMetaType::QStringList || value.typeId() == QMetaType::QVariantList)
        return value.toList();
    return {};
}

} // namespace brimshade::desktop::tray
