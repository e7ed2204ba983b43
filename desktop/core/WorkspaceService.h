#pragma once
#include "Notifications.h"
#include "SharedState.h"

#include <QObject>

namespace brimshade::desktop {

// Queries run on any thread, everything else on the main one.
class WorkspaceService : public QObject, public platform::Workspace {
    Q_OBJECT
public:
    WorkspaceService(SharedState &state, int ownPid);

    std::vector<platform::RunningApplication> runningApplications() const override;
    int processIdentifier() const override { return m_ownPid; }
    std::optional<QString> bundleIdentifier() const override;
    QString displayNameAtPath(const QString &path) const override;
    platform::Image iconForFile(const QString &path) const override;

    bool openURL(const QString &url) override;
    Notifications &notificationCenter() override { return m_notifications; }

    void publishOwn(); // this program joins the running applications

Q_SIGNALS:
    void accessibilityPageOpened();
    void otherApplicationOpened();

private:
    SharedState &m_state;
    const int m_ownPid;
    const platform::Image m_genericIcon;
    Notifications m_notifications;
};

} // namespace brimshade::desktop
