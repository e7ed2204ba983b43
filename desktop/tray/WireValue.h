#pragma once
#include <QString>
#include <QVariant>
#include <optional>

// Values from the bus, unpacked once into plain Qt types: an array or a structure is a QVariantList, an array of
// strings a QStringList, an array of bytes a QByteArray, a map a QVariantMap, a path or signature a QString. Their
// readers need no bus, and trust none of them.
namespace brimshade::desktop::tray {

// At most this many values of one message are read; the rest is left out.
inline constexpr int kMostWireValues = 200'000;

QVariantList plainArguments(const QVariantList &arguments);

// Readers that take exactly the type asked for. Texts come as one line of at most `longest` characters.
QString lineOf(const QVariant &value, int longest = 256);
std::optional<bool> boolOf(const QVariant &value);
std::optional<qint64> integerOf(const QVariant &value);
QVariantList listOf(const QVariant &value); // an array or structure; empty for anything else

} // namespace brimshade::desktop::tray
