#pragma once
#include <QString>
#include <QVariant>
#include <optional>

// Values from the bus, unpacked once into what Qt holds without the bus: an array or a structure is a QVariantList, an
// array of strings a QStringList, an array of bytes a QByteArray, a map a QVariantMap, a path or signature a QString.
// Whoever reads them on needs no bus, and trusts none of them.
namespace brimshade::desktop::tray {

// One message holds at most this many values; what comes behind is left out.
inline constexpr int kMostWireValues = 200'000;

QVariantList plainArguments(const QVariantList &arguments);

// Readers that take exactly the type asked for. Texts come as one line of at most `longest` characters.
QString lineOf(const QVariant &value, int longest = 256);
std::optional<bool> boolOf(const QVariant &value);
std::optional<qint64> integerOf(const QVariant &value);
QVariantList listOf(const QVariant &value); // an array or structure; empty for anything else

} // namespace brimshade::desktop::tray
