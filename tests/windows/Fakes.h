#pragma once
#include "menubar/MenuExtra.h"
#include "platform/Accessibility.h"
#include "platform/Dispatch.h"
#include "platform/LoginItems.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

#include <QHash>
#include <QStringList>
#include <QVariant>

// What the windows' models stand on, in memory.
namespace brimshade::windows {

class FakeDefaults : public platform::UserDefaults {
public:
    QVariant objectForKey(const QString &key) const override { return m_values.value(key); }
    bool boolForKey(const QString &key) const override { return m_values.value(key).toBool(); }
    QString stringForKey(const QString &key) const override { return m_values.value(key).toString(); }
    void setBool(bool value, const QString &key) override { m_values[key] = value; }
    void setInteger(qlonglong value, const QString &key) override { m_values[key] = value; }
    void setObject(const QString &value, const QString &key) override { m_values[key] = value; }

private:
    QHash<QString, QVariant> m_values;
};

// Says no to everything but the status.
class FakeLoginItems : public platform::LoginItems {
public:
    platform::LoginItemStatus status() const override { return platform::LoginItemStatus::notRegistered; }
    std::expected<void, QString> registerMainApp() override { return std::unexpected(QStringLiteral("not allowed")); }
    std::expected<void, QString> unregisterMainApp() override { return {}; }
};

class FakeAccessibility : public platform::Accessibility {
public:
    bool trusted = false;
    int questions = 0;
    int prompts = 0;

    platform::AXUIElement createApplication(int) override { return {}; }
    platform::AXError setMessagingTimeout(const platform::AXUIElement &, double) override
    {
        return platform::kAXErrorFailure;
    }
    std::expected<platform::AXAttributeValue, platform::AXError> copyAttributeValue(const platform::AXUIElement &,
                                                                                    const QString &) override
    {
        return std::unexpected(platform::kAXErrorFailure);
    }
    platform::AXError performAction(const platform::AXUIElement &, const QString &) override
    {
        return platform::kAXErrorFailure;
    }
    bool isProcessTrusted() override
    {
        ++questions;
        return trusted;
    }
    bool isProcessTrustedWithOptions(bool prompt) override
    {
        prompts += prompt;
        return trusted;
    }
};

class FakeWorkspace : public platform::Workspace, private platform::NotificationCenter {
public:
    QStringList openedURLs;

    std::vector<platform::RunningApplication> runningApplications() const override { return {}; }
    int processIdentifier() const override { return 1; }
    std::optional<QString> bundleIdentifier() const override { return {}; }
    QString displayNameAtPath(const QString &path) const override { return path; }
    platform::Image iconForFile(const QString &) const override { return {}; }
    bool openURL(const QString &url) override
    {
        openedURLs << url;
        return true;
    }
    platform::NotificationCenter &notificationCenter() override { return *this; }

private:
    void addObserver(const QString &, const void *, platform::Work) override { }
};

// One repeating timer at most, and a clock that stands still between calls of pass().
class FakeDispatch : public platform::Dispatch {
public:
    double now() const override { return m_now; }
    bool isMainThread() const override { return true; }
    void mainAsync(platform::Work) override { }
    void mainAfter(double, platform::Work) override { }
    void mainSync(const platform::Work &work) override { work(); }
    std::unique_ptr<platform::Timer> scheduleRepeating(double seconds, platform::Work tick) override
    {
        m_interval = seconds;
        m_due = m_now + seconds;
        m_tick = std::move(tick);
        return std::make_unique<Handle>(*this);
    }
    std::shared_ptr<platform::SerialQueue> makeSerialQueue(const QString &, platform::QualityOfService) override
    {
        return {};
    }
    void globalAsync(platform::QualityOfService, platform::Work) override { }
    void sleep(double) override { }

    bool isIdle() const { return !m_tick; }
    void pass(double seconds)
    {
        const double until = m_now + seconds;
        while (m_tick && m_due <= until) {
            m_now = m_due;
            m_due += m_interval;
            m_tick();
        }
        m_now = until;
    }

private:
    class Handle : public platform::Timer {
    public:
        explicit Handle(FakeDispatch &dispatch) : m_dispatch(dispatch) { }
        ~Handle() override { invalidate(); }
        void invalidate() override { m_dispatch.m_tick = nullptr; }

    private:
        FakeDispatch &m_dispatch;
    };

    double m_now = 0;
    double m_interval = 0;
    double m_due = 0;
    platform::Work m_tick;
};

} // namespace brimshade::windows
