#pragma once
#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>

// Small files that the program keeps for itself.
namespace brimshade::desktop {

using Report = std::function<void(const QString &message)>; // called on the reading or the writing thread

// Which file it is, and what messages call its content, in the plural: "settings".
struct StoredFile {
    QString path;
    QString what;
};

// What was found in the file. A file of another version comes from a newer program and stays as it is.
enum class Verdict { good, damaged, otherVersion };

// Reads the file, if there is one, and has its content judged. A damaged file is renamed to "<path>.damaged" (or
// ".damaged-2", …) and reported; one that cannot be read or cannot be renamed is reported and left alone. Returns
// whether it may be written from now on. Also removes drafts of processes that died while writing. Any thread.
bool readStored(const StoredFile &file, const Report &report, const std::function<Verdict(const QByteArray &)> &judge);

// Replaces the file as a whole, on a thread of its own. Contents that arrive during a write supersede each other; the
// destructor waits until the last one is written. Main thread.
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
