#include "FileDefaults.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

FileDefaults::FileDefaults(const QString &path, const Report &report)
    : FileDefaults(StoredFile{path, u"settings"_s}, report)
{
}

FileDefaults::FileDefaults(const StoredFile &file, const Report &report)
    : FileDefaults(file, report, read(file, report))
{
}

FileDefaults::FileDefaults(const StoredFile &file, const Report &report, Content content)
    : MemoryDefaults(std::move(content.values))
{
    if (content.mayWrite)
        m_writer = std::make_unique<StoredFileWriter>(file, report);
}

FileDefaults::~FileDefaults() = default;

FileDefaults::Content FileDefaults::read(const StoredFile &file, const Report &report)
{
    Content content;
    content.mayWrite = readStored(file, report, [&content](const QByteArray &bytes) {
        const QJsonDocument document = QJsonDocument::fromJson(bytes);
        content.values = document.object().toVariantMap();
        return document.isObject() ? Verdict::good : Verdict::damaged;
    });
    return content;
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
