#include "SecondaryWindows.h"

#include "PanelPresenter.h"
#include "ScanScheduler.h"
#include "model/NotchModel.h"
#include "model/PermissionRequest.h"
#include "platform/Accessibility.h"
#include "platform/Application.h"
#include "platform/Platform.h"
#include "platform/Window.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace brimshade::app {

namespace {

platform::WindowAttributes settingsAttributes()
{
    platform::WindowAttributes settings;
    settings.name = u"settings"_s;
    settings.styleMask = platform::kStyleTitled | platform::kStyleClosable;
    settings.title = QCoreApplication::translate("SecondaryWindows", "Brimshade Settings");
    settings.contentSizesWindow = true;
    return settings;
}

platform::WindowAttributes onboardingAttributes()
{
    platform::WindowAttributes setup;
    setup.name = u"setup"_s;
    setup.styleMask = platform::kStyleTitled | platform::kStyleClosable | platform::kStyleFullSizeContentView;
    setup.titlebarAppearsTransparent = true;
    setup.titleHidden = true;
    setup.isMovableByWindowBackground = true;
    setup.darkAppearance = true;
    setup.contentSizesWindow = true;
    return setup;
}

} // namespace

SecondaryWindows::SecondaryWindows(const platform::Platform &platform, std::shared_ptr<model::NotchModel> model,
                                   std::shared_ptr<PanelPresenter> panel, std::shared_ptr<ScanScheduler> scans,
                                   windows::OnboardingFlow::FinishAction onFinish)
    : m_accessibility(platform.accessibility), m_application(platform.application), m_dispatch(platform.dispatch),
      m_windows(platform.windows), m_model(std::move(model)), m_panel(std::move(panel)), m_scans(std::move(scans)),
      m_permission(std::make_unique<model::PermissionRequest>(platform.accessibility, platform.workspace)),
      m_onFinish(std::move(onFinish))
{
    if (platform.menuBarPreferences)
        m_menuBarChoices = std::make_unique<windows::MenuBarChoices>(*platform.menuBarPreferences);
}

SecondaryWindows::~SecondaryWindows() = default;

void SecondaryWindows::openSettings()
{
    m_panel->close();
    m_scans->scan();
    if (!m_settings)
        createSettings();
    present(*m_settings);
}

bool SecondaryWindows::isSettingsVisible() const
{
    return m_settings && m_settings->isVisible();
}

void SecondaryWindows::showOnboarding()
{
    m_panel->close();
    if (m_settings)
        m_settings->close();
    m_model->setTrusted(m_accessibility.isProcessTrusted());
    m_scans->scan();
    if (!m_onboarding)
        createOnboarding();
    present(*m_onboarding);
}

void SecondaryWindows::closeOnboarding()
{
    if (m_onboarding)
        m_onboarding->close();
}

void SecondaryWindows::createSettings()
{
    QVariantMap properties{{u"model"_s, QVariant::fromValue(m_model.get())}};
    if (m_menuBarChoices)
        properties.insert(u"menuBar"_s, QVariant::fromValue(m_menuBarChoices.get()));
    m_settings = m_windows.createWindow(settingsAttributes(),
                                        platform::HostedView{u"Brimshade.Windows"_s, u"SettingsView"_s, properties});
    m_settings->center();
}

void SecondaryWindows::createOnboarding()
{
    m_flow =
        std::make_unique<windows::OnboardingFlow>(*m_model, *m_permission, m_accessibility, m_dispatch, m_onFinish);
    m_onboarding = m_windows.createWindow(onboardingAttributes(),
                                          platform::HostedView{u"Brimshade.Windows"_s,
                                                               u"OnboardingView"_s,
                                                               {{u"model"_s, QVariant::fromValue(m_model.get())},
                                                                {u"flow"_s, QVariant::fromValue(m_flow.get())}}});
    m_onboarding->center();
}

// At no other time is this program the active one.
void SecondaryWindows::present(platform::Window &window)
{
    m_application.activate();
    window.makeKeyAndOrderFront();
}

} // namespace brimshade::app
