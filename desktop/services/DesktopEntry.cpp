#include "DesktopEntry.h"

#include "KeyFile.h"

#include <QDirIterator>
#include <QFile>
#include <QSet>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr qint64 kMostEntryBytes = 256 << 10;
constexpr int kMostFiles = 8192;

QString localized(const KeyGroup &values, const QString &key, const QString &locale)
{
    const auto language = locale.section(u'_', 0, 0);
    for (const auto &suffix : {locale, language}) {
        auto value = values.value(u"%1[%2]"_s.arg(key, suffix));
        if (!value.isEmpty())
            return value;
    }
    return values.value(key);
}

// The arguments of a command line, in which spaces may be quoted and quotes escaped with backslashes.
QStringList argumentsOf(const QString &exec)
{
    QStringList arguments{QString()};
    bool isQuoted = false;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        if (exec[i] == u'"')
            isQuoted = !isQuoted;
        else if (exec[i] == u' ' && !isQuoted)
            arguments.append(QString());
        else if (exec[i] != u'\\' || ++i < exec.size())
            arguments.last() += exec[i];
    }
    arguments.removeAll(QString());
    return arguments;
}

// The program in a line like "env GDK_BACKEND=x11 /usr/bin/copyq show".
QString executableOf(const QString &exec)
{
    for (const auto &word : argumentsOf(exec)) {
        auto name = word.section(u'/', -1);
        if (name != u"env" && !word.contains(u'='))
            return name;
    }
    return {};
}

} // namespace

std::optional<DesktopEntry> parseDesktopEntry(const QString &id, const QByteArray &content, const QString &locale)
{
    const auto values = readDesktopEntry(content);
    const auto isTrue = [&](const QString &key) { return values.value(key) == u"true"; };
    if (values.value(u"Type"_s) != u"Application" || isTrue(u"Hidden"_s))
        return {};
    DesktopEntry entry;
    entry.id = id;
    entry.name = localized(values, u"Name"_s, locale).simplified().left(256);
    entry.icon = localized(values, u"Icon"_s, locale);
    entry.executable = executableOf(values.value(u"Exec"_s));
    entry.windowClass = values.value(u"StartupWMClass"_s);
    entry.isShown = !isTrue(u"NoDisplay"_s);
    return entry;
}

std::vector<DesktopEntry> readDesktopEntries(const QStringList &folders, const QString &locale)
{
    std::vector<DesktopEntry> entries;
    QSet<QString> ids;
    for (const auto &folder : folders) {
        QDirIterator files(folder, {u"*.desktop"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext() && ids.size() < kMostFiles) {
            QFile file(files.next());
            const auto id = file.fileName().mid(folder.size() + 1).chopped(8).replace(u'/', u'-');
            if (ids.contains(id) || !file.open(QIODevice::ReadOnly))
                continue;
            ids.insert(id);
            if (auto entry = parseDesktopEntry(id, file.read(kMostEntryBytes), locale))
                entries.push_back(*std::move(entry));
        }
    }
    return entries;
}

} // namespace brimshade::desktop
