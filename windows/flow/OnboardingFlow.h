#pragma once
#include "ChoiceTiles.h"
#include "ItemChoices.h"

#include <QVariantList>
#include <functional>
#include <memory>

namespace brimshade::platform {
class Accessibility;
class Dispatch;
class Timer;
} // namespace brimshade::platform

namespace brimshade::model {
class NotchModel;
class PermissionRequest;
} // namespace brimshade::model

namespace brimshade::windows {

// The setup flow behind its view: where the user is, what they chose for each item, and the watch for the
// permission. It lives as long as the setup window, so that reopening shows the step and the choices where they
// were left. Main thread.
class OnboardingFlow : public QObject {
    Q_OBJECT
    Q_PROPERTY(int step READ step NOTIFY stepChanged)
    Q_PROPERTY(int steps READ steps CONSTANT)
    Q_PROPERTY(int position READ position NOTIFY stepChanged)
    Q_PROPERTY(Action action READ action NOTIFY actionChanged)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    Q_PROPERTY(brimshade::windows::ChoiceTiles *tiles READ tiles CONSTANT)
    Q_PROPERTY(int stayCount READ stayCount NOTIFY choicesChanged)
    Q_PROPERTY(int tuckedCount READ tuckedCount NOTIFY choicesChanged)
    Q_PROPERTY(int pendingCount READ pendingCount NOTIFY choicesChanged)
    Q_PROPERTY(QVariantList heroIcons READ heroIcons NOTIFY heroIconsChanged)

public:
    using FinishAction = std::function<void(const ItemChoices &)>;

    enum Step { Welcome, Permission, Items, Opening, Final };
    Q_ENUM(Step)
    enum Action { GetStarted, Continue, Skip, Finish }; // of the button at the bottom right
    Q_ENUM(Action)

    // The objects passed in outlive the flow. onFinish gets every choice, even those that change nothing.
    OnboardingFlow(model::NotchModel &model, model::PermissionRequest &permission,
                   platform::Accessibility &accessibility, platform::Dispatch &dispatch, FinishAction onFinish,
                   QObject *parent = nullptr);
    ~OnboardingFlow() override;

    int step() const { return m_step; }
    // Where no permission is needed, there is no step for it.
    int steps() const { return Final + (m_asksForPermission ? 1 : 0); }
    int position() const
    {
        return m_step - (m_step > Permission && !m_asksForPermission ? 1 : 0);
    } // from 0, among those
    Action action() const;
    // True while the view is on screen: set by the view. It then checks the permission every 1.0 s.
    bool isActive() const { return m_timer != nullptr; }
    void setActive(bool active);

    ChoiceTiles *tiles() { return &m_tiles; }
    const ItemChoices &choices() const { return m_choices; }
    bool effectiveChoice(const menubar::MenuExtra &extra) const; // the choice, else where the item is now
    int stayCount() const;
    int tuckedCount() const;
    int pendingCount() const; // items whose choice differs from where they are now
    QVariantList heroIcons() const { return m_heroIcons; } // five platform::Images, null beyond the last one

    Q_INVOKABLE void act(); // the action of the bottom right button
    Q_INVOKABLE void back();
    Q_INVOKABLE void toggle(const QString &extraID); // nothing for an item that cannot move
    Q_INVOKABLE void openAccessibilitySettings();
    void poll(); // checks the permission once; asks for a scan when it has just been granted

Q_SIGNALS:
    void stepChanged();
    void actionChanged();
    void activeChanged();
    void choicesChanged();
    void heroIconsChanged();

private:
    void moveBy(int direction);
    void setStep(int step);
    void extrasChanged();
    void seedChoices();
    void updateHeroIcons();

    model::NotchModel &m_model;
    model::PermissionRequest &m_permission;
    platform::Accessibility &m_accessibility;
    platform::Dispatch &m_dispatch;
    FinishAction m_onFinish;
    const bool m_asksForPermission;
    int m_step = Welcome;
    ItemChoices m_choices;
    ChoiceTiles m_tiles;
    QVariantList m_heroIcons;
    std::unique_ptr<platform::Timer> m_timer;
};

} // namespace brimshade::windows
