#pragma once
#include <QString>
#include <QStringList>

namespace brimshade::desktop::tray {

struct IconThemePlaces {
    QString theme; // the user's; empty for none
    QStringList bases; // folders that have themes in them, most important first
};
IconThemePlaces sessionThemePlaces(); // main thread; reads no folder

// The folders in which icons are looked for, best first: of the user's theme, of those that it inherits from, then
// where programs install their own. Not all need to exist. Reads files.
QStringList iconFolders(const IconThemePlaces &places);

} // namespace brimshade::desktop::tray
