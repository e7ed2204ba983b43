#pragma once
#include "windows/flow/MenuBarChoices.h"
#include "windows/flow/OnboardingFlow.h"

#include <memory>

namespace brimshade::platform {
struct Platform;
class Window;
class Windows;
class Application;
} // namespace brimshade::platform

namespace brimshade::app {

class PanelPresenter;
class ScanScheduler;

// The settings and the setup window: each created on first use and kept when closed. Main thread.
class SecondaryWindows {
public:
    // onFinish: the user is done with the setup flow.
    SecondaryWindows(const platform::Platform &platform, std::shared_ptr<model::NotchModel> model,
                     std::shared_ptr<PanelPresenter> panel, std::shared_ptr<ScanScheduler> scans,
                     windows::OnboardingFlow::FinishAction onFinish);
    ~SecondaryWindows();

    void openSettings();
    bool isSettingsVisible() const;
    void showOnboarding();
    void closeOnboarding();

private:
    void createSettings();
    void createOnboarding();
    void present(platform::Window &window);

    platform::Accessibility &m_accessibility;
    platform::Application &m_application;
    platform::Dispatch &m_dispatch;
    platform::Windows &m_windows;
    const std::shared_ptr<model::NotchModel> m_model;
    const std::shared_ptr<PanelPresenter> m_panel;
    const std::shared_ptr<ScanScheduler> m_scans;
    const std::unique_ptr<model::PermissionRequest> m_permission;
    const windows::OnboardingFlow::FinishAction m_onFinish;
    std::unique_ptr<windows::MenuBarChoices> m_menuBarChoices; // null where there is nothing to choose
    std::unique_ptr<windows::OnboardingFlow> m_flow; // made together with the setup window
    std::unique_ptr<platform::Window> m_settings;
    std::unique_ptr<platform::Window> m_onboarding;
};

} // namespace brimshade::app
