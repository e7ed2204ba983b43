#include "FileDefaults.h"
#include "SettingsFormat.h"

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
        const auto values = readSettings(bytes);
        content.values = values.value_or(QVariantMap());
        return values ? Verdict::good : Verdict::damaged;
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
        m_writer->write(writeSettings(all()));
}

} // namespace brimshade::desktop
