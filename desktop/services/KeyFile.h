#pragma once
#include <QByteArray>
#include <QMap>
#include <QString>

namespace brimshade::desktop {

// One group's values by key, as strings: escapes like "\s" and "\n" are undone.
using KeyGroup = QMap<QString, QString>;

// The groups, by name, of a file like a desktop entry or an icon theme's index: "[Group]" lines and "Key=Value" lines.
// Other lines are skipped. The later of two equal keys wins.
QMap<QString, KeyGroup> readKeyFile(const QByteArray &content);
KeyGroup readDesktopEntry(const QByteArray &content); // the group that every desktop entry has

// A string in the form that such a file holds.
QString escaped(const QString &text);

} // namespace brimshade::desktop
