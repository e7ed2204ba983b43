#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace brimshade::desktop {

// What a desktop entry file says about a program.
struct DesktopEntry {
    QString id; // "org.keepassxc.KeePassXC"
    QString name; // in the language asked for
    QString icon; // a name in the icon theme or an absolute path
    QString executable; // the file name of the program it runs
    bool isShown = true; // in menus
    QString windowClass = {}; // the class of its windows, if the entry gives it
};

// Absent if it is not the entry of an application. locale looks like "de_DE".
std::optional<DesktopEntry> parseDesktopEntry(const QString &id, const QByteArray &content, const QString &locale);

// All entries in these folders; the first with an id wins. Reads files, so do not call it on the main thread.
std::vector<DesktopEntry> readDesktopEntries(const QStringList &folders, const QString &locale);

} // namespace brimshade::desktop
