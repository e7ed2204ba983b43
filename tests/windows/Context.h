#pragma once
#include "OffscreenScene.h"
#include "desktop/time/VirtualDispatch.h"
#include "model/NotchModel.h"
#include "model/PermissionRequest.h"
#include "support/FakeSystem.h"
#include "windows/flow/MenuBarChoices.h"
#include "windows/flow/OnboardingFlow.h"

#include <QLocale>

namespace brimshade::windows {

// While it exists, the program's texts are in that language; on request, those of a session.
class Language {
public:
    explicit Language(const QLocale &locale, bool isSession = false);
    ~Language();
};

// A model with its flow and, once asked for, one of the two windows, offscreen.
class Context : public FakeSystem {
public:
    Context();
    ~Context();

    desktop::VirtualDispatch dispatch;
    model::NotchModel model{defaults, loginItems};
    model::PermissionRequest permission{accessibility, workspace};
    std::optional<ItemChoices> finished;
    int scans = 0;
    int setups = 0;
    QStringList moves; // "relay hide"
    OnboardingFlow flow{model, permission, accessibility, dispatch,
                        [this](const auto &choices) { finished = choices; }};

    void setExtras(const menubar::ExtraList &extras);
    void goTo(int step);
    bool isLooking(); // whether it polls for the permission, on the second step
    ui::OffscreenScene &showSettings(double scale = 1, MenuBarChoices *menuBar = nullptr);
    ui::OffscreenScene &showSetup(double scale = 1);
    ui::OffscreenScene &scene() { return *m_scene; }

    QQuickItem *item(const QString &objectName) { return m_scene->find(objectName); }
    QVariant property(const QString &objectName, const char *name) { return item(objectName)->property(name); }
    QList<QQuickItem *> visibleItems() const; // parents before their children
    void click(const QString &objectName);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = {});
    QString focused() const; // the object name of the item with the keyboard

private:
    ui::OffscreenScene &show(const QByteArray &view, QSize size, double scale, const QVariantMap &more);

    std::unique_ptr<ui::OffscreenScene> m_scene;
};

// Relay and Wi-Fi in the menu bar, Ledger hidden, the clock pinned.
menubar::ExtraList someExtras();
menubar::MenuExtra extra(const QString &name, bool isHidden = false, bool canMove = true); // id: name in lower case

} // namespace brimshade::windows
