#pragma once
#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>

// Small files that the program keeps for itself.
namespace brimshade::desktop {

using Report = std::function<void(const QString &message)>; // on the thread that reads, or on the writing one

// Which file it is, and what messages call its content, in the plural: "settings".
struct StoredFile {
    QString path;
    QString what;
};

// What was found in the file. A file of another version is a newer program's, and stays as it is.
enum class Verdict { good, damaged, otherVersion };

// Reads the file and has its content judged; a missing one is not read. A damaged file is renamed to "<path>.damaged"
// (or ".damaged-2", …) and reported; one that can neither be read nor moved away is reported and left alone. Answers
// whether it may be written from here on. Also removes what processes that died while they wrote have left. Any thread.
bool readStored(const StoredFile &file, const Report &report, const std::function<Verdict(const QByteArray &)> &judge);

// Replaces the file as a whole, by a thread of its own. Contents that come while it writes supersede each other;
// destroying it waits for the last one. Main thread.
class StoredFileWriter {
public:
    StoredFileWriter(StoredFile file, Report report);
    ~StoredFileWriter();
    Q_DISABLE_COPY_MOVE(StoredFileWriter)

    void write(QByteArray content);

private:
    class Private;
    std::unique_ptr<Private> m_d;
};

} // namespace brimshade::desktop
