#include "Program.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {

constexpr qint64 kMostCommandLineBytes = 8192;
constexpr double kTrustSeconds = 10; // saves reading again while a session's programs all start at once

bool isInterpreter(const QString &name)
{
    static const QRegularExpression pattern(
        u"^(python|perl|ruby|node|bash|dash|sh|gjs|java|mono|pypy|wish|lua|php)[0-9.]*(-console)?$"_s);
    return pattern.match(name).hasMatch();
}

QString fileName(const QString &path)
{
    return path.section(u'/', -1);
}

QString scriptOf(const QStringList &arguments)
{
    for (const auto &argument : arguments.mid(1)) {
        if (!argument.startsWith(u'-'))
            return fileName(argument);
    }
    return {};
}

// How likely the entry belongs to that program: its id counts more than the command it runs, which several may share.
int score(const DesktopEntry &entry, const QStringList &names)
{
    const auto lastPart = entry.id.section(u'.', -1);
    const bool isNamed = names.contains(entry.id, Qt::CaseInsensitive) || names.contains(lastPart, Qt::CaseInsensitive);
    const bool isRun = names.contains(entry.executable);
    return isNamed || isRun ? (isNamed ? 4 : 0) + (isRun ? 2 : 0) + (entry.isShown ? 1 : 0) : 0;
}

} // namespace

Process readProcess(int pid)
{
    const auto folder = u"/proc/%1/"_s.arg(pid);
    Process process;
    process.executable = QFileInfo(folder + u"exe"_s).symLinkTarget();
    if (process.executable.endsWith(u" (deleted)"))
        process.executable.chop(10);
    QFile commandLine(folder + u"cmdline"_s);
    if (commandLine.open(QIODevice::ReadOnly)) {
        for (const auto &argument : commandLine.read(kMostCommandLineBytes).split('\0'))
            process.arguments.append(QString::fromLocal8Bit(argument));
    }
    return process;
}

QStringList programNames(const Process &process)
{
    QStringList names;
    const auto add = [&](const QString &name) {
        if (!name.isEmpty() && !names.contains(name))
            names.append(name);
    };
    const auto executable = fileName(process.executable);
    if (isInterpreter(executable)) {
        add(scriptOf(process.arguments));
        return names;
    }
    add(executable);
    add(fileName(process.arguments.value(0)));
    return names;
}

std::optional<DesktopEntry> findDesktopEntry(const Process &process, const std::vector<DesktopEntry> &entries)
{
    const auto names = programNames(process);
    const DesktopEntry *best = nullptr;
    int bestScore = 0;
    for (const auto &entry : entries) {
        const int own = score(entry, names);
        if (own > bestScore || (own > 0 && own == bestScore && entry.id < best->id)) {
            best = &entry;
            bestScore = own;
        }
    }
    return best ? std::optional(*best) : std::nullopt;
}

ProgramFinder::ProgramFinder(std::function<double()> now) : m_now(std::move(now)) { }

FoundProgram ProgramFinder::find(int pid)
{
    if (!m_readAt || m_now() > *m_readAt + kTrustSeconds) {
        const auto folders = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
        m_entries = readDesktopEntries(folders, QLocale::system().name());
        m_readAt = m_now();
    }
    const auto process = readProcess(pid);
    const auto entry = findDesktopEntry(process, m_entries);
    return {entry, entry ? entry->id : programNames(process).value(0)};
}

} // namespace brimshade::desktop::tray
