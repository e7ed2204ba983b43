#include "ApplicationNames.h"

#include "platform/Weakly.h"

#include <QLocale>
#include <QPointer>
#include <QStandardPaths>
#include <algorithm>

namespace brimshade::desktop::session {

namespace {

constexpr qsizetype kMostNames = 1024; // in one session; a program may call its windows anything

// The last word of "org.keepassxc.KeePassXC"; anything else as it is.
QString wordOf(const QString &id)
{
    return id.contains(u' ') ? id : id.section(u'.', -1);
}

// Reads files.
QString readName(const QString &id)
{
    const auto folders = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    const auto entries = readDesktopEntries(folders, QLocale::system().name());
    const auto best = std::ranges::max_element(entries, {}, [&id](const auto &entry) { return fit(entry, id); });
    return best != entries.end() && fit(*best, id) ? best->name : wordOf(id);
}

} // namespace

int fit(const DesktopEntry &entry, const QString &id)
{
    const auto is = [&id](const QString &name) { return name.compare(id, Qt::CaseInsensitive) == 0; };
    if (entry.id == id)
        return 4;
    if (is(entry.windowClass))
        return 3;
    if (is(entry.id) || is(entry.id.section(u'.', -1)))
        return 2;
    return is(entry.executable) ? 1 : 0;
}

QString ApplicationNames::nameOf(const QString &id)
{
    if (id.isEmpty())
        return {};
    const auto known = m_names.constFind(id);
    if (known != m_names.constEnd())
        return *known;
    if (m_names.size() >= kMostNames)
        m_names.clear();
    m_names[id] = wordOf(id); // which also marks it as asked for
    const auto then = platform::weakly(QPointer(this), &ApplicationNames::keep);
    m_dispatch.globalAsync(platform::QualityOfService::userInitiated, [&dispatch = m_dispatch, then, id] {
        const QString name = readName(id);
        dispatch.mainAsync([then, id, name] { then(id, name); });
    });
    return m_names[id];
}

void ApplicationNames::keep(const QString &id, const QString &name)
{
    if (std::exchange(m_names[id], name) != name)
        Q_EMIT found();
}

} // namespace brimshade::desktop::session
