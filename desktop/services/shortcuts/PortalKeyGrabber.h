#pragma once
#include "PortalRequest.h"
#include "desktop/services/GlobalKeyGrabber.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <map>
#include <memory>

namespace brimshade::desktop {

// Asks the desktop portal of a Wayland session for its shortcuts. The user has the last word there, and may decide
// later or change the decision, so grab refuses only keys that have no name. Main thread, which never waits.
class PortalKeyGrabber : public QObject, public GlobalKeyGrabber {
    Q_OBJECT
public:
    // bindsNothing: the session's portal only pretends to bind, see isPlasma5().
    explicit PortalKeyGrabber(const QDBusConnection &bus, bool bindsNothing = isPlasma5());
    ~PortalKeyGrabber() override; // gives the shortcuts back

    // The portal of Plasma 5 accepts shortcuts, but binds none and opens a page of the system's settings each time.
    static bool isPlasma5();

    // Whether the session's portal offers shortcuts; false until it has answered. If it offers none, the user has to
    // bind `brimshade --toggle`.
    bool isAvailable() const { return m_isAvailable; }

    void setPressed(std::function<void(HotkeyCombination)> pressed) override { m_pressed = std::move(pressed); }
    bool grab(HotkeyCombination combination, const KeyUse &use) override;
    void release(HotkeyCombination combination) override;

Q_SIGNALS:
    void availabilityChanged();

private Q_SLOTS:
    void activated(const QDBusObjectPath &session, const QString &id, qulonglong time, const QVariantMap &options);
    void sessionClosed(const QDBusMessage &message);

private:
    using Results = std::optional<QVariantMap>;
    struct Grabbed {
        HotkeyCombination combination;
        QString purpose;
    };
    void inquire();
    void setAvailable(uint version);
    void ownerChanged(const QString &newOwner);
    void renewSoon(); // once per turn: a changed shortcut is released, then grabbed
    void renew();
    void createSession();
    void sessionCreated(const Results &results);
    void listShortcuts();
    void bindShortcuts();
    void closeSession();
    void request(const QString &method, const QVariantList &arguments, const QVariantMap &options,
                 std::optional<std::chrono::milliseconds> limit, PortalRequest::Handler handler);

    struct Later {
        void operator()(QObject *object) const { object->deleteLater(); }
    };

    QDBusConnection m_bus;
    std::function<void(HotkeyCombination)> m_pressed;
    std::map<QString, Grabbed> m_grabbed; // by the ids that the portal knows
    uint m_version = 0; // of the portal's interface
    bool m_isAvailable = false;
    bool m_isInquiring = false;
    bool m_isRenewing = false; // it will run on a later turn
    QString m_session; // empty for none
    std::unique_ptr<PortalRequest, Later> m_request; // the one under way, null for none
};

} // namespace brimshade::desktop
