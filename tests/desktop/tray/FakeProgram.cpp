#include "FakeProgram.h"
#include "desktop/tray/BusCall.h"

#include <QTimer>

namespace brimshade::desktop::tray {

void BusTest::settle(const QDBusConnection &from, const QDBusConnection &to)
{
    int answers = 0;
    QObject context;
    const BusAddress peer{to.baseService(), u"/"_s, u"org.freedesktop.DBus.Peer"_s};
    // Qt answers a Ping without the program: only the answer to the second one comes after the program's own answers.
    for (int round = 1; round <= 2; ++round) {
        callAsync(from, peer, u"Ping"_s, {}, &context, [&](const BusReply &) { ++answers; });
        waitFor(u"the answer to a ping"_s, [&] { return answers == round; });
    }
}

void BusTest::step(const QDeadlineTimer &deadline, const std::source_location &where)
{
    constexpr double unnoticed = 0.1; // seconds: the delay of the bar's layout
    if (deadline.hasExpired())
        throw std::runtime_error("never came: what " + std::string(where.file_name()) + " waits for in line "
                                 + std::to_string(where.line()));
    if (const auto due = m_dispatch.nextDue(); due && *due <= unnoticed)
        return m_dispatch.advance(std::max(*due, 0.0));
    QTimer wakeUp; // for the deadline
    wakeUp.start(std::chrono::milliseconds(deadline.remainingTime()));
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

const QString kItemPath = u"/StatusNotifierItem"_s;

FakeProgram::FakeProgram(const QDBusConnection &connection) : menu{0, {}, {}}, m_connection(connection)
{
    registerWireTypes();
    m_connection.registerVirtualObject(kItemPath, this);
    m_connection.registerVirtualObject(u"/Menu"_s, this);
}

QStringList FakeProgram::takeEvents()
{
    auto events = m_calls.filter(u"Event "_s);
    m_calls.clear();
    return events;
}

void FakeProgram::registerItem(const QString &argument)
{
    const auto watcher = u"org.kde.StatusNotifierWatcher"_s;
    auto call =
        QDBusMessage::createMethodCall(watcher, u"/StatusNotifierWatcher"_s, watcher, u"RegisterStatusNotifierItem"_s);
    call << argument;
    m_connection.send(call);
}

void FakeProgram::signalItem(const QString &name)
{
    m_connection.send(QDBusMessage::createSignal(kItemPath, u"org.kde.StatusNotifierItem"_s, name));
}

void FakeProgram::signalLayout(int parent)
{
    auto signal = QDBusMessage::createSignal(u"/Menu"_s, u"com.canonical.dbusmenu"_s, u"LayoutUpdated"_s);
    signal << 1U << parent;
    m_connection.send(signal);
}

bool FakeProgram::handleMessage(const QDBusMessage &message, const QDBusConnection &)
{
    QStringList words{message.member()};
    for (const auto &argument : message.arguments().mid(0, 2)) {
        if (message.member() != u"GetAll" && argument.canConvert<QString>() && words.size() < 3)
            words.append(argument.toString());
    }
    if (message.member() == u"GetLayout")
        words = words.mid(0, 2);
    m_calls.append(words.join(u' '));
    Q_EMIT called(m_calls.last());
    if (heldMethods.contains(message.member()))
        m_held.push_back(message);
    else
        reply(message);
    return true;
}

void FakeProgram::answerHeld()
{
    heldMethods.clear();
    for (const auto &message : std::exchange(m_held, {}))
        reply(message);
}

void FakeProgram::reply(const QDBusMessage &message)
{
    if (lateMethods.contains(message.member()))
        m_connection.send(message.createErrorReply(QDBusError::NoReply, u"too late"_s));
    else if (unknownMethods.contains(message.member()))
        m_connection.send(message.createErrorReply(QDBusError::UnknownMethod, u"no such method"_s));
    else
        m_connection.send(message.createReply(answer(message)));
}

QVariantList FakeProgram::answer(const QDBusMessage &message)
{
    const int id = message.arguments().value(0).toInt();
    if (message.member() == u"GetAll")
        return {properties};
    if (message.member() == u"AboutToShow") {
        if (onAboutToShow)
            onAboutToShow(id);
        return {false};
    }
    if (message.member() == u"GetLayout") {
        const auto *node = menu.find(id);
        return {1U, QVariant::fromValue(node ? *node : MenuNode())};
    }
    return {};
}

} // namespace brimshade::desktop::tray
