#include "IconTheme.h"

#include "desktop/services/KeyFile.h"

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QRegularExpression>
#include <QStandardPaths>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {

constexpr qint64 kMostIndexBytes = 1 << 20;
constexpr int kMostThemes = 16;
constexpr int kMostFolders = 1000; // of one theme
constexpr int kWantedPixels = 128;
const auto kSharedTheme = u"hicolor"_s; // every theme's last resort

struct Theme {
    QStringList parents;
    QStringList folders; // relative to the theme's folder in a base, best first
};

QStringList namesIn(const QString &value)
{
    return value.split(u',', Qt::SkipEmptyParts).mid(0, kMostFolders);
}

int pixelsOf(const QString &folder, const KeyGroup &about)
{
    static const QRegularExpression number(u"(?:^|/)(\\d{1,4})"_s);
    const int size = about.value(u"Size"_s).toInt();
    return size > 0 ? size * std::max(1, about.value(u"Scale"_s).toInt()) : number.match(folder).captured(1).toInt();
}

// Lower is better: vector pictures, then sizes that need no enlarging, smallest first, then the rest, largest first.
int rank(const QString &folder, const KeyGroup &about)
{
    if (about.value(u"Type"_s) == u"Scalable" || folder.contains(u"scalable"))
        return 0;
    const int pixels = pixelsOf(folder, about);
    return pixels >= kWantedPixels ? pixels : 100'000 - pixels;
}

// For a theme whose index lists no folders: every folder two levels down.
QStringList listedFolders(const QString &root)
{
    QStringList folders;
    for (const auto &outer : QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const auto &inner : QDir(root + u'/' + outer).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (folders.size() < kMostFolders)
                folders.append(outer + u'/' + inner);
        }
    }
    return folders;
}

Theme readTheme(const QString &name, const QStringList &bases)
{
    Theme theme;
    QMap<QString, KeyGroup> groups;
    for (const auto &base : bases) {
        QFile index(base + u'/' + name + u"/index.theme"_s);
        if (groups.isEmpty() && index.open(QIODevice::ReadOnly))
            groups = readKeyFile(index.read(kMostIndexBytes));
    }
    const auto about = groups.value(u"Icon Theme"_s);
    theme.parents = namesIn(about.value(u"Inherits"_s));
    theme.folders = namesIn(about.value(u"Directories"_s)) + namesIn(about.value(u"ScaledDirectories"_s));
    for (auto base = bases.begin(); theme.folders.isEmpty() && base != bases.end(); ++base)
        theme.folders = listedFolders(*base + u'/' + name);
    std::stable_sort(theme.folders.begin(), theme.folders.end(), [&](const QString &a, const QString &b) {
        return rank(a, groups.value(a)) < rank(b, groups.value(b));
    });
    return theme;
}

} // namespace

IconThemePlaces sessionThemePlaces()
{
    auto bases = QIcon::themeSearchPaths();
    for (const auto &folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        bases.append(folder + u"/icons"_s);
    bases.removeIf([](const QString &base) { return !base.startsWith(u'/'); });
    bases.removeDuplicates();
    return {QIcon::themeName(), bases};
}

QStringList iconFolders(const IconThemePlaces &places)
{
    QStringList names{places.theme}, folders;
    const auto add = [&](const QString &name, const QStringList &inside) {
        auto roots = places.bases;
        for (auto &root : roots)
            root += u'/' + name + u'/';
        roots.removeIf([](const QString &root) { return !QFile::exists(root); });
        for (const auto &folder : inside) {
            for (const auto &root : roots)
                folders.append(root + folder);
        }
    };
    names.removeAll(QString());
    for (qsizetype i = 0; i < names.size() && i < kMostThemes; ++i) {
        const auto theme = readTheme(names[i], places.bases);
        if (names[i] != kSharedTheme)
            add(names[i], theme.folders);
        names += theme.parents;
        names.removeDuplicates();
    }
    add(kSharedTheme, readTheme(kSharedTheme, places.bases).folders);
    for (const auto &base : places.bases)
        folders.append(QDir::cleanPath(base + u"/../pixmaps"_s));
    return folders;
}

} // namespace brimshade::desktop::tray
