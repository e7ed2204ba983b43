#pragma once
#include <QString>
#include <QStringList>

namespace brimshade::desktop::tray {

struct IconThemePlaces {
    QString theme; // the user's; empty if there is none
    QStringList bases; // folders that have themes in them, most important first
};
IconThemePlaces sessionThemePlaces(); // main thread; reads no folder

// The folders to search for icons, best first: those of the user's theme, of the themes that it inherits from, then
// where programs install their own. Not all need to exist. Reads files.
QStringList iconFolders(const IconThemePlaces &places);

} // namespace brimshade::desktop::tray
