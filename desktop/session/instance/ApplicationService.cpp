#include "ApplicationService.h"

#include "desktop/session/remote/Remote.h"

#include <QDBusError>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

void ApplicationService::Activate(const QVariantMap &)
{
    run(&Actions::openPanel);
}

void ApplicationService::Open(const QStringList &, const QVariantMap &)
{
    sendErrorReply(QDBusError::NotSupported, u"Brimshade opens no files"_s);
}

void ApplicationService::ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &)
{
    if (!parameter.isEmpty())
        return sendErrorReply(QDBusError::InvalidArgs, u"actions take no parameter"_s);
    if (name == QLatin1String(remote::kToggle))
        run(&Actions::togglePanel);
    else if (name == QLatin1String(remote::kSettings))
        run(&Actions::openSettings);
    else if (name == QLatin1String(remote::kQuit))
        run(&Actions::quit);
    else
        sendErrorReply(QDBusError::InvalidArgs, u"no such action; the actions are toggle, settings and quit"_s);
}

// On a later turn, so that the caller has its answer even if the action ends the program.
void ApplicationService::run(Action action)
{
    const auto later = [this, action] { QMetaObject::invokeMethod(this, m_actions.*action, Qt::QueuedConnection); };
    if (!m_waiting.run(later))
        sendErrorReply(QDBusError::LimitsExceeded, u"Brimshade is starting"_s);
}

} // namespace brimshade::desktop::session
