#include "AtomicFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

QString systemText(int error)
{
    return QString::fromStdString(std::generic_category().message(error));
}

// Every process writes to a draft of its own, so that no two write to the same file.
QString draftOf(const QString &path, const QString &process)
{
    return u"%1.%2.new"_s.arg(path, process);
}

std::expected<void, QString> writeDraft(const QString &draft, const QByteArray &content)
{
    QFile file(draft);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return std::unexpected(file.errorString());
    if (file.write(content) != content.size() || !file.flush())
        return std::unexpected(file.errorString());
    // Otherwise a crash of the machine may leave an empty file under the new name.
    if (fsync(file.handle()) != 0)
        return std::unexpected(systemText(errno));
    return {};
}

} // namespace

std::expected<void, QString> writeAtomically(const QString &path, const QByteArray &content)
{
    const QFileInfo info(path);
    const QString target = info.isSymLink() && info.exists() ? info.canonicalFilePath() : path;
    std::error_code error;
    std::filesystem::create_directories(QFileInfo(target).absolutePath().toStdString(), error);
    if (error)
        return std::unexpected(QString::fromStdString(error.message()));

    const QString draft = draftOf(target, QString::number(getpid()));
    std::expected<void, QString> written = writeDraft(draft, content);
    if (written && std::rename(QFile::encodeName(draft).constData(), QFile::encodeName(target).constData()) != 0)
        written = std::unexpected(systemText(errno));
    if (!written)
        QFile::remove(draft);
    return written;
}

void removeLeftovers(const QString &path)
{
    const QFileInfo info(path);
    const QString target = info.exists() ? info.canonicalFilePath() : path;
    const QRegularExpression name(u"\\.([1-9][0-9]{0,8})\\.new$"_s);
    const QDir folder = QFileInfo(target).dir();
    const QStringList drafts = folder.entryList({draftOf(QFileInfo(target).fileName(), u"*"_s)}, QDir::Files);
    for (const QString &draft : drafts) {
        const QString process = name.match(draft).captured(1);
        const bool isOurs = !process.isEmpty()
            && folder.filePath(draft) == draftOf(folder.filePath(QFileInfo(target).fileName()), process);
        if (isOurs && kill(process.toInt(), 0) != 0 && errno == ESRCH)
            QFile::remove(folder.filePath(draft));
    }
}

} // namespace brimshade::desktop
