#include "ScriptLoop.h"
#include "desktop/script/ScriptLine.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>
#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace brimshade::composition {

namespace {

constexpr qsizetype kLongestLine = 16 * 1024 * 1024;
constexpr int kBadScript = 2;

int complain(const QString &message)
{
    std::fprintf(stderr, "brimshade: %s\n", qUtf8Printable(message));
    return kBadScript;
}

} // namespace

ScriptLoop::ScriptLoop(int fileDescriptor, const QString &name, Run run)
    : m_fileDescriptor(fileDescriptor), m_name(name), m_run(std::move(run))
{
}

bool ScriptLoop::readMore()
{
    char buffer[65536];
    const ssize_t count = ::read(m_fileDescriptor, buffer, sizeof buffer);
    if (count > 0)
        m_unread.append(buffer, count);
    else if (count == 0 || errno != EINTR)
        m_atEnd = true;
    return !m_atEnd;
}

std::optional<int> ScriptLoop::refuseLongLine() const
{
    if (m_unread.size() <= kLongestLine)
        return {};
    return complain(u"%1:%2: the line is longer than 16 MiB"_s.arg(m_name).arg(m_lineNumber + 1));
}

std::optional<QByteArray> ScriptLoop::nextLine()
{
    const qsizetype end = m_unread.indexOf('\n');
    if (end < 0 && (!m_atEnd || m_unread.isEmpty()))
        return {};
    ++m_lineNumber;
    const QByteArray line = end < 0 ? m_unread : m_unread.left(end);
    m_unread.remove(0, end < 0 ? m_unread.size() : end + 1);
    return line;
}

std::optional<int> ScriptLoop::runLine(const QByteArray &line)
{
    if (line.trimmed().isEmpty())
        return {};
    const auto command = desktop::parseScriptLine(line);
    if (!command)
        return complain(u"%1:%2%3"_s.arg(m_name, QString::number(m_lineNumber), command.error()));

    const QByteArray answer = QJsonDocument(m_run(*command)).toJson(QJsonDocument::Compact);
    std::fwrite(answer.constData(), 1, answer.size(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
    return m_stopped ? std::optional(0) : std::nullopt;
}

int ScriptLoop::runBlocking()
{
    for (;;) {
        while (const auto line = nextLine()) {
            if (const auto status = runLine(*line))
                return *status;
        }
        if (m_atEnd)
            return 0;
        readMore();
        if (const auto status = refuseLongLine())
            return *status;
    }
}

void ScriptLoop::stop()
{
    m_stopped = true;
    if (!m_isRunning)
        QCoreApplication::exit(0);
}

int ScriptLoop::runInEventLoop()
{
    QSocketNotifier notifier(m_fileDescriptor, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [&] {
        if (m_isRunning) // the next command must not interrupt one that lets time pass
            return;
        readMore();
        m_isRunning = true;
        notifier.setEnabled(false);
        std::optional<int> status;
        while (const auto line = status ? std::nullopt : nextLine())
            status = runLine(*line);
        if (!status)
            status = refuseLongLine();
        m_isRunning = false;
        if (status || m_atEnd)
            QCoreApplication::exit(status.value_or(0));
        else
            notifier.setEnabled(true);
    });
    return QCoreApplication::exec();
}

} // namespace brimshade::composition
