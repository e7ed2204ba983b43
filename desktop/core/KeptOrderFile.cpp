#include "KeptOrderFile.h"
#include "KeptOrderFormat.h"
#include "MenuBar.h"
#include "platform/Dispatch.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

KeptOrderFile::KeptOrderFile(const QString &path, MenuBar &bar, platform::Dispatch &dispatch, const Report &report)
    : m_file{path, u"places of tray items"_s}, m_report(report), m_bar(bar)
{
    connect(&bar, &MenuBar::keptOrderChanged, this, &KeptOrderFile::save);
    const auto taken = m_lifetime.guard([this](const Content &content) { take(content); });
    dispatch.globalAsync(platform::QualityOfService::userInitiated, [file = m_file, report, taken, &dispatch] {
        dispatch.mainAsync([taken, content = read(file, report)] { taken(content); });
    });
}

KeptOrderFile::~KeptOrderFile() = default;

QString KeptOrderFile::defaultPath()
{
    const QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    return (QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + u"/.local/state"_s) + u"/brimshade/bar.json"_s;
}

KeptOrderFile::Content KeptOrderFile::read(const StoredFile &file, const Report &report)
{
    Content content;
    content.mayWrite = readStored(file, report, [&content](const QByteArray &bytes) {
        const auto order = readKeptOrder(bytes, KeptOrder::currentDay);
        if (!order)
            return order.error();
        content.order = *order;
        return Verdict::good;
    });
    return content;
}

void KeptOrderFile::take(const Content &content)
{
    m_content = writeKeptOrder(content.order);
    if (content.mayWrite)
        m_writer = std::make_unique<StoredFileWriter>(m_file, m_report);
    m_bar.restore(content.order);
}

void KeptOrderFile::save()
{
    if (!m_writer)
        return;
    const QByteArray content = writeKeptOrder(m_bar.keptOrder());
    if (content != m_content)
        m_writer->write(m_content = content);
}

} // namespace brimshade::desktop
