#include "ApplicationService.h"

#include "desktop/session/remote/Remote.h"

#include <QDBusError>
#include <utility>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr std::size_t kMostWaiting = 16; // no more is asked for in earnest while it starts

} // namespace

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
        sendErrorReply(QDBusError::InvalidArgs, u"no such action; there are toggle, settings and quit"_s);
}

void ApplicationService::setActions(const Actions &actions)
{
    m_actions = actions;
    for (const Action action : std::exchange(m_waiting, {}))
        run(action);
}

// On a later turn: whoever asked has the answer by then, even if the program ends.
void ApplicationService::run(Action action)
{
    if (m_actions)
        QMetaObject::invokeMethod(this, *m_actions.*action, Qt::QueuedConnection);
    else if (m_waiting.size() < kMostWaiting)
        m_waiting.push_back(action);
    else
        sendErrorReply(QDBusError::LimitsExceeded, u"Brimshade is starting"_s);
}

} // namespace brimshade::desktop::session
