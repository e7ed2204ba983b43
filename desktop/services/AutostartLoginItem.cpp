#include "AutostartLoginItem.h"
#include "AtomicFile.h"
#include "AutostartEntry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

using platform::LoginItemStatus;

namespace {

constexpr qint64 kLargestEntry = 64 << 10; // bytes

QString fileIn(const QString &folder)
{
    return folder + u"/org.brimshade.Brimshade.desktop"_s;
}

AutostartLoginItem::Places sessionPlaces()
{
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    for (QString &folder : folders)
        folder += u"/autostart"_s;
    const QString user = folders.takeFirst();
    const QString launcher =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/" BRIMSHADE_LAUNCHER));
    return {user, folders, launcher, QFileInfo(launcher).dir().exists(QStringLiteral(BRIMSHADE_UNIT))};
}

bool resolves(const QString &tryExec)
{
    const QFileInfo file(tryExec);
    if (file.isAbsolute())
        return file.isFile() && file.isExecutable();
    return tryExec.isEmpty() || !QStandardPaths::findExecutable(tryExec).isEmpty();
}

} // namespace

AutostartLoginItem::AutostartLoginItem() : AutostartLoginItem(sessionPlaces()) { }

AutostartLoginItem::AutostartLoginItem(Places places) : m_places(std::move(places)) { }

LoginItemStatus AutostartLoginItem::status() const
{
    QFile file(QFile::exists(userFile()) ? userFile() : systemFile());
    if (file.fileName().isEmpty() || !file.open(QIODevice::ReadOnly))
        return LoginItemStatus::notRegistered;
    const AutostartState entry = readAutostartEntry(file.read(kLargestEntry));
    if (!entry.isEnabled)
        return LoginItemStatus::notRegistered;
    return resolves(entry.tryExec) ? LoginItemStatus::enabled : LoginItemStatus::notFound;
}

std::expected<void, QString> AutostartLoginItem::registerMainApp()
{
    return writeAtomically(userFile(), autostartEntry(m_places.program, m_places.hasUnit));
}

std::expected<void, QString> AutostartLoginItem::unregisterMainApp()
{
    if (!systemFile().isEmpty())
        return writeAtomically(userFile(), hiddenAutostartEntry());
    QFile file(userFile());
    if (file.exists() && !file.remove())
        return std::unexpected(file.errorString());
    return {};
}

QString AutostartLoginItem::userFile() const
{
    return fileIn(m_places.userFolder);
}

QString AutostartLoginItem::systemFile() const
{
    for (const QString &folder : m_places.systemFolders) {
        if (QString file = fileIn(folder); QFile::exists(file))
            return file;
    }
    return {};
}

} // namespace brimshade::desktop
