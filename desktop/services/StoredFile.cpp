#include "StoredFile.h"
#include "AtomicFile.h"

#include <QFile>
#include <QFileInfo>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr qint64 kLargestFile = 1 << 20; // bytes; ours have a few hundred

// Returns the new name, empty if the file cannot be renamed. Never replaces an earlier one.
QString moveAside(const QString &path)
{
    constexpr int most = 1000;
    for (int i = 1; i <= most; ++i) {
        QString aside = path + (i == 1 ? u".damaged"_s : u".damaged-%1"_s.arg(i));
        if (QFile::rename(path, aside))
            return aside;
        if (!QFile::exists(aside))
            break; // the name is free, so it is the folder that refuses
    }
    return {};
}

void say(const StoredFile &file, const Report &report, const QString &text)
{
    if (report)
        report(u"%1: %2 %3"_s.arg(file.path, file.what, text));
}

bool putAside(const StoredFile &file, const Report &report)
{
    const QString aside = moveAside(file.path);
    say(file, report,
        aside.isEmpty() ? u"are damaged and cannot be moved away; they are not saved"_s
                        : u"are damaged; moved to %1"_s.arg(aside));
    return !aside.isEmpty();
}

} // namespace

bool readStored(const StoredFile &stored, const Report &report, const std::function<Verdict(const QByteArray &)> &judge)
{
    removeLeftovers(stored.path);
    QFile file(stored.path);
    if (!file.exists())
        return true;
    if (!QFileInfo(stored.path).isFile()) { // a device or a folder is not ours to move away
        say(stored, report, u"are not saved: this is not a file"_s);
        return false;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        say(stored, report, u"cannot be read and are not saved: %1"_s.arg(file.errorString()));
        return false;
    }
    const QByteArray content = file.read(kLargestFile + 1);
    file.close();
    switch (content.size() > kLargestFile ? Verdict::damaged : judge(content)) {
    case Verdict::good:
        return true;
    case Verdict::damaged:
        return putAside(stored, report);
    case Verdict::otherVersion:
        say(stored, report, u"are from another version; they are left alone and changes are not saved"_s);
        return false;
    }
    return false;
}

class StoredFileWriter::Private {
public:
    Private(StoredFile file, Report report)
        : m_file(std::move(file)), m_report(std::move(report)), m_thread([this] { run(); })
    {
    }
    ~Private()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_isStopping = true;
        }
        m_changed.notify_one();
        m_thread.join();
    }
    Q_DISABLE_COPY_MOVE(Private)

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
            if (const auto written = writeAtomically(m_file.path, *content); !written)
                say(m_file, m_report, u"are not saved: %1"_s.arg(written.error()));
            lock.lock();
        }
    }

    const StoredFile m_file;
    const Report m_report;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::optional<QByteArray> m_next;
    bool m_isStopping = false;
    std::thread m_thread; // last: it uses the other members
};

StoredFileWriter::StoredFileWriter(StoredFile file, Report report)
    : m_d(std::make_unique<Private>(std::move(file), std::move(report)))
{
}

StoredFileWriter::~StoredFileWriter() = default;

void StoredFileWriter::write(QByteArray content)
{
    m_d->write(std::move(content));
}

} // namespace brimshade::desktop
