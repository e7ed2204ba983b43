#pragma once
#include <QDBusConnection>
#include <QObject>
#include <QTimer>
#include <QVariantMap>
#include <chrono>
#include <functional>
#include <optional>

namespace brimshade::desktop {

// The desktop portal of the session.
namespace portal {

using namespace Qt::StringLiterals;
inline const QString kService = u"org.freedesktop.portal.Desktop"_s;
inline const QString kPath = u"/org/freedesktop/portal/desktop"_s;
inline const QString kGlobalShortcuts = u"org.freedesktop.portal.GlobalShortcuts"_s;
} // namespace portal

// One call whose outcome the portal reports later, by a signal of a request object. Main thread; starts the portal if
// it is not running. The handler is not called after this is destroyed.
class PortalRequest : public QObject {
    Q_OBJECT
public:
    // No results means refused, cancelled by the user, or not answered. Called once; may destroy the request with
    // deleteLater().
    using Handler = std::function<void(std::optional<QVariantMap> results)>;

    // options: the last argument. limit: absent if the portal asks the user.
    PortalRequest(const QDBusConnection &bus, const QString &method, const QVariantList &arguments, QVariantMap options,
                  std::optional<std::chrono::milliseconds> limit, Handler handler);

    void withdraw(); // closes what it shows to the user; the handler is not called

private Q_SLOTS:
    void answered(uint response, const QVariantMap &results);

private:
    void finish(std::optional<QVariantMap> results);

    QDBusConnection m_bus;
    QString m_path; // of the request object
    QTimer m_limit;
    Handler m_handler; // empty once called
};

} // namespace brimshade::desktop
