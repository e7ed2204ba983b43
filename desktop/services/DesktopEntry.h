#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace brimshade::desktop {

// What a desktop entry file says of a program.
struct DesktopEntry {
    QString id; // "org.keepassxc.KeePassXC"
    QString name; // in the language asked for
    QString icon; // a name in the icon theme or an absolute path
    QString executable; // the file name of the program it runs
    bool isShown = true; // in menus
    QString windowClass = {}; // what its windows call themselves, where the entry says so
};

// Absent where it is not the entry of an application. locale is like "de_DE".
std::optional<DesktopEntry> parseDesktopEntry(const QString &id, const QByteArray &content, const QString &locale);

// All entries of these folders, the first of an id winning. Reads files: not on the main thread.
std::vector<DesktopEntry> readDesktopEntries(const QStringList &folders, const QString &locale);

} // namespace brimshade::desktop
