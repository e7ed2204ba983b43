#include "FileDefaults.h"
#include "AtomicFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr qint64 kLargestFile = 1 << 20; // bytes; ours has some hundreds

std::optional<QVariantMap> parse(const QByteArray &content)
{
    const QJsonDocument document = QJsonDocument::fromJson(content);
    if (content.size() > kLargestFile || !document.isObject())
        return std::nullopt;
    return document.object().toVariantMap();
}

// The new name, empty when there is none to be had. Never replaces an earlier one.
QString moveAside(const QString &path)
{
    constexpr int most = 1000;
    for (int i = 1; i <= most; ++i) {
        QString aside = path + (i == 1 ? u".damaged"_s : u".damaged-%1"_s.arg(i));
        if (QFile::rename(path, aside))
            return aside;
        if (!QFile::exists(aside))
            break; // the folder refuses, not the name
    }
    return {};
}

} // namespace

class FileDefaults::Writer {
public:
    Writer(QString path, Report report)
        : m_path(std::move(path)), m_report(std::move(report)), m_thread([this] { run(); })
    {
    }
    ~Writer()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_isStopping = true;
        }
        m_changed.notify_one();
        m_thread.join();
    }
    Q_DISABLE_COPY_MOVE(Writer)

    void write(QByteArray content)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_next = std::move(content);
        }
        m_changed.notify_one();
    }

private:
    void run()
    {
        std::unique_lock lock(m_mutex);
        while (true) {
            m_changed.wait(lock, [this] { return m_isStopping || m_next; });
            const std::optional<QByteArray> content = std::exchange(m_next, std::nullopt);
            if (!content)
                return;
            lock.unlock();
            const auto written = writeAtomically(m_path, *content);
            if (!written && m_report)
                m_report(u"%1: settings are not saved: %2"_s.arg(m_path, written.error()));
            lock.lock();
        }
    }

    const QString m_path;
    const Report m_report;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::optional<QByteArray> m_next;
    bool m_isStopping = false;
    std::thread m_thread; // last: it uses the rest
};

FileDefaults::FileDefaults(const QString &path, const Report &report) : FileDefaults(path, report, read(path, report))
{
}

FileDefaults::FileDefaults(const QString &path, const Report &report, Content content)
    : MemoryDefaults(std::move(content.values))
{
    removeLeftovers(path);
    if (content.mayWrite)
        m_writer = std::make_unique<Writer>(path, report);
}

FileDefaults::~FileDefaults() = default;

FileDefaults::Content FileDefaults::read(const QString &path, const Report &report)
{
    const auto say = [&](const QString &what) {
        if (report)
            report(path + u": "_s + what);
    };
    QFile file(path);
    if (!file.exists())
        return {};
    if (!QFileInfo(path).isFile()) { // a device or a folder is not ours to move away
        say(u"settings are not saved: this is no file"_s);
        return {.values = {}, .mayWrite = false};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        say(u"settings cannot be read and are not saved: %1"_s.arg(file.errorString()));
        return {.values = {}, .mayWrite = false};
    }
    if (std::optional<QVariantMap> values = parse(file.read(kLargestFile + 1)))
        return {.values = std::move(*values)};
    file.close();
    const QString aside = moveAside(path);
    if (aside.isEmpty())
        say(u"settings are damaged and cannot be moved away; they are not saved"_s);
    else
        say(u"settings are damaged; moved to %1"_s.arg(aside));
    return {.values = {}, .mayWrite = !aside.isEmpty()};
}

QString FileDefaults::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/brimshade/settings.json"_s;
}

void FileDefaults::changed()
{
    if (m_writer)
        m_writer->write(QJsonDocument(QJsonObject::fromVariantMap(all())).toJson());
}

} // namespace brimshade::desktop
