#pragma once
#include "OffscreenScene.h"
#include "model/NotchModel.h"
#include "model/PermissionRequest.h"
#include "platform/Dispatch.h"
#include "support/FakeSystem.h"
#include "windows/flow/OnboardingFlow.h"

#include <QLocale>

namespace brimshade::windows {

// The program's texts in a language, as long as it lives.
class Language {
public:
    explicit Language(const QLocale &locale);
    ~Language();
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

// A model with its flow and, once asked for, one of the two windows, offscreen.
class Context : public FakeSystem {
public:
    Context();
    ~Context();

    FakeDispatch dispatch;
    model::NotchModel model{defaults, loginItems};
    model::PermissionRequest permission{accessibility, workspace};
    std::optional<OnboardingFlow::Choices> finished;
    int scans = 0;
    int setups = 0;
    QStringList moves; // "relay hide"
    OnboardingFlow flow{model, permission, accessibility, dispatch,
                        [this](const auto &choices) { finished = choices; }};

    void setExtras(const menubar::ExtraList &extras);
    void goTo(int step);
    ui::OffscreenScene &showSettings(double scale = 1);
    ui::OffscreenScene &showSetup(double scale = 1);
    ui::OffscreenScene &scene() { return *m_scene; }

    QQuickItem *item(const QString &objectName) { return m_scene->find(objectName); }
    QVariant property(const QString &objectName, const char *name) { return item(objectName)->property(name); }
    QList<QQuickItem *> visibleItems() const; // parents before their children
    void click(const QString &objectName);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = {});
    QString focused() const; // the object name of the item with the keyboard

private:
    ui::OffscreenScene &show(const QByteArray &view, QSize size, double scale);

    std::unique_ptr<ui::OffscreenScene> m_scene;
};

// Relay and Wi-Fi in the menu bar, Ledger hidden, the clock pinned.
menubar::ExtraList someExtras();
menubar::MenuExtra extra(const QString &name, bool isHidden = false, bool canMove = true); // the id in lower case

} // namespace brimshade::windows
