#pragma once
#include "platform/Menu.h"

#include <QCoreApplication>
#include <memory>

namespace brimshade::platform {
class Application;
class Log;
struct Platform;
class StatusItem;
} // namespace brimshade::platform

namespace brimshade::model {
class NotchModel;
}

namespace brimshade::app {

class PanelPresenter;
class ScanScheduler;
class SecondaryWindows;

// What a click on the status item does: the left one toggles the panel, the right one opens the menu. Main thread.
class StatusMenu : public std::enable_shared_from_this<StatusMenu> {
    Q_DECLARE_TR_FUNCTIONS(StatusMenu)

public:
    struct Parts {
        std::shared_ptr<model::NotchModel> model;
        std::shared_ptr<platform::StatusItem> item;
        std::shared_ptr<PanelPresenter> panel;
        std::shared_ptr<SecondaryWindows> windows;
        std::shared_ptr<ScanScheduler> scans;
    };
    StatusMenu(const platform::Platform &platform, Parts parts);
    ~StatusMenu();

    void clicked(); // decided by the application's current event; without one it is a left click

private:
    void popUp();
    void detach();
    platform::Menu menu() const;

    platform::Application &m_application;
    platform::Log &m_log;
    const Parts m_parts;
};

} // namespace brimshade::app
